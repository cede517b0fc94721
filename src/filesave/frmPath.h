// The dialog in which an administrator sets how an interface saves posted sheets.
//
//   auto& dialog = toolkit.Shared<frmPath>(system);
//   dialog.set_FileSave(settings);
//   dialog.Show(forms::Modality::Modal);
//   if (!dialog.get_Cancel()) settings->SaveSettingsToRegistry();
#pragma once

#include <memory>

#include "filesave/clsExcelFileSave.h"
#include "forms/form.h"
#include "forms/simple_controls.h"

namespace rangewerks {

class frmPath final : public forms::Form {
 public:
  frmPath(forms::Toolkit& toolkit, std::shared_ptr<const platform::System> system);

  /// The settings that are edited, given before the form is shown; loading it without any raises
  /// 91. Only an OK with settings that can be used changes them.
  const std::shared_ptr<clsExcelFileSave>& get_FileSave() const { return fileSave_; }
  void set_FileSave(const std::shared_ptr<clsExcelFileSave>& value) { fileSave_ = value; }
  /// Whether the person left it without OK. Readable after the form has gone.
  bool get_Cancel() const { return cancel_; }
  void let_Cancel(bool value) { cancel_ = value; }

  forms::Label lblSvfile{
      *this, "lblSvfile", {.place = {240, 270, 2055, 225}, .text = "Save File on Posting"}};
  forms::CheckBox ChkSvFile{*this, "ChkSvFile", {.place = {2400, 240, 285, 285}}};
  forms::Label lblPrmtSave{
      *this, "lblPrmtSave", {.place = {240, 645, 2055, 225}, .text = "Prompt on save"}};
  forms::CheckBox ChkPrmtsv{*this, "ChkPrmtsv", {.place = {2400, 615, 285, 285}}};
  forms::Label lblPath{*this, "lblPath", {.place = {240, 1020, 2055, 225}, .text = "Default Path"}};
  forms::TextBox txtPath{*this, "txtPath", {.place = {2400, 990, 3015, 285}}};
  forms::CommandButton cmdpath{*this, "cmdpath", {.place = {5535, 960, 465, 345}, .text = "..."}};
  forms::Label lblfileformat{
      *this, "lblfileformat", {.place = {240, 1410, 2055, 225}, .text = "File Name Format"}};
  forms::TextBox txtIdentifier{*this, "txtIdentifier", {.place = {2400, 1380, 3600, 285}}};
  forms::Frame frmidentifier{*this, "frmidentifier", {.place = {240, 1800, 5760, 1575}}};
  forms::TextBox txtIdentifiers{frmidentifier,
                                "txtIdentifiers",
                                {.place = {120, 195, 5520, 1260},
                                 .text = "%i   - Identifier\r\n"
                                         "%d  - Day\r\n"
                                         "%m - Month\r\n"
                                         "%y  - Year\r\n"
                                         "%u  - Windows User\r\n",
                                 .multiLine = true,
                                 .locked = true}};
  forms::CommandButton cmdOk{
      *this, "cmdOk", {.place = {3450, 3525, 1215, 375}, .text = "&OK", .isDefault = true}};
  forms::CommandButton cmdCancel{
      *this, "cmdCancel", {.place = {4785, 3525, 1215, 375}, .text = "&Cancel", .isCancel = true}};

 private:
  void Form_Load() override;
  void Form_QueryUnload() override { cancel_ = true; }
  void EnableSaveControls();
  void ChkSvFile_Click();
  void cmdOk_Click();
  void cmdCancel_Click();

  std::shared_ptr<const platform::System> system_;
  std::shared_ptr<clsExcelFileSave> fileSave_;
  bool cancel_ = false;
};

}  // namespace rangewerks
