#include "hosts/libreoffice/interior.h"

#include "hosts/libreoffice/cell_properties.h"

namespace rangewerks::hosts::libreoffice {
namespace {

constexpr const char* kCellBackColor = "CellBackColor";

/// From 0xBBGGRR to 0xRRGGBB, and back.
std::int32_t Swapped(std::int32_t color) {
  if (color == kNoFill) return color;
  return (color & 0xFF) << 16 | (color & 0xFF00) | (color >> 16 & 0xFF);
}

}  // namespace

std::optional<std::int32_t> Interior::Fill() {
  const auto fill = ReadFill();
  return fill ? std::optional(Swapped(*fill)) : std::nullopt;
}

void Interior::Paint(std::int32_t fill) { PutFill(Swapped(fill)); }

std::optional<std::int32_t> CellsInterior::ReadFill() {
  return CommonProperty<std::int32_t>(OnSheet(), InArea(), kCellBackColor);
}

void CellsInterior::PutFill(std::int32_t fill) {
  PutProperty(OnSheet(), InArea(), kCellBackColor, Any(fill));
}

}  // namespace rangewerks::hosts::libreoffice
