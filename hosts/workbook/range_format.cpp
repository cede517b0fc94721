// How the cells of a Range look, and what may be entered into them.
#include <algorithm>
#include <map>

#include "automation/text.h"
#include "hosts/workbook/borders.h"
#include "hosts/workbook/failure.h"
#include "hosts/workbook/font.h"
#include "hosts/workbook/format_conditions.h"
#include "hosts/workbook/interior.h"
#include "hosts/workbook/range.h"
#include "hosts/workbook/validation.h"

namespace rangewerks::hosts::workbook {
namespace {

constexpr double kStandardWidth = 8.43;

}  // namespace

// --- numbers and texts ---------------------------------------------------------------------------

Variant Range::GetNumberFormat() const {
  const auto format = sheet_->grid.Formats().Common(area_, &CellFormat::number);
  return format && format->empty() ? Variant(kGeneralFormat) : ValueOrNull(format);
}

void Range::LetNumberFormat(const std::string& format) {
  const bool general = automation::EqualText(format, kGeneralFormat);
  sheet_->grid.Formats().Change(
      area_, [&](CellFormat& each) { each.number = general ? std::string() : format; });
}

Variant Range::GetHorizontalAlignment() const {
  return ValueOrNull(sheet_->grid.Formats().Common(area_, &CellFormat::alignment));
}

void Range::PutHorizontalAlignment(std::int32_t alignment) {
  sheet_->grid.Formats().Change(area_,
                                [alignment](CellFormat& format) { format.alignment = alignment; });
}

Variant Range::GetWrapText() const {
  return ValueOrNull(sheet_->grid.Formats().Common(area_, &CellFormat::wraps));
}

void Range::LetWrapText(bool wraps) {
  sheet_->grid.Formats().Change(area_, [wraps](CellFormat& format) { format.wraps = wraps; });
}

// --- column widths -------------------------------------------------------------------------------

Variant Range::GetColumnWidth() const {
  return ValueOrNull(sheet_->widths.Common(
      WidthsOf(area_), [](const ColumnWidth& width) { return width.value_or(kStandardWidth); }));
}

void Range::PutColumnWidth(double characters) { sheet_->widths.Set(WidthsOf(area_), characters); }

void Range::FitColumns() {
  std::map<std::int32_t, std::size_t> longest;
  sheet_->grid.VisitStored(area_, [&](Position place, const Content& /*content*/) {
    const Cell cell = sheet_->grid.At(place);
    const std::size_t length =
        automation::Length(ShownText(cell, Shared()->international.CurrentLocale()));
    std::size_t& width = longest[place.column];
    width = std::max(width, length);
  });
  for (const auto& [column, length] : longest) {
    if (length == 0) continue;  // what shows nothing keeps its width
    sheet_->widths.Set({1, column}, std::min(static_cast<double>(length), kLargestWidth));
  }
}

// --- what has an object of its own ---------------------------------------------------------------

Variant Range::GetFont() const { return std::make_shared<Font>(Shared(), sheet_, area_); }
Variant Range::GetInterior() const { return std::make_shared<CellFill>(Shared(), sheet_, area_); }

std::shared_ptr<objects::Borders> Range::Lines() const {
  return std::make_shared<Borders>(Shared(), sheet_, area_);
}

Variant Range::GetValidation() const {
  return std::make_shared<Validation>(Shared(), sheet_, area_);
}

std::shared_ptr<objects::FormatConditions> Range::Conditions() const {
  return std::make_shared<FormatConditions>(Shared(), sheet_, area_);
}

}  // namespace rangewerks::hosts::workbook
