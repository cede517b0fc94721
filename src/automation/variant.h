// A value whose kind is told at run time: what a cell holds, what a property takes and gives.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "automation/object.h"

namespace rangewerks::automation {

/// The absence of data, as databases and mixed cells report it. Unlike empty it can't be converted.
struct Null {
  friend bool operator==(Null, Null) = default;
};

/// A point in time: days since 30 December 1899, the time of day in the fraction. For times before
/// that day the fraction still counts forward from midnight: -1.25 is 29 December 1899, 06:00.
/// Valid from -657434 (1 January 100) to below 2958466 (1 January 10000).
struct Date {
  double serial = 0;
  friend bool operator==(Date, Date) = default;
};

/// An error that is a value, such as a cell's division by zero; it can't be converted to anything.
struct ErrorValue {
  std::int32_t code = 0;  ///< as HRESULT; a cell error n is 0x800A0000 + n

  /// The value for a spreadsheet's error number, such as 2007 for a division by zero.
  static ErrorValue FromNumber(std::int32_t number);
  /// The number that FromNumber was given; 0 when the code isn't one of these.
  std::int32_t Number() const;
  friend bool operator==(ErrorValue, ErrorValue) = default;
};

class Array;

/// The kinds in the order of the storage of Variant.
enum class Kind {
  Empty,
  Null,
  Boolean,
  Integer,  ///< signed 16-bit
  Long,     ///< signed 32-bit
  Double,
  Date,
  String,  ///< UTF-8
  Error,
  Object,
  Array,
};

/// A value of any kind. Copying copies the value; objects and arrays are shared.
class Variant {
 public:
  Variant() = default;
  Variant(Null value) : value_(value) {}
  Variant(bool value) : value_(value) {}
  Variant(std::int16_t value) : value_(value) {}
  Variant(std::int32_t value) : value_(value) {}
  Variant(double value) : value_(value) {}
  Variant(Date value) : value_(value) {}
  Variant(std::string value) : value_(std::move(value)) {}
  Variant(std::string_view value) : value_(std::string(value)) {}
  Variant(const char* value) : value_(std::string(value)) {}
  Variant(ErrorValue value) : value_(value) {}
  Variant(Object value) : value_(std::move(value)) {}
  template <class T>
  requires std::derived_from<T, Dispatch> Variant(std::shared_ptr<T> value)
      : value_(Object(std::move(value))) {}
  Variant(Array value);
  Variant(const void*) = delete;  // a pointer is no boolean

  /// The value that stands for an argument left out of a call.
  static Variant Missing();
  bool IsMissing() const noexcept;

  Kind GetKind() const noexcept { return static_cast<Kind>(value_.index()); }
  bool IsEmpty() const noexcept { return GetKind() == Kind::Empty; }
  bool IsNull() const noexcept { return GetKind() == Kind::Null; }
  bool IsString() const noexcept { return GetKind() == Kind::String; }
  bool IsError() const noexcept { return GetKind() == Kind::Error; }
  bool IsObject() const noexcept { return GetKind() == Kind::Object; }
  bool IsArray() const noexcept { return GetKind() == Kind::Array; }

  /// The stored value of exactly that type, or null. No conversion.
  template <class T>
  const T* TryGet() const noexcept {
    return std::get_if<T>(&value_);
  }

  /// The object. Raises 424 when the value is something else.
  const Object& AsObject() const;
  /// The array. Raises 13 when the value is something else.
  const Array& AsArray() const;

  /// The name of the kind as scripts report it: "Empty", "String", "Integer" …; for an object its
  /// own type name.
  std::string TypeName() const;

  /// Equal kind and equal value. No conversion: 1 as Long and 1 as Double differ.
  friend bool operator==(const Variant& left, const Variant& right);

 private:
  std::variant<std::monostate, Null, bool, std::int16_t, std::int32_t, double, Date, std::string,
               ErrorValue, Object, std::shared_ptr<const Array>>
      value_;
};

/// A block of values as a spreadsheet gives it for several cells: rows and columns from 1.
class Array {
 public:
  /// A block of empty values. Raises 9 when a size is below 1.
  Array(std::int32_t rows, std::int32_t columns);

  std::int32_t Rows() const noexcept { return rows_; }
  std::int32_t Columns() const noexcept { return columns_; }
  /// The element at a 1-based position. Raises 9 outside the block.
  const Variant& At(std::int32_t row, std::int32_t column) const;
  Variant& At(std::int32_t row, std::int32_t column);

  friend bool operator==(const Array&, const Array&) = default;

 private:
  std::size_t Index(std::int32_t row, std::int32_t column) const;

  std::int32_t rows_;
  std::int32_t columns_;
  std::vector<Variant> values_;
};

}  // namespace rangewerks::automation
