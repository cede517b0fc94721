// A workbook in memory whose macros, menus and properties a test can look at.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "hosts/late_calls.h"
#include "hosts/workbook/host.h"
#include "platform/excel.h"
#include "support/error_of.h"

namespace rangewerks::tests {

using automation::Error;
using automation::Member;
using Lines = std::vector<std::string>;

class BrowseFixture : public ::testing::Test {
 protected:
  BrowseFixture() : book(host.AddWorkbook("Ledger", {"Sheet1"})) { host.TrustVBProject(true); }

  excel::Workbook Book() const { return excel::Workbook(book); }

  // --- macros ----------------------------------------------------------------------------------

  Object Modules() const { return GetObject(GetObject(book, "VBProject"), "VBComponents"); }
  Object CodeOf(const std::string& module) const {
    return GetObject(GetObject(Modules(), "Item", {module}), "CodeModule");
  }
  /// The code of a module, its lines parted by CR.
  std::string TextOf(const std::string& module) const {
    const Object code = CodeOf(module);
    const std::int32_t count = GetLong(code, "CountOfLines");
    if (count == 0) return {};
    std::string text = GetText(code, "Lines", {1, count});
    std::erase(text, '\n');
    return text;
  }
  void PutCode(const std::string& module, const std::string& text) const {
    Call(CodeOf(module), "InsertLines", {1, text});
  }
  bool HasModule(const std::string& module) const {
    return !Fails([&] { CodeOf(module); });
  }
  void AddModule(const std::string& name) const {
    Let(Call(Modules(), "Add", {1}).AsObject(), "Name", name);
  }

  // --- properties ------------------------------------------------------------------------------

  Object Properties() const { return GetObject(book, "CustomDocumentProperties"); }
  void AddProperty(const std::string& name, bool value) const {
    Call(Properties(), "Add", {name, false, 2, value});
  }
  Variant PropertyOf(const std::string& name) const {
    return Get(GetObject(Properties(), "Item", {name}), "Value");
  }

  // --- menus -----------------------------------------------------------------------------------

  Object Bars() const { return GetObject(host.Application(), "CommandBars"); }
  /// Bars 2 and 5 are named "Cell".
  Object BarAt(std::int32_t position) const { return GetObject(Bars(), "Item", {position}); }
  Lines CaptionsOf(std::int32_t bar) const {
    Lines captions;
    for (const Variant& control : Elements(GetObject(BarAt(bar), "Controls"))) {
      captions.push_back(GetText(control.AsObject(), "Caption"));
    }
    return captions;
  }
  Object EntryAt(std::int32_t bar, std::int32_t position) const {
    return GetObject(BarAt(bar), "Controls", {position});
  }

  /// The calls that a step makes on the host.
  Lines CallsOf(const std::function<void()>& step) {
    host.Calls().LogCalls(true);
    host.Calls().Reset();
    step();
    host.Calls().LogCalls(false);
    return host.Calls().Lines();
  }

  hosts::workbook::Host host;
  Object book;
};

}  // namespace rangewerks::tests
