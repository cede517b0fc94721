#include "hosts/workbook/worksheet.h"

#include <algorithm>

#include "hosts/common/name_rules.h"
#include "hosts/workbook/application.h"
#include "hosts/workbook/failure.h"
#include "hosts/workbook/names.h"
#include "hosts/workbook/range.h"
#include "hosts/workbook/workbook.h"

namespace rangewerks::hosts::workbook {
namespace {

constexpr Area kWholeSheet{1, 1, kSheetRows, kSheetColumns};

}  // namespace

Worksheet::Worksheet(SessionPointer session, SheetPointer sheet)
    : ModelObject(std::move(session)), sheet_(std::move(sheet)) {}

std::shared_ptr<Worksheet> Worksheet::Of(const SessionPointer& session, const SheetPointer& sheet) {
  return FaceOf<Worksheet>(sheet->face,
                           [&] { return std::make_shared<Worksheet>(session, sheet); });
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

void Worksheet::RequireAlive() const {
  if (sheet_->deleted) Refuse("The sheet \"" + sheet_->name + "\" has been deleted");
}

Variant Worksheet::Carry(const Invocation& call) {
  if (objects::WritesToCells(call)) {
    objects::LetValueOf(Carry(objects::AsRead(call)), call.positional.back().Value());
    return {};
  }
  return ModelObject::Carry(call);
}

Variant Worksheet::GetName() const { return sheet_->name; }

void Worksheet::LetName(const Variant& name) {
  sheet_->book->RenameSheet(sheet_, TextArgument(name));
}

Variant Worksheet::GetIndex() const {
  const auto& sheets = sheet_->book->sheets;
  const auto place = std::find(sheets.begin(), sheets.end(), sheet_);
  return static_cast<std::int32_t>(place - sheets.begin()) + 1;
}

// --- cells ---------------------------------------------------------------------------------------

Area Worksheet::AreaOf(const std::string& nameOrAddress) const {
  const std::string_view wanted = WithoutTrailingBlank(nameOrAddress);
  const DefinedNames& names = sheet_->book->names;
  NamePointer name = names.FindOf(*sheet_, wanted);
  if (!name) name = names.Find(wanted);
  if (name) {
    const Reference* const cells = name->Cells();
    if (cells != nullptr && cells->sheet == sheet_) return cells->area;
    Refuse("Range \"" + nameOrAddress + "\" isn't valid on sheet \"" + sheet_->name +
           "\": the name refers to " + ContentText(name->content));
  }
  const SheetAndRest parts = SplitSheet(wanted);
  const bool thisSheet = !parts.hasSheet || automation::EqualText(parts.sheet, sheet_->name);
  const auto area = ParseAddress(parts.rest);
  if (area && thisSheet) return *area;
  Refuse(
      "Range \"" + nameOrAddress + "\" isn't valid on sheet \"" + sheet_->name + "\": " +
      (area ? "it is an address on another sheet" : "there is no such name, nor is it an address"));
}

Area Worksheet::AreaOf(const Variant& cells) const {
  if (!cells.IsObject()) return AreaOf(TextArgument(cells));
  const auto range = cells.AsObject().As<Range>();
  if (!range || range->OnSheet() != sheet_) {
    Refuse("A range of sheet \"" + sheet_->name + "\" can't be made from a " + cells.TypeName() +
           (range ? " of another sheet" : ""));
  }
  return range->Cells();
}

Variant Worksheet::GetRange(const Variant& first, const Variant& second) const {
  Area area = AreaOf(first);
  if (!second.IsMissing()) area = BoundingArea(area, AreaOf(second));
  return std::make_shared<Range>(Shared(), sheet_, area);
}

Variant Worksheet::GetCells(const Variant& row, const Variant& column) const {
  const Range all(Shared(), sheet_, kWholeSheet);
  return all.GetCells(row, column);
}

// --- names, parents, order -----------------------------------------------------------------------

Variant Worksheet::GetNames(const Variant& index) const {
  const auto names = std::make_shared<Names>(Shared(), sheet_->book, sheet_);
  return index.IsMissing() ? Variant(names) : names->GetItem(index);
}

Variant Worksheet::GetParent() const { return Workbook::Of(Shared(), sheet_->book); }
Variant Worksheet::GetApplication() const { return Application::Of(Shared()); }

void Worksheet::Activate() {
  sheet_->book->active = sheet_;
  Shared()->active = sheet_->book;
}

void Worksheet::Delete() { sheet_->book->RemoveSheet(sheet_); }

}  // namespace rangewerks::hosts::workbook
