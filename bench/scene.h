// A list of declared ranges and an in-memory workbook that has some of them.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "automation/dispatch.h"
#include "hosts/workbook/host.h"
#include "platform/excel.h"
#include "rangelist/clsInterfaceRangeList.h"

namespace rangewerks::bench {

struct Scene {
  hosts::workbook::Host host;
  automation::Object workbook;
  std::shared_ptr<clsInterfaceRangeList> list = std::make_shared<clsInterfaceRangeList>();

  /// `names` detail columns of ten rows on the sheet "Data", of which the list declares the first
  /// `declared`; further declared ranges aren't on the sheet.
  Scene(int names, int declared, bool sheetScheme) : workbook(host.AddWorkbook("Bench", {"Data"})) {
    list->let_SheetRangeNames(sheetScheme);
    const automation::Object sheet =
        workbook.Get(automation::Member("Sheets"), {"Data"}).AsObject();
    list->set_ActSheet(excel::Worksheet(sheet));
    for (int i = 0; i < names; ++i) {
      const excel::Range column(
          sheet.Get(automation::Member("Cells"), {1, i % 16000 + 1}).AsObject());
      const excel::Range area(column.Get(automation::Member("Resize"), {10}).AsObject());
      area.let_Name((sheetScheme ? "Data__" : "") + RangeName(i));
    }
    for (int i = 0; i < declared; ++i) list->Add(RangeName(i), hdiDetail, rdtString);
  }

  static std::string RangeName(int number) { return "range_" + std::to_string(number); }
  void Put(std::int32_t row, const automation::Variant& value) const {
    list->get_ActSheet().get_Range("A" + std::to_string(row)).let_Value(value);
  }
};

}  // namespace rangewerks::bench
