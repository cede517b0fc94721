// The program itself: what it prints, and the exit status.
#include "apps/command_line.h"

#include <nlohmann/json.hpp>
#include <vector>

namespace rangewerks::apps {
namespace {

TEST_F(CommandLine, ReadsAGoodSheetWithStatus0) {
  const Outcome outcome = Run("read book.json --interface interface.json");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.messages, "");
  EXPECT_EQ(outcome.output, R"(Workbook  book.json
Sheet     2024 Q1
Names     _2024_Q1__<range>  (sheet scheme)

Header
  batch         JNL-7
  posting_date  2024-01-31

Detail: 2 rows
  row  code   amount
  ───  ────  ───────
    1  4000  1250.50
    2  4010    -7.00

No bad cells.
)");
}

TEST_F(CommandLine, ReadsTheSheetThatIsAskedForWhateverTheCase) {
  const Outcome outcome =
      Run("read book.json --interface interface.json --sheet 'bad CELLS' --output csv");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.output,
            "row,batch,posting_date,code,amount\n"
            "1,,,,\n"
            "2,,,,1\n"
            "3,,,,\n");
  EXPECT_EQ(outcome.messages,
            "A1: amount, row 1: Invalid data in range 'Amount' (amount) [-2147216004 "
            "(0x8004157C)]\n"
            "A3: amount, row 3: Invalid data in range 'Amount' (amount) [-2147216004 "
            "(0x8004157C)]\n");
}

TEST_F(CommandLine, WritesOneJsonObjectWithEachBadCellOnce) {
  const Outcome outcome =
      Run("read book.json --interface interface.json --sheet 'Bad cells' --output json");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.messages, "");
  const auto read = nlohmann::json::parse(outcome.output);
  EXPECT_EQ(read["book"], "book.json");
  EXPECT_EQ(read["sheet"], "Bad cells");
  EXPECT_EQ(read["ranges"]["amount"]["address"], "A1:A3");
  EXPECT_EQ(read["ranges"]["code"]["exists"], false);
  EXPECT_EQ(read["rows"].size(), 3U);
  EXPECT_EQ(read["rows"][1]["values"]["amount"], nlohmann::json({{"found", true}, {"value", 1.0}}));
  ASSERT_EQ(read["errors"].size(), 2U);
  EXPECT_EQ(read["errors"][0]["range"], "amount");
  EXPECT_EQ(read["errors"][0]["row"], 1);
  EXPECT_EQ(read["errors"][0]["address"], "A1");
  EXPECT_EQ(read["errors"][0]["number"], -2147216004);
  EXPECT_EQ(read["errors"][0]["description"], "Invalid data in range 'Amount' (amount)");
  EXPECT_EQ(read["errors"][1]["address"], "A3");
}

TEST_F(CommandLine, NamesTheSheetsWhenTheOneAskedForIsMissing) {
  ExpectRefusal("read book.json --interface interface.json --sheet Q9 --output json",
                "rangewerks: book.json: there is no sheet \"Q9\"; the workbook has \"2024 Q1\", "
                "\"Bad cells\", \"Empty\"\n");
}

TEST_F(CommandLine, TellsWhichNamesWereLookedForWhenNoneIsThere) {
  ExpectRefusal(
      "read book.json --interface interface.json --sheet Empty",
      "rangewerks: book.json: none of the declared ranges is on the sheet \"Empty\". These "
      "workbook names were looked for:\n"
      "  Empty__batch  (range batch)\n"
      "  Empty__posting_date  (range posting_date)\n"
      "  Empty__code  (range code)\n"
      "  Empty__amount  (range amount)\n"
      "Define them in the workbook, choose another sheet with --sheet, or set SheetRangeNames to "
      "false in the interface file if the names have no sheet part.\n");
}

TEST_F(CommandLine, RefusesAWorkbookWithoutNames) {
  Write("bare.json", R"({"sheets": [{"name": "Sheet1"}]})");
  Write("plain.json",
        R"({"ranges": [{"RangeName": "code", "DetailIndicator": "D",
                        "RangeDataType": "rdtString"}]})");
  ExpectRefusal(
      "read bare.json --interface plain.json",
      "rangewerks: bare.json: none of the declared ranges is on the sheet \"Sheet1\". These "
      "workbook names were looked for:\n"
      "  code\n"
      "Define them in the workbook, choose another sheet with --sheet, or set SheetRangeNames to "
      "true in the interface file if the names have a sheet part.\n");
}

TEST_F(CommandLine, RefusesAnInterfaceFileWithAnythingWrongInIt) {
  Write("i.json", R"({"ranges": [{"RangeName": "a", "DetailIndicator": "D",
                                  "RangeDataType": "rdtDuoble"}]})");
  ExpectRefusal("read book.json --interface i.json",
                "rangewerks: i.json: /ranges/0/RangeDataType (range a): found \"rdtDuoble\", "
                "expected rdtString, rdtDouble, rdtDate, rdtInteger or rdtYesNo; did you mean "
                "rdtDouble?\n");
  Write("i.json",
        R"({"ranges": [{"RangeName": "a", "DetailIndicator": "D", "RangeDataType": "rdtDate"},
                       {"RangeName": "a", "DetailIndicator": "D", "RangeDataType": "rdtDate"}]})");
  ExpectRefusal("read book.json --interface i.json",
                "rangewerks: i.json: /ranges/1/RangeName (range a): \"a\" stands already at "
                "/ranges/0/RangeName; a name may be used once, whatever the case of its letters\n");
  Write("i.json", "{\"ranges\": [}");
  ExpectRefusal("read book.json --interface i.json",
                "rangewerks: i.json: line 1, column 13: syntax error while parsing value - "
                "unexpected '}'; expected '[', '{', or a literal\n");
}

TEST_F(CommandLine, RefusesFilesThatAreNotThere) {
  ExpectRefusal("read book.json --interface none.json",
                "rangewerks: none.json: can't open the interface file: No such file or "
                "directory\n");
  ExpectRefusal("read none.json --interface interface.json",
                "rangewerks: none.json: there is no such workbook; check the path\n");
  ExpectRefusal("read . --interface interface.json",
                "rangewerks: .: this is a folder; give the workbook file itself\n");
}

TEST_F(CommandLine, RefusesAWorkbookThatItsHostCannotRead) {
  Write("book.xlsx", "PK");
  const Outcome outcome = Run("read book.xlsx --interface interface.json --host workbook");
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.output, "");
  EXPECT_TRUE(outcome.messages.starts_with("rangewerks: can't open the workbook: book.xlsx: "))
      << outcome.messages;
  EXPECT_TRUE(outcome.messages.ends_with(
      "\nThe host \"workbook\" reads JSON workbook files only; for others use --host "
      "libreoffice.\n"))
      << outcome.messages;
}

TEST_F(CommandLine, RefusesWrongUsage) {
  const std::string help = "\nrangewerks read --help tells how to call it.\n";
  const std::string commands =
      "the commands are read, validate, fill, clear, place and browse\nrangewerks --help tells "
      "what each "
      "does.\n";
  ExpectRefusal("", "rangewerks: say what to do; " + commands);
  ExpectRefusal("reed", "rangewerks: there is no command \"reed\"; " + commands);
  ExpectRefusal("read --interface interface.json", "rangewerks: BOOK is required" + help);
  ExpectRefusal("read book.json", "rangewerks: --interface is required" + help);
  ExpectRefusal("read book.json --interface interface.json --output xml",
                "rangewerks: --output: xml not in {csv,json,table}" + help);
  EXPECT_EQ(Run("read book.json --interface interface.json --host calc").status, 2);
  EXPECT_EQ(Run("read book.json --interface interface.json --colour").status, 2);
}

TEST_F(CommandLine, SaysWhenItsResultCannotBeWritten) {
  const Outcome outcome = Run("read book.json --interface interface.json --output json >/dev/full");
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.messages, "rangewerks: the result can't be written to standard output\n");
}

TEST_F(CommandLine, TellsItsVersionAndHowToCallIt) {
  const Outcome version = Run("--version");
  EXPECT_EQ(version.status, 0);
  EXPECT_EQ(version.output, "rangewerks " RANGEWERKS_VERSION "\n");
  for (const char* help :
       {"--help", "read --help", "validate --help", "fill --help", "clear --help"}) {
    const Outcome outcome = Run(help);
    EXPECT_EQ(outcome.status, 0) << help;
    EXPECT_NE(outcome.output.find("Exit status: 0 when "), std::string::npos) << help;
  }
}

TEST_F(CommandLine, ReadsDatesByTheOrderOfTheWorkbook) {
  Write("book.json", R"({"international": {"date_order": "day_first"},
    "sheets": [{"name": "S", "cells": {"A1": "05/06/2024", "A2": {"date": "2024-06-05"}}}],
    "names": {"S__dates": "=S!$A$1:$A$2"}})");
  Write("i.json", R"({"SheetRangeNames": true, "ranges": [
    {"RangeName": "dates", "DetailIndicator": "D", "RangeDataType": "rdtDate"}]})");
  const Outcome outcome = Run("read book.json --interface i.json --output csv");
  EXPECT_EQ(outcome.output, "row,dates\n1,2024-06-05\n2,2024-06-05\n");
  EXPECT_EQ(outcome.status, 0);
}

// --- the examples --------------------------------------------------------------------------------

/// "range row address" of each bad cell.
std::vector<std::string> BadCellsIn(const std::string& json) {
  std::vector<std::string> cells;
  const auto read = nlohmann::json::parse(json);
  for (const auto& bad : read["errors"]) {
    cells.push_back(bad["range"].get<std::string>() + " " + std::to_string(bad["row"].get<int>()) +
                    " " + bad["address"].get<std::string>());
  }
  return cells;
}

TEST_F(CommandLine, ReadsTheSmallExampleWithItsBadCells) {
  const Outcome outcome = Run("read " RANGEWERKS_EXAMPLES
                              "/journal-small.workbook.json --interface " RANGEWERKS_EXAMPLES
                              "/journal.interface.json --output json");
  EXPECT_EQ(outcome.status, 1) << outcome.messages;
  EXPECT_EQ(BadCellsIn(outcome.output),
            (std::vector<std::string>{"entry_date 3 A14", "credit 4 E15", "debit 5 D16",
                                      "reverse 6 H17", "credit 7 E18", "quantity 8 G19"}));
}

#ifdef RANGEWERKS_LIBREOFFICE

TEST_F(CommandLine, ReadsTheJournalInLibreOffice) {
  const Outcome outcome =
      Run("read " RANGEWERKS_EXAMPLES "/journal-2024.xlsx --interface " RANGEWERKS_EXAMPLES
          "/journal.interface.json --output json");
  ASSERT_EQ(outcome.status, 1) << outcome.messages;
  EXPECT_EQ(BadCellsIn(outcome.output),
            (std::vector<std::string>{"entry_date 9 A20", "debit 23 D34", "credit 47 E58",
                                      "reverse 61 H72", "credit 88 E99", "quantity 105 G116",
                                      "nominal_code 140 B151"}));
  const auto read = nlohmann::json::parse(outcome.output);
  EXPECT_EQ(read["sheet"], "2024 Q1");
  EXPECT_EQ(read["rows"].size(), 181U);
  EXPECT_EQ(
      read["ranges"]["debit"],
      nlohmann::json(
          {{"exists", true}, {"address", "D12:D192"}, {"rows", 181}, {"acts_as_header", false}}));
  EXPECT_EQ(read["ranges"]["department"]["acts_as_header"], true);
  EXPECT_EQ(read["header"]["posting_date"]["value"], "2024-03-31");
  EXPECT_EQ(read["header"]["control_total"]["value"], 124938.58);
  EXPECT_EQ(read["header"]["auto_reverse"]["value"], true);
  const auto& first = read["rows"][0]["values"];
  EXPECT_EQ(first["entry_date"]["value"], "2024-01-03");
  EXPECT_EQ(first["nominal_code"]["value"], "1100");
  EXPECT_EQ(first["debit"]["value"], 752.68);
  EXPECT_EQ(first["credit"], nlohmann::json({{"found", false}, {"value", nullptr}}));
  EXPECT_EQ(read["rows"][1]["values"]["quantity"]["value"], 30);
}

TEST_F(CommandLine, ReadsTheSecondSheetOfTheJournalInLibreOffice) {
  const Outcome outcome =
      Run("read " RANGEWERKS_EXAMPLES "/journal-2024.xlsx --interface " RANGEWERKS_EXAMPLES
          "/journal.interface.json --sheet 2024-Q2 --output json");
  ASSERT_EQ(outcome.status, 1) << outcome.messages;
  EXPECT_EQ(BadCellsIn(outcome.output),
            (std::vector<std::string>{"control_total 0 C7", "credit 31 E42", "entry_date 55 A66",
                                      "quantity 70 G81", "reverse 90 H101", "credit 118 E129",
                                      "credit 133 E144"}));
  EXPECT_EQ(nlohmann::json::parse(outcome.output)["ranges"]["department"]["acts_as_header"], false);
}

TEST_F(CommandLine, ReadsPlainNamesWithAPrefixInLibreOffice) {
  const Outcome outcome =
      Run("read " RANGEWERKS_EXAMPLES "/orders.ods --interface " RANGEWERKS_EXAMPLES
          "/orders.interface.json --output json");
  ASSERT_EQ(outcome.status, 1) << outcome.messages;
  EXPECT_EQ(BadCellsIn(outcome.output),
            (std::vector<std::string>{"quantity 7 B15", "unit_price 11 C19", "due_date 16 D24"}));
  const auto read = nlohmann::json::parse(outcome.output);
  EXPECT_EQ(read["header"]["customer"]["value"], "MORTON01");
  EXPECT_EQ(read["ranges"]["remarks"]["exists"], false);
}

TEST_F(CommandLine, RefusesAWorkbookThatSomebodyElseHasOpen) {
  const std::string orders = RANGEWERKS_EXAMPLES "/orders.ods";
  std::filesystem::copy_file(orders, File("orders.ods"));
  Write(".~lock.orders.ods#", ",somebody,elsewhere,21.11.2024 09:00,file:///elsewhere;");
  const Outcome outcome =
      Run("read orders.ods --interface " RANGEWERKS_EXAMPLES "/orders.interface.json");
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.output, "");
  EXPECT_NE(outcome.messages.find("orders.ods is locked: somebody on elsewhere has it open."),
            std::string::npos)
      << outcome.messages;
  EXPECT_EQ(Text(".~lock.orders.ods#"), ",somebody,elsewhere,21.11.2024 09:00,file:///elsewhere;");
}

TEST_F(CommandLine, RefusesAFileThatIsNoSpreadsheet) {
  Write("book.xlsx", "this is no workbook");
  const Outcome outcome = Run("read book.xlsx --interface interface.json");
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.output, "");
  EXPECT_TRUE(outcome.messages.starts_with("rangewerks: can't open the workbook: "))
      << outcome.messages;
}

#endif

}  // namespace
}  // namespace rangewerks::apps
