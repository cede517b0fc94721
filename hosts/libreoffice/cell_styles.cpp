#include "hosts/libreoffice/cell_styles.h"

#include <algorithm>
#include <array>
#include <com/sun/star/lang/XMultiServiceFactory.hpp>
#include <com/sun/star/style/XStyle.hpp>
#include <com/sun/star/style/XStyleFamiliesSupplier.hpp>
#include <cstdio>

#include "hosts/common/palette.h"

namespace rangewerks::hosts::libreoffice {
namespace {

constexpr const char* kFill = "CellBackColor";
/// Styles are named after what they are made from and their fill: "Condition CCFFCC".
constexpr const char* kPlain = "Condition";
constexpr std::size_t kDigits = 6;

std::string FillText(std::int32_t fill) {
  std::array<char, kDigits + 1> text{};
  if (fill == kNoFill) return "NoFill";
  std::snprintf(text.data(), text.size(), "%06X", static_cast<unsigned>(fill) & 0xFFFFFFU);
  return text.data();
}

/// What a style was made from: its name without the fill at the end.
std::string BaseOf(const std::string& style) {
  if (style.empty()) return kPlain;
  if (style.size() <= kDigits + 1 || style[style.size() - kDigits - 1] != ' ') return style;
  const std::string fill = style.substr(style.size() - kDigits);
  const bool isFill =
      fill == FillText(kNoFill) || fill.find_first_not_of("0123456789ABCDEF") == std::string::npos;
  return isFill ? style.substr(0, style.size() - kDigits - 1) : style;
}

}  // namespace

const Reference<css::container::XNameContainer>& CellStyles::All() {
  if (!all_.is()) {
    const auto families = As<css::style::XStyleFamiliesSupplier>(model_)->getStyleFamilies();
    all_ = Extract<Reference<css::container::XNameContainer>>(
        families->getByName(ToUno("CellStyles")));
  }
  return all_;
}

std::int32_t CellStyles::FillOf(const std::string& style) {
  if (style.empty()) return kNoFill;
  return Property<std::int32_t>(
      Extract<Reference<css::beans::XPropertySet>>(All()->getByName(ToUno(style))), kFill);
}

std::string CellStyles::WithFill(const std::string& style, std::int32_t fill) {
  const std::string base = BaseOf(style);
  std::string name = base + " " + FillText(fill);
  if (All()->hasByName(ToUno(name))) return name;
  const auto made = As<css::lang::XMultiServiceFactory>(model_)->createInstance(
      ToUno("com.sun.star.style.CellStyle"));
  All()->insertByName(ToUno(name), Any(made));
  const bool isPlain = base == kPlain;
  // A fill that is none would be drawn, in white, by other programs.
  if (isPlain && fill == kNoFill) return name;
  if (!isPlain) As<css::style::XStyle>(made)->setParentStyle(ToUno(base));
  As<css::beans::XPropertySet>(made)->setPropertyValue(ToUno(kFill), Any(fill));
  return name;
}

}  // namespace rangewerks::hosts::libreoffice
