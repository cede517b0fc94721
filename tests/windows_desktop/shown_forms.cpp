#include "windows_desktop/shown_forms.h"

#include "admin/frmResizeRanges.h"
#include "browse/frmBrowseCalendar.h"
#include "errors/frmErrMessage.h"
#include "errors/frmErrorDesc.h"
#include "errors/frmErrorListDisplay.h"
#include "filesave/frmPath.h"
#include "filesave/frmSaveFile.h"
#include "platform/frmExcelAbout.h"
#include "sheetbuild/frmColourPallet.h"
#include "support/fixed_system.h"

namespace rangewerks::tests {

namespace {

std::shared_ptr<FixedSystem> System() {
  static const auto system = std::make_shared<FixedSystem>("C:\\Rangewerks.dll");
  return system;
}

std::shared_ptr<forms::Form> ErrorBox(forms::Toolkit& desktop, bool detail) {
  auto form = std::make_shared<frmErrMessage>(desktop, System());
  form->txtMainMessage.let_Text("The sheet \"Journal\" is protected. Unprotect it and post again.");
  form->txtErrorNumber.let_Text("Error number: 1004");
  form->txtExtra.let_Text(
      "Excel\r\nLine No.: 4 PutValue of Class Module clsInterfaceRangeList Line#:4\r\n"
      "Line No.: 9 PostRow of Module Journal Line#:9");
  if (detail) form->SetDetailVisible(true);
  return form;
}

std::shared_ptr<forms::Form> MailDetails(forms::Toolkit& desktop) {
  auto form = std::make_shared<frmErrorDesc>(desktop, System());
  form->txtProblemDetails.let_Text("Posting the July journal, row 7.");
  form->txtYourName.let_Text("Ann Miller");
  form->txtYourPhone.let_Text("01632 960001");
  return form;
}

std::shared_ptr<forms::Form> ErrorListOf(forms::Toolkit& desktop) {
  const auto rows = std::make_shared<ErrorRows>();
  const auto add = [&](std::int32_t row, bool isWarning, const char* text) {
    if (!rows->IsEmpty()) rows->AppendRow();
    rows->WriteLastRow(row, isWarning, text, row - 4);
  };
  add(6, false, "No such nominal code: 7599");
  add(8, true, "The date lies before the current period");
  add(11, false, "The amount isn't a number");
  add(12, false, "The department is missing");
  add(17, true, "The reference is longer than 20 characters");
  rows->SetCell(1, ErrorRows::kFixed, "yes");
  auto form = std::make_shared<frmErrorListDisplay>(
      desktop, std::make_shared<ErrorMessageBox>(
                   std::shared_ptr<forms::Toolkit>(&desktop, [](forms::Toolkit*) {}), System()));
  form->set_ErrorList(rows);
  return form;
}

std::shared_ptr<forms::Form> About(forms::Toolkit& desktop) {
  auto form = std::make_shared<frmExcelAbout>(desktop, System());
  form->let_Caption("About Journal Entry");
  form->lblTitle.let_Caption("Journal Entry");
  form->txtVersion.let_Text("Version 2.1.0");
  form->lblDescription.let_Caption(
      "Posts the rows of a sheet to the nominal ledger, with a check of every code before anything "
      "is posted.");
  form->lblDisclaimer.let_Caption(
      "Warning: posted rows can't be taken back from the sheet. Check the journal before you post "
      "it.");
  return form;
}

std::shared_ptr<clsExcelFileSave> Saving() {
  auto settings = std::make_shared<clsExcelFileSave>(System());
  settings->let_FilePath("C:\\Accounts\\Posted");
  settings->let_Filename("Journal %i %d%m%y");
  settings->let_ExpandedName("Journal 0042 310723");
  settings->let_DoSaveFile(true);
  return settings;
}

std::shared_ptr<forms::Form> SaveSettings(forms::Toolkit& desktop) {
  auto form = std::make_shared<frmPath>(desktop, System());
  form->set_FileSave(Saving());
  return form;
}

std::shared_ptr<forms::Form> SaveFile(forms::Toolkit& desktop) {
  auto form = std::make_shared<frmSaveFile>(desktop);
  form->set_FileSave(Saving());
  return form;
}

std::shared_ptr<forms::Form> Colours(forms::Toolkit& desktop) {
  const auto styles = std::make_shared<clsAnalyserStyles>(System()->OpenRegistry());
  styles->get_AdjustmentColumn()->let_KeyPath(clsAnalyserStyles::kRangeKey);
  styles->get_AlternateAdjustmentColumn()->let_KeyPath(clsAnalyserStyles::kAlternateKey);
  styles->LoadSettingsFromRegistry();
  styles->LoadSettingsFromRegistry();
  styles->get_AdjustmentColumn()->let_ColumnColour(0xCCFFFF);
  styles->get_AdjustmentColumn()->let_HeadingColour(0xF7EBDD);
  styles->get_AlternateAdjustmentColumn()->let_ColumnColour(0xE2F0D9);
  styles->SaveSettingsToRegistry();
  System()->Settings()->Forget();  // it writes down whatever it is asked
  auto form = std::make_shared<frmColourPallet>(desktop, System()->OpenRegistry());
  form->set_AnalysisStyles(styles);
  return form;
}

std::shared_ptr<forms::Form> Calendar(forms::Toolkit& desktop) {
  auto form = std::make_shared<frmBrowseCalendar>(desktop);
  form->let_InitialDate({45138});  // 31 July 2023
  return form;
}

std::shared_ptr<forms::Form> Rows(forms::Toolkit& desktop) {
  auto form = std::make_shared<frmResizeRanges>(desktop);
  form->let_AllowedNumberOfRows(200);
  form->txtResizeRows.let_Text("50");
  return form;
}

}  // namespace

const std::vector<ShownForm>& ShownForms() {
  static const std::vector<ShownForm> forms = {
      {"frmErrMessage", [](forms::Toolkit& desktop) { return ErrorBox(desktop, false); }},
      {"frmErrMessage_detail", [](forms::Toolkit& desktop) { return ErrorBox(desktop, true); }},
      {"frmErrorDesc", MailDetails},
      {"frmErrorListDisplay", ErrorListOf},
      {"frmBrowseCalendar", Calendar},
      {"frmExcelAbout", About},
      {"frmPath", SaveSettings},
      {"frmSaveFile", SaveFile},
      {"frmColourPallet", Colours},
      {"frmResizeRanges", Rows},
  };
  return forms;
}

}  // namespace rangewerks::tests
