#include "admin/frmResizeRanges.h"

#include "automation/conversions.h"
#include "errors/attempt.h"

namespace rangewerks {

namespace {

constexpr forms::Colour kRed = 0x0000FF;

}  // namespace

frmResizeRanges::frmResizeRanges(forms::Toolkit& toolkit)
    : Form(toolkit, "frmResizeRanges",
           {.caption = "Recreate/Resize Detail Ranges", .innerWidth = 5520, .innerHeight = 2370}) {
  txtResizeRows.Change = [this] { txtResizeRows_Change(); };
  cmdOK.Click = [this] { cmdOK_Click(); };
  cmdCancel.Click = [this] { cmdCancel_Click(); };
}

void frmResizeRanges::txtResizeRows_Change() {
  if (lblInvalid.get_ForeColor() != kRed) return;
  lblInvalid.let_ForeColor(forms::SystemColour::kButtonFace);
  lblInvalid.let_Caption("");
}

void frmResizeRanges::cmdOK_Click() {
  std::int32_t rows = 0;
  const bool isNumber =
      Attempt([&] { rows = ToLong(txtResizeRows.get_Text(), automation::Locale::Current()); });
  if (!isNumber || rows < 1 || rows > allowedNumberOfRows_) {
    Desktop().Beep();
    lblInvalid.let_Caption("Invalid Value");
    lblInvalid.let_ForeColor(kRed);
    return;
  }
  okSelected_ = true;
  resizeRows_ = rows;
  Unload();
}

void frmResizeRanges::cmdCancel_Click() {
  okSelected_ = false;
  Unload();
}

}  // namespace rangewerks
