#include "filesave/frmSaveFile.h"

#include "filesave/editing.h"

namespace rangewerks {

frmSaveFile::frmSaveFile(forms::Toolkit& toolkit)
    : Form(toolkit, "frmSaveFile",
           {.caption = " Save File", .innerWidth = 6240, .innerHeight = 1635}) {
  cmdpath.Click = [this] { ChooseFolder(txtPath); };
  cmdOk.Click = [this] { cmdOk_Click(); };
  cmdCancel.Click = [this] { cmdCancel_Click(); };
}

void frmSaveFile::Form_Load() {
  cancel_ = false;
  txtName.let_Text(Edited(fileSave_).get_ExpandedName());
  txtPath.let_Text(Edited(fileSave_).get_FilePath());
}

void frmSaveFile::cmdOk_Click() {
  clsExcelFileSave settings = Edited(fileSave_);
  settings.let_ExpandedName(txtName.get_Text());
  settings.let_FilePath(txtPath.get_Text());
  if (!Accept(settings, Edited(fileSave_), *this)) return;
  cancel_ = false;
  Unload();
}

void frmSaveFile::cmdCancel_Click() {
  cancel_ = true;
  Unload();
}

}  // namespace rangewerks
