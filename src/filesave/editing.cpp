#include "filesave/editing.h"

#include "automation/error.h"

namespace rangewerks {

clsExcelFileSave& Edited(const std::shared_ptr<clsExcelFileSave>& fileSave) {
  if (!fileSave) throw automation::Error(automation::ErrorNumber::ObjectVariableNotSet);
  return *fileSave;
}

bool Accept(const clsExcelFileSave& settings, clsExcelFileSave& fileSave, forms::Form& form) {
  try {
    settings.Validate();
  } catch (const automation::Error& error) {
    form.Desktop().ShowMessage({.text = error.Description(), .flags = forms::Message::kCritical},
                               &form);
    return false;
  }
  fileSave.CopyFrom(settings);
  return true;
}

void ChooseFolder(forms::TextBox& path) {
  forms::Form& form = path.OwningForm();
  const std::string folder = form.Desktop().BrowseForFolder("Please select a folder", &form);
  if (!folder.empty()) path.let_Text(folder);
}

}  // namespace rangewerks
