// The macro project of a workbook in memory, beyond what every host does.
#include <gmock/gmock.h>

#include "hosts/late_calls.h"
#include "hosts/workbook/host.h"
#include "support/error_of.h"

namespace rangewerks::tests {
namespace {

using automation::Argument;
using automation::Error;
using hosts::workbook::Host;
using testing::ElementsAre;

constexpr std::int32_t kRefused = 1004;
constexpr std::int32_t kSubscriptOutOfRange = 9;
constexpr std::int32_t kProcedureNotDefined = 35;

class WorkbookMacros : public testing::Test {
 protected:
  WorkbookMacros() {
    host_.TrustVBProject(true);
    modules_ = GetObject(GetObject(book_, "VBProject"), "VBComponents");
  }

  Object Module(const Variant& index) { return GetObject(modules_, "Item", {index}); }
  Object Add(std::int32_t type) { return Call(modules_, "Add", {type}).AsObject(); }
  std::vector<std::string> NamesOfAll() {
    std::vector<std::string> names;
    for (const Variant& module : Elements(modules_)) {
      names.push_back(GetText(module.AsObject(), "Name"));
    }
    return names;
  }
  Object Sheets() { return GetObject(book_, "Sheets"); }

  Host host_;
  Object book_ = host_.AddWorkbook("Ledger", {"2024 Q1", "Notes"});
  Object modules_;
};

TEST_F(WorkbookMacros, ModulesStandInOrderThoseOfWorkbookAndSheetsFirst) {
  Add(1);
  Add(2);
  Add(1);
  EXPECT_THAT(NamesOfAll(),
              ElementsAre("ThisWorkbook", "Sheet1", "Sheet2", "Module1", "Class1", "Module2"));
  EXPECT_EQ(GetText(Module(4), "Name"), "Module1");
  EXPECT_EQ(GetLong(Module(5), "Type"), 2);
  EXPECT_EQ(GetText(GetObject(GetObject(book_, "VBProject"), "VBComponents", {"class1"}), "Name"),
            "Class1");
}

TEST_F(WorkbookMacros, ModulesOfSheetsComeAndGoWithThem) {
  const Object second = Module("Sheet2");
  Call(Sheets(), "Add");
  EXPECT_EQ(NamesOfAll().size(), 4U);
  Call(GetObject(Sheets(), "Item", {"Notes"}), "Delete");
  EXPECT_THAT(NamesOfAll(), ElementsAre("ThisWorkbook", "Sheet3", "Sheet1"));
  EXPECT_EQ(ErrorOf([&] { Get(second, "Name"); }).Description(),
            "Module \"Sheet2\" has been removed");
  Call(Sheets(), "Add");
  EXPECT_THAT(NamesOfAll(), testing::Contains("Sheet2")) << "the first free name";
}

TEST_F(WorkbookMacros, RenamingASheetLeavesTheNameOfItsModule) {
  Let(GetObject(Sheets(), "Item", {1}), "Name", "Other");
  EXPECT_THAT(NamesOfAll(), ElementsAre("ThisWorkbook", "Sheet1", "Sheet2"));
}

TEST_F(WorkbookMacros, ModulesOfWorkbookAndSheetsKeepTheirNamesAndStay) {
  for (const char* name : {"ThisWorkbook", "Sheet1"}) {
    const Object module = Module(name);
    EXPECT_EQ(ErrorOf([&] { Let(module, "Name", "Mine"); }).Description(),
              "Module \"" + std::string(name) +
                  "\" keeps its name: it belongs to the workbook itself or to one of its sheets");
    EXPECT_EQ(ErrorOf([&] { Call(modules_, "Remove", {module}); }).Description(),
              "Module \"" + std::string(name) +
                  "\" can't be removed: it belongs to the workbook itself or to one of its sheets");
  }
}

TEST_F(WorkbookMacros, WhatNoModuleCanBeIsRefused) {
  EXPECT_EQ(ErrorOf([&] { Add(3); }).Description(),
            "A module that is added is of the type 1 (standard) or 2 (class), not 3");
  EXPECT_EQ(ErrorOf([&] { Let(Add(1), "Name", "a b"); }).Description(),
            "A module can't be called \"a b\": it holds the character \" \"");
  EXPECT_EQ(ErrorOf([&] { Let(Module("Module1"), "Name", "sheet1"); }).Description(),
            "Module \"Module1\" can't become \"sheet1\": there is a module of that name");
  Let(Module("Module1"), "Name", "MODULE1");
  EXPECT_EQ(GetText(Module(4), "Name"), "MODULE1") << "its own name in other letters";
}

TEST_F(WorkbookMacros, AModuleThatIsNotThereIsError9) {
  const Error error = ErrorOf([&] { Module("Nothing"); });
  EXPECT_EQ(error.Number(), kSubscriptOutOfRange);
  EXPECT_EQ(error.Source(), "Workbook");
  EXPECT_EQ(error.Description(), "Workbook \"Ledger\" has no module \"Nothing\"");
  EXPECT_EQ(ErrorOf([&] { Module(4); }).Description(),
            "Workbook \"Ledger\" has no module number 4 among its 3");
}

TEST_F(WorkbookMacros, OnlyAModuleOfTheWorkbookIsRemovedFromIt) {
  const Object other = host_.AddWorkbook("Other", {"Sheet1"});
  const Object foreign = GetObject(GetObject(other, "VBProject"), "VBComponents", {"Sheet1"});
  EXPECT_EQ(ErrorNumberOf([&] { Call(modules_, "Remove", {foreign}); }), kRefused);
  EXPECT_EQ(ErrorNumberOf([&] { Call(modules_, "Remove", {"Sheet1"}); }), kRefused);
  const Object module = Add(1);
  Call(modules_, "Remove", {module});
  EXPECT_EQ(ErrorNumberOf([&] { Call(modules_, "Remove", {module}); }), kRefused);
  EXPECT_EQ(ErrorNumberOf([&] { Get(module, "CodeModule"); }), kRefused);
}

TEST_F(WorkbookMacros, CodeOfARemovedModuleIsRefused) {
  const Object module = Add(1);
  const Object code = GetObject(module, "CodeModule");
  Call(modules_, "Remove", {module});
  EXPECT_EQ(ErrorOf([&] { Get(code, "CountOfLines"); }).Description(),
            "Module \"Module1\" has been removed");
}

TEST_F(WorkbookMacros, FailuresOfCodeNameTheModule) {
  const Object code = GetObject(Module("ThisWorkbook"), "CodeModule");
  Call(code, "InsertLines", {1, "Sub A()\rEnd Sub"});
  const Error error = ErrorOf([&] { Call(code, "DeleteLines", {2, 2}); });
  EXPECT_EQ(error.Number(), kSubscriptOutOfRange);
  EXPECT_EQ(error.Source(), "Workbook");
  EXPECT_EQ(error.Description(),
            "Module \"ThisWorkbook\", which has 2 lines: Subscript out of range");
  const Error missing = ErrorOf([&] { Get(code, "ProcStartLine", {"B", 0}); });
  EXPECT_EQ(missing.Number(), kProcedureNotDefined);
  EXPECT_EQ(missing.Description(),
            "Module \"ThisWorkbook\", which has 2 lines: Sub or Function not defined");
}

TEST_F(WorkbookMacros, CodeIsReadReplacedAndDeleted) {
  const Object code = GetObject(Module("ThisWorkbook"), "CodeModule");
  Call(code, "InsertLines", {1, "' about A\rSub A()\rEnd Sub"});
  EXPECT_EQ(GetText(code, "Lines", {2, 2}), "Sub A()\r\nEnd Sub");
  EXPECT_EQ(Get(code, "ProcBodyLine", {"A", 0}), Variant(std::int32_t{2}));
  Call(code, "ReplaceLine", {2, "Sub B()"});
  EXPECT_EQ(Get(code, "ProcStartLine", {"B", 0}), Variant(std::int32_t{1}));
  Call(code, "DeleteLines", {1});
  EXPECT_EQ(GetLong(code, "CountOfLines"), 2) << "one line when no number is given";
}

TEST_F(WorkbookMacros, FindWritesAllFourEndsOfAHit) {
  const Object code = GetObject(Module("ThisWorkbook"), "CodeModule");
  Call(code, "InsertLines", {1, "' one\r  Two()"});
  Variant startLine = 1;
  Variant startColumn = 1;
  Variant endLine = -1;
  Variant endColumn = -1;
  EXPECT_EQ(Call(code, "Find",
                 {"two", Argument::Reference(startLine), Argument::Reference(startColumn),
                  Argument::Reference(endLine), Argument::Reference(endColumn), true}),
            Variant(true));
  EXPECT_EQ(startLine, Variant(std::int32_t{2}));
  EXPECT_EQ(startColumn, Variant(std::int32_t{3}));
  EXPECT_EQ(endLine, Variant(std::int32_t{2}));
  EXPECT_EQ(endColumn, Variant(std::int32_t{6}));
}

TEST_F(WorkbookMacros, EveryCallIsLoggedAndCanFail) {
  host_.Calls().LogCalls(true);
  const Object code = GetObject(Module("ThisWorkbook"), "CodeModule");
  Call(code, "InsertLines", {1, "\rA"});
  EXPECT_THAT(host_.Calls().Lines(),
              ElementsAre("VBComponents.Item get \"ThisWorkbook\"", "VBComponent.CodeModule get",
                          "CodeModule.InsertLines call 1, \"\rA\""));
  host_.Calls().FailMember("CodeModule.InsertLines", kRefused, "The project is locked");
  EXPECT_EQ(ErrorOf([&] {
              Call(code, "InsertLines", {1, "B"});
            }).Description(),
            "The project is locked");
  EXPECT_EQ(GetLong(code, "CountOfLines"), 2);
}

}  // namespace
}  // namespace rangewerks::tests
