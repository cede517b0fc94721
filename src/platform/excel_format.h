// What the format of a Range is made of, as typed references: fill, font, lines, the rule of what
// may be entered, conditional formats.
//
//   range.get_Interior().let_Color(0x80FFFF);
//   excel::Border bottom = range.get_Borders(excel::xlEdgeBottom);
//   bottom.let_LineStyle(excel::xlDouble);
#pragma once

#include <optional>

#include "platform/excel.h"

namespace rangewerks::excel {

/// Colours are 0xBBGGRR.
class Interior : public Object {
 public:
  using Object::Object;
  explicit Interior(const Object& object) : Object(object) {}

  void let_Color(std::int32_t color) const;
  /// The number of the nearest colour of the host's palette, xlColorIndexNone for no fill, and null
  /// when the cells differ.
  Variant get_ColorIndex() const;
  void let_ColorIndex(std::int32_t index) const;
};

class Font : public Object {
 public:
  using Object::Object;
  explicit Font(const Object& object) : Object(object) {}

  void let_Bold(bool isBold) const;
};

class Border : public Object {
 public:
  using Object::Object;
  explicit Border(const Object& object) : Object(object) {}

  /// Both draw a line where there was none; a double line is always thick.
  void let_LineStyle(LineStyle style) const;
  void let_Weight(BorderWeight weight) const;
};

/// The rule of what may be entered into the cells, with its messages. All cells together have one
/// rule or none.
class Validation : public Object {
 public:
  using Object::Object;
  explicit Validation(const Object& object) : Object(object) {}

  /// Gives the cells a rule. Fails, as an answer, when any of them has one already, and for a
  /// formula that isn't one. The operator is left out where the type has none; the formula of a
  /// list is its elements with "," between.
  void Add(ValidationType type, ValidationAlertStyle alertStyle,
           std::optional<ValidationOperator> comparison, const Variant& formula1) const;
  /// Gives the cells a rule that has nothing but its type: xlValidateInputOnly.
  void Add(ValidationType type) const;
  /// Takes the rule away, if there is one.
  void Delete() const;

  // All of these fail when the cells have no rule. Titles have up to 32 characters, error messages
  // 225, input messages 255; longer texts fail.
  void let_IgnoreBlank(bool ignores) const;
  void let_ErrorTitle(const std::string& text) const;
  void let_ErrorMessage(const std::string& text) const;
  void let_InputTitle(const std::string& text) const;
  void let_InputMessage(const std::string& text) const;
};

/// One conditional format.
class FormatCondition : public Object {
 public:
  using Object::Object;
  explicit FormatCondition(const Object& object) : Object(object) {}

  /// The fill that cells have while the condition holds.
  Interior get_Interior() const;
};

/// The conditional formats of the cells.
class FormatConditions : public Object {
 public:
  using Object::Object;
  explicit FormatConditions(const Object& object) : Object(object) {}

  /// Adds a condition behind those that the cells have. The formula has the list separator of the
  /// host's locale. May fail, as an answer, where the host takes no more conditions.
  FormatCondition Add(FormatConditionType type, const std::string& formula1) const;
  std::int32_t get_Count() const;
  /// Removes all conditions from the cells; other cells keep theirs.
  void Delete() const;
};

}  // namespace rangewerks::excel
