// The command with which an interface saves the sheet that it has posted.
#include <memory>
#include <string>

#include "automation/error.h"
#include "filesave/clsExcelFileSave.h"
#include "filesave/frmSaveFile.h"
#include "forms/toolkit.h"
#include "rangelist/ExcelFunctions.h"

namespace rangewerks {

using forms::Message;

void ExcelFunctions::CallSaveSheet(const excel::Worksheet& wk_sheet, const std::string& sIdentifier,
                                   const std::string& sRegSection) const {
  const auto settings = std::make_shared<clsExcelFileSave>(system_);
  settings->let_RegSection(sRegSection);
  settings->GetSettingsFromRegistry();
  settings->let_Identifier(sIdentifier);
  settings->ExpandFileName();
  if (!settings->get_DoSaveFile()) return;
  if (settings->get_PromptOnSave()) {
    auto& dialog = toolkit_->Shared<frmSaveFile>();
    dialog.set_FileSave(settings);
    dialog.Show(forms::Modality::Modal);
    if (dialog.get_Cancel()) return;
  }
  const excel::Workbook workbook = wk_sheet.get_Parent();
  const std::string file = settings->FullPath() + ".xls";
  try {
    workbook.SaveCopyAs(file);
  } catch (const automation::Error& error) {
    MsgBox(*toolkit_,
           "Error saving the file.  You may not have permissions to save to the location\r\n" +
               error.Description(),
           Message::kCritical);
    return;
  }
  MsgBox(*toolkit_, "File " + file + " saved", Message::kInformation);
}

}  // namespace rangewerks
