#include "hosts/libreoffice/workbook.h"

#include "hosts/libreoffice/application.h"
#include "hosts/libreoffice/document_properties.h"
#include "hosts/libreoffice/documents.h"
#include "hosts/libreoffice/vb_project.h"
#include "hosts/libreoffice/worksheet.h"

namespace rangewerks::hosts::libreoffice {

std::shared_ptr<Workbook> Workbook::Of(const SessionPointer& session, const BookPointer& book) {
  return FaceOf<Workbook>(book->face, [&] { return std::make_shared<Workbook>(session, book); });
}

const MemberTable& Workbook::Members() const {
  static const MemberTable table = MemberTable::Extending<Workbook>(objects::Workbook::Members())
                                       .Method(14, "Close", &Workbook::Close,
                                               {Optional("SaveChanges")}, "Closes without saving.");
  return table;
}

std::shared_ptr<objects::Collection> Workbook::Names() const {
  return std::make_shared<libreoffice::Names>(Office(), book_, nullptr);
}
std::shared_ptr<objects::Collection> Workbook::Sheets() const {
  return std::make_shared<libreoffice::Sheets>(Office(), book_);
}

Variant Workbook::GetActiveSheet() const {
  return Worksheet::Of(Office(), book_, book_->ActiveSheet());
}
Variant Workbook::GetApplication() const { return Application::Of(Office()); }
Variant Workbook::GetVBProject() const { return std::make_shared<VBProject>(Office(), book_); }

std::shared_ptr<objects::Collection> Workbook::CustomDocumentProperties() const {
  return std::make_shared<DocumentProperties>(Office(), book_);
}

void Workbook::SaveCopyAs(const std::string& path) { SaveDocumentCopy(*book_, path); }

void Workbook::Close(const Variant& saveChanges) {
  if (!saveChanges.IsMissing() && ToBoolean(saveChanges, automation::Locale::Current())) {
    SaveDocument(*book_);
  }
  Office()->Close(book_);
}

}  // namespace rangewerks::hosts::libreoffice
