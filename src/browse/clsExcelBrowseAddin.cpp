#include "browse/clsExcelBrowseAddin.h"

#include "automation/conversions.h"
#include "automation/dispatch.h"
#include "automation/text.h"
#include "errors/attempt.h"
#include "errors/procedure.h"
#include "platform/excel_document_properties.h"

namespace rangewerks {
namespace {

using automation::Variant;

constexpr std::int32_t kFirstInMenu = 1;

/// Whether a bar has an entry of exactly that caption.
bool HasEntry(const excel::CommandBar& bar, const std::string& caption) {
  const auto controls = bar.get_Controls().Enumerate();
  for (Variant control; controls->Next(control);) {
    if (excel::CommandBarControl(control.AsObject()).get_Caption() == caption) return true;
  }
  return false;
}

}  // namespace

void clsExcelBrowseAddin::let_UseNewBrowseShortcutName(bool value) {
  useNewBrowseShortcutName_ = value;
  caption_ = get_BrowseMenuText();
}

std::string clsExcelBrowseAddin::get_BrowseMenuText() const {
  return useNewBrowseShortcutName_ ? "&Browse Records" : "Brow&se Records";
}

std::string clsExcelBrowseAddin::get_Caption() const {
  return automation::Trim(caption_).empty() ? get_BrowseMenuText() : caption_;
}

excel::CommandBar clsExcelBrowseAddin::FindBrowseCommandBar() const {
  const std::string caption = get_Caption();
  const auto bars = workBook_.get_Application().get_CommandBars().Enumerate();
  for (Variant each; bars->Next(each);) {
    excel::CommandBar bar(each.AsObject());
    // The host can have several bars of this name, of which the entry is in one.
    if (bar.get_Name() == "Cell" && HasEntry(bar, caption)) return bar;
  }
  return {};
}

excel::CommandBarControl clsExcelBrowseAddin::EntryOf(const excel::CommandBar& bar) const {
  return bar.get_Controls().get_Item(get_Caption());
}

void clsExcelBrowseAddin::AddBrowseShortcut() const {
  if (FindBrowseCommandBar()) return;
  workBook_.get_Application()
      .get_ShortcutMenus(excel::xlWorksheetCell)
      .get_MenuItems()
      .Add(get_Caption(), kFirstInMenu);
  const excel::CommandBarControl entry = EntryOf(FindBrowseCommandBar());
  entry.let_Caption(get_Caption());
  entry.let_Tag(component_);
}

void clsExcelBrowseAddin::DeleteBrowseShortcut() const {
  ProcedureWithoutLine("DeleteBrowseShortcut of Class Module clsExcelBrowse", [&](Line& at) {
    at();
    const excel::CommandBar bar = FindBrowseCommandBar();
    at();
    if (bar) EntryOf(bar).Delete();
  });
}

bool clsExcelBrowseAddin::IsBrowse() const {
  bool isBrowse = false;
  Attempt([&] {
    const excel::DocumentProperties properties = workBook_.get_CustomDocumentProperties();
    isBrowse =
        ToBoolean(properties.get_Item(component_).get_Default(), automation::Locale::Current());
  });
  return isBrowse;
}

void clsExcelBrowseAddin::SetDocumentPropertyOn() const {
  // The text names another place, as it always has.
  Procedure("SetDocumentPropertyOn of frmRangeSelect Line#:", [&](Line& at) {
    at();
    const excel::DocumentProperties properties = workBook_.get_CustomDocumentProperties();
    Attempt([&] { properties.Add(component_, excel::msoPropertyTypeBoolean, true); });
    at();
    properties.get_Item(component_).let_Default(true);
  });
}

void clsExcelBrowseAddin::SetDocumentPropertyOff() const {
  Attempt(
      [&] { workBook_.get_CustomDocumentProperties().get_Item(component_).let_Default(false); });
}

}  // namespace rangewerks
