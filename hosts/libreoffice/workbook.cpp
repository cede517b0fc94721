#include "hosts/libreoffice/workbook.h"

#include <filesystem>

#include "hosts/libreoffice/application.h"
#include "hosts/libreoffice/document_properties.h"
#include "hosts/libreoffice/documents.h"
#include "hosts/libreoffice/vb_project.h"
#include "hosts/libreoffice/worksheet.h"

namespace rangewerks::hosts::libreoffice {

Workbook::Workbook(SessionPointer session, BookPointer book)
    : OfficeObject(std::move(session)), book_(std::move(book)) {}

std::shared_ptr<Workbook> Workbook::Of(const SessionPointer& session, const BookPointer& book) {
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
          .Method(11, "SaveCopyAs", &Workbook::SaveCopyAs, {"Filename"},
                  "Writes a copy; the open workbook stays as it is.")
          .Method(12, "Close", &Workbook::Close, {Optional("SaveChanges")},
                  "Closes without saving.")
          .Get(13, "CustomDocumentProperties", &Workbook::GetCustomDocumentProperties,
               {Optional("Index")}, "The document's own properties, or one of them.")
          .Get(14, "VBProject", &Workbook::GetVBProject, "The macro modules.");
  return table;
}

Variant Workbook::GetName() const { return book_->Name(); }
Variant Workbook::GetPath() const {
  return std::filesystem::path(book_->Path()).parent_path().string();
}
Variant Workbook::GetFullName() const {
  return book_->Path().empty() ? book_->Name() : book_->Path();
}
Variant Workbook::GetNames(const Variant& index) const {
  return Element<Names>(index, Office(), book_, nullptr);
}
Variant Workbook::GetSheets(const Variant& index) const {
  return Element<Sheets>(index, Office(), book_);
}
Variant Workbook::GetActiveSheet() const {
  return Worksheet::Of(Office(), book_, book_->ActiveSheet());
}
Variant Workbook::GetApplication() const { return Application::Of(Office()); }
Variant Workbook::GetCustomDocumentProperties(const Variant& index) const {
  return Element<DocumentProperties>(index, Office(), book_);
}
Variant Workbook::GetVBProject() const { return std::make_shared<VBProject>(Office(), book_); }
void Workbook::Activate() { Office()->Activate(book_); }
void Workbook::SaveCopyAs(const Variant& path) { SaveDocumentCopy(*book_, TextArgument(path)); }

void Workbook::Close(const Variant& saveChanges) {
  if (!saveChanges.IsMissing() && ToBoolean(saveChanges, automation::Locale::Current())) {
    SaveDocument(*book_);
  }
  Office()->Close(book_);
}

}  // namespace rangewerks::hosts::libreoffice
