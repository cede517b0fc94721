#include "apps/rangewerks/field_reader.h"

#include <algorithm>
#include <limits>

#include "apps/rangewerks/failure.h"
#include "automation/text.h"

namespace rangewerks::apps {

FieldReader::FieldReader(const Json& value, std::string pointer)
    : object_(value), pointer_(std::move(pointer)) {
  if (!object_.is_object()) {
    throw Failure((pointer_.empty() ? "the whole file" : pointer_) + ": found " +
                  ShownJson(object_) + ", expected an object, {…}");
  }
}

std::optional<std::string> FieldReader::Text(std::string_view field) {
  const Json* found = Find(field);
  if (found == nullptr) return std::nullopt;
  if (!found->is_string()) RefuseValue(field, *found, "a text in quotes");
  return found->get<std::string>();
}

std::optional<bool> FieldReader::Boolean(std::string_view field) {
  const Json* found = Find(field);
  if (found == nullptr) return std::nullopt;
  if (!found->is_boolean()) RefuseValue(field, *found, "true or false");
  return found->get<bool>();
}

std::optional<std::int16_t> FieldReader::Integer(std::string_view field) {
  using Limits = std::numeric_limits<std::int16_t>;
  const auto found = WholeNumber(field, Limits::min(), Limits::max());
  if (!found) return std::nullopt;
  return static_cast<std::int16_t>(*found);
}

std::optional<std::int32_t> FieldReader::WholeNumber(std::string_view field, std::int32_t least,
                                                     std::int32_t most) {
  const Json* found = Find(field);
  if (found == nullptr) return std::nullopt;
  const auto isWithin = [&](auto number) {
    return std::cmp_greater_equal(number, least) && std::cmp_less_equal(number, most);
  };
  const bool fits = found->is_number_unsigned()
                        ? isWithin(found->get<std::uint64_t>())
                        : found->is_number_integer() && isWithin(found->get<std::int64_t>());
  if (!fits) {
    RefuseValue(field, *found,
                "a whole number from " + std::to_string(least) + " to " + std::to_string(most));
  }
  return found->get<std::int32_t>();
}

const Json* FieldReader::List(std::string_view field) {
  const Json* found = Find(field);
  if (found != nullptr && !found->is_array()) RefuseValue(field, *found, "a list, […]");
  return found;
}

std::string FieldReader::RequiredText(std::string_view field) {
  const std::optional<std::string> found = Text(field);
  if (!found) RefuseMissing(field, "a text in quotes");
  if (automation::IsBlank(*found)) Refuse(field, "the text is blank");
  return *found;
}

const Json& FieldReader::RequiredList(std::string_view field) {
  const Json* found = List(field);
  if (found == nullptr) RefuseMissing(field, "a list, […]");
  return *found;
}

void FieldReader::RefuseOthers() const {
  for (const auto& [field, value] : object_.items()) {
    if (std::ranges::find(known_, field) == known_.end()) {
      Refuse(field, "there is no field of this name" + DidYouMean(field, known_));
    }
  }
}

void FieldReader::RefuseField(std::string_view field, const std::string& reason) {
  if (object_.contains(field)) Refuse(field, reason);
}

std::string FieldReader::PointerTo(std::string_view field) const {
  return pointer_ + '/' + PointerPart(std::string(field));
}

void FieldReader::Refuse(std::string_view field, const std::string& words) const {
  throw Failure(PointerTo(field) + (name_.empty() ? "" : " (" + name_ + ")") + ": " + words);
}

const Json* FieldReader::Find(std::string_view field) {
  known_.push_back(field);
  const auto found = object_.find(field);
  return found == object_.end() ? nullptr : &*found;
}

void FieldReader::RefuseValue(std::string_view field, const Json& found,
                              const std::string& expected) const {
  Refuse(field, "found " + ShownJson(found) + ", expected " + expected);
}

void FieldReader::RefuseWord(std::string_view field, const std::string& found,
                             std::span<const std::string_view> words) const {
  RefuseValue(field, Json(found), OneOf(words) + DidYouMean(found, words));
}

void FieldReader::RefuseMissing(std::string_view field, const std::string& expected) const {
  Refuse(field, "the field is missing, expected " + expected);
}

}  // namespace rangewerks::apps
