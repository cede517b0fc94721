#include "hosts/objects/application.h"

#include "platform/excel_constants.h"

namespace rangewerks::hosts::objects {

const MemberTable& Application::Members() const {
  static const MemberTable table =
      MemberTable::For<Application>("Application")
          .Get(0, "Name", &Application::GetName, "The program's name.")
          .Get(1, "Version", &Application::GetVersion, "The version, as text.")
          .Get(2, "Workbooks", &Application::GetWorkbooks, {Optional("Index")}, "Open workbooks.")
          .Get(3, "Names", &Application::GetNames, {Optional("Index")},
               "The names of the active workbook.")
          .Get(4, "Sheets", &Application::GetSheets, {Optional("Index")},
               "The sheets of the active workbook.")
          .Get(5, "Worksheets", &Application::GetSheets, {Optional("Index")},
               "The sheets of the active workbook.")
          .Get(6, "ActiveWorkbook", &Application::GetActiveWorkbook, "The workbook in front.")
          .Get(7, "ActiveSheet", &Application::GetActiveSheet, "The sheet in front.")
          .Get(8, "Selection", &Application::GetSelection, "What is selected: cells, or a shape.")
          .Get(9, "International", &Application::GetInternational, {"Index"},
               "A fact of the locale.")
          .Get(10, "Application", &Application::GetApplication, "The application.")
          .Method(11, "Intersect", &Application::Intersect, {"Arg1", "Arg2"},
                  "The cells that both ranges have, or nothing.")
          .Get(12, "Range", &Application::GetRange, {"Cell1", Optional("Cell2")},
               "The cells of a name or address of the sheet in front.")
          .Get(13, "Cells", &Application::GetCells, {Optional("RowIndex"), Optional("ColumnIndex")},
               "All cells of the sheet in front, or one of them.")
          .Get(15, "CommandBars", &Application::GetCommandBars, {Optional("Index")},
               "All menus, or one of them.")
          .Get(16, "ShortcutMenus", &Application::GetShortcutMenus, {"Index"},
               "A menu that a right click opens: 3, that of the cells.");
  return table;
}

Variant Application::Carry(const Invocation& call) {
  if (WritesToCells(call)) {
    LetValueOf(Carry(AsRead(call)), call.positional.back().Value());
    return {};
  }
  return HostObject::Carry(call);
}

Variant Application::GetWorkbooks(const Variant& index) const {
  return AllOrOne(Workbooks(), index);
}
Variant Application::GetNames(const Variant& index) const { return AllOrOne(Names(), index); }
Variant Application::GetSheets(const Variant& index) const { return AllOrOne(Sheets(), index); }
Variant Application::GetActiveWorkbook() const { return Object(ActiveWorkbook()); }
Variant Application::GetActiveSheet() const { return Object(ActiveSheet()); }
Variant Application::GetApplication() { return Self(); }
Variant Application::GetCommandBars(const Variant& index) const {
  return AllOrOne(CommandBars(), index);
}

Variant Application::GetShortcutMenus(std::int32_t index) const {
  if (index != excel::xlWorksheetCell) {
    RefuseElement("There is no shortcut menu number " + std::to_string(index) +
                  " here, only 3, that of the cells");
  }
  return MenuOfCells();
}

// --- cells ---------------------------------------------------------------------------------------

std::shared_ptr<Worksheet> Application::SheetInFront() const {
  auto sheet = ActiveSheet();
  if (!sheet) Refuse("No workbook is open");
  return sheet;
}

Variant Application::GetRange(const Variant& first, const Variant& second) const {
  return SheetInFront()->GetRange(first, second);
}

Variant Application::GetCells(const Variant& row, const Variant& column) const {
  return SheetInFront()->GetCells(row, column);
}

std::shared_ptr<Range> Application::RangeArgument(const Variant& value) const {
  auto range = value.IsObject() ? value.AsObject().As<Range>() : nullptr;
  if (!range) Refuse("Intersect takes ranges, not a value of the type " + value.TypeName());
  return range;
}

Variant Application::Intersect(const Variant& first, const Variant& second) const {
  const auto one = RangeArgument(first);
  const auto other = RangeArgument(second);
  if (one->Sheet() != other->Sheet()) {
    Refuse("Intersect takes ranges of one sheet, not of \"" + one->SheetName() + "\" and \"" +
           other->SheetName() + "\"");
  }
  const auto common = CommonArea(one->Cells(), other->Cells());
  return common ? Variant(one->Make(*common, Range::Elements::Cells)) : Variant(Object());
}

}  // namespace rangewerks::hosts::objects
