#include "hosts/libreoffice/name.h"

#include "hosts/libreoffice/application.h"
#include "hosts/libreoffice/names.h"
#include "hosts/libreoffice/range.h"
#include "hosts/libreoffice/workbook.h"
#include "hosts/libreoffice/worksheet.h"

namespace rangewerks::hosts::libreoffice {

void Name::RequireAlive() const {
  RequireOpen(*book_);
  if (name_.Scope()) RequireThere(*name_.Scope());
}

bool Name::IsOfSheet(const std::string& sheet) {
  return name_.Scope() && book_->FindSheet(sheet) == name_.Scope();
}

void Name::Rename(const std::string& text, const std::string& /*given*/) { name_.Rename(text); }

void Name::LetRefersTo(const Variant& content) {
  name_.PutContent(ContentArgument(*book_, content));
}

std::shared_ptr<objects::Range> Name::FindCells() {
  const auto cells = name_.Cells();
  if (!cells) return nullptr;
  return std::make_shared<Range>(Office(), book_, cells->sheet, cells->area);
}

Variant Name::GetParent() {
  if (name_.Scope()) return Worksheet::Of(Office(), book_, name_.Scope());
  return Workbook::Of(Office(), book_);
}

Variant Name::GetApplication() { return Application::Of(Office()); }

}  // namespace rangewerks::hosts::libreoffice
