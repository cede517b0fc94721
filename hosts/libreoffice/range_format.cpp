// What the cells of a Range look like, and what may be entered into them.
#include <algorithm>
#include <array>
#include <cmath>
#include <com/sun/star/container/XIndexAccess.hpp>
#include <com/sun/star/table/CellHoriJustify.hpp>
#include <com/sun/star/table/XColumnRowRange.hpp>

#include "automation/conversions.h"
#include "hosts/common/format_numbers.h"
#include "hosts/libreoffice/border.h"
#include "hosts/libreoffice/cell_properties.h"
#include "hosts/libreoffice/cell_writing.h"
#include "hosts/libreoffice/failure.h"
#include "hosts/libreoffice/font.h"
#include "hosts/libreoffice/format_conditions.h"
#include "hosts/libreoffice/formats.h"
#include "hosts/libreoffice/interior.h"
#include "hosts/libreoffice/range.h"
#include "hosts/libreoffice/validation.h"
#include "platform/excel_constants.h"

namespace rangewerks::hosts::libreoffice {
namespace {

using automation::Null;
using css::table::CellHoriJustify;

constexpr const char* kAlignment = "HoriJustify";
constexpr const char* kWrap = "IsTextWrapped";
constexpr const char* kWidth = "Width";
constexpr const char* kVisible = "IsVisible";

struct Alignment {
  std::int32_t number;
  CellHoriJustify office;
};
constexpr std::array<Alignment, 4> kAlignments{
    {{excel::xlGeneral, css::table::CellHoriJustify_STANDARD},
     {excel::xlLeft, css::table::CellHoriJustify_LEFT},
     {kCenter, css::table::CellHoriJustify_CENTER},
     {excel::xlRight, css::table::CellHoriJustify_RIGHT}}};

// Widths are counted in digits of the standard font, as whole pixels of which a digit has 7, and 5
// more for the edges. What the office is given is a digit of Arial in 10 points, which is one of
// Calibri in 11: the width of the file's column comes out right with either.
constexpr double kDigit = 5.56 / 72 * 2540;  // in 1/100 mm
constexpr double kDigitPixels = 7;
constexpr double kEdgePixels = 5;

std::int32_t WidthOf(double characters) {
  const double pixels = characters < 1 ? characters * (kDigitPixels + kEdgePixels)
                                       : characters * kDigitPixels + kEdgePixels;
  return static_cast<std::int32_t>(std::lround(std::round(pixels) / kDigitPixels * kDigit));
}

double CharactersOf(std::int32_t width) {
  const double pixels = std::round(width / kDigit * kDigitPixels);
  const double characters = pixels < kDigitPixels + kEdgePixels
                                ? pixels / (kDigitPixels + kEdgePixels)
                                : (pixels - kEdgePixels) / kDigitPixels;
  return std::round(characters * 100) / 100;
}

Reference<css::beans::XPropertySet> ColumnsOf(const Sheet& sheet, const Area& area) {
  const auto columns = As<css::table::XColumnRowRange>(sheet.Block(area))->getColumns();
  return As<css::beans::XPropertySet>(columns);
}

double WidthOfColumn(const Reference<css::beans::XPropertySet>& column) {
  if (!Property<bool>(column, kVisible)) return 0;
  return CharactersOf(Property<std::int32_t>(column, kWidth));
}

}  // namespace

// --- formats -------------------------------------------------------------------------------------

Variant Range::GetNumberFormat() const {
  Formats& formats = book_->NumberFormats();
  const auto parts = FormatsOf(*sheet_, area_);
  const std::string first = formats.TextOf(parts.front().key);
  for (const FormattedArea& part : parts) {
    if (part.key != parts.front().key && formats.TextOf(part.key) != first) return Null();
  }
  return first;
}

void Range::LetNumberFormat(const std::string& format) {
  RequireWritable(*sheet_, area_);
  PutFormatKey(sheet_->Block(area_), book_->NumberFormats().KeyOf(format));
}

Variant Range::GetHorizontalAlignment() const {
  const auto alignment = CommonProperty<CellHoriJustify>(*sheet_, area_, kAlignment);
  if (!alignment) return Null();
  for (const Alignment& each : kAlignments) {
    if (each.office == *alignment) return each.number;
  }
  Fail(Place() + " has an alignment that the object model here has no number for");
}

void Range::PutHorizontalAlignment(std::int32_t alignment) {
  const auto* const known = std::ranges::find(kAlignments, alignment, &Alignment::number);
  PutProperty(*sheet_, area_, kAlignment, Any(known->office));
}

Variant Range::GetWrapText() const {
  const auto wraps = CommonProperty<bool>(*sheet_, area_, kWrap);
  return wraps ? Variant(*wraps) : Variant(Null());
}

void Range::LetWrapText(bool wraps) { PutProperty(*sheet_, area_, kWrap, Any(wraps)); }

Variant Range::GetFont() const { return std::make_shared<Font>(Office(), Block()); }
Variant Range::GetInterior() const { return std::make_shared<CellsInterior>(Office(), Block()); }
std::shared_ptr<objects::Borders> Range::Lines() const {
  return std::make_shared<Borders>(Office(), Block());
}

// --- columns -------------------------------------------------------------------------------------

Variant Range::GetColumnWidth() const {
  const auto columns = As<css::container::XIndexAccess>(ColumnsOf(*sheet_, area_));
  std::optional<double> common;
  for (std::int32_t i = 0; i < area_.columns; ++i) {
    const double width =
        WidthOfColumn(Extract<Reference<css::beans::XPropertySet>>(columns->getByIndex(i)));
    if (common && *common != width) return Null();
    common = width;
  }
  return *common;
}

void Range::PutColumnWidth(double characters) {
  RequireWritable(*sheet_, {1, area_.column, kSheetRows, area_.columns});
  const auto columns = ColumnsOf(*sheet_, area_);
  // The office has no columns without a width, only hidden ones.
  if (characters > 0) columns->setPropertyValue(ToUno(kWidth), Any(WidthOf(characters)));
  columns->setPropertyValue(ToUno(kVisible), Any(characters > 0));
}

void Range::FitColumns() {
  RequireWritable(*sheet_, area_);
  ColumnsOf(*sheet_, area_)->setPropertyValue(ToUno("OptimalWidth"), Any(true));
}

// --- rules ---------------------------------------------------------------------------------------

Variant Range::GetValidation() const { return std::make_shared<Validation>(Office(), Block()); }
std::shared_ptr<objects::FormatConditions> Range::Conditions() const {
  return std::make_shared<FormatConditions>(Office(), Block());
}

}  // namespace rangewerks::hosts::libreoffice
