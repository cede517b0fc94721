#include "hosts/objects/worksheet.h"

#include "automation/text.h"
#include "hosts/common/name_rules.h"

namespace rangewerks::hosts::objects {
namespace {

constexpr Area kWholeSheet{1, 1, kSheetRows, kSheetColumns};

}  // namespace

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
  if (WritesToCells(call)) {
    LetValueOf(Carry(AsRead(call)), call.positional.back().Value());
    return {};
  }
  return HostObject::Carry(call);
}

Variant Worksheet::GetName() const { return SheetName(); }
Variant Worksheet::GetNames(const Variant& index) const { return AllOrOne(Names(), index); }

// --- cells ---------------------------------------------------------------------------------------

void Worksheet::RefuseRange(const std::string& nameOrAddress, const std::string& reason) const {
  Refuse("Range \"" + nameOrAddress + "\" isn't valid on sheet \"" + SheetName() + "\": " + reason);
}

Area Worksheet::AreaOf(const std::string& nameOrAddress) const {
  const std::string wanted(WithoutTrailingBlank(nameOrAddress));
  // What reads as an address can't be a name, so that no name has to be looked for.
  const bool hasSheet = wanted.find('!') != std::string::npos;
  if (!hasSheet) {
    if (const auto area = ParseAddress(wanted)) return *area;
  }
  if (const auto name = FindName(wanted, hasSheet)) {
    if (name->cells) return *name->cells;
    RefuseRange(nameOrAddress, "the name refers to " + name->other);
  }
  const SheetAndRest parts = SplitSheet(wanted);
  const auto area = ParseAddress(parts.rest);
  if (!area) RefuseRange(nameOrAddress, "there is no such name, nor is it an address");
  if (!automation::EqualText(parts.sheet, SheetName())) {
    RefuseRange(nameOrAddress, "it is an address on another sheet");
  }
  return *area;
}

Area Worksheet::AreaOf(const Variant& cells) const {
  if (!cells.IsObject()) return AreaOf(TextArgument(cells));
  const auto range = cells.AsObject().As<Range>();
  if (!range || range->Sheet() != Sheet()) {
    Refuse("A range of sheet \"" + SheetName() + "\" can't be made from a " + cells.TypeName() +
           (range ? " of another sheet" : ""));
  }
  return range->Cells();
}

Variant Worksheet::GetRange(const Variant& first, const Variant& second) const {
  Area area = AreaOf(first);
  if (!second.IsMissing()) area = BoundingArea(area, AreaOf(second));
  return Make(area);
}

Variant Worksheet::GetCells(const Variant& row, const Variant& column) const {
  return Make(kWholeSheet)->GetCells(row, column);
}

}  // namespace rangewerks::hosts::objects
