#include "hosts/objects/name.h"

#include "hosts/common/name_rules.h"

namespace rangewerks::hosts::objects {

const MemberTable& Name::Members() const {
  static const MemberTable table =
      MemberTable::For<Name>("Name")
          .Get(0, "RefersTo", &Name::GetRefersTo, "The reference or formula, as text with \"=\".")
          .Let(0, "RefersTo", &Name::LetRefersTo, "Gives the name another content.")
          .Get(1, "Name", &Name::GetName, "The full text.")
          .Let(1, "Name", &Name::LetName, "Renames in place.")
          .Get(2, "RefersToRange", &Name::GetRefersToRange, "The cells.")
          .Method(3, "Delete", &Name::Delete, {}, "Removes the name.")
          .Get(4, "Parent", &Name::GetParent, "The workbook, or the sheet that the name is of.")
          .Get(5, "Application", &Name::GetApplication, "The application.");
  return table;
}

Variant Name::GetName() { return FullText(); }

void Name::LetName(const std::string& given) {
  const SheetAndRest parts = SplitSheet(WithoutTrailingBlank(given));
  if (parts.hasSheet && !IsOfSheet(parts.sheet)) {
    Refuse("The name \"" + FullText() + "\" can't become \"" + given +
           "\": a name can't move to another sheet");
  }
  Rename(parts.rest, given);
}

Variant Name::GetRefersTo() { return RefersTo(); }

Variant Name::GetRefersToRange() {
  const auto cells = FindCells();
  if (!cells) {
    Refuse("The name \"" + FullText() + "\" refers to no cells but to " + RefersTo());
  }
  return cells;
}

const MemberTable& Names::Members() const {
  static const MemberTable table =
      MemberTable::For<Names>("Names")
          .Get(0, "Item", &Names::GetItem, {"Index"}, "The name of that text or at that position.")
          .Get(1, "Count", &Names::GetCount, "Number of names.")
          .Method(2, "Add", &Names::Add, {"Name", "RefersTo"}, "Defines a name or moves it.")
          .Get(3, "Parent", &Names::GetParent, "The workbook or the sheet.")
          .Get(4, "Application", &Names::GetApplication, "The application.");
  return table;
}

}  // namespace rangewerks::hosts::objects
