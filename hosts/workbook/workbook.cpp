#include "hosts/workbook/workbook.h"

#include <filesystem>

#include "hosts/workbook/application.h"
#include "hosts/workbook/document_properties.h"
#include "hosts/workbook/failure.h"
#include "hosts/workbook/names.h"
#include "hosts/workbook/sheets.h"
#include "hosts/workbook/vb_project.h"
#include "hosts/workbook/workbook_writing.h"
#include "hosts/workbook/worksheet.h"

namespace rangewerks::hosts::workbook {
Workbook::Workbook(SessionPointer session, Book* book)
    : ModelObject(std::move(session)), book_(book) {}

std::shared_ptr<Workbook> Workbook::Of(const SessionPointer& session, Book* book) {
  return FaceOf<Workbook>(book->face, [&] { return std::make_shared<Workbook>(session, book); });
}

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

Variant Workbook::GetName() const { return book_->name; }
Variant Workbook::GetPath() const {
  return std::filesystem::path(book_->path).parent_path().string();
}
Variant Workbook::GetFullName() const { return book_->path.empty() ? book_->name : book_->path; }

Variant Workbook::GetNames(const Variant& index) const {
  const auto names = std::make_shared<Names>(Shared(), book_);
  return index.IsMissing() ? Variant(names) : names->GetItem(index);
}

Variant Workbook::GetSheets(const Variant& index) const {
  const auto sheets = std::make_shared<Sheets>(Shared(), book_);
  return index.IsMissing() ? Variant(sheets) : sheets->GetItem(index);
}

Variant Workbook::GetActiveSheet() const { return Worksheet::Of(Shared(), book_->active); }
Variant Workbook::GetApplication() const { return Application::Of(Shared()); }

void Workbook::SaveCopyAs(const Variant& path) {
  WriteWorkbookFile(*Shared(), *book_, TextArgument(path));
}

Variant Workbook::GetVBProject() const {
  if (!Shared()->trustsMacroProject) {
    Refuse("Programmatic access to Visual Basic Project is not trusted");
  }
  return std::make_shared<VBProject>(Shared(), book_);
}

Variant Workbook::GetCustomDocumentProperties(const Variant& index) const {
  const auto properties = std::make_shared<DocumentProperties>(Shared(), book_);
  return index.IsMissing() ? Variant(properties) : properties->GetItem(index);
}

void Workbook::Activate() { Shared()->active = book_; }

}  // namespace rangewerks::hosts::workbook
