// Reading the cells of declared ranges by type.
#include <gmock/gmock.h>

#include <limits>

#include "automation/conversions.h"
#include "support/matches_regex.h"
#include "support/sheet_fixture.h"

namespace rangewerks::tests {
namespace {

using automation::Argument;
using automation::Date;
using automation::DateOf;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::string LevelOf(const std::string& procedure) {
  return procedure + " of Class Module clsInterfaceRangeList Line#:[0-9]+";
}

class TypedReads : public SheetFixture {
 protected:
  /// Declares a detail range of nine rows at A1, holding `content` in its first cell.
  clsInterfaceRangeList::Record Place(eRangeDataType type, const Variant& content = {}) const {
    Define("qty", "=Sheet1!$A$1:$A$9");
    auto record = list->Add("qty", hdiDetail, type, false, "The range");
    if (!content.IsEmpty()) Put("A1", content);
    list->SetIfRangesExist();
    return record;
  }
  void PlaceError(eRangeDataType type) {
    Place(type);
    host.SetErrorValue(Cells("A1"), 2007);
  }
  /// What each typed read makes of the first cell; the value argument starts as something else.
  struct Outcome {
    bool found;
    Variant value;
    friend bool operator==(const Outcome&, const Outcome&) = default;
  };
  Outcome Val(std::int32_t line = 1) const {
    double value = -77;
    const bool found = list->GetValRange("qty", value, line);
    return {found, value};
  }
  Outcome Int(std::int32_t line = 1) const {
    std::int16_t value = -77;
    const bool found = list->GetIntRange("qty", value, line);
    return {found, value};
  }
  Outcome Yn(std::int32_t line = 1) const {
    bool value = true;
    const bool found = list->GetYNRange("qty", value, line);
    return {found, value};
  }
  Outcome Str(std::int32_t line = 1) const {
    std::string value = "before";
    const bool found = list->GetStrRange("qty", value, line);
    return {found, value};
  }
  Outcome Day(std::int32_t line = 1) const {
    Date value{-77};
    const bool found = list->GetDateRange("qty", value, line);
    return {found, value};
  }
  static Outcome Found(const Variant& value) { return {true, value}; }
  static Outcome NotFound(const Variant& value) { return {false, value}; }
  static const std::int16_t kNone = 0;
};

TEST_F(TypedReads, TheErrorNumbersArePublished) {
  EXPECT_EQ(static_cast<std::int32_t>(errRwkInvalidRangeValue), -2147216004);
  EXPECT_EQ(static_cast<std::int32_t>(errPLInvalidDecimalPlaces), -2147216003);
}

TEST_F(TypedReads, ADeclaredRangeThatIsNotOnTheSheetReadsAsNotFoundWithoutAnError) {
  list->Add("qty", hdiDetail, rdtString);
  list->SetIfRangesExist();
  EXPECT_THAT(CallsOf([&] {
                EXPECT_EQ(Val(), NotFound(0.0));
                EXPECT_EQ(Int(), NotFound(kNone));
                EXPECT_EQ(Yn(), NotFound(false));
                EXPECT_EQ(Str(), NotFound(""));
                EXPECT_EQ(Day(), NotFound(Date{0}));
                EXPECT_EQ(list->GetStrRangeBlk("qty", 1), "");
              }),
              IsEmpty());
  EXPECT_EQ(list->get_InvalidRange(), "");
}

TEST_F(TypedReads, ANameThatIsNotDeclaredRaisesTheErrorOfRangeExistsAndIsTheInvalidRange) {
  const std::vector<std::pair<std::string, std::function<void()>>> reads = {
      {"GetValRange", [&] { Val(); }},
      {"GetIntRange", [&] { Int(); }},
      {"GetYNRange", [&] { Yn(); }},
      {"GetStrRange", [&] { Str(); }},
  };
  for (const auto& [procedure, read] : reads) {
    list = std::make_shared<clsInterfaceRangeList>();
    const Error error = ErrorOf(read);
    EXPECT_EQ(error.Number(), static_cast<std::int32_t>(0x80040000));
    EXPECT_EQ(error.Description(), "RangeExists called on range not on list (qty)");
    EXPECT_THAT(error.Source(),
                MatchesRegex("Line No\\.: [0-9]+ RangeExists\r\n" + LevelOf(procedure)));
    EXPECT_EQ(list->get_InvalidRange(), "qty");
  }
}

TEST_F(TypedReads, GetDateRangeOfANameThatIsNotDeclaredLeavesTheInvalidRangeAlone) {
  const Error error = ErrorOf([&] { Day(); });
  EXPECT_EQ(error.Description(), "RangeExists called on range not on list (qty)");
  EXPECT_THAT(error.Source(),
              MatchesRegex("Line No\\.: [0-9]+ RangeExists\r\n" + LevelOf("GetDateRange")));
  EXPECT_EQ(list->get_InvalidRange(), "");
}

TEST_F(TypedReads, ABlankCellReadsAsNotFoundUnlessASwitchSaysOtherwise) {
  const auto record = Place(rdtString);
  const auto expectAll = [&](bool found) {
    EXPECT_EQ(Val(), (Outcome{found, 0.0}));
    EXPECT_EQ(Int(), (Outcome{found, kNone}));
    EXPECT_EQ(Yn(), (Outcome{found, false}));
    EXPECT_EQ(Str(), (Outcome{found, ""}));
    EXPECT_EQ(Day(), (Outcome{found, Date{0}}));
  };
  expectAll(false);
  list->let_BlankRangeIsThere(true);
  expectAll(true);
  list->let_BlankRangeIsThere(false);
  record->let_BlankValueIsFound(true);
  expectAll(true);
}

TEST_F(TypedReads, ACellWithOnlySpacesCountsAsBlank) {
  Place(rdtString, "   ");
  EXPECT_EQ(Val(), NotFound(0.0));
  EXPECT_EQ(Int(), NotFound(kNone));
  EXPECT_EQ(Yn(), NotFound(false));
  EXPECT_EQ(Str(), NotFound(""));
  EXPECT_EQ(Day(), NotFound(Date{0}));
}

TEST_F(TypedReads, GetValRangeReadsNumbersAndTextsThatAreNumbers) {
  Place(rdtDouble, 1234.56);
  EXPECT_EQ(Val(), Found(1234.56));
  Put("A1", "' -1,234.5 ");
  EXPECT_EQ(Val(), Found(-1234.5));
}

TEST_F(TypedReads, GetValRangeHonoursTheLocalesSeparators) {
  automation::Locale german;
  german.decimalSeparator = ",";
  german.thousandsSeparator = ".";
  automation::Locale::SetCurrent(german);
  Place(rdtDouble, "'1.234,5");
  const Outcome outcome = Val();
  automation::Locale::SetCurrent({});
  EXPECT_EQ(outcome, Found(1234.5));
}

TEST_F(TypedReads, TooManyDecimalPlacesRaiseTheFixedWordsAndLeaveTheNumberAsRead) {
  Place(rdtDouble, "'1.005");
  EXPECT_EQ(Val(), Found(1.005));
  list->let_ValidateDecimalPlaces(true);
  double value = -77;
  const Error error = ErrorOf([&] { list->GetValRange("qty", value, 1); });
  EXPECT_EQ(error.Number(), static_cast<std::int32_t>(errPLInvalidDecimalPlaces));
  EXPECT_EQ(error.Description(), "More than 2 Decimal places are not allowed");
  EXPECT_THAT(error.Source(), MatchesRegex("Line No\\.: [0-9]+ " + LevelOf("GetValRange")));
  EXPECT_EQ(value, 1.005);
  EXPECT_EQ(list->get_InvalidRange(), "qty");
  EXPECT_EQ(list->get_InvalidRow(), 1);
}

TEST_F(TypedReads, TheWordsForDecimalPlacesSayTwoWhateverIsAllowed) {
  Place(rdtDouble, 1.23456)->let_DecimalPlaces(4);
  list->let_ValidateDecimalPlaces(true);
  EXPECT_EQ(ErrorOf([&] { Val(); }).Description(), "More than 2 Decimal places are not allowed");
  Put("A1", 1.2345);
  EXPECT_EQ(Val(), Found(1.2345));
}

TEST_F(TypedReads, ANegativeDecimalPlacesExemptsTheRange) {
  Place(rdtDouble, 1.23456)->let_DecimalPlaces(-1);
  list->let_ValidateDecimalPlaces(true);
  EXPECT_EQ(Val(), Found(1.23456));
}

TEST_F(TypedReads, NoDecimalPlacesAllowWholeNumbersOnly) {
  Place(rdtDouble, 12.0)->let_DecimalPlaces(0);
  list->let_ValidateDecimalPlaces(true);
  EXPECT_EQ(Val(), Found(12.0));
  Put("A1", 12.5);
  EXPECT_EQ(ErrorOf([&] { Val(); }).Number(), static_cast<std::int32_t>(errPLInvalidDecimalPlaces));
}

TEST_F(TypedReads, AmountsInCentsOfAnySizePassTheDecimalPlaces) {
  Place(rdtDouble);
  list->let_ValidateDecimalPlaces(true);
  for (const double amount : {0.01, 0.07, 0.29, 1.15, 4.35, 1234567.89, 9999999999.99, -0.1}) {
    Put("A1", amount);
    EXPECT_EQ(Val(), Found(amount));
  }
}

TEST_F(TypedReads, LettersInANumberRangeRaiseTheErrorWithDescriptionAndName) {
  Place(rdtDouble, "12 apples");
  double value = -77;
  const Error error = ErrorOf([&] { list->GetValRange("qty", value, 1); });
  EXPECT_EQ(error.Number(), static_cast<std::int32_t>(errRwkInvalidRangeValue));
  EXPECT_EQ(error.Description(), "Invalid data in range 'The range' (qty)");
  EXPECT_THAT(error.Source(), MatchesRegex("Line No\\.: [0-9]+ " + LevelOf("GetValRange")));
  EXPECT_EQ(value, -77);
}

TEST_F(TypedReads, LettersInAnIntegerRangeReadAsZeroAndFound) {
  Place(rdtInteger, "apples");
  EXPECT_EQ(Int(), Found(kNone));
}

TEST_F(TypedReads, GetIntRangeTakesTheLeadingNumberRoundedDown) {
  Place(rdtInteger);
  const std::vector<std::pair<Variant, std::int16_t>> table = {
      {"12 apples", 12}, {12.9, 12},       {-1.5, -2},     {"'-0.1", -1},
      {32767.5, 32767},  {-32768, -32768}, {"1 2 3", 123}, {true, 0},
  };
  for (const auto& [content, expected] : table) {
    Put("A1", content);
    EXPECT_EQ(Int(), Found(expected));
  }
}

TEST_F(TypedReads, ANumberBeyond16BitsOverflowsUnchanged) {
  Place(rdtInteger, 32768);
  std::int16_t value = -77;
  const Error error = ErrorOf([&] { list->GetIntRange("qty", value, 3 - 2); });
  EXPECT_EQ(error.Number(), 6);
  EXPECT_EQ(error.Description(), "Overflow");
  EXPECT_THAT(error.Source(), MatchesRegex("Line No\\.: [0-9]+ " + LevelOf("GetIntRange")));
  EXPECT_EQ(value, -77);
  EXPECT_EQ(list->get_InvalidRange(), "qty");
  Put("A1", -32769);
  EXPECT_EQ(ErrorOf([&] { Int(); }).Number(), 6);
}

TEST_F(TypedReads, TheFourYesAndNoTextsAreAcceptedInAnyCase) {
  Place(rdtYesNo);
  for (const char* text : {"YES", "Y", "yes", "y", "Yes", " yEs "}) {
    Put("A1", text);
    EXPECT_EQ(Yn(), Found(true)) << text;
  }
  for (const char* text : {"NO", "N", "no", "n", "No", " nO "}) {
    Put("A1", text);
    EXPECT_EQ(Yn(), Found(false)) << text;
  }
}

TEST_F(TypedReads, AnotherTextInAYesNoRangeIsAnInvalidEntry) {
  Place(rdtYesNo);
  for (const Variant& content : {Variant("maybe"), Variant(true), Variant(1.0), Variant("YE")}) {
    Put("A1", content);
    bool value = true;
    const Error error = ErrorOf([&] { list->GetYNRange("qty", value, 1); });
    EXPECT_EQ(error.Number(), static_cast<std::int32_t>(errRwkInvalidRangeValue));
    EXPECT_EQ(error.Description(), "Invalid entry in Y/N range");
    EXPECT_FALSE(value);
  }
}

TEST_F(TypedReads, AnErrorValueInANumberIntegerOrYesNoRangeIsInvalidData) {
  PlaceError(rdtDouble);
  for (const auto& read :
       std::vector<std::function<void()>>{[&] { Val(); }, [&] { Int(); }, [&] { Yn(); }}) {
    const Error error = ErrorOf(read);
    EXPECT_EQ(error.Number(), static_cast<std::int32_t>(errRwkInvalidRangeValue));
    EXPECT_EQ(error.Description(), "Invalid data in range 'The range' (qty)");
  }
}

TEST_F(TypedReads, AnErrorValueInAStringRangeIsATypeMismatchUnchanged) {
  PlaceError(rdtString);
  const Error error = ErrorOf([&] { Str(); });
  EXPECT_EQ(error.Number(), 13);
  EXPECT_EQ(error.Description(), "Type mismatch");
  EXPECT_THAT(error.Source(), MatchesRegex("Line No\\.: [0-9]+ " + LevelOf("GetStrRange")));
  EXPECT_EQ(list->get_InvalidRange(), "qty");
}

TEST_F(TypedReads, AnErrorValueInADateRangeIsATypeMismatchAndLeavesTheInvalidRangeAlone) {
  PlaceError(rdtDate);
  EXPECT_EQ(ErrorOf([&] { Day(); }).Number(), 13);
  EXPECT_EQ(list->get_InvalidRange(), "");
}

TEST_F(TypedReads, GetStrRangeTrimsBothSidesWhateverStripSpacesOnDownloadSays) {
  Place(rdtString, "  two words ");
  EXPECT_EQ(Str(), Found("two words"));
  list->let_StripSpacesOnDownload(true);
  EXPECT_EQ(Str(), Found("two words"));
}

TEST_F(TypedReads, DataLengthCutsTheTextWithoutAnError) {
  const auto record = Place(rdtString, "abcdef");
  record->let_DataLength(3);
  EXPECT_EQ(Str(), Found("abc"));
  record->let_DataLength(0);
  EXPECT_EQ(Str(), Found("abcdef"));
  record->let_DataLength(-1);
  EXPECT_EQ(Str(), Found("abcdef"));
  record->let_DataLength(7);
  EXPECT_EQ(Str(), Found("abcdef"));
}

TEST_F(TypedReads, DataLengthCountsCharactersAndNotBytes) {
  Place(rdtString, "äöüß€")->let_DataLength(4);
  EXPECT_EQ(Str(), Found("äöüß"));
}

TEST_F(TypedReads, GetStrRangeGivesNumbersDatesAndBooleansAsText) {
  Place(rdtString, 1234.5);
  EXPECT_EQ(Str(), Found("1234.5"));
  Put("A1", DateOf(2024, 1, 31));
  EXPECT_EQ(Str(), Found("1/31/2024"));
  Put("A2", true);
  EXPECT_EQ(Str(2), Found("True"));
}

TEST_F(TypedReads, GetStrRangeBlkReturnsTheTextOfGetStrRange) {
  Place(rdtString, " abc ");
  EXPECT_EQ(list->GetStrRangeBlk("qty", 1), "abc");
  EXPECT_EQ(list->GetStrRangeBlk("qty", 2), "");
  const Error error = ErrorOf([&] { list->GetStrRangeBlk("nowhere", 1); });
  EXPECT_THAT(error.Source(),
              MatchesRegex("Line No\\.: [0-9]+ Line No\\.: [0-9]+ RangeExists\r\n" +
                           LevelOf("GetStrRange") + "\r\n" + LevelOf("GetStrRangeBlk")));
}

TEST_F(TypedReads, GetDateRangeReadsDatesAndDropsTheTimeOfDay) {
  Place(rdtDate, DateOf(2024, 2, 29));
  EXPECT_EQ(Day(), Found(DateOf(2024, 2, 29)));
  Put("A1", Date{DateOf(2024, 2, 29).serial + 0.75});
  EXPECT_EQ(Day(), Found(DateOf(2024, 2, 29)));
}

TEST_F(TypedReads, GetDateRangeReadsTextsInTheOrderOfTheLocale) {
  Place(rdtDate, "'3/4/2024");
  EXPECT_EQ(Day(), Found(DateOf(2024, 3, 4)));
  automation::Locale dayFirst;
  dayFirst.dateOrder = automation::DateOrder::DayFirst;
  dayFirst.shortDate = "dd/mm/yyyy";
  automation::Locale::SetCurrent(dayFirst);
  host.SetInternational(excel::xlDateOrder, 1);
  const Outcome outcome = Day();
  automation::Locale::SetCurrent({});
  EXPECT_EQ(outcome, Found(DateOf(2024, 4, 3)));
}

TEST_F(TypedReads, GetDateRangeWritesTheTextInTheHostsDateOrderFirst) {
  // A host whose order differs from the locale's turns day and month round on the way.
  Place(rdtDate, "'3/4/2024");
  host.SetInternational(excel::xlDateOrder, 1);
  EXPECT_EQ(Day(), Found(DateOf(2024, 4, 3)));
  host.SetInternational(excel::xlDateOrder, 2);
  EXPECT_EQ(Day(), Found(DateOf(2024, 3, 4)));
  host.SetInternational(excel::xlDateOrder, 9);  // no format: the text as it is
  EXPECT_EQ(Day(), Found(DateOf(2024, 3, 4)));
}

TEST_F(TypedReads, AnImpossibleDateIsInvalidAndLeavesRangeAndLineBehind) {
  Place(rdtDate, "'30/02/2024");
  Date value{-77};
  const Error error = ErrorOf([&] { list->GetDateRange("qty", value, 1); });
  EXPECT_EQ(error.Number(), static_cast<std::int32_t>(errRwkInvalidRangeValue));
  EXPECT_EQ(error.Description(), "Invalid date in range qty");
  EXPECT_THAT(error.Source(), MatchesRegex("Line No\\.: [0-9]+ " + LevelOf("GetDateRange")));
  EXPECT_EQ(value, Date{-77});
  EXPECT_EQ(list->get_InvalidRange(), "qty");
  EXPECT_EQ(list->get_InvalidRow(), 1);
}

TEST_F(TypedReads, AFailureToTellTheDateOrderIsAnInvalidDate) {
  Place(rdtDate, DateOf(2024, 2, 29));
  host.Calls().FailMember("Application.International", 1004, "no");
  const Error error = ErrorOf([&] { Day(); });
  EXPECT_EQ(error.Number(), static_cast<std::int32_t>(errRwkInvalidRangeValue));
  EXPECT_EQ(error.Description(), "Invalid date in range qty");
}

TEST_F(TypedReads, AMissingAreaGoesOutUnchangedWithTheSourceOfEachLevel) {
  Place(rdtString, "x");
  workbook.Get(Member("Names"), {"qty"}).AsObject().Call(Member("Delete"));
  const std::vector<std::pair<std::string, std::function<void()>>> reads = {
      {"GetValRange", [&] { Val(4); }},
      {"GetIntRange", [&] { Int(4); }},
      {"GetYNRange", [&] { Yn(4); }},
      {"GetStrRange", [&] { Str(4); }},
  };
  for (const auto& [procedure, read] : reads) {
    const Error error = ErrorOf(read);
    EXPECT_EQ(error.Number(), 1004);
    EXPECT_EQ(error.Description(),
              "Error finding area on sheet referred to by range: qty (Full name:qty).");
    EXPECT_THAT(error.Source(), MatchesRegex("Line No\\.: [0-9]+ Line No\\.: [0-9]+ .*\r\n" +
                                             LevelOf("GetRange") + "\r\n" + LevelOf(procedure)));
    EXPECT_EQ(list->get_InvalidRow(), 4);
  }
}

TEST_F(TypedReads, AMissingAreaInADateReadLeavesInvalidRangeAndRowAsTheyWere) {
  Place(rdtString, "x");
  ErrorOf([&] { list->GetValRange("qty", *std::make_unique<double>(), 1); });
  workbook.Get(Member("Names"), {"qty"}).AsObject().Call(Member("Delete"));
  list->Add("other", hdiDetail, rdtDate)->let_RangeExists(true);
  Date value;
  const Error error = ErrorOf([&] { list->GetDateRange("other", value, 5); });
  EXPECT_EQ(error.Number(), 1004);
  EXPECT_THAT(error.Source(),
              MatchesRegex(".*" + LevelOf("GetRange") + "\r\n" + LevelOf("GetDateRange")));
  EXPECT_EQ(list->get_InvalidRange(), "qty");
  EXPECT_EQ(list->get_InvalidRow(), 1);
}

TEST_F(TypedReads, ATypeMismatchOfTheHostWhileReadingIsInvalidData) {
  Place(rdtDouble, 1.0);
  host.Calls().FailMember("Range.Value", 13, "host mismatch");
  const Error error = ErrorOf([&] { Val(); });
  EXPECT_EQ(error.Number(), static_cast<std::int32_t>(errRwkInvalidRangeValue));
  EXPECT_EQ(error.Description(), "Invalid data in range 'The range' (qty)");
}

TEST_F(TypedReads, ARangeThatActsAsAHeaderReadsItsFirstRowAndReportsTheLineGiven) {
  const auto record = Place(rdtDouble, "bad");
  Put("A7", 7.0);
  record->let_BecomeHeader(true);
  ErrorOf([&] { Val(7); });
  EXPECT_EQ(list->get_InvalidRow(), 7);
  EXPECT_EQ(list->get_InvalidRangeType(), hdiDetail);
  record->let_DetailIndicator(hdiHeader);
  EXPECT_EQ(list->get_InvalidRow(), 0);
  EXPECT_EQ(list->get_InvalidRangeType(), hdiHeader);
  Put("A1", 1.0);
  EXPECT_EQ(Val(7), Found(1.0));
}

TEST_F(TypedReads, TheLineIndexPicksTheCell) {
  Place(rdtDouble, 1.0);
  Put("A9", 9.0);
  EXPECT_EQ(Val(9), Found(9.0));
}

TEST_F(TypedReads, AfterAFailedReadAndAGoodOneInvalidRangeStillNamesTheFailedRange) {
  Place(rdtDouble, "bad");
  Put("A2", 2.0);
  ErrorOf([&] { Val(1); });
  EXPECT_EQ(Val(2), Found(2.0));
  EXPECT_EQ(list->get_InvalidRange(), "qty");
  EXPECT_EQ(list->get_InvalidRow(), 1);
}

TEST_F(TypedReads, InvalidRangeTypeAndRowWithoutAFailedReadRaise) {
  for (const auto& read : std::vector<std::function<void()>>{
           [&] { (void)list->get_InvalidRangeType(); }, [&] { (void)list->get_InvalidRow(); }}) {
    const Error error = ErrorOf(read);
    EXPECT_EQ(error.Number(), static_cast<std::int32_t>(0x80040000));
    EXPECT_EQ(error.Description(), "No invalid range set");
    EXPECT_THAT(error.Source(), MatchesRegex("Line No\\.: [0-9]+ " + LevelOf("InvalidRangeType")));
  }
}

TEST_F(TypedReads, EachReadMakesTheseHostCallsAndNoOthers) {
  Place(rdtString, DateOf(2024, 1, 31));
  const auto getRange = std::vector<std::string>{
      "Worksheet.Parent get", "Workbook.Names get \"qty\"", "Name.RefersToRange get"};
  const auto with = [&](const std::vector<std::string>& more) {
    auto calls = getRange;
    calls.insert(calls.end(), more.begin(), more.end());
    return calls;
  };
  const auto value = with({"Range.Cells get 1, 1", "Range.Value get"});
  EXPECT_EQ(CallsOf([&] { ErrorOf([&] { Val(); }); }), value);
  EXPECT_EQ(CallsOf([&] { Int(); }), value);
  EXPECT_EQ(CallsOf([&] { ErrorOf([&] { Yn(); }); }), value);
  EXPECT_EQ(CallsOf([&] { Str(); }), with({"Range.Cells get 1, 1", "Range._Default get"}));
  EXPECT_EQ(CallsOf([&] { Day(); }),
            with({"Range.Cells get 1, 1", "Range._Default get", "Worksheet.Application get",
                  "Application.International get 32"}));
  EXPECT_EQ(CallsOf([&] { Day(2); }), with({"Range.Cells get 2, 1", "Range._Default get"}));
}

TEST_F(TypedReads, AReadByNamePassesTheValueOutToTheCallersVariable) {
  Place(rdtDouble, 12.5);
  Variant value;
  EXPECT_EQ(Object(list).Call(Member("GetValRange"), {"qty", Argument::Reference(value), 1}),
            Variant(true));
  EXPECT_EQ(value, Variant(12.5));
  list->let_ValidateDecimalPlaces(true);
  list->Item("qty")->let_DecimalPlaces(0);
  value = 0;
  ErrorOf([&] {
    Object(list).Call(Member("GetValRange"), {"qty", Argument::Reference(value), 1});
  });
  EXPECT_EQ(value, Variant(12.5));
}

}  // namespace
}  // namespace rangewerks::tests
