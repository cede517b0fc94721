// Whether the layout of a sheet's ranges is sound, whether a selection can take a browse, and short
// dates made whole.
#include <gmock/gmock.h>

#include "automation/conversions.h"
#include "rangelist/ExcelFunctions.h"
#include "support/matches_regex.h"
#include "support/sheet_fixture.h"

namespace rangewerks::tests {
namespace {

using automation::DateOf;
using automation::kApplicationErrorBase;
using automation::Locale;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class SheetValidation : public SheetFixture {
 protected:
  /// Declares a range and gives it that area on the sheet; without one it is missing.
  clsInterfaceRangeList::Record Place(const std::string& name, eRangeHeadDetailInd indicator,
                                      const std::string& area = {}, bool mandatory = false) const {
    if (!area.empty()) Define(name, "=Sheet1!" + area);
    auto record = list->Add(name, indicator, rdtString, mandatory);
    list->SetIfRangesExist();
    return record;
  }
  /// The words of the failure, whose number and source are checked.
  std::string Refusal() const {
    const Error error = ErrorOf([&] { list->ValidateRanges(); });
    EXPECT_EQ(error.Number(), kApplicationErrorBase);
    EXPECT_THAT(error.Source(),
                MatchesRegex("Line No\\.: [0-9]+ Line No\\.: [0-9]+ ValidateRanges of Class Module "
                             "ExcelFunctions Line#:[0-9]+\r\nValidateRanges of Class Module "
                             "clsInterfaceRangeList Line#:[0-9]+"));
    return error.Description();
  }
};

TEST_F(SheetValidation, AnEmptyListIsSoundAndNeedsNoSheet) {
  EXPECT_THAT(CallsOf([&] { EXPECT_TRUE(list->ValidateRanges()); }), IsEmpty());
  list->set_ActSheet({});
  EXPECT_TRUE(list->ValidateRanges());
}

TEST_F(SheetValidation, ExcelFunctionsRaisesWithItsOwnLineAlone) {
  Place("a", hdiHeader, {}, true);
  const Error error = ErrorOf([&] { ExcelFunctions::ValidateRanges(list, {}); });
  EXPECT_EQ(error.Number(), kApplicationErrorBase);
  EXPECT_EQ(error.Description(), "Range 'a' must be defined.");
  EXPECT_THAT(error.Source(), MatchesRegex("Line No\\.: [0-9]+ ValidateRanges of Class Module "
                                           "ExcelFunctions Line#:[0-9]+"));
}

TEST_F(SheetValidation, AMandatoryRangeThatIsMissingIsNamed) {
  Place("there", hdiHeader, "$A$1", true);
  Place("optional", hdiHeader);
  Place("first", hdiHeader, {}, true);
  Place("second", hdiHeader, {}, true);
  EXPECT_EQ(Refusal(), "Range 'first' must be defined.");
}

TEST_F(SheetValidation, OnlyWhatTheRecordsSayCounts) {
  const auto record = Place("a", hdiHeader, "$A$1", true);
  record->let_RangeExists(false);
  EXPECT_EQ(Refusal(), "Range 'a' must be defined.");
}

TEST_F(SheetValidation, AnOptionalNominalCodeMayBeMissingWithoutProjectRanges) {
  Place("nominal_code", hdiDetail);
  EXPECT_TRUE(list->ValidateRanges());
}

TEST_F(SheetValidation, AMandatoryNominalCodeIsMadeGoodByBothProjectRanges) {
  const std::string words = "Must define either a nominal_code or project_code and expense_code";
  Place("nominal_code", hdiDetail, {}, true);
  EXPECT_EQ(Refusal(), words);
  Place("project_code", hdiDetail, "$A$1:$A$3");
  const auto expense = Place("exp_rev_code", hdiDetail);
  EXPECT_EQ(Refusal(), words);
  Define("exp_rev_code", "=Sheet1!$B$1:$B$3");
  list->SetIfRangesExist();
  EXPECT_TRUE(list->ValidateRanges());
  list->Item("project_code")->let_RangeExists(false);
  EXPECT_EQ(Refusal(), words);
}

TEST_F(SheetValidation, MandatoryProjectRangesThatAreMissingAreNoError) {
  Place("project_code", hdiDetail, {}, true);
  Place("exp_rev_code", hdiDetail, {}, true);
  EXPECT_TRUE(list->ValidateRanges());
}

TEST_F(SheetValidation, TheNamesWithAMeaningAreComparedWithRegardToCase) {
  Place("Nominal_Code", hdiDetail, {}, true);
  EXPECT_EQ(Refusal(), "Range 'Nominal_Code' must be defined.");
}

TEST_F(SheetValidation, DetailRangesOfDifferentLengthNameTheLastThatDiffersAndListAll) {
  Place("a", hdiDetail, "$A$1:$A$10");
  Place("b", hdiDetail, "$B$1:$B$12");
  Place("g", hdiDetail, "$C$1:$C$14");
  EXPECT_EQ(Refusal(),
            "Detail Ranges with different number of rows were found\r\n(First different found:g)"
            "\r\nRange : a - No. of Rows: 10\r\nRange : b - No. of Rows: 12"
            "\r\nRange : g - No. of Rows: 14");
}

TEST_F(SheetValidation, ADifferenceStaysOneWhenLaterRangesHaveTheFirstLength) {
  Place("a", hdiDetail, "$A$1:$A$10");
  Place("b", hdiDetail, "$B$1:$B$12");
  Place("g", hdiDetail, "$C$1:$C$10");
  EXPECT_EQ(Refusal(),
            "Detail Ranges with different number of rows were found\r\n(First different found:b)"
            "\r\nRange : a - No. of Rows: 10\r\nRange : b - No. of Rows: 12"
            "\r\nRange : g - No. of Rows: 10");
}

TEST_F(SheetValidation, ADifferenceInRowsIsReportedInThePlaceOfAMissingNominalCode) {
  Place("nominal_code", hdiDetail, {}, true);
  Place("a", hdiDetail, "$A$1:$A$2");
  Place("b", hdiDetail, "$B$1:$B$3");
  EXPECT_EQ(Refusal(),
            "Detail Ranges with different number of rows were found\r\n(First different found:b)"
            "\r\nRange : a - No. of Rows: 2\r\nRange : b - No. of Rows: 3");
}

TEST_F(SheetValidation, AHeaderDetailRangeOfOneRowCountsAsAHeader) {
  Place("h", hdiHeaderDetail, "$A$1");
  Place("a", hdiDetail, "$B$1:$B$10");
  EXPECT_TRUE(list->ValidateRanges());
}

TEST_F(SheetValidation, AHeaderDetailRangeOfOneRowStandsInTheReportAllTheSame) {
  Place("h", hdiHeaderDetail, "$A$1");
  Place("a", hdiDetail, "$B$1:$B$10");
  Place("b", hdiDetail, "$C$1:$C$9");
  EXPECT_EQ(Refusal(),
            "Detail Ranges with different number of rows were found\r\n(First different found:b)"
            "\r\nRange : h - No. of Rows: 1\r\nRange : a - No. of Rows: 10"
            "\r\nRange : b - No. of Rows: 9");
}

TEST_F(SheetValidation, AHeaderDetailRangeOfFiveRowsIsComparedWithTheDetailRanges) {
  Place("a", hdiDetail, "$A$1:$A$10");
  Place("h", hdiHeaderDetail, "$B$1:$B$5");
  EXPECT_EQ(Refusal(),
            "Detail Ranges with different number of rows were found\r\n(First different found:h)"
            "\r\nRange : a - No. of Rows: 10\r\nRange : h - No. of Rows: 5");
}

TEST_F(SheetValidation, AHeaderDetailRangeAheadOfTheDetailRangesSetsTheLength) {
  Place("h", hdiHeaderDetail, "$A$1:$A$5");
  Place("a", hdiDetail, "$B$1:$B$10");
  EXPECT_EQ(Refusal(),
            "Detail Ranges with different number of rows were found\r\n(First different found:a)"
            "\r\nRange : h - No. of Rows: 5\r\nRange : a - No. of Rows: 10");
}

TEST_F(SheetValidation, ADetailRangeOfOneRowSetsTheLengthUnlikeAHeaderDetailRange) {
  Place("a", hdiDetail, "$A$1");
  Place("b", hdiDetail, "$B$1:$B$2");
  EXPECT_EQ(Refusal(),
            "Detail Ranges with different number of rows were found\r\n(First different found:b)"
            "\r\nRange : a - No. of Rows: 1\r\nRange : b - No. of Rows: 2");
}

TEST_F(SheetValidation, ARangeOfTwoColumnsOutranksDifferentRows) {
  Place("a", hdiDetail, "$A$1:$A$10");
  Place("b", hdiDetail, "$B$1:$B$12");
  Place("wide", hdiDetail, "$C$1:$D$10");
  EXPECT_EQ(Refusal(), "Range wide has more than one column");
}

TEST_F(SheetValidation, TwoColumnsAreRefusedForEveryKindOfRange) {
  for (const auto kind : {hdiHeader, hdiDetail, hdiHeaderDetail, hdiNone}) {
    list->ClearList();
    Place("wide", kind, "$C$1:$D$1");
    EXPECT_EQ(Refusal(), "Range wide has more than one column");
  }
}

TEST_F(SheetValidation, AHeaderRangeOfTwoRowsIsRefused) {
  Place("h", hdiHeader, "$A$1:$A$2");
  EXPECT_EQ(Refusal(), "Header range h has more than one row");
}

TEST_F(SheetValidation, ARangeOfNoKindMayHaveAnyNumberOfRows) {
  Place("n", hdiNone, "$A$1:$A$2");
  Place("a", hdiDetail, "$B$1:$B$5");
  EXPECT_TRUE(list->ValidateRanges());
}

TEST_F(SheetValidation, TheChecksStopAtTheFirstErrorInListOrder) {
  Place("wide", hdiDetail, "$C$1:$D$1");
  Place("missing", hdiHeader, {}, true);
  EXPECT_EQ(Refusal(), "Range wide has more than one column");
}

TEST_F(SheetValidation, AnAreaThatIsGoneTakesTheSameWayOutWithItsOwnNumber) {
  Place("a", hdiHeader)->let_RangeExists(true);
  const Error error = ErrorOf([&] { list->ValidateRanges(); });
  EXPECT_EQ(error.Number(), 1004);
  EXPECT_EQ(error.Description(),
            "Error finding area on sheet referred to by range: a (Full name:a).");
  EXPECT_THAT(error.Source(),
              MatchesRegex("(Line No\\.: [0-9]+ ){3}Workbook\r\nGetRange of Class Module "
                           "clsInterfaceRangeList Line#:[0-9]+\r\nValidateRanges of Class Module "
                           "ExcelFunctions Line#:[0-9]+\r\nValidateRanges of Class Module "
                           "clsInterfaceRangeList Line#:[0-9]+"));
}

TEST_F(SheetValidation, TheHostIsAskedForColumnsAndRowsAndNoCell) {
  Place("a", hdiDetail, "$A$1:$A$2");
  Place("n", hdiNone, "$B$1");
  EXPECT_THAT(
      CallsOf([&] { list->ValidateRanges(); }),
      ElementsAre("Worksheet.Parent get", "Workbook.Names get \"a\"", "Name.RefersToRange get",
                  "Range.Columns get", "Range.Count get", "Range.Rows get", "Range.Count get",
                  "Worksheet.Parent get", "Workbook.Names get \"n\"", "Name.RefersToRange get",
                  "Range.Columns get", "Range.Count get"));
}

TEST_F(SheetValidation, IsReachedByNameOnTheListAndOnTheGlobalObject) {
  Place("a", hdiDetail, "$A$1:$A$2");
  EXPECT_EQ(Object(list).Call(Member("ValidateRanges")), Variant(true));
  const Object functions(std::make_shared<ExcelFunctions>(nullptr, nullptr));
  EXPECT_EQ(functions.Call(Member("ValidateRanges"), {list, Object(list->get_ActSheet())}),
            Variant(true));
  EXPECT_EQ(functions.Call(Member("ValidRangeForBrowse"), {Object(Cells("A1"))}), Variant(true));
  EXPECT_EQ(functions.Call(Member("FormatDateRange"), {Object(Cells("A1"))}), Variant(""));
}

class RangeForBrowse : public SheetFixture {};

TEST_F(RangeForBrowse, OneCellIsValid) {
  EXPECT_TRUE(ExcelFunctions::ValidRangeForBrowse(Cells("B2")));
}

TEST_F(RangeForBrowse, ABlockOfTwoByTwoIsRefusedForItsRows) {
  const Error error = ErrorOf([&] { ExcelFunctions::ValidRangeForBrowse(Cells("A1:B2")); });
  EXPECT_EQ(error.Number(), errRowsInvalidRangeForBrowse);
  EXPECT_EQ(error.Number(), 700);
  EXPECT_EQ(error.Description(), "Cannot browse - selected range has more than one row");
  EXPECT_EQ(error.Source(), "ValidRangeForBrowse");
}

TEST_F(RangeForBrowse, TwoColumnsOfOneRowAreRefused) {
  const Error error = ErrorOf([&] { ExcelFunctions::ValidRangeForBrowse(Cells("A1:B1")); });
  EXPECT_EQ(error.Number(), errColumnsInvalidRangeForBrowse);
  EXPECT_EQ(error.Number(), 701);
  EXPECT_EQ(error.Description(), "Cannot browse - selected range has more than one column");
  EXPECT_EQ(error.Source(), "ValidRangeForBrowse");
}

class ShortDates : public SheetFixture {
 protected:
  ShortDates() {
    Locale british;
    british.dateOrder = automation::DateOrder::DayFirst;
    british.shortDate = "dd/mm/yyyy";
    Locale::SetCurrent(british);
    host.SetInternational(excel::xlDateOrder, 1);
  }
  void TearDown() override { Locale::SetCurrent({}); }

  /// What is written to a cell that holds `content`; nothing when nothing is.
  std::vector<std::string> WrittenFor(const Variant& content) {
    Put("A1", content);
    std::vector<std::string> writes;
    for (const std::string& line :
         CallsOf([&] { EXPECT_EQ(ExcelFunctions::FormatDateRange(Cells("A1")), ""); })) {
      if (line.starts_with("Range.Value let")) writes.push_back(line);
    }
    return writes;
  }
};

TEST_F(ShortDates, SixDigitsBecomeADateOfThisCentury) {
  EXPECT_THAT(WrittenFor(311299), ElementsAre("Range.Value let \"31/12/2099\""));
  EXPECT_EQ(Cells("A1").get_Value(), Variant(DateOf(2099, 12, 31)));
}

TEST_F(ShortDates, FiveDigitsGetAZeroInFront) {
  EXPECT_THAT(WrittenFor(11299), ElementsAre("Range.Value let \"01/12/2099\""));
}

TEST_F(ShortDates, EightDigitsGiveTheFirstTwoOfTheYear) {
  EXPECT_THAT(WrittenFor(31122099), ElementsAre("Range.Value let \"31/12/20\""));
  EXPECT_EQ(Cells("A1").get_Value(), Variant(DateOf(2020, 12, 31)));
}

TEST_F(ShortDates, SevenDigitsAreTakenAsSixAndMoreWithoutAZeroInFront) {
  EXPECT_THAT(WrittenFor(1122099), ElementsAre("Range.Value let \"11/22/2009\""));
}

TEST_F(ShortDates, FewerThanFiveDigitsGetOneZeroInFrontAllTheSame) {
  EXPECT_THAT(WrittenFor(112), ElementsAre("Range.Value let \"01/12/20\""));
}

TEST_F(ShortDates, AShortYearBehindSlashesGetsTheCentury) {
  EXPECT_THAT(WrittenFor("'31/12/99"), ElementsAre("Range.Value let \"31/12/2099\""));
  EXPECT_EQ(Cells("A1").get_Value(), Variant(DateOf(2099, 12, 31)));
}

TEST_F(ShortDates, AFullDateAndAnyOtherLengthStay) {
  EXPECT_THAT(WrittenFor("'31/12/2099"), IsEmpty());
  EXPECT_THAT(WrittenFor(DateOf(2099, 12, 31)), IsEmpty());
  EXPECT_THAT(WrittenFor("'1/2/99"), IsEmpty());
}

TEST_F(ShortDates, AnEmptyCellStaysEmptyAndIsAskedOnce) {
  const excel::Range cell = Cells("A1");
  EXPECT_THAT(CallsOf([&] { EXPECT_EQ(ExcelFunctions::FormatDateRange(cell), ""); }),
              ElementsAre("Range._Default get"));
  EXPECT_EQ(cell.get_Value(), Variant());
}

TEST_F(ShortDates, AFailureIsReportedByTheMember) {
  host.SetErrorValue(Cells("A1"), 2007);
  const Error error = ErrorOf([&] { ExcelFunctions::FormatDateRange(Cells("A1")); });
  EXPECT_EQ(error.Number(), 13);
  EXPECT_THAT(error.Source(), MatchesRegex("Line No\\.: [0-9]+ FormatDateRange of Class Module "
                                           "ExcelFunctions Line#:[0-9]+"));
}

}  // namespace
}  // namespace rangewerks::tests
