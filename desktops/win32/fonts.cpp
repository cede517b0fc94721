#include "desktops/win32/fonts.h"

#include <cmath>

#include "desktops/win32/newer_windows.h"
#include "desktops/win32/text.h"
#include "desktops/win32/units.h"

namespace rangewerks::desktops {

namespace {

constexpr double kPointsPerInch = 72;

LONG HeightOf(double points, int dpi) {
  return -static_cast<LONG>(std::lround(points * dpi / kPointsPerInch));
}

LOGFONTW MessageFont(int dpi) {
  NONCLIENTMETRICSW metrics{};
  metrics.cbSize = sizeof metrics;
  static const auto forDpi =
      UserFunction<BOOL(WINAPI*)(UINT, UINT, PVOID, UINT, UINT)>("SystemParametersInfoForDpi");
  if (forDpi != nullptr && forDpi(SPI_GETNONCLIENTMETRICS, metrics.cbSize, &metrics, 0,
                                  static_cast<UINT>(dpi)) != FALSE) {
    return metrics.lfMessageFont;
  }
  if (SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, metrics.cbSize, &metrics, 0) != FALSE) {
    metrics.lfMessageFont.lfHeight = MulDiv(metrics.lfMessageFont.lfHeight, dpi, DpiOfScreen());
    return metrics.lfMessageFont;
  }
  LOGFONTW font{};
  GetObjectW(GetStockObject(DEFAULT_GUI_FONT), sizeof font, &font);
  return font;
}

}  // namespace

Fonts::Fonts(const forms::FormDesign& design, int dpi) : design_(MessageFont(dpi)), dpi_(dpi) {
  if (!design.fontName.empty()) {
    const std::wstring name = Utf16Of(design.fontName);
    // A zero ends the name.
    const std::size_t length = name.copy(design_.lfFaceName, LF_FACESIZE - 1);
    design_.lfFaceName[length] = L'\0';
  }
  if (design.fontSize > 0) design_.lfHeight = HeightOf(design.fontSize, dpi);
}

Fonts::~Fonts() {
  for (const auto& [key, font] : made_) DeleteObject(font);
}

HFONT Fonts::Get(double points, bool bold) {
  HFONT& font = made_[{points, bold}];
  if (font == nullptr) {
    LOGFONTW wanted = design_;
    if (points > 0) wanted.lfHeight = HeightOf(points, dpi_);
    if (bold) wanted.lfWeight = FW_BOLD;
    font = CreateFontIndirectW(&wanted);
  }
  return font;
}

}  // namespace rangewerks::desktops
