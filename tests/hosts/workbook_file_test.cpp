// Workbooks read from plain files, and what is said about wrong ones.
#include <gmock/gmock.h>

#include "hosts/late_calls.h"
#include "hosts/temporary_folder.h"
#include "hosts/workbook/host.h"

namespace rangewerks::tests {
namespace {

using automation::Date;
using automation::Error;
using automation::ErrorValue;
using hosts::workbook::Host;
using testing::ElementsAre;

constexpr const char* kWholeFile = R"json({
  "international": {"date_order": "day_first", "decimal_separator": ",",
                    "thousands_separator": ".", "list_separator": ";"},
  "sheets": [
    {"name": "2024 Q1",
     "cells": {"B2": 12.5, "B3": "007", "B4": {"date": "2024-01-31"}, "B5": {"error": "#DIV/0!"},
               "B6": {"formula": "=B2*2", "shown": 25}, "B7": true, "B8": null,
               "B9": {"date": "2024-01-31T18:00:00"}, "$C$2": {"value": "1", "format": "@"},
               "C3": {"formula": "=NOW()",
                     "shown" : {
  "date" : "2024-02-01"
}
}
}
, "rows" : { "at" : "A10", "values" : [ [ "a", 1 ], [ null, {"value" : 2} ], ["c"] ] }
},
    {"name": "Notes", "rows": [{"at": "A1", "values": [[1]]}, {"at": "C5", "values": [[2]]}]}
  ],
  "names": {"Sheet1__Code": "='2024 Q1'!$A$10:$A$40", "PI": "=3.14", "Notes!Local": "=Notes!$C$5"},
  "active_sheet": "Notes"
})json";

class WorkbookFile : public testing::Test {
 protected:
  Object Open(const std::string& text) { return host_.Open(folder_.Write("ledger.json", text)); }
  /// The words of the error that opening a file of that text raises, without the path in front.
  std::string Fault(const std::string& text) {
    try {
      Open(text);
    } catch (const Error& error) {
      EXPECT_EQ(error.Number(), 1004);
      EXPECT_EQ(error.Source(), "Workbook");
      EXPECT_THAT(error.Description(), testing::StartsWith(path_ + ": "));
      return error.Description().substr(path_.size() + 2);
    }
    return "no error";
  }
  /// The same for a file with one sheet that has these cells.
  std::string CellFault(const std::string& cells) {
    return Fault(R"({"sheets": [{"name": "Sheet1", "cells": )" + cells + "}]}");
  }

  TemporaryFolder folder_;
  std::string path_ = folder_.File("ledger.json");
  Host host_;
};

TEST_F(WorkbookFile, GivesCellsOfEveryKind) {
  const Object sheet = GetObject(Open(kWholeFile), "Sheets", {"2024 Q1"});
  const auto value = [&](const char* address) {
    return Get(GetObject(sheet, "Range", {address}), "Value");
  };
  EXPECT_EQ(value("B2"), Variant(12.5));
  EXPECT_EQ(value("B3"), Variant("007")) << "a text isn't read as typed";
  EXPECT_EQ(value("B4"), Variant(Date{45322}));
  EXPECT_EQ(value("B5"), Variant(ErrorValue::FromNumber(2007)));
  EXPECT_EQ(value("B6"), Variant(25.0));
  EXPECT_EQ(value("B7"), Variant(true));
  EXPECT_EQ(value("B8"), Variant());
  EXPECT_EQ(value("B9"), Variant(Date{45322.75}));
  EXPECT_EQ(value("C2"), Variant("1"));
  EXPECT_EQ(value("C3"), Variant(Date{45323}));
  EXPECT_EQ(GetText(GetObject(sheet, "Range", {"B6"}), "Formula"), "=B2*2");
}

TEST_F(WorkbookFile, GivesBlocksOfCells) {
  const Object book = Open(kWholeFile);
  const auto value = [&](const char* sheet, const char* address) {
    return Get(GetObject(GetObject(book, "Sheets", {sheet}), "Range", {address}), "Value");
  };
  EXPECT_EQ(value("2024 Q1", "A10"), Variant("a"));
  EXPECT_EQ(value("2024 Q1", "B10"), Variant(1.0));
  EXPECT_EQ(value("2024 Q1", "A11"), Variant());
  EXPECT_EQ(value("2024 Q1", "B11"), Variant(2.0));
  EXPECT_EQ(value("2024 Q1", "A12"), Variant("c"));
  EXPECT_EQ(value("Notes", "A1"), Variant(1.0));
  EXPECT_EQ(value("Notes", "C5"), Variant(2.0));
}

TEST_F(WorkbookFile, GivesNamesAndTheActiveSheet) {
  const Object book = Open(kWholeFile);
  std::vector<std::string> names;
  for (const Variant& name : Elements(GetObject(book, "Names"))) {
    names.push_back(GetText(name.AsObject(), "Name") + GetText(name.AsObject(), "RefersTo"));
  }
  EXPECT_THAT(names, ElementsAre("Notes!Local=Notes!$C$5", "PI=3.14",
                                 "Sheet1__Code='2024 Q1'!$A$10:$A$40"));
  EXPECT_EQ(GetText(GetObject(host_.Application(), "ActiveSheet"), "Name"), "Notes");
  EXPECT_EQ(GetText(book, "Name"), "ledger.json");
  EXPECT_EQ(GetText(book, "FullName"), path_);
}

TEST_F(WorkbookFile, GivesTheLocale) {
  Open(kWholeFile);
  EXPECT_EQ(Get(host_.Application(), "International", {32}), Variant(1));
  EXPECT_EQ(host_.CurrentLocale().dateOrder, automation::DateOrder::DayFirst);
  EXPECT_EQ(host_.CurrentLocale().decimalSeparator, ",");
  EXPECT_EQ(host_.CurrentLocale().shortDate, "dd/mm/yyyy");
  EXPECT_EQ(GetText(host_.Application(), "International", {5}), ";");
}

TEST_F(WorkbookFile, IsOpenedByTheObjectModelToo) {
  folder_.Write("ledger.json", R"({"sheets": [{"name": "Only"}]})");
  const Object books = GetObject(host_.Application(), "Workbooks");
  const Object book = Call(books, "Open", {path_}).AsObject();
  EXPECT_EQ(GetText(GetObject(book, "ActiveSheet"), "Name"), "Only");
}

TEST_F(WorkbookFile, ThatIsNotThereIsAMissingFile) {
  EXPECT_EQ(ErrorNumberOf([&] { host_.Open(path_); }), 53);
  EXPECT_EQ(ErrorNumberOf([&] { host_.Open(folder_.File(".")); }), 53);
}

TEST_F(WorkbookFile, ThatIsWrongLeavesTheHostAsItWas) {
  EXPECT_NE(Fault(R"({"international": {"date_order": "day_first"}, "sheets": []})"), "no error");
  EXPECT_EQ(GetLong(GetObject(host_.Application(), "Workbooks"), "Count"), 0);
  EXPECT_EQ(Get(host_.Application(), "International", {32}), Variant(0));
}

TEST_F(WorkbookFile, ThatIsNoJsonIsToldByLineAndColumn) {
  EXPECT_THAT(Fault("{\n  \"sheets\": [,]\n}"),
              testing::StartsWith("line 2, column 14: this isn't JSON: "));
  EXPECT_THAT(Fault(""), testing::StartsWith("line 1, column 1: this isn't JSON: "));
}

TEST_F(WorkbookFile, WithANumberBeyondAllNumbersIsRefused) {
  EXPECT_THAT(CellFault(R"({"B2": 1e999})"), testing::StartsWith("a number is too large: "));
}

TEST_F(WorkbookFile, WithAKeyTwiceIsRefused) {
  EXPECT_EQ(CellFault(R"({"B2": 1, "B2": 2})"), "the key \"B2\" stands twice in one object");
}

struct WrongFile {
  const char* text;
  const char* words;
};

TEST_F(WorkbookFile, ThatIsWrongIsToldByPlaceFoundAndExpected) {
  const WrongFile cases[] = {
      {"[]", "/: found an array of 0 entries, expected an object"},
      {"{}", "/: the key \"sheets\" is missing"},
      {R"({"sheets": []})", "/sheets: found an array of 0 entries, expected at least one sheet"},
      {R"({"sheets": [{"name": "a"}], "sheet": 1})",
       "/: found the key \"sheet\", expected only \"international\", \"sheets\", \"names\", "
       "\"active_sheet\", \"modules\", \"properties\""},
      {R"({"sheets": [{"name": 5}]})", "/sheets/0/name: found 5, expected a text"},
      {R"({"sheets": [{"name": "a/b"}]})",
       "/sheets/0/name: A sheet can't be called \"a/b\": it holds the character \"/\""},
      {R"({"sheets": [{"name": "a"}, {"name": "A"}]})",
       "/sheets/1/name: Workbook \"ledger.json\" already has a sheet \"a\""},
      {R"({"sheets": [{"name": "a"}], "names": {"x": 5}})", "/names/x: found 5, expected a text"},
      {R"({"sheets": [{"name": "a"}], "names": {"x": "a!$A$1"}})",
       "/names/x: found \"a!$A$1\", expected a text that begins with \"=\", such as "
       "\"=Sheet1!$A$1:$A$3\""},
      {R"({"sheets": [{"name": "a"}], "names": {"x": "=b!$A$1"}})",
       "/names/x: Workbook \"ledger.json\" has no sheet \"b\" for =b!$A$1"},
      {R"({"sheets": [{"name": "a"}], "names": {"a/b": "=1"}})",
       "/names/a~1b: \"a/b\" can't be a name: it holds the character \"/\""},
      {R"({"sheets": [{"name": "a"}], "active_sheet": "b"})",
       "/active_sheet: found \"b\", expected the name of one of the file's sheets"},
      {R"({"sheets": [{"name": "a"}], "international": {"date_order": 1}})",
       "/international/date_order: found 1, expected a text"},
      {R"({"sheets": [{"name": "a"}], "international": {"date_order": "dmy"}})",
       "/international/date_order: found \"dmy\", expected \"month_first\", \"day_first\" or "
       "\"year_first\""},
      {R"({"sheets": [{"name": "a"}], "international": {"list_separator": ""}})",
       "/international/list_separator: found \"\", expected a text of at least one character"},
      {R"({"sheets": [{"name": "a", "rows": {"at": "A1:A2", "values": []}}]})",
       "/sheets/0/rows/at: found \"A1:A2\", expected the address of one cell, such as \"B2\""},
      {R"({"sheets": [{"name": "a", "rows": {"at": "XFD1", "values": [[1, 2]]}}]})",
       "/sheets/0/rows/values/0/1: this cell isn't on the sheet"},
      {R"({"sheets": [{"name": "a", "cells": {"A1": 1}, "rows": {"at": "A1", "values": [[1]]}}]})",
       "/sheets/0/rows/values/0/0: cell $A$1 is given twice"},
  };
  for (const auto& [text, words] : cases) EXPECT_EQ(Fault(text), words) << text;
}

TEST_F(WorkbookFile, WithAWrongCellIsToldByPlaceFoundAndExpected) {
  const WrongFile cases[] = {
      {R"({"2B": 1})",
       "/sheets/0/cells/2B: found \"2B\", expected the address of one cell, such as \"B2\""},
      {R"({"B2": 1, "b2": 2})", "/sheets/0/cells/b2: cell $B$2 is given twice"},
      {R"({"B2": [1]})",
       "/sheets/0/cells/B2: found an array of 1 entries, expected a number, a text, true, false, "
       "null or an object that tells the kind"},
      {R"({"B2": 9007199254740993})",
       "/sheets/0/cells/B2: found 9007199254740993, expected a number that a cell can hold "
       "exactly; a text can hold it"},
      {R"({"B2": -9223372036854775808})",
       "/sheets/0/cells/B2: found -9223372036854775808, expected a number that a cell can hold "
       "exactly; a text can hold it"},
      {R"({"B2": {}})",
       "/sheets/0/cells/B2: expected exactly one of the keys \"value\", \"date\", \"error\", "
       "\"formula\""},
      {R"({"B2": {"value": 1, "date": "2024-01-31"}})",
       "/sheets/0/cells/B2: expected exactly one of the keys \"value\", \"date\", \"error\", "
       "\"formula\""},
      {R"({"B2": {"value": 1, "shown": 1}})",
       "/sheets/0/cells/B2: \"shown\" is for a cell with a \"formula\""},
      {R"({"B2": {"date": "31.01.2024"}})",
       "/sheets/0/cells/B2/date: found \"31.01.2024\", expected a date such as \"2024-01-31\" or "
       "\"2024-01-31T13:45:00\""},
      {R"({"B2": {"date": "2023-02-29"}})",
       "/sheets/0/cells/B2/date: found \"2023-02-29\", expected a day of the calendar"},
      {R"({"B2": {"date": "2024-01-31T25:00:00"}})",
       "/sheets/0/cells/B2/date: found \"2024-01-31T25:00:00\", expected a date such as "
       "\"2024-01-31\" or \"2024-01-31T13:45:00\""},
      {R"({"B2": {"error": "#OOPS"}})",
       "/sheets/0/cells/B2/error: found \"#OOPS\", expected a cell's error such as \"#DIV/0!\""},
      {R"({"B2": {"formula": "1+1"}})",
       "/sheets/0/cells/B2/formula: found \"1+1\", expected a formula that begins with \"=\""},
  };
  for (const auto& [cells, words] : cases) EXPECT_EQ(CellFault(cells), words) << cells;
}

}  // namespace
}  // namespace rangewerks::tests
