// Code modules and document properties in workbook files.
#include <gmock/gmock.h>

#include <fstream>
#include <iterator>

#include "hosts/late_calls.h"
#include "hosts/temporary_folder.h"
#include "hosts/workbook/host.h"
#include "support/error_of.h"

namespace rangewerks::tests {
namespace {

using automation::Date;
using hosts::workbook::Host;
using testing::ElementsAre;

/// As it stands in a file that was written.
constexpr const char* kWhole = R"json({
 "sheets": [
  {
   "name": "2024 Q1"
  },
  {
   "name": "Notes"
  }
 ],
 "active_sheet": "2024 Q1",
 "modules": [
  {
   "name": "ThisWorkbook",
   "code": [
    "",
    "Private Sub Workbook_Open()",
    "  MsgBox \"Hi\"",
    "End Sub"
   ]
  },
  {
   "name": "Sheet2",
   "sheet": "2024 Q1"
  },
  {
   "name": "Sheet1",
   "sheet": "Notes",
   "code": [
    "' here"
   ]
  },
  {
   "name": "Later"
  },
  {
   "name": "Earlier",
   "kind": "class",
   "code": [
    ""
   ]
  }
 ],
 "properties": [
  {
   "name": "OstrelBrowseModule",
   "value": true
  },
  {
   "name": "Count",
   "value": 7
  },
  {
   "name": "Rate",
   "value": 7.0
  },
  {
   "name": "Day",
   "date": "2024-01-31"
  },
  {
   "name": "Moment",
   "date": "2024-01-31T13:45:07"
  },
  {
   "name": "Client",
   "value": "007"
  }
 ]
}
)json";

class WorkbookMacroFiles : public testing::Test {
 protected:
  WorkbookMacroFiles() { host_.TrustVBProject(true); }

  std::string Written(const char* name, const std::string& text) const {
    std::ofstream(folder_.File(name), std::ios::binary) << text;
    return folder_.File(name);
  }
  std::string Copy(const Object& book) const {
    host_.SaveCopyAs(book, folder_.File("copy.json"));
    std::ifstream file(folder_.File("copy.json"), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  static std::vector<std::string> ModulesOf(const Object& book) {
    std::vector<std::string> names;
    for (const Variant& module :
         Elements(GetObject(GetObject(book, "VBProject"), "VBComponents"))) {
      names.push_back(GetText(module.AsObject(), "Name"));
    }
    return names;
  }
  /// What is said about a file with these modules or properties, behind its path.
  std::string Fault(const std::string& entries) {
    const std::string path =
        Written("wrong.json", R"({"sheets": [{"name": "A"}, {"name": "B"}], )" + entries + "}");
    const std::string words = ErrorOf([&] { host_.Open(path); }).Description();
    EXPECT_TRUE(words.starts_with(path + ": ")) << words;
    return words.substr(std::min(words.size(), path.size() + 2));
  }

  TemporaryFolder folder_;
  Host host_;
};

TEST_F(WorkbookMacroFiles, AFileWithBothIsWrittenAsItWasRead) {
  const Object book = host_.Open(Written("whole.json", kWhole));
  EXPECT_THAT(ModulesOf(book), ElementsAre("ThisWorkbook", "Sheet2", "Sheet1", "Later", "Earlier"));
  const Object properties = GetObject(book, "CustomDocumentProperties");
  const auto value = [&](const char* name) {
    return Get(GetObject(properties, "Item", {name}), "Value");
  };
  EXPECT_EQ(value("OstrelBrowseModule"), Variant(true));
  EXPECT_EQ(value("Count"), Variant(std::int32_t{7}));
  EXPECT_EQ(value("Rate"), Variant(7.0));
  EXPECT_EQ(value("Day"), Variant(Date{45322}));
  EXPECT_EQ(value("Client"), Variant("007"));
  EXPECT_EQ(Copy(book), kWhole);
}

TEST_F(WorkbookMacroFiles, WhatANewWorkbookHasIsNotWritten) {
  const std::string text = Copy(host_.AddWorkbook("New", {"Sheet1"}));
  EXPECT_EQ(text.find("modules"), std::string::npos);
  EXPECT_EQ(text.find("properties"), std::string::npos);
}

TEST_F(WorkbookMacroFiles, ModulesKeepTheirNamesWhenSheetsHaveGone) {
  const Object book = host_.AddWorkbook("New", {"A", "B", "C"});
  Call(GetObject(book, "Sheets", {"A"}), "Delete");
  const auto before = ModulesOf(book);
  Copy(book);
  EXPECT_EQ(ModulesOf(host_.Open(folder_.File("copy.json"))), before);
}

TEST_F(WorkbookMacroFiles, ASheetOfWhichNothingIsSaidGetsANameThatIsFree) {
  const Object book = host_.Open(Written(
      "free.json",
      R"({"sheets": [{"name": "A"}, {"name": "B"}], "modules": [{"name": "Sheet2", "sheet": "A"}]})"));
  EXPECT_THAT(ModulesOf(book), ElementsAre("ThisWorkbook", "Sheet2", "Sheet1"));
}

TEST_F(WorkbookMacroFiles, AFaultOfAModuleNamesItsPlace) {
  EXPECT_EQ(Fault(R"("modules": [{"name": "a b"}])"),
            "/modules/0/name: a module can't be called \"a b\": it holds the character \" \"");
  EXPECT_EQ(Fault(R"("modules": [{"name": "M"}, {"name": "m"}])"),
            "/modules/1/name: there is a module \"m\" already");
  EXPECT_EQ(Fault(R"("modules": [{"name": "M", "kind": "form"}])"),
            "/modules/0/kind: found \"form\", expected \"standard\" or \"class\"");
  EXPECT_EQ(Fault(R"("modules": [{"name": "ThisWorkbook", "kind": "class"}])"),
            "/modules/0/kind: a module of the workbook or of a sheet has no kind");
  EXPECT_EQ(Fault(R"("modules": [{"name": "M", "sheet": "C"}])"),
            "/modules/0/sheet: found \"C\", expected the name of one of the file's sheets");
  EXPECT_EQ(Fault(R"("modules": [{"name": "M", "sheet": "A"}, {"name": "N", "sheet": "a"}])"),
            "/modules/1/sheet: the sheet's module is given twice");
  EXPECT_EQ(Fault(R"("modules": [{"name": "M", "code": ["a\nb"]}])"),
            "/modules/0/code/0: found \"a\\nb\", expected a line of code without line ends");
  EXPECT_EQ(Fault(R"("modules": [{"name": "M", "text": []}])"),
            "/modules/0: found the key \"text\", expected only \"name\", \"kind\", \"sheet\", "
            "\"code\"");
}

TEST_F(WorkbookMacroFiles, AFaultOfAPropertyNamesItsPlace) {
  EXPECT_EQ(Fault(R"("properties": [{"name": "x"}])"),
            "/properties/0: expected exactly one of the keys \"value\", \"date\"");
  EXPECT_EQ(Fault(R"("properties": [{"name": "x", "value": null}])"),
            "/properties/0/value: found null, expected a number, a text, true or false");
  EXPECT_EQ(Fault(R"("properties": [{"name": "x", "value": 2147483648}])"),
            "/properties/0/value: found 2147483648, expected a whole number of 32 bits, or a "
            "number with a decimal point");
  EXPECT_EQ(Fault(R"("properties": [{"name": "x", "date": "soon"}])"),
            "/properties/0/date: found \"soon\", expected a date such as \"2024-01-31\" or "
            "\"2024-01-31T13:45:00\"");
  EXPECT_EQ(Fault(R"("properties": [{"name": "x", "value": 1}, {"name": "X", "value": 2}])"),
            "/properties/1: There is a document property \"X\" already");
}

}  // namespace
}  // namespace rangewerks::tests
