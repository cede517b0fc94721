// The dialog in which a person changes name and folder of one file that is about to be saved.
//
//   auto& dialog = toolkit.Shared<frmSaveFile>();
//   dialog.set_FileSave(settings);  // with the name already expanded
//   dialog.Show(forms::Modality::Modal);
//   if (!dialog.get_Cancel()) Save(settings->FullPath());
#pragma once

#include <memory>

#include "filesave/clsExcelFileSave.h"
#include "forms/form.h"
#include "forms/simple_controls.h"

namespace rangewerks {

class frmSaveFile final : public forms::Form {
 public:
  explicit frmSaveFile(forms::Toolkit& toolkit);

  /// The settings that are edited, given before the form is shown; loading it without any raises
  /// 91. Only an OK with a folder that can be used changes them.
  const std::shared_ptr<clsExcelFileSave>& get_FileSave() const { return fileSave_; }
  void set_FileSave(const std::shared_ptr<clsExcelFileSave>& value) { fileSave_ = value; }
  /// Whether the person left it without OK. Readable after the form has gone.
  bool get_Cancel() const { return cancel_; }
  void let_Cancel(bool value) { cancel_ = value; }

  forms::Label lblfile{*this, "lblfile", {.place = {240, 270, 1215, 225}, .text = "File Name"}};
  forms::TextBox txtName{*this, "txtName", {.place = {1560, 240, 4440, 285}}};
  forms::Label lblPath{*this, "lblPath", {.place = {240, 675, 1215, 225}, .text = "File Path"}};
  forms::TextBox txtPath{*this, "txtPath", {.place = {1560, 645, 3855, 285}}};
  forms::CommandButton cmdpath{*this, "cmdpath", {.place = {5535, 615, 465, 345}, .text = "..."}};
  forms::CommandButton cmdOk{
      *this, "cmdOk", {.place = {3450, 1140, 1215, 375}, .text = "&OK", .isDefault = true}};
  forms::CommandButton cmdCancel{
      *this, "cmdCancel", {.place = {4785, 1140, 1215, 375}, .text = "&Cancel", .isCancel = true}};

 private:
  void Form_Load() override;
  void Form_QueryUnload() override { cancel_ = true; }
  void cmdOk_Click();
  void cmdCancel_Click();

  std::shared_ptr<clsExcelFileSave> fileSave_;
  bool cancel_ = false;
};

}  // namespace rangewerks
