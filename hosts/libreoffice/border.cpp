#include "hosts/libreoffice/border.h"

#include <algorithm>
#include <array>
#include <com/sun/star/table/BorderLineStyle.hpp>
#include <com/sun/star/table/TableBorder2.hpp>

#include "hosts/common/format_numbers.h"
#include "hosts/common/name_rules.h"
#include "hosts/libreoffice/cell_properties.h"
#include "platform/excel_constants.h"

namespace rangewerks::hosts::libreoffice {
namespace {

using css::table::BorderLine2;
using css::table::TableBorder2;
namespace styles = css::table::BorderLineStyle;

constexpr const char* kTableBorder = "TableBorder2";

/// Where the office keeps the lines of an index, and its word on whether they are the same all
/// along.
struct Edge {
  std::int32_t index;
  BorderLine2 TableBorder2::*line;
  decltype(&TableBorder2::IsTopLineValid) isCommon;
};
constexpr std::array<Edge, 6> kEdges{
    {{excel::xlEdgeLeft, &TableBorder2::LeftLine, &TableBorder2::IsLeftLineValid},
     {excel::xlEdgeTop, &TableBorder2::TopLine, &TableBorder2::IsTopLineValid},
     {excel::xlEdgeBottom, &TableBorder2::BottomLine, &TableBorder2::IsBottomLineValid},
     {excel::xlEdgeRight, &TableBorder2::RightLine, &TableBorder2::IsRightLineValid},
     {kInsideVertical, &TableBorder2::VerticalLine, &TableBorder2::IsVerticalLineValid},
     {excel::xlInsideHorizontal, &TableBorder2::HorizontalLine,
      &TableBorder2::IsHorizontalLineValid}}};

const Edge* FindEdge(std::int32_t index) {
  const auto* const edge = std::find_if(kEdges.begin(), kEdges.end(),
                                        [index](const Edge& each) { return each.index == index; });
  return edge == kEdges.end() ? nullptr : edge;
}

/// Weights, and the widths in 1/100 mm that the office's filters take for them.
struct Width {
  std::int32_t weight;
  std::uint32_t width;
};
constexpr std::array<Width, 4> kWidths{
    {{excel::xlHairline, 2}, {excel::xlThin, 26}, {kMedium, 62}, {excel::xlThick, 88}}};

std::uint32_t WidthOf(std::int32_t weight) {
  return std::ranges::find(kWidths, weight, &Width::weight)->width;
}

/// The heaviest weight that the width reaches.
std::int32_t WeightOf(std::uint32_t width) {
  std::int32_t weight = excel::xlHairline;
  for (const Width& each : kWidths) {
    if (width >= each.width) weight = each.weight;
  }
  return weight;
}

bool IsDrawn(const BorderLine2& line) {
  return line.LineStyle != styles::NONE && (line.OuterLineWidth != 0 || line.LineWidth != 0);
}
/// Of the office's double lines the thin one is taken: only that stays one in a file of Office XML.
bool IsDouble(const BorderLine2& line) {
  return line.LineStyle == styles::DOUBLE_THIN || line.LineStyle == styles::DOUBLE;
}

BorderLine2 MakeLine(std::int16_t style, std::uint32_t width) {
  BorderLine2 line;
  line.LineStyle = style;
  line.LineWidth = width;
  return line;
}

}  // namespace

Variant Borders::GetItem(std::int32_t index) const {
  return std::make_shared<Border>(Office(), Cells(), index);
}

Border::Border(SessionPointer session, CellBlock cells, std::int32_t index)
    : CellsPart(std::move(session), std::move(cells)), index_(index) {
  if (FindEdge(index) == nullptr) Refuse("Cells have no border number " + std::to_string(index));
}

std::optional<BorderLine2> Border::Line() const {
  const Edge& edge = *FindEdge(index_);
  const auto all = Property<TableBorder2>(PropertiesOf(OnSheet(), InArea()), kTableBorder);
  if (!(all.*edge.isCommon)) return std::nullopt;
  return all.*edge.line;
}

void Border::Draw(const BorderLine2& line) {
  const Area& area = InArea();
  const bool isThere = (index_ != excel::xlInsideHorizontal || area.rows > 1) &&
                       (index_ != kInsideVertical || area.columns > 1);
  if (!isThere) {
    Refuse(PlaceOf(OnSheet().Name(), area) + " has no lines inside in that direction");
  }
  const Edge& edge = *FindEdge(index_);
  TableBorder2 lines;
  lines.*edge.line = line;
  lines.*edge.isCommon = true;
  PutProperty(OnSheet(), InArea(), kTableBorder, Any(lines));
}

Variant Border::GetLineStyle() const {
  const auto line = Line();
  if (!line) return automation::Null();
  std::int32_t style = excel::xlContinuous;
  if (IsDouble(*line)) style = excel::xlDouble;
  if (!IsDrawn(*line)) style = excel::xlLineStyleNone;
  return style;
}

void Border::PutLineStyle(std::int32_t style) {
  const auto line = Line();
  switch (style) {
    case excel::xlLineStyleNone:
      return Draw(MakeLine(styles::NONE, 0));
    case excel::xlDouble:
      return Draw(MakeLine(styles::DOUBLE_THIN, WidthOf(excel::xlThick)));
    default: {
      const bool keepsWidth = line && IsDrawn(*line) && !IsDouble(*line);
      return Draw(MakeLine(styles::SOLID, keepsWidth ? line->LineWidth : WidthOf(excel::xlThin)));
    }
  }
}

Variant Border::GetWeight() const {
  const auto line = Line();
  if (!line) return automation::Null();
  if (!IsDrawn(*line)) return static_cast<std::int32_t>(excel::xlThin);
  if (IsDouble(*line)) return static_cast<std::int32_t>(excel::xlThick);
  return WeightOf(line->LineWidth);
}

void Border::PutWeight(std::int32_t weight) {
  const auto line = Line();
  const bool isDouble = line && IsDouble(*line) && weight == excel::xlThick;
  Draw(MakeLine(isDouble ? styles::DOUBLE_THIN : styles::SOLID, WidthOf(weight)));
}

}  // namespace rangewerks::hosts::libreoffice
