#include "filesave/frmPath.h"

#include <utility>

#include "filesave/editing.h"

namespace rangewerks {

frmPath::frmPath(forms::Toolkit& toolkit, std::shared_ptr<const platform::System> system)
    : Form(toolkit, "frmPath",
           {.caption = " Save To File", .innerWidth = 6240, .innerHeight = 4020}),
      system_(std::move(system)) {
  ChkSvFile.Click = [this] { ChkSvFile_Click(); };
  cmdpath.Click = [this] { ChooseFolder(txtPath); };
  cmdOk.Click = [this] { cmdOk_Click(); };
  cmdCancel.Click = [this] { cmdCancel_Click(); };
}

void frmPath::Form_Load() {
  const clsExcelFileSave& settings = Edited(fileSave_);
  txtPath.let_Text(settings.get_FilePath());
  txtIdentifier.let_Text(settings.get_Filename());
  ChkSvFile.let_Value(settings.get_DoSaveFile());
  ChkPrmtsv.let_Value(settings.get_PromptOnSave());
  EnableSaveControls();
}

void frmPath::EnableSaveControls() {
  const bool saves = ChkSvFile.get_Value();
  ChkPrmtsv.let_Enabled(saves);
  txtIdentifier.let_Enabled(saves);
  txtPath.let_Enabled(saves);
}

void frmPath::ChkSvFile_Click() {
  if (!ChkSvFile.get_Value()) ChkPrmtsv.let_Value(false);
  EnableSaveControls();
}

void frmPath::cmdOk_Click() {
  clsExcelFileSave settings(system_);
  settings.let_DoSaveFile(ChkSvFile.get_Value());
  settings.let_PromptOnSave(ChkPrmtsv.get_Value());
  settings.let_Filename(txtIdentifier.get_Text());
  settings.let_FilePath(txtPath.get_Text());
  if (!Accept(settings, Edited(fileSave_), *this)) return;
  cancel_ = false;
  Unload();
}

void frmPath::cmdCancel_Click() {
  cancel_ = true;
  Unload();
}

}  // namespace rangewerks
