#include "hosts/libreoffice/interior.h"

#include "hosts/common/palette.h"
#include "hosts/libreoffice/cell_properties.h"
#include "hosts/libreoffice/failure.h"
#include "platform/excel_constants.h"

namespace rangewerks::hosts::libreoffice {
namespace {

constexpr const char* kCellBackColor = "CellBackColor";
constexpr std::int32_t kAutomaticIndex = -4105;

/// From 0xBBGGRR to 0xRRGGBB, and back.
std::int32_t Swapped(std::int32_t color) {
  return (color & 0xFF) << 16 | (color & 0xFF00) | (color >> 16 & 0xFF);
}

}  // namespace

const MemberTable& Interior::Members() const {
  static const MemberTable table =
      MemberTable::For<Interior>("Interior")
          .Get(1, "Color", &Interior::GetColor, "The fill, white without one; null when mixed.")
          .Let(1, "Color", &Interior::LetColor, "Fills with a colour, 0xBBGGRR.")
          .Get(2, "ColorIndex", &Interior::GetColorIndex,
               "Number of the nearest colour of the palette; null when mixed.")
          .Let(2, "ColorIndex", &Interior::LetColorIndex,
               "Fills with a colour of the palette, or takes the fill away.");
  return table;
}

Variant Interior::GetColor() {
  const auto fill = ReadFill();
  if (!fill) return automation::Null();
  return *fill == kNoFill ? kWhite : Swapped(*fill);
}

void Interior::LetColor(const Variant& color) {
  const std::int32_t given = LongArgument(color);
  if (given == kNoFill || given == excel::xlColorIndexNone) return PutFill(kNoFill);
  if (given < 0 || given > kWhite) {
    Fail("A colour is 0 to 16777215 (0xBBGGRR), not " + std::to_string(given));
  }
  PutFill(Swapped(given));
}

Variant Interior::GetColorIndex() {
  const auto fill = ReadFill();
  if (!fill) return automation::Null();
  if (*fill == kNoFill) return static_cast<std::int32_t>(excel::xlColorIndexNone);
  return NearestColorIndex(Swapped(*fill));
}

void Interior::LetColorIndex(const Variant& index) {
  const std::int32_t number = LongArgument(index);
  const bool isNone = number == excel::xlColorIndexNone || number == kAutomaticIndex || number == 0;
  if (isNone) return PutFill(kNoFill);
  const auto color = ColorOfIndex(number);
  if (!color) Fail("The palette has no colour number " + std::to_string(number));
  PutFill(Swapped(*color));
}

std::optional<std::int32_t> CellsInterior::ReadFill() {
  return CommonProperty<std::int32_t>(OnSheet(), InArea(), kCellBackColor);
}

void CellsInterior::PutFill(std::int32_t fill) {
  PutProperty(OnSheet(), InArea(), kCellBackColor, Any(fill));
}

}  // namespace rangewerks::hosts::libreoffice
