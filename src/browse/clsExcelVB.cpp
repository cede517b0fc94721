#include "browse/clsExcelVB.h"

#include "automation/text.h"
#include "errors/attempt.h"

namespace rangewerks {

excel::VBComponents clsExcelVB::Components() const {
  return workBook_.get_VBProject().get_VBComponents();
}

excel::CodeModule clsExcelVB::CodeModule() const {
  return Components().get_Item(module_).get_CodeModule();
}

/// The line end goes ahead of each line, so that an empty line parts the code from what is above.
std::string clsExcelVB::Code() const {
  std::string text;
  for (const std::string& line : code_) {
    if (!automation::Trim(line).empty()) text += '\r' + line;
  }
  return text;
}

void clsExcelVB::DeleteProcedure() {
  excel::CodeModule code;
  std::int32_t start = 0;
  std::int32_t count = 0;
  Attempt([&] { code = CodeModule(); });
  Attempt([&] { start = code.get_ProcStartLine(procedure_, excel::vbext_pk_Proc); });
  Attempt([&] { count = code.get_ProcCountLines(procedure_, excel::vbext_pk_Proc); });
  Attempt([&] { code.DeleteLines(start, count); });
}

void clsExcelVB::LoadProcedure() {
  excel::CodeModule code;
  Attempt([&] { code = CodeModule(); });
  Attempt([&] { code.get_ProcStartLine(procedure_, excel::vbext_pk_Proc); });
  Attempt([&] { code.get_ProcCountLines(procedure_, excel::vbext_pk_Proc); });
  ClearCode();
}

void clsExcelVB::DeleteThisText(const std::string& sText, std::int32_t lNumberLines) {
  const excel::CodeModule code = CodeModule();
  std::int32_t line = 1;
  if (code.Find(sText, line)) code.DeleteLines(line, lNumberLines);
}

void clsExcelVB::InsertCode() {
  const excel::CodeModule code = CodeModule();
  const std::int32_t lines = code.get_CountOfLines();
  code.InsertLines(lines + 1, Code());
}

void clsExcelVB::AddModule() { Components().Add(excel::vbext_ct_StdModule).let_Name(module_); }

void clsExcelVB::DeleteModule() {
  Attempt([&] {
    const excel::VBComponents components = Components();
    components.Remove(components.get_Item(module_));
  });
}

const automation::MemberTable& clsExcelVB::Members() const {
  using C = clsExcelVB;
  static const automation::MemberTable table =
      automation::MemberTable::For<C>("clsExcelVB")
          .Get(1, "WorkBook", &C::get_WorkBook, "The workbook to work on.")
          .Set(1, "WorkBook", &C::set_WorkBook, "The workbook to work on.")
          .Get(2, "Module", &C::get_Module, "Name of the code module.")
          .Let(2, "Module", &C::let_Module, "Name of the code module.")
          .Get(3, "Procedure", &C::get_Procedure, "Name of the procedure.")
          .Let(3, "Procedure", &C::let_Procedure, "Name of the procedure.")
          .Method(4, "ClearCode", &C::ClearCode, {}, "Forgets the lines collected so far.")
          .Method(5, "AddCodeLine", &C::AddCodeLine, {{"sCode"}}, "Collects one line.")
          .Method(6, "DeleteProcedure", &C::DeleteProcedure, {},
                  "Deletes the procedure from the module, if it is there.")
          .Method(7, "LoadProcedure", &C::LoadProcedure, {},
                  "Looks for the procedure and forgets the collected lines.")
          .Method(8, "DeleteThisText", &C::DeleteThisText,
                  {{"sText"}, {"lNumberLines", std::int32_t{1}}},
                  "Deletes lines of the module from the first one on that holds a text.")
          .Method(9, "InsertCode", &C::InsertCode, {},
                  "Puts the collected lines at the end of the module.")
          .Method(10, "AddModule", &C::AddModule, {}, "Adds a standard module of that name.")
          .Method(11, "DeleteModule", &C::DeleteModule, {}, "Removes the module, if it is there.");
  return table;
}

}  // namespace rangewerks
