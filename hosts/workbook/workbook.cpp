#include "hosts/workbook/workbook.h"

#include "hosts/workbook/application.h"
#include "hosts/workbook/document_properties.h"
#include "hosts/workbook/names.h"
#include "hosts/workbook/sheets.h"
#include "hosts/workbook/vb_project.h"
#include "hosts/workbook/workbook_writing.h"
#include "hosts/workbook/worksheet.h"

namespace rangewerks::hosts::workbook {

std::shared_ptr<Workbook> Workbook::Of(const SessionPointer& session, Book* book) {
  return FaceOf<Workbook>(book->face, [&] { return std::make_shared<Workbook>(session, book); });
}

std::shared_ptr<objects::Collection> Workbook::Names() const {
  return std::make_shared<workbook::Names>(Shared(), book_);
}
std::shared_ptr<objects::Collection> Workbook::Sheets() const {
  return std::make_shared<workbook::Sheets>(Shared(), book_);
}

Variant Workbook::GetActiveSheet() const { return Worksheet::Of(Shared(), book_->active); }
Variant Workbook::GetApplication() const { return Application::Of(Shared()); }

Variant Workbook::GetVBProject() const {
  if (!Shared()->trustsMacroProject) {
    Refuse("Programmatic access to Visual Basic Project is not trusted");
  }
  return std::make_shared<VBProject>(Shared(), book_);
}

std::shared_ptr<objects::Collection> Workbook::CustomDocumentProperties() const {
  return std::make_shared<DocumentProperties>(Shared(), book_);
}

void Workbook::SaveCopyAs(const std::string& path) { WriteWorkbookFile(*Shared(), *book_, path); }

}  // namespace rangewerks::hosts::workbook
