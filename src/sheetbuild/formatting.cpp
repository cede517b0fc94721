// How the cells of a placed range are made to look.
#include "automation/dispatch.h"
#include "errors/attempt.h"
#include "errors/procedure.h"
#include "platform/excel_format.h"
#include "sheetbuild/clsRangeProperties.h"

namespace rangewerks {
namespace {

using automation::Error;

constexpr std::int32_t kNoColour = -1;
constexpr std::int32_t kWhite = 0xFFFFFF;

/// Runs the body of FormatRange; what fails is told as a failure of the format.
template <class Body>
void Formatting(const Body& body) {
  try {
    body();
  } catch (const Error& error) {
    throw Error(error.Number(), error.Source(), "Error setting format \r\n" + error.Description());
  }
}

}  // namespace

void clsRangeProperties::FormatRange() {
  Procedure("FormatRange of Class Module clsRangeProperties Line#:", [&](Line& at) {
    Formatting([&] {
      at();
      if (addColumnHeadings_) PlaceHeading(at);
      at();
      FillAndDrawLines();
      at();
      if (alternateRangeColour_ != rangeColour_ && rangeArea_.get_Rows().get_Count() != 1) {
        AddBanding(at);
      }
      at();
      if (setForceColumnWidth_ != -1) {
        rangeArea_.get_EntireColumn().let_ColumnWidth(setForceColumnWidth_);
      }
      at();
      if (!addLineAtBottomOfRange_) return;
      const excel::Border bottom = rangeArea_.get_Borders(excel::xlEdgeBottom);
      Attempt([&] { bottom.let_LineStyle(excel::xlContinuous); });
      Attempt([&] { bottom.let_Weight(excel::xlThin); });
    });
  });
}

void clsRangeProperties::PlaceHeading(Line& at) const {
  excel::Range heading;
  // In row 1 there is no cell above, and then no heading.
  if (!Attempt([&] { heading = rangeArea_.get_Item(1).get_Offset(-1); })) return;
  at();
  heading.let_Value(rangeHeading_);
  at();
  heading.get_EntireColumn().AutoFit();
  at();
  SetHeaderRangeFormat(heading);
}

void clsRangeProperties::FillAndDrawLines() const {
  if (rangeColour_ == kNoColour || rangeColour_ == kWhite) return;
  rangeArea_.get_Interior().let_Color(rangeColour_);
  if (doNotAddBoxLinesIfColoured_) return;
  for (const auto side : {excel::xlInsideHorizontal, excel::xlEdgeRight, excel::xlEdgeLeft}) {
    excel::Border border;
    if (!Attempt([&] { border = rangeArea_.get_Borders(side); })) continue;
    Attempt([&] { border.let_Weight(excel::xlThin); });
    Attempt([&] { border.let_LineStyle(excel::xlContinuous); });
  }
}

void clsRangeProperties::AddBanding(Line& at) const {
  const std::string formula = "=MOD(ROW()" + listSeparator_ + " 2)=0";
  const auto add = [&] { rangeArea_.get_FormatConditions().Add(excel::xlExpression, formula); };
  at();
  if (!Attempt(add)) {
    // The host takes no more conditions: those of earlier placings make room.
    std::int32_t rows = 0;
    Attempt([&] { rows = rangeArea_.get_Rows().get_Count(); });
    for (std::int32_t i = 1; i <= rows; ++i) {
      Attempt([&] {
        const excel::FormatConditions conditions = rangeArea_.get_Item(i).get_FormatConditions();
        if (conditions.get_Count() > 0) conditions.Delete();
      });
    }
    at();
    add();
  }
  at();
  rangeArea_.get_FormatConditions(1).get_Interior().let_Color(alternateRangeColour_);
}

void clsRangeProperties::SetHeaderRangeFormat(const excel::Range& rng) const {
  Procedure("SetHeaderRangeFormat of Class Module clsRangeProperties Line#:", [&](Line& at) {
    at();
    if (boldRangeHeadings_) rng.get_Font().let_Bold(true);
    at();
    if (headingColour_ != kNoColour) rng.get_Interior().let_Color(headingColour_);
    at();
    if (addHeadingsBorder_) {
      const excel::Border bottom = rng.get_Borders(excel::xlEdgeBottom);
      bottom.let_LineStyle(excel::xlDouble);
      bottom.let_Weight(excel::xlThick);
      for (const auto side : {excel::xlEdgeRight, excel::xlEdgeLeft, excel::xlEdgeTop}) {
        at();
        const excel::Border border = rng.get_Borders(side);
        border.let_LineStyle(excel::xlContinuous);
        border.let_Weight(excel::xlThin);
      }
    }
    at();
    if (wrapHeaderText_) rng.let_WrapText(true);
  });
}

}  // namespace rangewerks
