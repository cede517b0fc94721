#include "desktops/win32/colours.h"

namespace rangewerks::desktops {

COLORREF ToColorRef(forms::Colour colour) {
  const std::int32_t index = forms::SystemColourIndex(colour);
  return index >= 0 ? GetSysColor(index) : static_cast<COLORREF>(colour) & 0xFFFFFFU;
}

Brushes::~Brushes() {
  for (const auto& [colour, brush] : made_) DeleteObject(brush);
}

HBRUSH Brushes::Get(forms::Colour colour) {
  const std::int32_t index = forms::SystemColourIndex(colour);
  if (index >= 0) return GetSysColorBrush(index);  // Windows owns that one
  HBRUSH& brush = made_[ToColorRef(colour)];
  if (brush == nullptr) brush = CreateSolidBrush(ToColorRef(colour));
  return brush;
}

}  // namespace rangewerks::desktops
