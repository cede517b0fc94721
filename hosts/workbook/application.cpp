#include "hosts/workbook/application.h"

#include "hosts/workbook/command_bars.h"
#include "hosts/workbook/failure.h"
#include "hosts/workbook/names.h"
#include "hosts/workbook/range.h"
#include "hosts/workbook/shape.h"
#include "hosts/workbook/sheets.h"
#include "hosts/workbook/shortcut_menu.h"
#include "hosts/workbook/testing.h"
#include "hosts/workbook/workbook.h"
#include "hosts/workbook/workbooks.h"
#include "hosts/workbook/worksheet.h"

namespace rangewerks::hosts::workbook {
namespace {

const automation::Member kTesting{"Testing"};

std::shared_ptr<Range> RangeArgument(const Variant& value) {
  auto range = value.IsObject() ? value.AsObject().As<Range>() : nullptr;
  if (!range) Refuse("Intersect takes ranges, not a value of the type " + value.TypeName());
  return range;
}

}  // namespace

Application::Application(SessionPointer session) : ModelObject(std::move(session)) {}

std::shared_ptr<Application> Application::Of(const SessionPointer& session) {
  return FaceOf<Application>(session->face, [&] { return std::make_shared<Application>(session); });
}

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
          .Get(14, "Testing", &Application::GetTesting,
               "The calls made, failures on request, and what else only a test needs.")
          .Get(15, "CommandBars", &Application::GetCommandBars, {Optional("Index")},
               "All menus, or one of them.")
          .Get(16, "ShortcutMenus", &Application::GetShortcutMenus, {"Index"},
               "A menu that a right click opens: 3, that of the cells.");
  return table;
}

void Application::Note(const Invocation& call) {
  if (call.member != kTesting) ModelObject::Note(call);
}

Variant Application::Carry(const Invocation& call) {
  if (objects::WritesToCells(call)) {
    objects::LetValueOf(Carry(objects::AsRead(call)), call.positional.back().Value());
    return {};
  }
  return ModelObject::Carry(call);
}

Book& Application::ActiveBook() const {
  if (Shared()->active == nullptr) Refuse("No workbook is open");
  return *Shared()->active;
}

Variant Application::GetName() const { return "Workbook in memory"; }
Variant Application::GetVersion() const { return Shared()->version; }

Variant Application::GetWorkbooks(const Variant& index) const {
  const auto books = std::make_shared<Workbooks>(Shared());
  return index.IsMissing() ? Variant(books) : books->GetItem(index);
}

Variant Application::GetNames(const Variant& index) const {
  const auto names = std::make_shared<Names>(Shared(), &ActiveBook());
  return index.IsMissing() ? Variant(names) : names->GetItem(index);
}

Variant Application::GetSheets(const Variant& index) const {
  const auto sheets = std::make_shared<Sheets>(Shared(), &ActiveBook());
  return index.IsMissing() ? Variant(sheets) : sheets->GetItem(index);
}

Variant Application::GetActiveWorkbook() const {
  return Shared()->active == nullptr ? Object() : Workbook::Of(Shared(), Shared()->active);
}

Variant Application::GetActiveSheet() const {
  return Shared()->active == nullptr ? Object() : Worksheet::Of(Shared(), ActiveBook().active);
}

Variant Application::GetSelection() const {
  if (Shared()->active == nullptr) return Object();
  const SheetPointer& sheet = ActiveBook().active;
  if (sheet->shapeSelected) return std::make_shared<Shape>(Shared(), sheet);
  return std::make_shared<Range>(Shared(), sheet, sheet->selection);
}

Variant Application::GetInternational(const Variant& index) const {
  return Shared()->international.At(LongArgument(index));
}

Variant Application::GetApplication() const { return Of(Shared()); }

Variant Application::GetRange(const Variant& first, const Variant& second) const {
  return Worksheet::Of(Shared(), ActiveBook().active)->GetRange(first, second);
}

Variant Application::GetCells(const Variant& row, const Variant& column) const {
  return Worksheet::Of(Shared(), ActiveBook().active)->GetCells(row, column);
}

Variant Application::GetCommandBars(const Variant& index) const {
  const auto bars = std::make_shared<CommandBars>(Shared());
  return index.IsMissing() ? Variant(bars) : bars->GetItem(index);
}

Variant Application::GetShortcutMenus(std::int32_t index) const {
  return Menu::Of(Shared(), index);
}

Variant Application::GetTesting() const { return std::make_shared<Testing>(Host(Shared())); }

Variant Application::Intersect(const Variant& first, const Variant& second) const {
  const auto one = RangeArgument(first);
  const auto other = RangeArgument(second);
  if (one->OnSheet() != other->OnSheet()) {
    Refuse("Intersect takes ranges of one sheet, not of \"" + one->OnSheet()->name + "\" and \"" +
           other->OnSheet()->name + "\"");
  }
  const auto common = CommonArea(one->Cells(), other->Cells());
  if (!common) return Object();
  return std::make_shared<Range>(Shared(), one->OnSheet(), *common);
}

}  // namespace rangewerks::hosts::workbook
