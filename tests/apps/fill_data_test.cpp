// What a data file for filling may say, and what is said about a wrong one.
#include "apps/rangewerks/fill_data.h"

#include <gmock/gmock.h>

#include "apps/rangewerks/csv_document.h"
#include "apps/rangewerks/interface_file.h"
#include "automation/conversions.h"
#include "support/failure_of.h"

namespace rangewerks::apps {
namespace {

using automation::Variant;
using testing::ElementsAre;
using tests::FailureOf;

const clsInterfaceRangeList& List() {
  static const auto list = ParseInterface(R"({"ranges": [
    {"RangeName": "batch", "DetailIndicator": "H", "RangeDataType": "rdtString"},
    {"RangeName": "code", "DetailIndicator": "D", "RangeDataType": "rdtString"},
    {"RangeName": "amount", "DetailIndicator": "D", "RangeDataType": "rdtDouble"},
    {"RangeName": "day", "DetailIndicator": "D", "RangeDataType": "rdtDate"},
    {"RangeName": "count", "DetailIndicator": "D", "RangeDataType": "rdtInteger"},
    {"RangeName": "done", "DetailIndicator": "D", "RangeDataType": "rdtYesNo"},
    {"RangeName": "area", "DetailIndicator": "hdiNone", "RangeDataType": "rdtString"}]})");
  return *list;
}

struct Expected {
  std::string range;
  std::int32_t row;
  Variant value;
};

MATCHER_P(Is, expected, "") {
  return arg.range == expected.range && arg.row == expected.row && arg.value == expected.value;
}

auto Gives(const char* range, std::int32_t row, Variant value) {
  return Is(Expected{range, row, std::move(value)});
}

std::string JsonFault(const std::string& text) {
  return FailureOf([&] { ParseFillJson(text, List()); });
}
std::string CsvFault(const std::string& text) {
  return FailureOf([&] { ParseFillCsv(text, List()); });
}

TEST(FillData, TakesPlainValuesOfEveryTypeFromJson) {
  EXPECT_THAT(ParseFillJson(R"({"header": {"batch": "B1"},
    "rows": [{"code": "007", "amount": 12.5, "day": "2024-01-31", "count": -3, "done": true},
             {}, {"AMOUNT": 7, "done": "n", "code": ""}]})",
                            List()),
              ElementsAre(Gives("batch", 0, "B1"), Gives("code", 1, "007"),
                          Gives("amount", 1, 12.5), Gives("day", 1, automation::Date{45322}),
                          Gives("count", 1, std::int16_t{-3}), Gives("done", 1, true),
                          Gives("amount", 3, 7.0), Gives("done", 3, false), Gives("code", 3, "")));
}

TEST(FillData, TakesWhatReadHasWritten) {
  EXPECT_THAT(ParseFillJson(
                  R"({"book": "b", "sheet": "s", "ranges": {}, "errors": [],
              "header": {"batch": {"found": true, "value": "B1"}},
              "rows": [{"row": 7, "values": {"amount": {"found": true, "value": 1.5},
                                             "code": {"found": false, "value": null}}}]})",
                  List()),
              ElementsAre(Gives("batch", 0, "B1"), Gives("amount", 7, 1.5)));
}

TEST(FillData, ANullGivesNoValue) {
  EXPECT_THAT(ParseFillJson(R"({"rows": [{"code": null, "amount": 1}]})", List()),
              ElementsAre(Gives("amount", 1, 1.0)));
}

TEST(FillData, RefusesJsonOfAnotherShapeWithItsPlace) {
  EXPECT_EQ(JsonFault("[1]"), "the whole file: found a list, expected an object, {…}");
  EXPECT_EQ(JsonFault(R"({"row": []})"),
            "/row: there is no field of this name; did you mean rows?");
  EXPECT_EQ(JsonFault(R"({"rows": {}})"), "/rows: found an object, expected a list, […]");
  EXPECT_EQ(JsonFault(R"({"rows": [7]})"), "/rows/0: found 7, expected an object, {…}");
  EXPECT_EQ(JsonFault(R"({"header": 1})"), "/header: found 1, expected an object, {…}");
  EXPECT_EQ(JsonFault(R"({"rows": [{"row": 0, "values": {}}]})"),
            "/rows/0/row: found 0, expected a whole number from 1 to 1048576");
  EXPECT_EQ(JsonFault(R"({"rows": [{"row": 1, "values": {}, "code": "x"}]})"),
            "/rows/0/code: beside \"row\" and \"values\" there is no other field");
  EXPECT_EQ(JsonFault(R"({"header": {"batch": {"value": 1}}})"),
            "/header/batch: found an object, expected a plain value, or "
            "{\"found\": true, \"value\": …}");
  EXPECT_EQ(JsonFault("{\"rows\": [}").substr(0, 18), "line 1, column 11:");
}

TEST(FillData, RefusesNamesThatAreNotDeclared) {
  EXPECT_EQ(JsonFault(R"({"rows": [{"amuont": 1}]})"),
            "/rows/0/amuont (row 1): the interface file declares no range \"amuont\"; did you mean "
            "amount?");
  EXPECT_EQ(CsvFault("row,cost\n1,2\n"), "line 1: the interface file declares no range \"cost\"");
  EXPECT_EQ(JsonFault(R"({"header": {"area": "x"}})"),
            "/header/area: range area is declared as hdiNone, neither header nor detail; it takes "
            "no value");
}

TEST(FillData, RefusesValuesOfAnotherType) {
  const auto fault = [](const std::string& value) {
    return JsonFault("{\"rows\": [{" + value + "}]}");
  };
  EXPECT_EQ(fault(R"("amount": "12")"),
            "/rows/0/amount (row 1): found \"12\", expected a number without quotes, whole ones up "
            "to 9007199254740992");
  EXPECT_EQ(fault(R"("amount": 9007199254740993)").substr(0, 47),
            "/rows/0/amount (row 1): found 9007199254740993,");
  EXPECT_EQ(fault(R"("code": 7)"), "/rows/0/code (row 1): found 7, expected a text in quotes");
  EXPECT_EQ(fault(R"("day": "2024-02-30")"),
            "/rows/0/day (row 1): found \"2024-02-30\", expected a day such as 2024-01-31 in "
            "quotes");
  EXPECT_EQ(fault(R"("count": 1.5)"),
            "/rows/0/count (row 1): found 1.5, expected a whole number from -32768 to 32767 "
            "without quotes");
  EXPECT_EQ(fault(R"("count": 32768)"),
            "/rows/0/count (row 1): found 32768, expected a whole number from -32768 to 32767 "
            "without quotes");
  EXPECT_EQ(fault(R"("done": "perhaps")"),
            "/rows/0/done (row 1): found \"perhaps\", expected true or false");
  EXPECT_EQ(fault(R"("amount": 1e999)"),
            "the whole file: it has a number that is too great for any cell");
}

TEST(FillData, RefusesASecondValueForACell) {
  EXPECT_EQ(JsonFault(R"({"rows": [{"code": "a"}, {"row": 1, "values": {"CODE": "b"}}]})"),
            "/rows/1/values/CODE (row 1): range code has a value for this row already; leave one "
            "of the two out");
  EXPECT_EQ(CsvFault("row,code\n2,a\n2,b\n"),
            "line 3, column code (row 2): range code has a value for this row already; leave one "
            "of the two out");
  EXPECT_EQ(CsvFault("code,Code\na,b\n"), "line 1: range code stands here a second time");
}

TEST(FillData, TakesCsvWithAndWithoutRowNumbers) {
  EXPECT_THAT(
      ParseFillCsv("row,batch,amount,day,count,done\r\n3,B1,1.5e2,2024-01-31,7,Yes\r\n", List()),
      ElementsAre(Gives("batch", 3, "B1"), Gives("amount", 3, 150.0),
                  Gives("day", 3, automation::Date{45322}), Gives("count", 3, std::int16_t{7}),
                  Gives("done", 3, true)));
  EXPECT_THAT(ParseFillCsv("code,amount\n\"a,\"\"b\"\"\n c\",\nx,-1\n", List()),
              ElementsAre(Gives("code", 1, "a,\"b\"\n c"), Gives("code", 2, "x"),
                          Gives("amount", 2, -1.0)));
  EXPECT_THAT(ParseFillCsv("row,batch\n,B1\n", List()), ElementsAre(Gives("batch", 0, "B1")));
}

TEST(FillData, RefusesCsvWithItsLine) {
  EXPECT_EQ(CsvFault(""), "the file is empty; its first line names the ranges");
  EXPECT_EQ(CsvFault("row,code\n1\n"), "line 2: found 1 fields, expected 2 as in the heading");
  EXPECT_EQ(CsvFault("row,code\nx,a\n"),
            "line 2, column row: found \"x\", expected a whole number from 1 to 1048576");
  EXPECT_EQ(CsvFault("row,amount\n1,\"1,5\"\n"),
            "line 2, column amount (row 1): found \"1,5\", expected a number such as 1250.5: "
            "digits with a point, nothing else");
  EXPECT_EQ(CsvFault("row,amount\n1, 5\n").substr(0, 43),
            "line 2, column amount (row 1): found \" 5\", ");
  EXPECT_EQ(CsvFault("amount\ninf\n").substr(0, 37), "line 2, column amount (row 1): found ");
  EXPECT_EQ(CsvFault("code\n\"a\nb\n"), "line 2: a quote opens here and is never closed");
  EXPECT_EQ(CsvFault("code\na\"b\n"),
            "line 2: a quote stands inside a field that doesn't begin with one");
  EXPECT_EQ(CsvFault("code\n\"a\"b\n"),
            "line 2: something follows a closing quote; a quote inside a field must be doubled");
  EXPECT_EQ(CsvFault("code\n\xFF"
                     "\n"),
            "line 2: a field isn't UTF-8; save the file in that encoding");
}

TEST(FillData, TellsTheFileInEveryRefusal) {
  EXPECT_EQ(FailureOf([] { ReadFillFile("rows.txt", List()); }),
            "rows.txt: a data file is called .json or .csv by the form that it has");
  EXPECT_EQ(FailureOf([] { ReadFillFile("none.csv", List()); }),
            "none.csv: can't open the data file: No such file or directory");
}

TEST(CsvDocument, PassesOverBlankLinesAndAByteOrderMark) {
  const auto records = ParseCsv(
      "\xEF\xBB\xBF"
      "a,b\n\n1,\"\"");
  ASSERT_EQ(records.size(), 2U);
  EXPECT_THAT(records[0].fields, ElementsAre("a", "b"));
  EXPECT_THAT(records[1].fields, ElementsAre("1", ""));
  EXPECT_EQ(records[1].line, 3U);
}

}  // namespace
}  // namespace rangewerks::apps
