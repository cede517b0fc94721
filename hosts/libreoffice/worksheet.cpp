#include "hosts/libreoffice/worksheet.h"

#include "hosts/common/name_rules.h"
#include "hosts/libreoffice/application.h"
#include "hosts/libreoffice/names.h"
#include "hosts/libreoffice/range.h"
#include "hosts/libreoffice/workbook.h"

namespace rangewerks::hosts::libreoffice {

std::shared_ptr<Worksheet> Worksheet::Of(const SessionPointer& session, const BookPointer& book,
                                         const SheetPointer& sheet) {
  return FaceOf<Worksheet>(sheet->face,
                           [&] { return std::make_shared<Worksheet>(session, book, sheet); });
}

std::shared_ptr<objects::Range> Worksheet::Make(const Area& area) const {
  return std::make_shared<Range>(Office(), book_, sheet_, area);
}

std::optional<Worksheet::Reference> Worksheet::FindName(const std::string& name,
                                                        bool hasSheet) const {
  auto found = hasSheet ? std::nullopt : libreoffice::FindName(*book_, sheet_, name);
  if (!found) found = libreoffice::FindName(*book_, nullptr, name);
  if (!found) return std::nullopt;
  const auto cells = found->Cells();
  if (cells && cells->sheet == sheet_) return Reference{cells->area, {}};
  return Reference{std::nullopt, found->RefersTo()};
}

void Worksheet::LetName(const std::string& name) {
  const std::string refused = "Sheet \"" + sheet_->Name() + "\" can't be called \"" + name + "\": ";
  if (const std::string fault = FaultOfSheetName(name); !fault.empty()) Refuse(refused + fault);
  const SheetPointer other = book_->FindSheet(name);
  if (other && other != sheet_) Refuse(refused + "there is a sheet of that name");
  sheet_->Rename(name);
  // The office refuses in silence.
  if (sheet_->Name() != name) Refuse(refused + "LibreOffice doesn't take that name");
}

std::shared_ptr<objects::Collection> Worksheet::Names() const {
  return std::make_shared<libreoffice::Names>(Office(), book_, sheet_);
}

Variant Worksheet::GetParent() const { return Workbook::Of(Office(), book_); }
Variant Worksheet::GetApplication() const { return Application::Of(Office()); }

void Worksheet::Activate() {
  book_->Activate(sheet_);
  Office()->Activate(book_);
}

}  // namespace rangewerks::hosts::libreoffice
