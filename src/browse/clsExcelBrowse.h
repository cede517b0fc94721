// The right-click browse for callers: every member is that of clsExcelBrowseAddin.
//
//   clsExcelBrowse browse;
//   browse.set_WorkBook(workbook);
//   browse.let_Component("Ledger.Browse");
//   browse.AddBrowseShortcut();
#pragma once

#include <memory>
#include <string>

#include "automation/member_table.h"
#include "browse/clsExcelBrowseAddin.h"

namespace rangewerks {

class clsExcelBrowse final : public automation::AutomationClass {
 public:
  const automation::MemberTable& Members() const override;

  bool get_UseNewBrowseShortcutName() { return Addin().get_UseNewBrowseShortcutName(); }
  void let_UseNewBrowseShortcutName(bool value) { Addin().let_UseNewBrowseShortcutName(value); }
  std::string get_BrowseMenuText() { return Addin().get_BrowseMenuText(); }
  bool get_UseNewMethod() { return Addin().get_UseNewMethod(); }
  void let_UseNewMethod(bool value) { Addin().let_UseNewMethod(value); }
  std::string get_Component() { return Addin().get_Component(); }
  void let_Component(const std::string& value) { Addin().let_Component(value); }
  std::string get_Command() { return Addin().get_Command(); }
  void let_Command(const std::string& value) { Addin().let_Command(value); }
  std::string get_Caption() { return Addin().get_Caption(); }
  void let_Caption(const std::string& value) { Addin().let_Caption(value); }
  excel::Workbook get_WorkBook() { return Addin().get_WorkBook(); }
  void set_WorkBook(const excel::Workbook& value) { Addin().set_WorkBook(value); }
  bool IsBrowse() { return Addin().IsBrowse(); }
  void AddBrowseShortcut() { Addin().AddBrowseShortcut(); }
  void DeleteBrowseShortcut() { Addin().DeleteBrowseShortcut(); }

 private:
  /// Made on first need.
  clsExcelBrowseAddin& Addin() {
    if (!addin_) addin_ = std::make_unique<clsExcelBrowseAddin>();
    return *addin_;
  }

  std::unique_ptr<clsExcelBrowseAddin> addin_;
};

}  // namespace rangewerks
