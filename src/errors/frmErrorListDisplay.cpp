#include "errors/frmErrorListDisplay.h"

#include <algorithm>
#include <cstdint>

#include "automation/conversions.h"
#include "errors/attempt.h"
#include "errors/procedure.h"
#include "errors/report.h"

namespace rangewerks {

using automation::Member;
using automation::Variant;

frmErrorListDisplay::frmErrorListDisplay(forms::Toolkit& toolkit,
                                         std::shared_ptr<ErrorMessageBox> box)
    : Form(toolkit, "frmErrorListDisplay",
           {.caption = "Error List",
            .innerWidth = 6600,
            .innerHeight = 4200,
            .border = forms::Border::Sizable,
            .fontName = "Tahoma",
            .fontSize = 8}),
      box_(std::move(box)) {
  for (forms::Control* control :
       {static_cast<forms::Control*>(&C1Elastic1), static_cast<forms::Control*>(&lblHelp),
        static_cast<forms::Control*>(&TDBGridErrors)}) {
    designed_.emplace_back(control, control->Properties().place);
  }
  TDBGridErrors.Click = [this] { bGridClicked_ = true; };
  TDBGridErrors.RowColChange = [this] { TDBGridErrors_RowColChange(); };
}

forms::Picture frmErrorListDisplay::PictureOf(const Variant& isWarning) {
  const bool* warning = isWarning.TryGet<bool>();
  if (warning == nullptr) return forms::Picture::None;
  return *warning ? forms::Picture::Warning : forms::Picture::Error;
}

void frmErrorListDisplay::Form_Load() {
  ReportFailures(*box_, "Form_Load of Form frmErrorListDisplay Line#:", [&](Line& at) {
    at();
    let_Left(Desktop().Screen().width - get_Width());
    bGridClicked_ = false;
    at();
    TDBGridErrors.set_Array(errorList_);
    TDBGridErrors.let_ColumnWidth(0, 500);
    TDBGridErrors.let_ColumnLocked(0, true);
    TDBGridErrors.let_ColumnLocked(1, true);
    TDBGridErrors.let_ColumnWidth(1, 450);
    TDBGridErrors.let_ColumnWidth(2, 620);
    TDBGridErrors.let_ColumnLocked(2, false);
    TDBGridErrors.let_ColumnLocked(3, true);
    at();
    TDBGridErrors.ReBind();
  });
}

/// The controls keep their share of the form.
void frmErrorListDisplay::Form_Resize() {
  const forms::FormWindow::Frame frame = Window()->FrameSize();
  const double across = std::max(get_Width() - frame.width, 0.0) / Design().innerWidth;
  const double down = std::max(get_Height() - frame.height, 0.0) / Design().innerHeight;
  for (const auto& [control, place] : designed_) {
    control->Move(
        {place.left * across, place.top * down, place.width * across, place.height * down});
  }
}

void frmErrorListDisplay::TDBGridErrors_RowColChange() {
  ReportFailures(*box_,
                 "TDBGridErrors_RowColChange of Form frmErrorListDisplay Line#:", [&](Line& at) {
                   at();
                   if (bGridClicked_) SelectLine();
                 });
}

void frmErrorListDisplay::SelectLine() {
  Procedure("SelectLine of Form frmErrorListDisplay Line#:", [&](Line& at) {
    std::int64_t sheetRow = 0;
    const bool isRow = Attempt([&] {
      sheetRow = ToLong(TDBGridErrors.get_ColumnValue(0), automation::Locale::Current());
    });
    if (!isRow) return;
    at();
    const std::int64_t offset = sheetRow - keyRange_.get_Row() + 1;
    if (offset <= 1) return;
    at();
    keyRange_.get_Item(static_cast<std::int32_t>(offset)).get_EntireRow().Select();
    at();
    SetFocus();
  });
}

void frmErrorListDisplay::Form_Unload() {
  ReportFailures(*box_, "Form_Unload of Form frmErrorListDisplay Line#:", [&](Line& at) {
    at();
    SetTopMost(false);
    errorList_ = nullptr;
    at();
    closed_.Raise(Member("Closed"), {});
  });
}

}  // namespace rangewerks
