#include "sheetbuild/frmColourPallet.h"

#include <utility>

#include "automation/error.h"

namespace rangewerks {

namespace {

constexpr std::int32_t kWhite = 0xFFFFFF;
constexpr std::int16_t kAlternateFrameHeight = 800;
constexpr double kFormHeight = 5200;
constexpr double kButtonsTop = 4100;

}  // namespace

frmColourPallet::frmColourPallet(forms::Toolkit& toolkit,
                                 std::shared_ptr<platform::Registry> registry)
    : Form(toolkit, "frmColourPallet",
           {.caption = " Colour Configurator",
            .innerWidth = 6615,
            .innerHeight = 5535,
            .fontName = "MS Sans Serif",
            .fontSize = 8.25}),
      analysisStyles_(std::make_shared<clsAnalyserStyles>(std::move(registry))) {
  chkRngColor.Click = [this] { chkRngColor_Click(); };
  chkAltRngColor.Click = [this] { chkAltRngColor_Click(); };
  cmdOk.Click = [this] { cmdOk_Click(); };
  cmdCancel.Click = [this] { Unload(); };
}

clsAnalyserStyles& frmColourPallet::Styles() const {
  if (!analysisStyles_) throw automation::Error(automation::ErrorNumber::ObjectVariableNotSet);
  return *analysisStyles_;
}

void frmColourPallet::Form_Load() {
  // Alternate rows have no heading.
  ctlColourPallet2.EnableTxtHeadColour(false);
  LoadPanels();
  chkRngColor.let_Value(Styles().get_AdjustmentColumn()->get_EnableRangeColor());
  chkAltRngColor.let_Value(
      Styles().get_AlternateAdjustmentColumn()->get_EnableAlternateRangeColor());
  chkRngColor_Click();
  chkAltRngColor_Click();
  ShrinkToTheAlternatePanel();
}

void frmColourPallet::LoadPanels() {
  Styles().LoadSettingsFromRegistry();
  const clsColumnStyle& range = *Styles().get_AdjustmentColumn();
  ctlColourPallet1.NameOfTheFrame("Range Color");
  if (range.get_EnableRangeColor()) {
    ctlColourPallet1.let_ColumnColour(range.get_ColumnColour());
    ctlColourPallet1.let_HeadingColour(range.get_HeadingColour());
    ctlColourPallet1.LoadColours();
  } else {
    ctlColourPallet1.let_ColumnColour(kWhite);
    ctlColourPallet1.let_HeadingColour(kWhite);
  }
  const clsColumnStyle& alternate = *Styles().get_AlternateAdjustmentColumn();
  ctlColourPallet2.NameOfTheFrame("Alternate Range Color");
  if (alternate.get_EnableAlternateRangeColor()) {
    ctlColourPallet2.let_ColumnColour(alternate.get_ColumnColour());
    ctlColourPallet2.LoadColours();
  } else {
    ctlColourPallet2.let_ColumnColour(kWhite);
  }
}

void frmColourPallet::ShrinkToTheAlternatePanel() {
  ctlColourPallet2.Framelength(kAlternateFrameHeight);
  let_Height(kFormHeight);
  cmdOk.let_Top(kButtonsTop);
  cmdCancel.let_Top(kButtonsTop);
  // What is left of the panel below its frame would lie over the buttons.
  ctlColourPallet2.let_Height(kButtonsTop - ctlColourPallet2.get_Top());
}

void frmColourPallet::chkRngColor_Click() {
  if (chkRngColor.get_Value()) {
    ctlColourPallet1.EnableControl(true);
    return;
  }
  ctlColourPallet1.EnableControl(false);
  chkAltRngColor.let_Value(false);
  ctlColourPallet2.EnableControl(false);
}

void frmColourPallet::chkAltRngColor_Click() {
  if (chkRngColor.get_Value()) {
    ctlColourPallet2.EnableControl(chkAltRngColor.get_Value());
  } else {
    chkAltRngColor.let_Value(false);
  }
}

void frmColourPallet::cmdOk_Click() {
  clsColumnStyle& range = *Styles().get_AdjustmentColumn();
  clsColumnStyle& alternate = *Styles().get_AlternateAdjustmentColumn();
  range.let_EnableRangeColor(chkRngColor.get_Value());
  alternate.let_EnableAlternateRangeColor(chkAltRngColor.get_Value());
  if (range.get_EnableRangeColor()) {
    range.let_ColumnColour(ctlColourPallet1.get_ColumnColour());
    range.let_HeadingColour(ctlColourPallet1.get_HeadingColour());
  }
  if (alternate.get_EnableAlternateRangeColor()) {
    alternate.let_ColumnColour(ctlColourPallet2.get_ColumnColour());
    alternate.let_HeadingColour(ctlColourPallet2.get_HeadingColour());
  }
  Styles().SaveSettingsToRegistry();
  Unload();
}

}  // namespace rangewerks
