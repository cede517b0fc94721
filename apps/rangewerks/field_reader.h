// Reading the fields of a JSON object, each checked, the unknown ones refused.
//
//   FieldReader fields(object, "/ranges/3");
//   const std::string name = fields.RequiredText("RangeName");
//   const bool mandatory = fields.Boolean("IsMandatory").value_or(false);
//   fields.RefuseOthers();
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "apps/rangewerks/closest_word.h"
#include "apps/rangewerks/json_document.h"

namespace rangewerks::apps {

/// A word of a file and the value that it stands for.
template <class Value>
struct Word {
  std::string_view text;
  Value value;
};

/// Every member that reads raises Failure, with the field's JSON pointer, what was found and what
/// is expected, when the field holds something else. The object must outlive the reader.
class FieldReader {
 public:
  /// Raises Failure when `value` isn't an object.
  FieldReader(const Json& value, std::string pointer);

  /// Words for a person that tell this object from its neighbours, such as its name; they go into
  /// all messages.
  void Call(std::string name) { name_ = std::move(name); }

  /// The field's value, or none when the object lacks the field.
  std::optional<std::string> Text(std::string_view field);
  std::optional<bool> Boolean(std::string_view field);
  std::optional<std::int16_t> Integer(std::string_view field);
  /// A whole number within these bounds.
  std::optional<std::int32_t> WholeNumber(std::string_view field, std::int32_t least,
                                          std::int32_t most);
  template <class Value, std::size_t count>
  std::optional<Value> OneOfWords(std::string_view field,
                                  const std::array<Word<Value>, count>& words);
  /// The array in the field, or null when the object lacks it.
  const Json* List(std::string_view field);

  /// The same for a field that must be there; a text must also have more than blanks.
  std::string RequiredText(std::string_view field);
  template <class Value, std::size_t count>
  Value RequiredWord(std::string_view field, const std::array<Word<Value>, count>& words);
  const Json& RequiredList(std::string_view field);

  /// Refuses a field that was never asked for, with the nearest of those that were.
  void RefuseOthers() const;
  /// Refuses a field whose place is elsewhere, for the reason given.
  void RefuseField(std::string_view field, const std::string& reason);

  std::string PointerTo(std::string_view field) const;
  /// Raises Failure about a field.
  [[noreturn]] void Refuse(std::string_view field, const std::string& words) const;

 private:
  const Json* Find(std::string_view field);
  [[noreturn]] void RefuseValue(std::string_view field, const Json& found,
                                const std::string& expected) const;
  [[noreturn]] void RefuseWord(std::string_view field, const std::string& found,
                               std::span<const std::string_view> words) const;
  [[noreturn]] void RefuseMissing(std::string_view field, const std::string& expected) const;

  const Json& object_;
  std::string pointer_;
  std::string name_;
  std::vector<std::string_view> known_;
};

template <class Value, std::size_t count>
std::optional<Value> FieldReader::OneOfWords(std::string_view field,
                                             const std::array<Word<Value>, count>& words) {
  const std::optional<std::string> found = Text(field);
  if (!found) return std::nullopt;
  std::vector<std::string_view> texts;
  for (const Word<Value>& word : words) {
    if (*found == word.text) return word.value;
    texts.push_back(word.text);
  }
  RefuseWord(field, *found, texts);
}

template <class Value, std::size_t count>
Value FieldReader::RequiredWord(std::string_view field,
                                const std::array<Word<Value>, count>& words) {
  if (const auto value = OneOfWords(field, words)) return *value;
  std::vector<std::string_view> texts;
  for (const Word<Value>& word : words) texts.push_back(word.text);
  RefuseMissing(field, OneOf(texts));
}

}  // namespace rangewerks::apps
