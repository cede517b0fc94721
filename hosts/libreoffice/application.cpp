#include "hosts/libreoffice/application.h"

#include <com/sun/star/sheet/XCellRangeAddressable.hpp>
#include <com/sun/star/sheet/XSheetCellRange.hpp>
#include <com/sun/star/view/XSelectionSupplier.hpp>

#include "hosts/libreoffice/command_bars.h"
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

}  // namespace

std::shared_ptr<Application> Application::Of(const SessionPointer& session) {
  return FaceOf<Application>(session->face, [&] { return std::make_shared<Application>(session); });
}

Variant Application::GetVersion() const {
  // Callers tell by the version whether a sheet has more than 65536 rows (12.0 and above); the
  // office's own version would say that it hasn't.
  return "16.0";
}

std::shared_ptr<objects::Collection> Application::Workbooks() const {
  return std::make_shared<libreoffice::Workbooks>(Office());
}
std::shared_ptr<objects::Collection> Application::Names() const {
  return std::make_shared<libreoffice::Names>(Office(), Office()->ActiveBook(), nullptr);
}
std::shared_ptr<objects::Collection> Application::Sheets() const {
  return std::make_shared<libreoffice::Sheets>(Office(), Office()->ActiveBook());
}

std::shared_ptr<objects::HostObject> Application::ActiveWorkbook() const {
  if (!Office()->HasActiveBook()) return nullptr;
  return Workbook::Of(Office(), Office()->ActiveBook());
}

std::shared_ptr<objects::Worksheet> Application::ActiveSheet() const {
  if (!Office()->HasActiveBook()) return nullptr;
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
      Refuse("Application.International has no entry " + std::to_string(LongArgument(index)));
  }
}

std::shared_ptr<objects::Collection> Application::CommandBars() const {
  return std::make_shared<libreoffice::CommandBars>(Office());
}
std::shared_ptr<objects::HostObject> Application::MenuOfCells() const {
  return std::make_shared<Menu>(Office());
}

}  // namespace rangewerks::hosts::libreoffice
