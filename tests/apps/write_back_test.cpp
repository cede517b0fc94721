// The commands that check the layout, fill and clear: what they print, save and refuse.
#include <nlohmann/json.hpp>

#include "apps/command_line.h"

namespace rangewerks::apps {
namespace {

constexpr const char* kForms = R"({
  "sheets": [{"name": "S", "cells": {
    "A1": "kept", "B1": {"value": null, "format": "@"},
    "A3": "a", "A4": "b", "B3": 1, "B4": {"formula": "=B3*2", "shown": 2}}}],
  "names": {"batch": "=S!$A$1", "mark": "=S!$B$1", "code": "=S!$A$3:$A$4", "total": "=S!$B$3:$B$4",
            "day": "=S!$C$3:$C$4"}
})";

/// An interface for it, with more fields of the file in front.
std::string Interface(const std::string& fields = "") {
  return "{" + fields + R"("DefaultTag": "t", "ranges": [
    {"RangeName": "batch", "DetailIndicator": "H", "RangeDataType": "rdtString", "Group": "top"},
    {"RangeName": "mark", "DetailIndicator": "H", "RangeDataType": "rdtString", "Tag": "other"},
    {"RangeName": "code", "DetailIndicator": "D", "RangeDataType": "rdtString"},
    {"RangeName": "total", "DetailIndicator": "D", "RangeDataType": "rdtDouble"},
    {"RangeName": "day", "DetailIndicator": "D", "RangeDataType": "rdtDate"},
    {"RangeName": "gone", "DetailIndicator": "D", "RangeDataType": "rdtString"}]})";
}

class WriteBack : public CommandLine {
 protected:
  WriteBack() {
    Write("form.json", kForms);
    Write("form.interface.json", Interface());
  }

  /// That the call is refused in these words, and that no file changes or appears.
  void ExpectNothingDone(const std::string& arguments, const std::string& messages) const {
    ExpectRefusal(arguments, "rangewerks: " + messages + "\n");
    EXPECT_FALSE(std::filesystem::exists(File("out.json"))) << arguments;
    EXPECT_EQ(Text("form.json"), kForms) << arguments;
  }
  nlohmann::json SheetOf(const std::string& name) const {
    return nlohmann::json::parse(Text(name))["sheets"][0];
  }
  nlohmann::json CellsOf(const std::string& name) const { return SheetOf(name)["cells"]; }
};

constexpr const char* kFill = "fill form.json --interface form.interface.json --data rows.csv ";
constexpr const char* kClear = "clear form.json --interface form.interface.json ";

// --- validate ------------------------------------------------------------------------------------

TEST_F(WriteBack, ValidateSaysThatALayoutIsSound) {
  const Outcome outcome = Run("validate form.json --interface form.interface.json");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.messages, "");
  EXPECT_EQ(outcome.output, R"(Workbook  form.json
Sheet     S
Names     <range>  (plain scheme)

Ranges
  range  on the sheet  address  rows
  ─────  ────────────  ───────  ────
  batch  yes           A1          1
  mark   yes           B1          1
  code   yes           A3:A4       2
  total  yes           B3:B4       2
  day    yes           C3:C4       2
  gone   no

The layout is sound.
)");
}

TEST_F(WriteBack, ValidateGivesTheSystemsOwnWords) {
  Write("i.json", R"({"ranges": [
    {"RangeName": "code", "DetailIndicator": "D", "RangeDataType": "rdtString"},
    {"RangeName": "mark", "DetailIndicator": "D", "RangeDataType": "rdtString"}]})");
  const Outcome table = Run("validate form.json --interface i.json");
  EXPECT_EQ(table.status, 1);
  EXPECT_TRUE(table.output.ends_with(R"(
The layout isn't sound:
  Detail Ranges with different number of rows were found
  (First different found:mark)
  Range : code - No. of Rows: 2
  Range : mark - No. of Rows: 1 [-2147221504 (0x80040000)]
)")) << table.output;

  const Outcome json = Run("validate form.json --interface i.json --output json");
  EXPECT_EQ(json.status, 1);
  const auto result = nlohmann::json::parse(json.output);
  EXPECT_EQ(result["sound"], false);
  EXPECT_EQ(result["ranges"]["code"]["address"], "A3:A4");
  EXPECT_EQ(result["error"]["number"], -2147221504);
  EXPECT_EQ(result["error"]["description"],
            "Detail Ranges with different number of rows were found\r\n(First different "
            "found:mark)\r\nRange : code - No. of Rows: 2\r\nRange : mark - No. of Rows: 1");
  const auto source = result["error"]["source"].get<std::string>();
  EXPECT_NE(source.find("ValidateRanges of Class Module ExcelFunctions Line#:"), std::string::npos)
      << source;

  const Outcome csv = Run("validate form.json --interface i.json --output csv");
  EXPECT_EQ(csv.status, 1);
  EXPECT_EQ(csv.output, "range,exists,address,rows\ncode,true,A3:A4,2\nmark,true,B1,1\n");
  EXPECT_TRUE(csv.messages.starts_with("Detail Ranges with different number of rows were found\n"))
      << csv.messages;
}

TEST_F(WriteBack, ValidateNamesAMandatoryRangeThatIsMissing) {
  Write("i.json", R"({"ranges": [{"RangeName": "none", "DetailIndicator": "D",
                                  "RangeDataType": "rdtString", "IsMandatory": true}]})");
  const Outcome outcome = Run("validate form.json --interface i.json");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_TRUE(outcome.output.ends_with(
      "The layout isn't sound:\n  Range 'none' must be defined. [-2147221504 (0x80040000)]\n"))
      << outcome.output;
}

TEST_F(WriteBack, ValidateDoesNotCallASheetWithoutAnyRangeSound) {
  Write("i.json", R"({"ranges": [{"RangeName": "none", "DetailIndicator": "D",
                                  "RangeDataType": "rdtString"}]})");
  const Outcome outcome = Run("validate form.json --interface i.json");
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.output, "");
}

// --- fill ----------------------------------------------------------------------------------------

TEST_F(WriteBack, FillWritesEachValueAndLeavesTheSourceAlone) {
  Write("rows.csv", "row,batch,code,day\n1,B-7,x,2024-01-31\n2,B-7,y,\n");
  const Outcome outcome = Run(std::string(kFill) + "--save out.json");
  EXPECT_EQ(outcome.status, 0) << outcome.messages;
  EXPECT_EQ(outcome.messages, "");
  EXPECT_EQ(outcome.output, R"(Workbook  form.json
Sheet     S
Names     <range>  (plain scheme)

Cells
  range     row  cell  value       outcome
  ─────  ──────  ────  ──────────  ───────
  batch  header  A1    B-7         written
  code        1  A3    x           written
  day         1  C3    2024-01-31  written
  code        2  A4    y           written

Written: 4 of 4 values
Saved to: out.json
)");
  EXPECT_EQ(Text("form.json"), kForms);
  const auto cells = CellsOf("out.json");
  EXPECT_EQ(cells["A1"], "B-7");
  EXPECT_EQ(cells["A4"], "y");
  EXPECT_EQ(cells["C3"]["date"], "2024-01-31");
  EXPECT_EQ(cells["B4"]["formula"], "=B3*2");
}

TEST_F(WriteBack, FillReportsWhatASwitchRefusesWhatIsAbsentAndWhatDiffers) {
  Write("form.interface.json", Interface(R"("LeaveFormulaOnPopulate": true, )"));
  Write("rows.csv", "row,code,total,gone\n1,007,5,z\n2,,6,\n");
  const Outcome outcome = Run(std::string(kFill) + "--save out.json --output csv");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.output,
            "range,row,address,value,outcome,holds\n"
            "code,1,A3,007,differs,7\n"
            "total,1,B3,5,written,5\n"
            "gone,1,,z,absent,\n"
            "total,2,B4,6,refused,2\n");
  const auto cells = CellsOf("out.json");
  EXPECT_EQ(cells["B3"], 5);
  EXPECT_EQ(cells["B4"], nlohmann::json({{"formula", "=B3*2"}, {"shown", 2.0}}));
}

TEST_F(WriteBack, FillLeavesCellsWithContentWhenToldTo) {
  Write("form.interface.json", Interface(R"("LeaveBlankOnPopulate": true, )"));
  Write("rows.csv", "row,batch,mark,code\n1,new,007,x\n");
  const Outcome outcome = Run(std::string(kFill) + "--save out.json --output json");
  EXPECT_EQ(outcome.status, 1);
  const auto result = nlohmann::json::parse(outcome.output);
  EXPECT_EQ(result["saved"], "out.json");
  EXPECT_EQ(result["written"], 1);
  EXPECT_EQ(result["refused"], 2);
  EXPECT_EQ(result["cells"][0], nlohmann::json({{"range", "batch"},
                                                {"row", 0},
                                                {"address", "A1"},
                                                {"value", "new"},
                                                {"outcome", "refused"},
                                                {"holds", "kept"}}));
  EXPECT_EQ(result["cells"][1], nlohmann::json({{"range", "mark"},
                                                {"row", 0},
                                                {"address", "B1"},
                                                {"value", "007"},
                                                {"outcome", "written"},
                                                {"holds", "007"}}));
}

TEST_F(WriteBack, FillStripsTrailingBlanksWhenToldTo) {
  Write("form.interface.json", Interface(R"("StripSpacesOnDownload": true, )"));
  Write("rows.csv", "row,mark\n1,  x  \n");
  EXPECT_EQ(Run(std::string(kFill) + "--save out.json").status, 0);
  EXPECT_EQ(CellsOf("out.json")["B1"], "  x");
}

TEST_F(WriteBack, FillTakesWhatReadHasWritten) {
  const Outcome read = Run("read form.json --interface form.interface.json --output json");
  Write("rows.json", read.output);
  const Outcome outcome =
      Run("fill form.json --interface form.interface.json --data rows.json --save out.json "
          "--output csv");
  EXPECT_EQ(outcome.status, 0) << outcome.messages;
  EXPECT_EQ(outcome.output,
            "range,row,address,value,outcome,holds\n"
            "batch,0,A1,kept,written,kept\n"
            "code,1,A3,a,written,a\n"
            "total,1,B3,1,written,1\n"
            "code,2,A4,b,written,b\n"
            "total,2,B4,2,written,2\n");
}

TEST_F(WriteBack, FillRefusesDataThatDoesNotFitTheSheet) {
  const std::string save = std::string(kFill) + "--save out.json";
  Write("rows.csv", "row,code\n3,x\n");
  ExpectNothingDone(save,
                    "rows.csv: line 2, column code (row 3): range code ends at row 2; leave this "
                    "row out or make the range longer");
  Write("rows.csv", "row,code\n,x\n");
  ExpectNothingDone(save,
                    "rows.csv: line 2, column code: range code is no header on this sheet: it has "
                    "2 rows; give a value for each row");
  Write("rows.csv", "row,batch\n1,x\n2,y\n");
  ExpectNothingDone(save,
                    "rows.csv: line 3, column batch (row 2): range batch has one value for the "
                    "whole sheet, and another one stands at line 2, column batch (row 1); give the "
                    "same value or leave one out");
  Write("rows.csv", "row,total\n1,x\n");
  ExpectNothingDone(save,
                    "rows.csv: line 2, column total (row 1): found \"x\", expected a number such "
                    "as 1250.5: digits with a point, nothing else");
  Write("rows.csv", "row,code\n1,\n");
  ExpectNothingDone(save, "rows.csv: the file gives no value; there is nothing to write");
}

TEST_F(WriteBack, SavesOnlyWhereItMay) {
  Write("rows.csv", "row,code\n1,x\n");
  const std::string fill = kFill;
  ExpectNothingDone(fill, "say where to save: --save COPY for a new file, or --in-place");
  ExpectNothingDone(fill + "--save ./form.json",
                    "./form.json: this is the workbook's own file; give another one, or say "
                    "--in-place to replace it");
  ExpectNothingDone(fill + "--save form.json --overwrite",
                    "form.json: this is the workbook's own file; give another one, or say "
                    "--in-place to replace it");
  ExpectNothingDone(fill + "--save rows.csv",
                    "rows.csv: this workbook can be saved as .json; give the file such an "
                    "extension");
  ExpectNothingDone(fill + "--save none/out.json", "none/out.json: there is no folder " +
                                                       File("none").string() + "; make it first");
  ExpectNothingDone(fill + "--save out.json --in-place",
                    "out.json: this isn't the workbook's own file; leave out --in-place or "
                    "--save");
  Write("there.json", "precious");
  ExpectNothingDone(fill + "--save there.json",
                    "there.json: this file is there already; give another one, or say --overwrite "
                    "to replace it");
  EXPECT_EQ(Text("there.json"), "precious");
  EXPECT_EQ(Run(fill + "--save there.json --overwrite").status, 0);
  EXPECT_EQ(CellsOf("there.json")["A3"], "x");
}

TEST_F(WriteBack, ReplacesTheSourceOnlyInPlaceAndKeepsItsRights) {
  namespace fs = std::filesystem;
  Write("rows.csv", "row,code\n1,x\n");
  fs::permissions(File("form.json"), fs::perms::owner_read | fs::perms::owner_write);
  EXPECT_EQ(Run(std::string(kFill) + "--in-place").status, 0);
  EXPECT_EQ(CellsOf("form.json")["A3"], "x");
  EXPECT_EQ(fs::status(File("form.json")).permissions(),
            fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(WriteBack, LeavesNoOtherFileBehind) {
  Write("rows.csv", "row,code\n1,x\n");
  const auto count = [&] {
    return std::distance(std::filesystem::directory_iterator(File("")), {});
  };
  Run("--version");  // for the files of the run itself
  const auto before = count();
  EXPECT_EQ(Run(std::string(kFill) + "--save out.json").status, 0);
  EXPECT_EQ(count(), before + 1);
}

// --- clear ---------------------------------------------------------------------------------------

TEST_F(WriteBack, ClearEmptiesAllRangesButThoseWithAFormula) {
  const Outcome outcome = Run(std::string(kClear) + "--save out.json");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.output, R"(Workbook  form.json
Sheet     S
Names     <range>  (plain scheme)

Ranges
  range  address  outcome
  ─────  ───────  ─────────────────────────────
  batch  A1       cleared
  mark   B1       cleared
  code   A3:A4    cleared
  total  B3:B4    kept: it has a formula
  day    C3:C4    cleared
  gone            absent: it isn't on the sheet

Cleared: 4 ranges
Saved to: out.json
)");
  EXPECT_EQ(Text("form.json"), kForms);
  const auto cells = CellsOf("out.json");
  EXPECT_FALSE(cells.contains("A1"));
  EXPECT_FALSE(cells.contains("B1"));
  EXPECT_EQ(SheetOf("out.json")["formats"], nlohmann::json({{{"at", "B1"}, {"number", "@"}}}))
      << "formats stay";
  EXPECT_EQ(cells["B4"]["formula"], "=B3*2");
}

TEST_F(WriteBack, ClearTakesFormulasTooWhenToldNotToLook) {
  Write("form.interface.json", Interface(R"("DoNotCheckIsFormula": true, )"));
  const Outcome outcome = Run(std::string(kClear) + "--save out.json --output csv");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.output,
            "range,address,outcome\nbatch,A1,cleared\nmark,B1,cleared\ncode,A3:A4,cleared\n"
            "total,B3:B4,cleared\nday,C3:C4,cleared\ngone,,absent\n");
  EXPECT_FALSE(CellsOf("out.json").contains("B4"));
}

TEST_F(WriteBack, ClearByTagLeavesOutExcludedGroups) {
  const Outcome outcome =
      Run(std::string(kClear) + "--tag t --exclude-group top --save out.json --output json");
  EXPECT_EQ(outcome.status, 1) << outcome.messages;
  const auto ranges = nlohmann::json::parse(outcome.output)["ranges"];
  EXPECT_EQ(ranges["batch"]["outcome"], "excluded");
  EXPECT_EQ(ranges["mark"]["outcome"], "not chosen");
  EXPECT_EQ(ranges["code"]["outcome"], "cleared");
  EXPECT_EQ(ranges["total"]["outcome"], "kept");
  const auto cells = CellsOf("out.json");
  EXPECT_EQ(cells["A1"], "kept");
  EXPECT_FALSE(cells.contains("A3"));
}

TEST_F(WriteBack, ClearDetailsLeavesHeaders) {
  const Outcome outcome = Run(std::string(kClear) + "--details --save out.json");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(CellsOf("out.json")["A1"], "kept");
  EXPECT_FALSE(CellsOf("out.json").contains("A3"));
}

TEST_F(WriteBack, ClearRefusesTagsAndGroupsThatAreNotDeclared) {
  const std::string clear = kClear;
  ExpectNothingDone(clear + "--tag othr --save out.json",
                    "--tag: no range of the interface file has the Tag \"othr\"; did you mean "
                    "other?");
  ExpectNothingDone(clear + "--tag t --exclude-group tpo --save out.json",
                    "--exclude-group: no range of the interface file has the Group \"tpo\"; did "
                    "you mean top?");
  EXPECT_EQ(Run(clear + "--tag t --details --save out.json").status, 2);
  EXPECT_EQ(Run(clear + "--exclude-group top --save out.json").status, 2);
}

}  // namespace
}  // namespace rangewerks::apps
