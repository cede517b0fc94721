// Changes the macro code of a workbook.
//
//   clsExcelVB editor;
//   editor.set_WorkBook(workbook);
//   editor.let_Module("OstrelBrowseModule");
//   editor.DeleteModule();
//   editor.AddModule();
//   editor.AddCodeLine("Sub BrowseRecords()");
//   editor.AddCodeLine("End Sub");
//   editor.InsertCode();
//
// Deleting what isn't there is never an error, adding to what isn't there is.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "automation/member_table.h"
#include "platform/excel.h"
#include "platform/excel_vba.h"

namespace rangewerks {

class clsExcelVB final : public automation::AutomationClass {
 public:
  const automation::MemberTable& Members() const override;

  /// The workbook to work on. Nothing else may edit its macros during a sequence of calls.
  const excel::Workbook& get_WorkBook() const { return workBook_; }
  void set_WorkBook(const excel::Workbook& value) { workBook_ = value; }
  /// Name of the code module.
  const std::string& get_Module() const { return module_; }
  void let_Module(const std::string& value) { module_ = value; }
  /// Name of the procedure.
  const std::string& get_Procedure() const { return procedure_; }
  void let_Procedure(const std::string& value) { procedure_ = value; }

  /// Forgets the lines collected so far.
  void ClearCode() { code_.clear(); }
  /// Collects one line, which isn't looked into.
  void AddCodeLine(const std::string& sCode) { code_.push_back(sCode); }
  /// Deletes Procedure from Module. Never fails.
  void DeleteProcedure();
  /// Looks for Procedure and forgets the collected lines; nothing is loaded. Never fails.
  void LoadProcedure();
  /// Deletes lines of Module from the first one on that holds `sText`, whatever its case. Fails as
  /// the host does, but not when the text isn't there.
  void DeleteThisText(const std::string& sText, std::int32_t lNumberLines = 1);
  /// Puts an empty line and the collected lines, without the blank ones, at the end of Module. They
  /// stay collected. Fails as the host does.
  void InsertCode();
  /// Adds a standard module and names it Module. Fails as the host does; a module whose name was
  /// refused stays, under a name of the host's.
  void AddModule();
  /// Removes Module. Never fails.
  void DeleteModule();

 private:
  excel::VBComponents Components() const;
  excel::CodeModule CodeModule() const;
  std::string Code() const;

  excel::Workbook workBook_;
  std::string module_;
  std::string procedure_;
  std::vector<std::string> code_;
};

}  // namespace rangewerks
