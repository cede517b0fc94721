#include "hosts/workbook/worksheet.h"

#include <algorithm>

#include "hosts/workbook/application.h"
#include "hosts/workbook/names.h"
#include "hosts/workbook/range.h"
#include "hosts/workbook/workbook.h"

namespace rangewerks::hosts::workbook {

std::shared_ptr<Worksheet> Worksheet::Of(const SessionPointer& session, const SheetPointer& sheet) {
  return FaceOf<Worksheet>(sheet->face,
                           [&] { return std::make_shared<Worksheet>(session, sheet); });
}

void Worksheet::RequireAlive() const {
  if (sheet_->deleted) Refuse("The sheet \"" + sheet_->name + "\" has been deleted");
}

std::shared_ptr<objects::Range> Worksheet::Make(const Area& area) const {
  return std::make_shared<Range>(Shared(), sheet_, area);
}

std::optional<Worksheet::Reference> Worksheet::FindName(const std::string& name,
                                                        bool hasSheet) const {
  const DefinedNames& names = sheet_->book->names;
  NamePointer found = hasSheet ? nullptr : names.FindOf(*sheet_, name);
  if (!found) found = names.Find(name);
  if (!found) return std::nullopt;
  const auto* const cells = found->Cells();
  if (cells != nullptr && cells->sheet == sheet_) return Reference{cells->area, {}};
  return Reference{std::nullopt, ContentText(found->content)};
}

Variant Worksheet::GetIndex() const {
  const auto& sheets = sheet_->book->sheets;
  const auto place = std::find(sheets.begin(), sheets.end(), sheet_);
  return static_cast<std::int32_t>(place - sheets.begin()) + 1;
}

std::shared_ptr<objects::Collection> Worksheet::Names() const {
  return std::make_shared<workbook::Names>(Shared(), sheet_->book, sheet_);
}

Variant Worksheet::GetParent() const { return Workbook::Of(Shared(), sheet_->book); }
Variant Worksheet::GetApplication() const { return Application::Of(Shared()); }

void Worksheet::Activate() {
  sheet_->book->active = sheet_;
  Shared()->active = sheet_->book;
}

}  // namespace rangewerks::hosts::workbook
