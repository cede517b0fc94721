#include "hosts/workbook/borders.h"

#include "hosts/workbook/failure.h"
#include "platform/excel_constants.h"

namespace rangewerks::hosts::workbook {
namespace {

constexpr std::int32_t kMedium = -4138;

std::int32_t StyleOf(Line line) {
  if (line == Line::None) return excel::xlLineStyleNone;
  return line == Line::Double ? excel::xlDouble : excel::xlContinuous;
}

std::int32_t WeightOf(Line line) {
  switch (line) {
    case Line::Hairline:
      return excel::xlHairline;
    case Line::Medium:
      return kMedium;
    case Line::Thick:
    case Line::Double:
      return excel::xlThick;
    case Line::None:  // as thin as it would become
    case Line::Thin:
      break;
  }
  return excel::xlThin;
}

Line LineOfWeight(std::int32_t weight) {
  switch (weight) {
    case excel::xlHairline:
      return Line::Hairline;
    case excel::xlThin:
      return Line::Thin;
    case kMedium:
      return Line::Medium;
    case excel::xlThick:
      return Line::Thick;
    default:
      Refuse("A line's weight is 1 (hairline), 2 (thin), -4138 (medium) or 4 (thick), not " +
             std::to_string(weight));
  }
}

}  // namespace

Borders::Borders(SessionPointer session, SheetPointer sheet, Area area)
    : CellsObject(std::move(session), std::move(sheet), area) {}

const MemberTable& Borders::Members() const {
  static const MemberTable table = MemberTable::For<Borders>("Borders").Get(
      0, "Item", &Borders::GetItem, {"Index"}, "One edge, or the lines inside.");
  return table;
}

Variant Borders::GetItem(std::int32_t index) const {
  return std::make_shared<Border>(Shared(), sheet_, area_, index);
}

Border::Border(SessionPointer session, SheetPointer sheet, Area area, std::int32_t index)
    : CellsObject(std::move(session), std::move(sheet), area), index_(index) {
  LinesOf(area_, index_);  // refuses what is no index
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

template <class Read>
Variant Border::Common(Read read) const {
  const auto lines = LinesOf(area_, index_);
  if (!lines) return read(Line::None);
  return ValueOrNull((sheet_->lines.*lines->kind).Common(lines->cells, read));
}

template <class Change>
void Border::Draw(Change change) {
  const auto lines = LinesOf(area_, index_);
  if (!lines) Refuse("There are no lines inside " + Place() + " in that direction");
  (sheet_->lines.*lines->kind).Change(lines->cells, change);
}

Variant Border::GetLineStyle() const { return Common(StyleOf); }
Variant Border::GetWeight() const { return Common(WeightOf); }

void Border::LetLineStyle(std::int32_t style) {
  switch (style) {
    case excel::xlLineStyleNone:
      return Draw([](Line& line) { line = Line::None; });
    case excel::xlDouble:
      return Draw([](Line& line) { line = Line::Double; });
    case excel::xlContinuous:
      return Draw([](Line& line) {
        if (line == Line::None || line == Line::Double) line = Line::Thin;
      });
    default:
      Refuse("A line's style is 1 (continuous), -4119 (double) or -4142 (none), not " +
             std::to_string(style));
  }
}

void Border::LetWeight(std::int32_t weight) {
  const Line drawn = LineOfWeight(weight);
  Draw([drawn](Line& line) {
    if (line != Line::Double || drawn != Line::Thick) line = drawn;
  });
}

}  // namespace rangewerks::hosts::workbook
