#include "hosts/workbook/borders.h"

#include "hosts/common/format_numbers.h"
#include "platform/excel_constants.h"

namespace rangewerks::hosts::workbook {
namespace {

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
    case kMedium:
      return Line::Medium;
    case excel::xlThick:
      return Line::Thick;
    default:
      return Line::Thin;
  }
}

}  // namespace

Variant Borders::GetItem(std::int32_t index) const {
  return std::make_shared<Border>(Shared(), sheet_, area_, index);
}

Border::Border(SessionPointer session, SheetPointer sheet, Area area, std::int32_t index)
    : CellsObject(std::move(session), std::move(sheet), area), index_(index) {
  LinesOf(area_, index_);  // refuses what is no index
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

void Border::PutLineStyle(std::int32_t style) {
  switch (style) {
    case excel::xlLineStyleNone:
      return Draw([](Line& line) { line = Line::None; });
    case excel::xlDouble:
      return Draw([](Line& line) { line = Line::Double; });
    default:
      return Draw([](Line& line) {
        if (line == Line::None || line == Line::Double) line = Line::Thin;
      });
  }
}

void Border::PutWeight(std::int32_t weight) {
  const Line drawn = LineOfWeight(weight);
  Draw([drawn](Line& line) {
    if (line != Line::Double || drawn != Line::Thick) line = drawn;
  });
}

}  // namespace rangewerks::hosts::workbook
