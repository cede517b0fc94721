// Moving a whole line of ranges between the sheet and the records' values.
#include <gmock/gmock.h>

#include "automation/conversions.h"
#include "support/matches_regex.h"
#include "support/sheet_fixture.h"

namespace rangewerks::tests {
namespace {

using automation::Date;
using automation::DateOf;
using automation::Null;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class BulkValues : public SheetFixture {
 protected:
  /// Declares a range over the first three rows of a column.
  clsInterfaceRangeList::Record Place(const std::string& name, const std::string& column,
                                      eRangeDataType type,
                                      eRangeHeadDetailInd indicator = hdiDetail) const {
    Define(name, "=Sheet1!$" + column + "$1:$" + column + "$3");
    return Declare(name, indicator, type);
  }
  void PlaceEveryType() const {
    Place("text", "A", rdtString);
    Place("amount", "B", rdtDouble);
    Place("day", "C", rdtDate);
    Place("qty", "D", rdtInteger);
    Place("paid", "E", rdtYesNo);
    list->SetIfRangesExist();
  }
  const Variant& ValueOf(const std::string& name) const { return list->Item(name)->get_Value(); }
  bool FoundOf(const std::string& name) const { return list->Item(name)->get_IsValueFound(); }
  Variant At(const std::string& address) const { return Cells(address).get_Value(); }
};

TEST_F(BulkValues, GetValuesStoresEachTypeInItsOwnKind) {
  PlaceEveryType();
  Put("A2", " text ");
  Put("B2", 12.5);
  Put("C2", DateOf(2024, 1, 31));
  Put("D2", 7);
  Put("E2", "Y");
  list->GetValues(2, hdiDetail);
  EXPECT_EQ(ValueOf("text"), Variant("text"));
  EXPECT_EQ(ValueOf("amount"), Variant(12.5));
  EXPECT_EQ(ValueOf("day"), Variant(DateOf(2024, 1, 31)));
  EXPECT_EQ(ValueOf("qty"), Variant(std::int16_t{7}));
  EXPECT_EQ(ValueOf("paid"), Variant(true));
  for (const char* name : {"text", "amount", "day", "qty", "paid"}) EXPECT_TRUE(FoundOf(name));
}

TEST_F(BulkValues, AValueThatIsNotFoundLeavesTheEmptyValueOfItsType) {
  PlaceEveryType();
  for (const char* name : {"text", "amount", "day", "qty", "paid"}) {
    list->Item(name)->let_Value("before");
    list->Item(name)->let_IsValueFound(true);
  }
  list->GetValues(1, hdiDetail);
  EXPECT_EQ(ValueOf("text"), Variant(""));
  EXPECT_EQ(ValueOf("amount"), Variant(0.0));
  EXPECT_EQ(ValueOf("day"), Variant(Date{0}));
  EXPECT_EQ(ValueOf("qty"), Variant(std::int16_t{0}));
  EXPECT_EQ(ValueOf("paid"), Variant(false));
  for (const char* name : {"text", "amount", "day", "qty", "paid"}) EXPECT_FALSE(FoundOf(name));
}

TEST_F(BulkValues, GetValuesOfARangeThatIsNotOnTheSheetLeavesItsEmptyValue) {
  Declare("text");
  list->SetIfRangesExist();
  EXPECT_THAT(CallsOf([&] { list->GetValues(1, hdiDetail); }), IsEmpty());
  EXPECT_EQ(ValueOf("text"), Variant(""));
  EXPECT_FALSE(FoundOf("text"));
}

TEST_F(BulkValues, GetValuesOfDetailRangesSkipsHeaderDetailRangesAndAllOtherKinds) {
  Place("detail", "A", rdtString);
  Place("either", "B", rdtString, hdiHeaderDetail);
  Place("header", "C", rdtString, hdiHeader);
  list->SetIfRangesExist();
  Put("A1:C1", "x");
  list->GetValues(1, hdiDetail);
  EXPECT_EQ(ValueOf("detail"), Variant("x"));
  EXPECT_EQ(ValueOf("either"), Variant(std::int16_t{0}));
  EXPECT_EQ(ValueOf("header"), Variant(std::int16_t{0}));
  list->GetValues(1, hdiHeaderDetail);
  EXPECT_EQ(ValueOf("either"), Variant("x"));
  EXPECT_EQ(ValueOf("header"), Variant(std::int16_t{0}));
}

TEST_F(BulkValues, ADownloadRangeIsNeverReadBackButIsWritten) {
  const auto record = Place("reference", "A", rdtString);
  record->let_IsDownload(true);
  record->let_Value("posted");
  list->SetIfRangesExist();
  Put("A1", "old");
  EXPECT_THAT(CallsOf([&] { list->GetValues(1, hdiDetail); }), IsEmpty());
  EXPECT_EQ(record->get_Value(), Variant("posted"));
  list->PutValues(1, hdiDetail);
  EXPECT_EQ(At("A1"), Variant("posted"));
}

TEST_F(BulkValues, ATypeOutsideTheFiveIsSkipped) {
  Place("odd", "A", static_cast<eRangeDataType>(9))->let_Value("x");
  list->SetIfRangesExist();
  EXPECT_THAT(CallsOf([&] {
                list->GetValues(1, hdiDetail);
                list->PutValues(1, hdiDetail);
              }),
              IsEmpty());
  EXPECT_EQ(ValueOf("odd"), Variant("x"));
}

TEST_F(BulkValues, AReaderThatFailsStopsGetValuesWithTheRecordsBeforeItRead) {
  PlaceEveryType();
  Put("A1", "text");
  Put("B1", "apples");
  Put("D1", 7);
  const Error error = ErrorOf([&] { list->GetValues(1, hdiDetail); });
  EXPECT_EQ(error.Number(), static_cast<std::int32_t>(errRwkInvalidRangeValue));
  EXPECT_EQ(error.Description(), "Invalid data in range '' (amount)");
  EXPECT_THAT(error.Source(),
              MatchesRegex("Line No\\.: [0-9]+ Line No\\.: [0-9]+ GetValRange of Class Module "
                           "clsInterfaceRangeList Line#:[0-9]+\r\nGetValues of Class Module "
                           "clsInterfaceRangeList Line#:[0-9]+"));
  EXPECT_EQ(list->get_InvalidRange(), "amount");
  EXPECT_EQ(list->get_InvalidRow(), 1);
  EXPECT_EQ(ValueOf("text"), Variant("text"));
  EXPECT_EQ(ValueOf("amount"), Variant(std::int16_t{0}));
  EXPECT_EQ(ValueOf("qty"), Variant(std::int16_t{0}));
}

TEST_F(BulkValues, PutValuesConvertsAndWritesEachTypeInListOrder) {
  PlaceEveryType();
  list->Item("text")->let_Value(12.5);
  list->Item("amount")->let_Value("1,234.5");
  list->Item("day")->let_Value("1/31/2024");
  list->Item("qty")->let_Value(std::int16_t{7});
  list->Item("paid")->let_Value(1);
  const auto lines = CallsOf([&] { list->PutValues(2, hdiDetail); });
  std::vector<std::string> writes;
  for (const std::string& line : lines) {
    if (line.starts_with("Range.Value let")) writes.push_back(line);
  }
  EXPECT_THAT(writes, ElementsAre("Range.Value let \"12.5\"", "Range.Value let 1234.5",
                                  "Range.Value let #2024-01-31#", "Range.Value let \" 7\"",
                                  "Range.Value let \"Y\""));
}

TEST_F(BulkValues, AnIntegerIsWrittenAsTextWithABlankInThePlaceOfTheSign) {
  const auto record = Place("qty", "A", rdtInteger);
  list->SetIfRangesExist();
  const std::vector<std::pair<Variant, std::string>> table = {
      {std::int16_t{7}, " 7"}, {std::int16_t{0}, " 0"}, {std::int16_t{-7}, "-7"},
      {"12", " 12"},           {-32768, "-32768"},
  };
  for (const bool strip : {false, true}) {
    list->let_StripSpacesOnDownload(strip);
    for (const auto& [value, text] : table) {
      record->let_Value(value);
      EXPECT_THAT(CallsOf([&] { list->PutValues(1, hdiDetail); }),
                  Contains("Range.Value let \"" + text + "\""));
    }
  }
}

TEST_F(BulkValues, AnIntegerRangeWithoutAValueWritesZero) {
  Place("qty", "A", rdtInteger)->let_Value({});
  list->SetIfRangesExist();
  EXPECT_THAT(CallsOf([&] { list->PutValues(1, hdiDetail); }), Contains("Range.Value let \" 0\""));
}

TEST_F(BulkValues, TheBlankStaysInACellThatHoldsTexts) {
  Place("qty", "A", rdtInteger)->let_Value(7);
  list->SetIfRangesExist();
  Cells("A1").Let(Member("NumberFormat"), "@");
  list->PutValues(1, hdiDetail);
  EXPECT_EQ(At("A1"), Variant(" 7"));
}

TEST_F(BulkValues, PutValuesPassesOverWhatIsNotOnTheSheetAndWhatASwitchRefuses) {
  Declare("gone")->let_Value("x");
  Place("kept", "A", rdtString)->let_Value("new");
  Place("blank", "B", rdtString)->let_Value("new");
  list->SetIfRangesExist();
  list->let_LeaveBlankOnPopulate(true);
  Put("A1", "old");
  list->PutValues(1, hdiDetail);
  EXPECT_EQ(At("A1"), Variant("old"));
  EXPECT_EQ(At("B1"), Variant("new"));
}

TEST_F(BulkValues, PutValuesTakesExactlyTheKindAskedFor) {
  Place("detail", "A", rdtString)->let_Value("x");
  Place("either", "B", rdtString, hdiHeaderDetail)->let_Value("x");
  list->SetIfRangesExist();
  list->PutValues(1, hdiHeaderDetail);
  EXPECT_EQ(At("A1"), Variant());
  EXPECT_EQ(At("B1"), Variant("x"));
}

TEST_F(BulkValues, AConversionThatFailsInPutValuesReachesTheCallerAsItIs) {
  Place("text", "A", rdtString)->let_Value("x");
  Place("amount", "B", rdtDouble)->let_Value("apples");
  Place("day", "C", rdtDate)->let_Value("x");
  list->SetIfRangesExist();
  const Error error = ErrorOf([&] { list->PutValues(1, hdiDetail); });
  EXPECT_EQ(error.Number(), 13);
  EXPECT_EQ(error.Description(), "Type mismatch");
  EXPECT_EQ(error.Source(), "");
  EXPECT_EQ(At("A1"), Variant("x"));
  list->Item("amount")->let_Value(Null{});
  EXPECT_EQ(ErrorOf([&] { list->PutValues(1, hdiDetail); }).Number(), 94);
}

TEST_F(BulkValues, AWriterThatFailsInPutValuesAddsItsOwnLineAlone) {
  Place("paid", "A", rdtYesNo);
  list->SetIfRangesExist();
  host.Calls().FailMember("Range.Value", 1004, "locked");
  EXPECT_THAT(ErrorOf([&] { list->PutValues(1, hdiDetail); }).Source(),
              MatchesRegex("Line No\\.: [0-9]+ Workbook\r\nPopulateYNRange of Class Module "
                           "clsInterfaceRangeList Line#:[0-9]+"));
}

TEST_F(BulkValues, WhatGetValuesReadPutValuesWritesBackUnchanged) {
  PlaceEveryType();
  Put("A1", "text");
  Put("B1", 12.5);
  Put("C1", DateOf(2024, 1, 31));
  Put("D1", -7);
  Put("E1", "N");
  list->GetValues(1, hdiDetail);
  list->PutValues(3, hdiDetail);
  for (const char* column : {"A", "B", "C", "D", "E"}) {
    EXPECT_EQ(At(std::string(column) + "3"), At(std::string(column) + "1")) << column;
  }
}

TEST_F(BulkValues, BothAreReachedByName) {
  Place("text", "A", rdtString);
  list->SetIfRangesExist();
  Put("A1", "x");
  const Object late(list);
  late.Call(Member("GetValues"), {1, 1});
  EXPECT_EQ(ValueOf("text"), Variant("x"));
  late.Call(Member("PutValues"), {}, {{Member("HeadDetailInd"), 1}, {Member("lIndex"), 2}});
  EXPECT_EQ(At("A2"), Variant("x"));
}

}  // namespace
}  // namespace rangewerks::tests
