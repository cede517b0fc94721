// The workbooks behind the late-bound objects: sheets, cells and names as plain data.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "automation/dispatch.h"
#include "hosts/common/area.h"
#include "hosts/workbook/call_log.h"
#include "hosts/workbook/conditional_format.h"
#include "hosts/workbook/defined_names.h"
#include "hosts/workbook/document_property.h"
#include "hosts/workbook/grid.h"
#include "hosts/workbook/international.h"
#include "hosts/workbook/lines.h"
#include "hosts/workbook/macro_project.h"
#include "hosts/workbook/menus.h"
#include "hosts/workbook/validation_rule.h"

namespace rangewerks::hosts::workbook {

struct Book;

/// In characters; none for a column as it comes.
using ColumnWidth = std::optional<double>;
inline constexpr double kLargestWidth = 255;
/// Where a sheet keeps the widths of an area's columns.
inline Area WidthsOf(const Area& area) { return {1, area.column, 1, area.columns}; }

/// One sheet. `face` is the late-bound object that stands for it while anybody holds it, so that a
/// sheet is always the same object.
struct Sheet {
  Book* book = nullptr;
  std::string name;
  Grid grid;
  Lines lines;
  AreaValues<ColumnWidth> widths;
  ValidationRules validation;
  ConditionalFormatList conditionalFormats;
  MacroModulePointer module;  ///< its code, which goes with it
  Area selection{1, 1};
  bool shapeSelected = false;  ///< instead of cells
  bool deleted = false;        ///< those who still hold it are refused everything
  std::weak_ptr<automation::Dispatch> face;
};

struct Book {
  Book() = default;
  Book(std::string bookName, const std::vector<std::string>& sheetNames);

  std::string name;
  std::string path;  ///< of its file; empty without one
  std::vector<SheetPointer> sheets;
  SheetPointer active;
  DefinedNames names;
  MacroProject macros;
  DocumentPropertyList properties;
  std::weak_ptr<automation::Dispatch> face;

  /// The code modules: the workbook's, those of the sheets in their order, those added.
  std::vector<MacroModulePointer> Modules() const;
  /// The sheet of that name without regard to case, or null.
  SheetPointer FindSheet(std::string_view sheetName) const;
  /// Adds a sheet ahead of another one, or at the end. Raises 1004 for a name that it can't have.
  SheetPointer AddSheet(const std::string& sheetName, const SheetPointer& before = nullptr);
  void RenameSheet(const SheetPointer& sheet, const std::string& sheetName);
  /// Takes a sheet out: references to it turn into #REF!, names that belong to it go. Raises 1004
  /// for the last sheet.
  void RemoveSheet(const SheetPointer& sheet);

 private:
  void RequireFreeName(const std::string& sheetName, const Sheet* except) const;
};

/// Everything that one Host owns. The late-bound objects share it.
struct Session {
  CallLog calls;
  International international;
  std::string version = "16.0";
  bool trustsMacroProject = false;
  Menus menus;
  std::vector<std::unique_ptr<Book>> books;  ///< never shrinks: objects point into it
  Book* active = nullptr;
  std::weak_ptr<automation::Dispatch> face;

  Book* FindBook(std::string_view name) const;
  /// Adds a workbook and makes it the active one. Raises 1004 when its name is taken or it has no
  /// sheets.
  Book& AddBook(std::unique_ptr<Book> book);
};
using SessionPointer = std::shared_ptr<Session>;

}  // namespace rangewerks::hosts::workbook
