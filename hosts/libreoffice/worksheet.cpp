#include "hosts/libreoffice/worksheet.h"

#include "automation/text.h"
#include "hosts/common/name_rules.h"
#include "hosts/libreoffice/application.h"
#include "hosts/libreoffice/failure.h"
#include "hosts/libreoffice/names.h"
#include "hosts/libreoffice/range.h"
#include "hosts/libreoffice/workbook.h"

namespace rangewerks::hosts::libreoffice {
namespace {

constexpr Area kWholeSheet{1, 1, kSheetRows, kSheetColumns};

}  // namespace

Worksheet::Worksheet(SessionPointer session, BookPointer book, SheetPointer sheet)
    : OfficeObject(std::move(session)), book_(std::move(book)), sheet_(std::move(sheet)) {}

std::shared_ptr<Worksheet> Worksheet::Of(const SessionPointer& session, const BookPointer& book,
                                         const SheetPointer& sheet) {
  return FaceOf<Worksheet>(sheet->face,
                           [&] { return std::make_shared<Worksheet>(session, book, sheet); });
}

const MemberTable& Worksheet::Members() const {
  static const MemberTable table =
      MemberTable::For<Worksheet>("Worksheet")
          .Get(1, "Name", &Worksheet::GetName, "The name as the user sees it.")
          .Let(1, "Name", &Worksheet::LetName, "Renames the sheet.")
          .Get(2, "Range", &Worksheet::GetRange, {"Cell1", Optional("Cell2")},
               "The cells of a name or address, or from one corner to the other.")
          .Get(3, "Cells", &Worksheet::GetCells, {Optional("RowIndex"), Optional("ColumnIndex")},
               "All cells, or one of them.")
          .Get(4, "Names", &Worksheet::GetNames, {Optional("Index")}, "The names of this sheet.")
          .Get(5, "Index", &Worksheet::GetIndex, "Position among the sheets.")
          .Get(6, "Parent", &Worksheet::GetParent, "The workbook.")
          .Get(7, "Application", &Worksheet::GetApplication, "The application.")
          .Method(8, "Activate", &Worksheet::Activate, {}, "Brings the sheet to the front.")
          .Method(9, "Select", &Worksheet::Activate, {}, "Brings the sheet to the front.")
          .Method(10, "Delete", &Worksheet::Delete, {}, "Removes the sheet.");
  return table;
}

Variant Worksheet::Carry(const Invocation& call) {
  if (objects::WritesToCells(call)) {
    objects::LetValueOf(Carry(objects::AsRead(call)), call.positional.back().Value());
    return {};
  }
  return OfficeObject::Carry(call);
}

Variant Worksheet::GetName() const { return sheet_->Name(); }

void Worksheet::LetName(const Variant& name) {
  const std::string given = TextArgument(name);
  const std::string before = sheet_->Name();
  const std::string refused = "Sheet \"" + before + "\" can't be called \"" + given + "\": ";
  if (const std::string fault = FaultOfSheetName(given); !fault.empty()) {
    Fail(refused + fault);
  }
  const SheetPointer other = book_->FindSheet(given);
  if (other && other != sheet_) Fail(refused + "there is a sheet of that name");
  sheet_->Rename(given);
  // The office refuses in silence.
  if (sheet_->Name() != given) Fail(refused + "LibreOffice doesn't take that name");
}

Variant Worksheet::GetIndex() const { return sheet_->Index() + 1; }

// --- cells ---------------------------------------------------------------------------------------

Area Worksheet::AreaOf(const std::string& nameOrAddress) const {
  const std::string wanted(WithoutTrailingBlank(nameOrAddress));
  // What reads as an address can't be a name in this office, so that no name has to be looked for.
  const bool mayHaveSheet = wanted.find('!') != std::string::npos;
  if (!mayHaveSheet) {
    if (const auto area = ParseAddress(wanted)) return *area;
  }
  const auto refuse = [&](const std::string& reason) {
    Fail("Range \"" + nameOrAddress + "\" isn't valid on sheet \"" + sheet_->Name() +
         "\": " + reason);
  };
  auto name = mayHaveSheet ? std::nullopt : FindName(*book_, sheet_, wanted);
  if (!name) name = FindName(*book_, nullptr, wanted);
  if (name) {
    const auto cells = name->Cells();
    if (cells && cells->sheet == sheet_) return cells->area;
    refuse("the name refers to " + name->RefersTo());
  }
  const auto parts = SplitSheet(wanted);
  const auto area = ParseAddress(parts.rest);
  if (!area) refuse("there is no such name, nor is it an address");
  if (!automation::EqualText(parts.sheet, sheet_->Name())) {
    refuse("it is an address on another sheet");
  }
  return *area;
}

Area Worksheet::AreaOf(const Variant& cells) const {
  if (!cells.IsObject()) return AreaOf(TextArgument(cells));
  const auto range = cells.AsObject().As<Range>();
  if (!range || range->OnSheet() != sheet_) {
    Fail("A range of sheet \"" + sheet_->Name() + "\" can't be made from a " + cells.TypeName() +
         (range ? " of another sheet" : ""));
  }
  return range->Cells();
}

Variant Worksheet::GetRange(const Variant& first, const Variant& second) const {
  Area area = AreaOf(first);
  if (!second.IsMissing()) area = BoundingArea(area, AreaOf(second));
  return std::make_shared<Range>(Office(), book_, sheet_, area);
}

Variant Worksheet::GetCells(const Variant& row, const Variant& column) const {
  const Range all(Office(), book_, sheet_, kWholeSheet);
  return all.GetCells(row, column);
}

// --- names, parents, order -----------------------------------------------------------------------

Variant Worksheet::GetNames(const Variant& index) const {
  return Element<Names>(index, Office(), book_, sheet_);
}

Variant Worksheet::GetParent() const { return Workbook::Of(Office(), book_); }
Variant Worksheet::GetApplication() const { return Application::Of(Office()); }

void Worksheet::Activate() {
  book_->Activate(sheet_);
  Office()->Activate(book_);
}

void Worksheet::Delete() { book_->Remove(sheet_); }

}  // namespace rangewerks::hosts::libreoffice
