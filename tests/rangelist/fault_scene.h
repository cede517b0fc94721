// The sheet on which operations are made to fail: a declared range of every kind, each with cells
// of its own.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "automation/conversions.h"
#include "hosts/workbook/host.h"
#include "platform/excel.h"
#include "rangelist/clsInterfaceRangeList.h"
#include "rangelist/recordset.h"
#include "support/fixed_system.h"

namespace rangewerks::tests {

/// Everything that an operation can change, by "<range>: <what>", as text. What belongs to no range
/// stands under "list".
using State = std::map<std::string, std::string>;

struct FaultScene {
  using Object = automation::Object;
  using Variant = automation::Variant;

  struct Placed {
    std::string name;
    std::string column;
    int rows;
    eRangeHeadDetailInd indicator;
    eRangeDataType type;
    Variant content;  ///< of every cell but the last of several, which is blank
  };

  /// The ranges in list order; their cells begin in the second row. No name ends with another.
  static const std::vector<Placed>& Ranges() {
    static const std::vector<Placed> ranges = {
        {"company", "A", 1, hdiHeader, rdtString, "Acme"},
        {"day", "B", 3, hdiDetail, rdtDate, automation::DateOf(2024, 1, 31)},
        {"amount", "C", 3, hdiDetail, rdtDouble, 12.5},
        {"qty", "D", 3, hdiDetail, rdtInteger, 7.0},
        {"paid", "E", 3, hdiDetail, rdtYesNo, "Y"},
        {"code", "F", 3, hdiDetail, rdtString, "4000"},
        {"either", "G", 1, hdiHeaderDetail, rdtString, "all"},
        {"total", "H", 3, hdiDetail, rdtString, "=C2"},
        {"windows_users", "I", 3, hdiNone, rdtString, "anna"},
        {"sage_users", "J", 3, hdiNone, rdtString, "Sage"},
    };
    return ranges;
  }

  explicit FaultScene(bool sheetScheme) : workbook(host.AddWorkbook("Book", {"Sheet1"})) {
    list->set_ActSheet(
        excel::Worksheet(workbook.Get(automation::Member("Sheets"), {"Sheet1"}).AsObject()));
    list->let_SheetRangeNames(sheetScheme);
    for (const Placed& range : Ranges()) {
      const std::string last = std::to_string(range.rows + 1);
      Define((sheetScheme ? "Sheet1__" : "") + range.name,
             "=Sheet1!$" + range.column + "$2:$" + range.column + "$" + last);
      Cells(range.column + "2:" + range.column + last).let_Value(range.content);
      if (range.rows > 1) Cells(range.column + last).let_Value({});
      list->Add(range.name, range.indicator, range.type);
    }
    list->Item("either")->let_CanBeHeader(true);
    list->Item("code")->let_IsBrowseable(true);
    list->Item("code")->let_Group("codes");
    row->SetField("field", "text");
    target = Cells("F3");
  }

  excel::Range Cells(const std::string& address) const {
    return list->get_ActSheet().get_Range(address);
  }
  void Define(const std::string& name, const std::string& refersTo) const {
    using automation::Member;
    workbook.Get(Member("Names"))
        .AsObject()
        .Call(Member("Add"), {}, {{Member("Name"), name}, {Member("RefersTo"), refersTo}});
  }

  State Snapshot() const {
    State state;
    for (const Placed& range : Ranges()) {
      for (int cell = 2; cell <= range.rows + 1; ++cell) {
        const excel::Range at = Cells(range.column + std::to_string(cell));
        state[range.name + ": cell " + std::to_string(cell)] =
            TextOf(at.get_Value()) + " " + at.get_Formula();
      }
      const auto record = list->Item(range.name);
      state[range.name + ": RangeExists"] = TextOf(record->get_RangeExists());
      state[range.name + ": BecomeHeader"] = TextOf(record->get_BecomeHeader());
      state[range.name + ": IsValueFound"] = TextOf(record->get_IsValueFound());
      state[range.name + ": Value"] = TextOf(record->get_Value());
    }
    const auto names = workbook.Get(automation::Member("Names")).AsObject().Enumerate();
    for (Variant name; names->Next(name);) {
      const std::string text = excel::Name(name.AsObject()).get_Name();
      state[RangeOf(text) + ": name " + text] =
          TextOf(name.AsObject().Get(automation::Member("RefersTo")));
    }
    state["list: GroupFound"] = TextOf(list->get_GroupFound());
    state["list: UsingSheetRangeNames"] = TextOf(list->get_UsingSheetRangeNames());
    return state;
  }

  static std::string TextOf(const Variant& value) {
    return value.TypeName() + " " + ToString(value, automation::Locale());
  }
  /// The declared range with whose name a workbook name ends.
  static std::string RangeOf(const std::string& workbookName) {
    for (const Placed& range : Ranges()) {
      if (workbookName.ends_with(range.name)) return range.name;
    }
    return "list";
  }

  hosts::workbook::Host host;
  Object workbook;
  std::shared_ptr<clsInterfaceRangeList> list =
      std::make_shared<clsInterfaceRangeList>(std::make_shared<FixedSystem>("", "anna"));
  std::shared_ptr<Recordset> row = std::make_shared<Recordset>();  ///< one field, "field"
  excel::Range target;                                             ///< the second line of "code"
};

}  // namespace rangewerks::tests
