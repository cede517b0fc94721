#include "hosts/workbook/interior.h"

#include "hosts/common/palette.h"
#include "hosts/workbook/failure.h"
#include "platform/excel_constants.h"

namespace rangewerks::hosts::workbook {
namespace {

constexpr std::int32_t kAutomatic = -4105;

bool MeansNoFill(std::int32_t index) {
  return index == excel::xlColorIndexNone || index == kAutomatic || index == 0;
}

}  // namespace

Interior::Interior(SessionPointer session, SheetPointer sheet, Area area)
    : CellsObject(std::move(session), std::move(sheet), area) {}

const MemberTable& Interior::Members() const {
  static const MemberTable table =
      MemberTable::For<Interior>("Interior")
          .Get(1, "Color", &Interior::GetColor, "0xBBGGRR, white without a fill; null when mixed.")
          .Let(1, "Color", &Interior::LetColor, "Fills the cells with a colour, 0xBBGGRR.")
          .Get(2, "ColorIndex", &Interior::GetColorIndex,
               "The nearest of the palette's colours, -4142 without a fill; null when mixed.")
          .Let(2, "ColorIndex", &Interior::LetColorIndex,
               "Fills the cells with a colour of the palette; -4142 takes the fill away.");
  return table;
}

Variant Interior::GetColor() const {
  const auto fill = Fill();
  return fill == kNoFill ? Variant(kWhite) : ValueOrNull(fill);
}

void Interior::LetColor(std::int32_t color) {
  if (color == kNoFill || color == excel::xlColorIndexNone) return Paint(kNoFill);
  if (color < 0 || color > kWhite) {
    Refuse("A colour is 0 to 16777215 (0xBBGGRR), not " + std::to_string(color));
  }
  Paint(color);
}

Variant Interior::GetColorIndex() const {
  const auto fill = Fill();
  if (!fill) return automation::Null();
  return *fill == kNoFill ? std::int32_t{excel::xlColorIndexNone} : NearestColorIndex(*fill);
}

void Interior::LetColorIndex(std::int32_t index) {
  if (MeansNoFill(index)) return Paint(kNoFill);
  const auto color = ColorOfIndex(index);
  if (!color) {
    Refuse("The palette has the colours 1 to 56, and -4142 stands for none, not " +
           std::to_string(index));
  }
  Paint(*color);
}

std::optional<Color> CellFill::Fill() const {
  return sheet_->grid.Formats().Common(area_, &CellFormat::fill);
}

void CellFill::Paint(Color fill) {
  sheet_->grid.Formats().Change(area_, [fill](CellFormat& format) { format.fill = fill; });
}

void ConditionFill::RequireAlive() const {
  Interior::RequireAlive();
  RequireThere(*condition_);
}

}  // namespace rangewerks::hosts::workbook
