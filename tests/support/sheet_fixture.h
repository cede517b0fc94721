// A range list on a sheet of the in-memory workbook, with the host's calls in view.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "automation/dispatch.h"
#include "hosts/workbook/host.h"
#include "platform/excel.h"
#include "rangelist/clsInterfaceRangeList.h"
#include "support/error_of.h"

namespace rangewerks::tests {

class SheetFixture : public ::testing::Test {
 protected:
  using Error = automation::Error;
  using Member = automation::Member;
  using Object = automation::Object;
  using Variant = automation::Variant;

  SheetFixture() { NewWorkbook({"Sheet1", "Sheet2"}); }

  /// Starts over with a workbook of these sheets; the first is the list's sheet.
  void NewWorkbook(const std::vector<std::string>& sheets) {
    workbook = host.AddWorkbook("Book" + std::to_string(++workbooks_), sheets);
    list->set_ActSheet(Sheet(sheets.front()));
  }

  excel::Worksheet Sheet(const std::string& name) const {
    return excel::Worksheet(workbook.Get(Member("Sheets"), {name}).AsObject());
  }
  /// A block of the list's sheet, by its address.
  excel::Range Cells(const std::string& address) const {
    return list->get_ActSheet().get_Range(address);
  }
  void Put(const std::string& address, const Variant& value) const {
    Cells(address).let_Value(value);
  }
  void Define(const std::string& name, const std::string& refersTo) const {
    workbook.Get(Member("Names"))
        .AsObject()
        .Call(Member("Add"), {}, {{Member("Name"), name}, {Member("RefersTo"), refersTo}});
  }
  bool HasName(const std::string& name) const {
    try {
      workbook.Get(Member("Names"), {name});
      return true;
    } catch (const Error&) {
      return false;
    }
  }
  std::string RefersTo(const std::string& name) const {
    return *workbook.Get(Member("Names"), {name})
                .AsObject()
                .Get(Member("RefersTo"))
                .TryGet<std::string>();
  }
  /// Declares a detail range and returns its record.
  clsInterfaceRangeList::Record Declare(const std::string& name,
                                        eRangeHeadDetailInd indicator = hdiDetail,
                                        eRangeDataType type = rdtString) const {
    return list->Add(name, indicator, type);
  }
  /// The host calls that an action makes, one line each.
  template <class Action>
  std::vector<std::string> CallsOf(const Action& action) {
    host.Calls().LogCalls(true);
    host.Calls().Reset();
    action();
    auto lines = host.Calls().Lines();
    host.Calls().LogCalls(false);
    return lines;
  }

  hosts::workbook::Host host;
  Object workbook;
  std::shared_ptr<clsInterfaceRangeList> list = std::make_shared<clsInterfaceRangeList>();

 private:
  int workbooks_ = 0;
};

}  // namespace rangewerks::tests
