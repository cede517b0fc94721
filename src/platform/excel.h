// The spreadsheet's object model as typed references. Each method is one late-bound call under the
// object model's own name; nothing else in the library spells a host member.
//
//   excel::Worksheet sheet(object);
//   excel::Range area = sheet.get_Range("Sheet1__Code");
//   std::int32_t rows = area.get_Rows().get_Count();
//
// Every call may raise whatever the host raises, and 91 on a reference to none. Where callers use a
// failure as an answer, the method says so.
#pragma once

#include <cstdint>
#include <string>

#include "automation/object.h"
#include "automation/variant.h"
#include "platform/excel_constants.h"

namespace rangewerks::excel {

using automation::Object;
using automation::Variant;

class Application;
class Border;
class CommandBars;
class DocumentProperties;
class Font;
class FormatCondition;
class FormatConditions;
class Interior;
class Menu;
class Range;
class VBProject;
class Validation;
class Workbook;
class Worksheet;

/// A block of cells. Positions within it count from 1. What its format is made of stands in
/// excel_format.h.
class Range : public Object {
 public:
  using Object::Object;
  explicit Range(const Object& object) : Object(object) {}

  /// The cell at that position, counted down the column.
  Range get_Item(std::int32_t index) const;
  /// One cell by its place within the block; row 0 is the row above.
  Range get_Cells(std::int32_t row, std::int32_t column) const;
  /// What the cell holds: a number, text, date, boolean, error value or empty; a block's values.
  Variant get_Value() const;
  void let_Value(const Variant& value) const;
  /// The default member without arguments, which is the value.
  Variant get_Default() const;
  void let_Default(const Variant& value) const;
  /// The content as entered, as text.
  std::string get_Formula() const;
  /// Whether the cells hold formulas; a mixture (null) counts as false.
  bool get_HasFormula() const;
  /// Clears values and formulas, and leaves formats and validation.
  void ClearContents() const;
  /// The absolute address: "$C$3", and for a block "$C$3:$C$10".
  std::string get_Address() const;
  /// That many rows from the same first cell, in the same width. Fails below one row, and beyond
  /// the sheet.
  Range get_Resize(std::int32_t rows) const;
  /// As many cells that many rows further down; -1 is the row above. Fails, as an answer, above
  /// row 1.
  Range get_Offset(std::int32_t rows) const;
  Range get_EntireColumn() const;
  Range get_EntireRow() const;
  /// The number of the sheet's row that the first cell lies in, from 1.
  std::int32_t get_Row() const;
  /// Makes the cells the selection. Fails when their sheet isn't the one in front.
  void Select() const;
  Range get_Rows() const;
  Range get_Columns() const;
  /// The number of elements: of rows behind get_Rows, of columns behind get_Columns.
  std::int32_t get_Count() const;
  /// Gives the area a workbook name, or moves that name to it.
  void let_Name(const std::string& name) const;
  /// The sheet that the cells lie on.
  Worksheet get_Parent() const;

  /// The format text, in the host's format language; an empty text takes the format away.
  void let_NumberFormat(const std::string& format) const;
  void let_HorizontalAlignment(HorizontalAlignment alignment) const;
  void let_WrapText(bool wraps) const;
  /// In characters of the standard font; 0 hides the columns.
  void let_ColumnWidth(double characters) const;
  /// Makes whole columns as wide as what they show.
  void AutoFit() const;
  Font get_Font() const;
  Interior get_Interior() const;
  /// One edge, or the lines inside. Fails, here or when it is drawn, where there is no inside.
  Border get_Borders(BordersIndex index) const;
  /// There also when the cells have no rule.
  Validation get_Validation() const;
  FormatConditions get_FormatConditions() const;
  /// The condition at that position from 1. Fails, as an answer, when there is none.
  FormatCondition get_FormatConditions(std::int32_t index) const;
};

/// A defined name of a workbook or of one sheet.
class Name : public Object {
 public:
  using Object::Object;
  explicit Name(const Object& object) : Object(object) {}

  /// The full text; a name of one sheet has the sheet and "!" in front.
  std::string get_Name() const;
  /// Renames in place.
  void let_Name(const std::string& name) const;
  /// The cells that it refers to. Fails, as an answer, for a constant, a formula or a dead
  /// reference.
  Range get_RefersToRange() const;
  void Delete() const;
};

/// The defined names of a workbook, those of its sheets among them. Enumerate() walks them in the
/// host's order; deleting during the walk doesn't disturb it.
class Names : public Object {
 public:
  using Object::Object;
  explicit Names(const Object& object) : Object(object) {}
};

class Worksheet : public Object {
 public:
  using Object::Object;
  explicit Worksheet(const Object& object) : Object(object) {}

  /// The sheet's name as the user sees it.
  std::string get_Name() const;
  Workbook get_Parent() const;
  Application get_Application() const;
  /// The area of a workbook name or an address. Fails, as an answer, when the name isn't valid on
  /// this sheet: that is how one sheet's names are told from another's.
  Range get_Range(const std::string& nameOrAddress) const;
};

class Workbook : public Object {
 public:
  using Object::Object;
  explicit Workbook(const Object& object) : Object(object) {}

  Application get_Application() const;
  /// The name of that text. Fails when there is none.
  Name get_Names(const std::string& name) const;
  /// Writes a copy to a file; the workbook keeps its own name and its unsaved state.
  void SaveCopyAs(const std::string& file) const;
  /// The macro project (excel_vba.h). Fails, as an answer, where access to macros isn't trusted.
  VBProject get_VBProject() const;
  /// The workbook's own properties (excel_document_properties.h).
  DocumentProperties get_CustomDocumentProperties() const;
};

class Application : public Object {
 public:
  using Object::Object;
  explicit Application(const Object& object) : Object(object) {}

  /// The names of the active workbook.
  Names get_Names() const;
  /// The cells that both areas have, or a reference to none when they don't overlap.
  Range Intersect(const Range& first, const Range& second) const;
  /// A fact of the host's locale: separators as text, the date order as 0 month first, 1 day first,
  /// 2 year first.
  Variant get_International(InternationalIndex index) const;
  /// All menus (excel_menus.h).
  CommandBars get_CommandBars() const;
  /// A menu that a right click opens.
  Menu get_ShortcutMenus(ShortcutMenuIndex index) const;
};

}  // namespace rangewerks::excel
