#include "automation/text.h"
#include "hosts/libreoffice/application.h"
#include "hosts/libreoffice/documents.h"
#include "hosts/libreoffice/workbook.h"

namespace rangewerks::hosts::libreoffice {

const MemberTable& Workbooks::Members() const {
  static const MemberTable table =
      MemberTable::Extending<Workbooks>(objects::Workbooks::Members())
          .Method(5, "Open", &Workbooks::Open, {"Filename", {"ReadOnly", false}},
                  "Opens a workbook file; in front.");
  return table;
}

std::shared_ptr<automation::Dispatch> Workbooks::Find(const std::string& name) const {
  for (const BookPointer& book : Office()->Books()) {
    if (automation::EqualText(book->Name(), name)) return Workbook::Of(Office(), book);
  }
  return nullptr;
}

objects::Slot Workbooks::At(std::int32_t position) const {
  return objects::SlotIn(Office()->Books(), position,
                         [this](const BookPointer& book) { return Workbook::Of(Office(), book); });
}

Variant Workbooks::GetCount() const { return static_cast<std::int32_t>(Office()->Books().size()); }
Variant Workbooks::GetApplication() const { return Application::Of(Office()); }
Variant Workbooks::Add() { return Workbook::Of(Office(), NewDocument(*Office(), {"Sheet1"})); }

Variant Workbooks::Open(const std::string& filename, bool readOnly) {
  return Workbook::Of(Office(), OpenDocument(*Office(), filename, {readOnly, readOnly}));
}

std::unique_ptr<Enumerator> Workbooks::Walk() {
  return objects::WalkThrough(
      Office()->Books(), [this](const BookPointer& book) { return Workbook::Of(Office(), book); });
}

}  // namespace rangewerks::hosts::libreoffice
