#include "hosts/objects/workbook.h"

#include <filesystem>

namespace rangewerks::hosts::objects {

const MemberTable& Workbook::Members() const {
  static const MemberTable table =
      MemberTable::For<Workbook>("Workbook")
          .Get(1, "Name", &Workbook::GetName, "The name.")
          .Get(2, "Path", &Workbook::GetPath, "The folder of the file; empty without one.")
          .Get(3, "FullName", &Workbook::GetFullName, "The file with its folder, or the name.")
          .Get(4, "Names", &Workbook::GetNames, {Optional("Index")}, "All names, or one of them.")
          .Get(5, "Sheets", &Workbook::GetSheets, {Optional("Index")}, "All sheets, or one.")
          .Get(6, "Worksheets", &Workbook::GetSheets, {Optional("Index")}, "All sheets, or one.")
          .Get(7, "ActiveSheet", &Workbook::GetActiveSheet, "The sheet in front.")
          .Get(8, "Application", &Workbook::GetApplication, "The application.")
          .Get(9, "Parent", &Workbook::GetApplication, "The application.")
          .Method(10, "Activate", &Workbook::Activate, {}, "Brings the workbook to the front.")
          .Get(11, "VBProject", &Workbook::GetVBProject,
               "The macro project; refused until access to it is trusted.")
          .Get(12, "CustomDocumentProperties", &Workbook::GetCustomDocumentProperties,
               {Optional("Index")}, "All custom document properties, or one of them.")
          .Method(13, "SaveCopyAs", &Workbook::SaveCopyAs, {"Filename"},
                  "Writes a copy to a file; the workbook stays as it is.");
  return table;
}

Variant Workbook::GetName() const { return BookName(); }
Variant Workbook::GetPath() const { return std::filesystem::path(File()).parent_path().string(); }

Variant Workbook::GetFullName() const {
  std::string file = File();
  return file.empty() ? BookName() : file;
}

Variant Workbook::GetNames(const Variant& index) const { return AllOrOne(Names(), index); }
Variant Workbook::GetSheets(const Variant& index) const { return AllOrOne(Sheets(), index); }
Variant Workbook::GetCustomDocumentProperties(const Variant& index) const {
  return AllOrOne(CustomDocumentProperties(), index);
}

// --- the collections -----------------------------------------------------------------------------

const MemberTable& Workbooks::Members() const {
  static const MemberTable table =
      MemberTable::For<Workbooks>("Workbooks")
          .Get(0, "Item", &Workbooks::GetItem, {"Index"}, "The workbook of that name or position.")
          .Get(1, "Count", &Workbooks::GetCount, "Number of open workbooks.")
          .Get(2, "Application", &Workbooks::GetApplication, "The application.")
          .Get(3, "Parent", &Workbooks::GetApplication, "The application.")
          .Method(4, "Add", &Workbooks::Add, {}, "A new workbook with one sheet, in front.");
  return table;
}

const MemberTable& Sheets::Members() const {
  static const MemberTable table =
      MemberTable::For<Sheets>("Sheets")
          .Get(0, "Item", &Sheets::GetItem, {"Index"}, "The sheet of that name or position.")
          .Get(1, "Count", &Sheets::GetCount, "Number of sheets.")
          .Get(2, "Parent", &Sheets::GetParent, "The workbook.")
          .Get(3, "Application", &Sheets::GetApplication, "The application.");
  return table;
}

}  // namespace rangewerks::hosts::objects
