#include "hosts/libreoffice/application.h"

#include <com/sun/star/sheet/XCellRangeAddressable.hpp>
#include <com/sun/star/sheet/XSheetCellRange.hpp>
#include <com/sun/star/view/XSelectionSupplier.hpp>

#include "hosts/libreoffice/command_bars.h"
#include "hosts/libreoffice/failure.h"
#include "hosts/libreoffice/range.h"
#include "hosts/libreoffice/shortcut_menu.h"
#include "hosts/libreoffice/workbook.h"
#include "hosts/libreoffice/worksheet.h"
#include "platform/excel_constants.h"

namespace rangewerks::hosts::libreoffice {
namespace {

constexpr std::int32_t kThousandsSeparator = 4;
constexpr std::int32_t kDateSeparator = 17;
constexpr std::int32_t kTimeSeparator = 18;
constexpr std::int32_t kCurrencySymbol = 25;

std::shared_ptr<Range> RangeArgument(const Variant& value) {
  auto range = value.IsObject() ? value.AsObject().As<Range>() : nullptr;
  if (!range) Fail("Intersect takes ranges, not a value of the type " + value.TypeName());
  return range;
}

}  // namespace

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
          .Get(8, "Selection", &Application::GetSelection, "What is selected.")
          .Get(9, "International", &Application::GetInternational, {"Index"},
               "A fact of the locale.")
          .Get(10, "Application", &Application::GetApplication, "The application.")
          .Method(11, "Intersect", &Application::Intersect, {"Arg1", "Arg2"},
                  "The cells that both ranges have, or nothing.")
          .Get(12, "CommandBars", &Application::GetCommandBars, {Optional("Index")},
               "All menus, or one of them.")
          .Get(13, "ShortcutMenus", &Application::GetShortcutMenus, {"Index"},
               "A menu that a right click opens: 3, that of the cells.");
  return table;
}

Variant Application::GetName() const { return "LibreOffice"; }
Variant Application::GetVersion() const {
  // Callers tell by the version whether a sheet has more than 65536 rows (12.0 and above); the
  // office's own version would say that it hasn't.
  return "16.0";
}

Variant Application::GetWorkbooks(const Variant& index) const {
  return Element<Workbooks>(index, Office());
}
Variant Application::GetNames(const Variant& index) const {
  return Element<Names>(index, Office(), Office()->ActiveBook(), nullptr);
}
Variant Application::GetSheets(const Variant& index) const {
  return Element<Sheets>(index, Office(), Office()->ActiveBook());
}

Variant Application::GetActiveWorkbook() const {
  if (!Office()->HasActiveBook()) return Object();
  return Workbook::Of(Office(), Office()->ActiveBook());
}

Variant Application::GetActiveSheet() const {
  if (!Office()->HasActiveBook()) return Object();
  const BookPointer& book = Office()->ActiveBook();
  return Worksheet::Of(Office(), book, book->ActiveSheet());
}

Variant Application::GetSelection() const {
  if (!Office()->HasActiveBook()) return Object();
  const BookPointer& book = Office()->ActiveBook();
  const Any selected = As<css::view::XSelectionSupplier>(book->Controller())->getSelection();
  // Several areas, a drawing and the like are no Range here.
  Reference<css::sheet::XSheetCellRange> cells(selected, css::uno::UNO_QUERY);
  if (!cells.is()) return Object();
  const auto address = As<css::sheet::XCellRangeAddressable>(cells)->getRangeAddress();
  return std::make_shared<Range>(Office(), book, book->SheetAt(address.Sheet + 1), AreaOf(address));
}

Variant Application::GetInternational(const Variant& index) const {
  const automation::Locale& locale = Office()->OfficeLocale();
  switch (LongArgument(index)) {
    case excel::xlDecimalSeparator:
      return locale.decimalSeparator;
    case kThousandsSeparator:
      return locale.thousandsSeparator;
    case excel::xlListSeparator:
      return locale.listSeparator;
    case kDateSeparator:
      return locale.dateSeparator;
    case kTimeSeparator:
      return locale.timeSeparator;
    case kCurrencySymbol:
      return locale.currencySymbol;
    case excel::xlDateOrder:
      return static_cast<std::int32_t>(locale.dateOrder);
    default:
      Fail("Application.International has no entry " + std::to_string(LongArgument(index)));
  }
}

Variant Application::GetApplication() const { return Of(Office()); }

Variant Application::GetCommandBars(const Variant& index) const {
  return Element<CommandBars>(index, Office());
}
Variant Application::GetShortcutMenus(std::int32_t index) const {
  return Menu::Of(Office(), index);
}

Variant Application::Intersect(const Variant& first, const Variant& second) const {
  const auto one = RangeArgument(first);
  const auto other = RangeArgument(second);
  if (one->OnSheet() != other->OnSheet()) {
    Fail("Intersect takes ranges of one sheet, not of \"" + one->OnSheet()->Name() + "\" and \"" +
         other->OnSheet()->Name() + "\"");
  }
  const auto common = CommonArea(one->Cells(), other->Cells());
  if (!common) return Object();
  return std::make_shared<Range>(Office(), one->InBook(), one->OnSheet(), *common);
}

}  // namespace rangewerks::hosts::libreoffice
