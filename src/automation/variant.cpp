#include "automation/variant.h"

#include "automation/dispatch.h"
#include "automation/error.h"

namespace rangewerks::automation {
namespace {

constexpr std::int32_t kControlFacility = static_cast<std::int32_t>(0x800A0000U);
constexpr std::int32_t kParameterNotFound = static_cast<std::int32_t>(0x80020004U);
constexpr std::int32_t kGreatestNumber = 0xFFFF;

}  // namespace

ErrorValue ErrorValue::FromNumber(std::int32_t number) {
  return {kControlFacility | (number & kGreatestNumber)};
}

std::int32_t ErrorValue::Number() const {
  return (code & ~kGreatestNumber) == kControlFacility ? code & kGreatestNumber : 0;
}

Variant::Variant(Array value) : value_(std::make_shared<const Array>(std::move(value))) {}

Variant Variant::Missing() { return ErrorValue{kParameterNotFound}; }

bool Variant::IsMissing() const noexcept {
  const auto* error = TryGet<ErrorValue>();
  return error != nullptr && error->code == kParameterNotFound;
}

const Object& Variant::AsObject() const {
  const auto* object = TryGet<Object>();
  if (object == nullptr) throw Error(ErrorNumber::ObjectRequired);
  return *object;
}

const Array& Variant::AsArray() const {
  const auto* array = TryGet<std::shared_ptr<const Array>>();
  if (array == nullptr) throw Error(ErrorNumber::TypeMismatch);
  return **array;
}

std::string Variant::TypeName() const {
  switch (GetKind()) {
    case Kind::Empty:
      return "Empty";
    case Kind::Null:
      return "Null";
    case Kind::Boolean:
      return "Boolean";
    case Kind::Integer:
      return "Integer";
    case Kind::Long:
      return "Long";
    case Kind::Double:
      return "Double";
    case Kind::Date:
      return "Date";
    case Kind::String:
      return "String";
    case Kind::Error:
      return "Error";
    case Kind::Object:
      return AsObject().TypeName();
    case Kind::Array:
      return "Variant()";
  }
  return {};
}

bool operator==(const Variant& left, const Variant& right) {
  if (left.IsArray() && right.IsArray()) return left.AsArray() == right.AsArray();
  return left.value_ == right.value_;
}

Array::Array(std::int32_t rows, std::int32_t columns) : rows_(rows), columns_(columns) {
  if (rows < 1 || columns < 1) throw Error(ErrorNumber::SubscriptOutOfRange);
  values_.resize(static_cast<std::size_t>(rows) * static_cast<std::size_t>(columns));
}

std::size_t Array::Index(std::int32_t row, std::int32_t column) const {
  if (row < 1 || row > rows_ || column < 1 || column > columns_) {
    throw Error(ErrorNumber::SubscriptOutOfRange);
  }
  return static_cast<std::size_t>(row - 1) * static_cast<std::size_t>(columns_) +
         static_cast<std::size_t>(column - 1);
}

const Variant& Array::At(std::int32_t row, std::int32_t column) const {
  return values_[Index(row, column)];
}

Variant& Array::At(std::int32_t row, std::int32_t column) { return values_[Index(row, column)]; }

}  // namespace rangewerks::automation
