#include "hosts/objects/formats.h"

#include "hosts/common/format_numbers.h"
#include "platform/excel_constants.h"

namespace rangewerks::hosts::objects {
namespace {

constexpr std::int32_t kAutomatic = -4105;

bool MeansNoFill(std::int32_t index) {
  return index == excel::xlColorIndexNone || index == kAutomatic || index == 0;
}

}  // namespace

const MemberTable& Font::Members() const {
  static const MemberTable table =
      MemberTable::For<Font>("Font")
          .Get(1, "Bold", &Font::GetBold, "Whether it is bold; null when the cells differ.")
          .Let(1, "Bold", &Font::LetBold, "Makes it bold, or not.");
  return table;
}

// --- the fill ------------------------------------------------------------------------------------

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

Variant Interior::GetColor() {
  const auto fill = Fill();
  if (!fill) return automation::Null();
  return *fill == kNoFill ? kWhite : *fill;
}

void Interior::LetColor(std::int32_t color) {
  if (color == kNoFill || color == excel::xlColorIndexNone) return Paint(kNoFill);
  if (color < 0 || color > kWhite) {
    Refuse("A colour is 0 to 16777215 (0xBBGGRR), not " + std::to_string(color));
  }
  Paint(color);
}

Variant Interior::GetColorIndex() {
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

// --- the lines -----------------------------------------------------------------------------------

const MemberTable& Borders::Members() const {
  static const MemberTable table = MemberTable::For<Borders>("Borders").Get(
      0, "Item", &Borders::GetItem, {"Index"}, "One edge, or the lines inside.");
  return table;
}

const MemberTable& Border::Members() const {
  static const MemberTable table =
      MemberTable::For<Border>("Border")
          .Get(1, "LineStyle", &Border::GetLineStyle, "The kind of line; null when they differ.")
          .Let(1, "LineStyle", &Border::LetLineStyle, "Draws that kind of line, or none.")
          .Get(2, "Weight", &Border::GetWeight, "How thick it is; null when they differ.")
          .Let(2, "Weight", &Border::LetWeight, "Makes it that thick, and draws it if need be.");
  return table;
}

void Border::LetLineStyle(std::int32_t style) {
  switch (style) {
    case excel::xlLineStyleNone:
    case excel::xlContinuous:
    case excel::xlDouble:
      return PutLineStyle(style);
    default:
      Refuse("A line's style is 1 (continuous), -4119 (double) or -4142 (none), not " +
             std::to_string(style));
  }
}

void Border::LetWeight(std::int32_t weight) {
  switch (weight) {
    case excel::xlHairline:
    case excel::xlThin:
    case kMedium:
    case excel::xlThick:
      return PutWeight(weight);
    default:
      Refuse("A line's weight is 1 (hairline), 2 (thin), -4138 (medium) or 4 (thick), not " +
             std::to_string(weight));
  }
}

}  // namespace rangewerks::hosts::objects
