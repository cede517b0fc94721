// What both dialogs of the file-save settings do. Private to this folder's sources.
#pragma once

#include <memory>

#include "filesave/clsExcelFileSave.h"
#include "forms/form.h"
#include "forms/simple_controls.h"

namespace rangewerks {

/// The settings that a form edits. Raises 91 when it was given none.
clsExcelFileSave& Edited(const std::shared_ptr<clsExcelFileSave>& fileSave);
/// Takes the new settings over when they can be used; otherwise tells the person why not, changes
/// nothing and returns false.
bool Accept(const clsExcelFileSave& settings, clsExcelFileSave& fileSave, forms::Form& form);
/// Lets the person choose a folder; the box keeps its text when they cancel.
void ChooseFolder(forms::TextBox& path);

}  // namespace rangewerks
