// The dialog in which a person chooses the colours of ranges and of their alternate rows.
//
//   auto& dialog = toolkit.Shared<frmColourPallet>(registry);
//   dialog.set_AnalysisStyles(styles);  // with the keys of both sets
//   dialog.Show(forms::Modality::Modal);
#pragma once

#include <memory>

#include "forms/form.h"
#include "sheetbuild/clsAnalyserStyles.h"
#include "sheetbuild/ctlColourPallet.h"

namespace rangewerks {

class frmColourPallet final : public forms::Form {
 public:
  frmColourPallet(forms::Toolkit& toolkit, std::shared_ptr<platform::Registry> registry);

  /// The colours that are edited; OK changes and stores them. Styles of its own until they are
  /// set, and none once the form has been closed: loading it then raises 91.
  const std::shared_ptr<clsAnalyserStyles>& get_AnalysisStyles() const { return analysisStyles_; }
  void set_AnalysisStyles(const std::shared_ptr<clsAnalyserStyles>& value) {
    analysisStyles_ = value;
  }

  forms::CheckBox chkRngColor{
      *this, "chkRngColor", {.place = {480, 240, 5535, 285}, .text = "Enable Range Color"}};
  ctlColourPallet ctlColourPallet1{*this, "ctlColourPallet1", {.place = {360, 600, 5895, 1935}}};
  forms::CheckBox chkAltRngColor{
      *this,
      "chkAltRngColor",
      {.place = {480, 2565, 5535, 285}, .text = "Enable Alternate Range Color"}};
  ctlColourPallet ctlColourPallet2{*this, "ctlColourPallet2", {.place = {360, 2880, 5895, 1935}}};
  forms::CommandButton cmdOk{
      *this, "cmdOk", {.place = {480, 4800, 1575, 495}, .text = "OK", .isDefault = true}};
  forms::CommandButton cmdCancel{
      *this, "cmdCancel", {.place = {4440, 4800, 1575, 495}, .text = "Cancel", .isCancel = true}};

 private:
  void Form_Load() override;
  void Form_Unload() override { analysisStyles_.reset(); }
  clsAnalyserStyles& Styles() const;
  void LoadPanels();
  void ShrinkToTheAlternatePanel();
  void chkRngColor_Click();
  void chkAltRngColor_Click();
  void cmdOk_Click();

  std::shared_ptr<clsAnalyserStyles> analysisStyles_;
};

}  // namespace rangewerks
