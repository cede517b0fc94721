// Writing values into the cells of declared ranges.
#include <gmock/gmock.h>

#include <functional>
#include <utility>

#include "automation/conversions.h"
#include "rangelist/recordset.h"
#include "support/matches_regex.h"
#include "support/sheet_fixture.h"

namespace rangewerks::tests {
namespace {

using automation::Date;
using automation::DateOf;
using automation::Null;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::string LevelOf(const std::string& procedure) {
  return procedure + " of Class Module clsInterfaceRangeList Line#:[0-9]+";
}

class Writes : public SheetFixture {
 protected:
  /// Declares a detail range of nine rows at A1 and finds it on the sheet.
  clsInterfaceRangeList::Record Place() const {
    Define("qty", "=Sheet1!$A$1:$A$9");
    auto record = Declare("qty");
    list->SetIfRangesExist();
    return record;
  }
  Variant At(const std::string& address) const { return Cells(address).get_Value(); }
  std::string FormulaAt(const std::string& address) const { return Cells(address).get_Formula(); }
  /// Writes the field "fld" of a row that holds `value` in it to the first line.
  void PopulateFromField(const Variant& value) const {
    const auto row = std::make_shared<Recordset>();
    row->SetField("fld", value);
    list->PopulateRangeRs(row, "qty", "fld", 1);
  }
  /// Each write to a range, with the name under which it reports.
  std::vector<std::pair<std::string, std::function<void()>>> EveryWriteTo(
      const std::string& name) const {
    return {
        {"PopulateRange", [=, this] { list->PopulateRange(name, "new", 1); }},
        {"PopulateRange", [=, this] { list->PopulateDoubleRange(name, 1.5, 1); }},
        {"PopulateRange", [=, this] { list->PopulateDateRange(name, DateOf(2024, 1, 31), 1); }},
        {"PopulateYNRange", [=, this] { list->PopulateYNRange(name, true, 1); }},
        {"PopulateRangeRs",
         [=, this] {
           const auto row = std::make_shared<Recordset>();
           row->SetField("fld", "new");
           list->PopulateRangeRs(row, name, "fld", 1);
         }},
    };
  }
};

TEST_F(Writes, EachMemberWritesItsOwnKind) {
  Place();
  list->PopulateDoubleRange("qty", -12.25, 1);
  list->PopulateYNRange("qty", true, 2);
  list->PopulateYNRange("qty", false, 3);
  list->PopulateRange("qty", "text", 4);
  list->PopulateDateRange("qty", DateOf(2024, 1, 31), 5);
  EXPECT_EQ(At("A1"), Variant(-12.25));
  EXPECT_EQ(At("A2"), Variant("Y"));
  EXPECT_EQ(At("A3"), Variant("N"));
  EXPECT_EQ(At("A4"), Variant("text"));
  EXPECT_EQ(At("A5"), Variant(DateOf(2024, 1, 31)));
}

TEST_F(Writes, TheLineCountsFromTheFirstCellOfTheRange) {
  Define("qty", "=Sheet1!$C$3:$C$5");
  Declare("qty");
  list->SetIfRangesExist();
  list->PopulateRange("qty", "first", 1);
  list->PopulateRange("qty", "third", 3);
  EXPECT_EQ(At("C3"), Variant("first"));
  EXPECT_EQ(At("C4"), Variant());
  EXPECT_EQ(At("C5"), Variant("third"));
}

TEST_F(Writes, ARangeThatHasBecomeAHeaderIsWrittenInItsFirstCellWhateverTheLine) {
  Define("qty", "=Sheet1!$A$1");
  Declare("qty")->let_CanBeHeader(true);
  list->SetIfRangesExist();
  list->PopulateRange("qty", "one", 7);
  EXPECT_EQ(At("A1"), Variant("one"));
  EXPECT_EQ(At("A7"), Variant());
}

TEST_F(Writes, ADeclaredRangeThatIsNotOnTheSheetIsPassedOverInSilence) {
  Declare("qty");
  list->SetIfRangesExist();
  for (const auto& [procedure, write] : EveryWriteTo("qty")) {
    EXPECT_THAT(CallsOf(write), IsEmpty()) << procedure;
  }
}

TEST_F(Writes, TheStateLeftByTheLastSetIfRangesExistIsTrusted) {
  Declare("qty");
  list->SetIfRangesExist();
  Define("qty", "=Sheet1!$A$1:$A$9");
  list->PopulateRange("qty", "new", 1);
  EXPECT_EQ(At("A1"), Variant());
}

TEST_F(Writes, ANameThatIsNotDeclaredIsAnErrorAndNotSilence) {
  for (const auto& [procedure, write] : EveryWriteTo("other")) {
    const Error error = ErrorOf(write);
    EXPECT_EQ(error.Number(), 5);
    EXPECT_EQ(error.Description(), "Invalid procedure call or argument");
    EXPECT_THAT(error.Source(), MatchesRegex("Line No\\.: [0-9]+ " + LevelOf(procedure)));
  }
}

TEST_F(Writes, NumbersAndDatesReportUnderTheNameOfTheTextWrite) {
  Place();
  host.Calls().FailMember("Range.Value", 1004, "locked");
  for (const auto& [procedure, write] : EveryWriteTo("qty")) {
    const Error error = ErrorOf(write);
    EXPECT_EQ(error.Number(), 1004);
    EXPECT_EQ(error.Description(), "locked");
    EXPECT_THAT(error.Source(),
                MatchesRegex("Line No\\.: [0-9]+ Workbook\r\n" + LevelOf(procedure)));
  }
}

TEST_F(Writes, AnAreaThatIsGoneFailsWithTheWordsOfGetRange) {
  Place();
  workbook.Get(Member("Names"), {"qty"}).AsObject().Call(Member("Delete"));
  const Error error = ErrorOf([&] { list->PopulateRange("qty", "new", 1); });
  EXPECT_EQ(error.Number(), 1004);
  EXPECT_EQ(error.Description(),
            "Error finding area on sheet referred to by range: qty (Full name:qty).");
  EXPECT_THAT(error.Source(),
              MatchesRegex("Line No\\.: [0-9]+ Line No\\.: [0-9]+ Workbook\r\n" +
                           LevelOf("GetRange") + "\r\n" + LevelOf("PopulateRange")));
}

TEST_F(Writes, TheZeroDateGivesAnEmptyCellWhileTheNumberZeroGivesAZero) {
  Place();
  Put("A1", "before");
  list->PopulateDateRange("qty", Date{0}, 1);
  list->PopulateDoubleRange("qty", 0, 2);
  EXPECT_EQ(At("A1"), Variant());
  EXPECT_EQ(At("A2"), Variant(0.0));
}

TEST_F(Writes, ADateWithATimeIsWrittenAsTheDateAlone) {
  Place();
  list->PopulateDateRange("qty", Date{DateOf(2024, 1, 31).serial + 0.75}, 1);
  EXPECT_EQ(At("A1"), Variant(DateOf(2024, 1, 31)));
}

TEST_F(Writes, ATimeWithoutADayIsNotTheZeroDateAndWritesDayZero) {
  Place();
  EXPECT_THAT(CallsOf([&] { list->PopulateDateRange("qty", Date{0.5}, 1); }),
              ::testing::Contains("Range.Value let #1899-12-30#"));
  EXPECT_NE(At("A1"), Variant());
}

TEST_F(Writes, LeaveBlankOnPopulateWritesACellOfThreeBlanks) {
  Place();
  list->let_LeaveBlankOnPopulate(true);
  Put("A1", "'   ");
  list->PopulateRange("qty", "new", 1);
  EXPECT_EQ(At("A1"), Variant("new"));
}

TEST_F(Writes, LeaveBlankOnPopulateRefusesACellThatHoldsZeroOrAnyOtherContent) {
  Place();
  list->let_LeaveBlankOnPopulate(true);
  for (const Variant& content : {Variant(0.0), Variant("  x"), Variant(false)}) {
    Put("A1", content);
    for (const auto& [procedure, write] : EveryWriteTo("qty")) {
      write();
      EXPECT_EQ(At("A1"), content) << procedure;
    }
  }
  Put("A1", Variant());
  list->PopulateRange("qty", "new", 1);
  EXPECT_EQ(At("A1"), Variant("new"));
}

TEST_F(Writes, LeaveFormulaOnPopulateKeepsAFormulaAndWritesAnythingElse) {
  Place();
  list->let_LeaveFormulaOnPopulate(true);
  Put("A1", "=B1");
  Put("A2", "old");
  for (const auto& [procedure, write] : EveryWriteTo("qty")) {
    write();
    EXPECT_EQ(FormulaAt("A1"), "=B1") << procedure;
  }
  list->PopulateRange("qty", "new", 2);
  EXPECT_EQ(At("A2"), Variant("new"));
}

TEST_F(Writes, LeaveBlankOnPopulateAloneKeepsAFormulaThatShowsAnything) {
  Place();
  list->let_LeaveBlankOnPopulate(true);
  Put("A1", "=B1");
  host.SetShownValue(Cells("A1"), 12.5);
  list->PopulateRange("qty", "new", 1);
  EXPECT_EQ(FormulaAt("A1"), "=B1");
}

TEST_F(Writes, LeaveBlankOnPopulateAloneLetsAWriteDestroyAFormulaThatShowsAnEmptyText) {
  Place();
  list->let_LeaveBlankOnPopulate(true);
  Put("A1", "=B1");
  host.SetShownValue(Cells("A1"), "");
  list->PopulateRange("qty", "new", 1);
  EXPECT_EQ(FormulaAt("A1"), "new");
}

TEST_F(Writes, WithoutASwitchAFormulaIsOverwritten) {
  Place();
  Put("A1", "=B1");
  list->PopulateRange("qty", "new", 1);
  EXPECT_EQ(FormulaAt("A1"), "new");
}

TEST_F(Writes, AFailureOfTheDecisionWritesNothing) {
  Place();
  list->let_LeaveBlankOnPopulate(true);
  host.SetErrorValue(Cells("A1"), 2007);
  const Error error = ErrorOf([&] { list->PopulateRange("qty", "new", 1); });
  EXPECT_EQ(error.Number(), 13);
  EXPECT_THAT(error.Source(),
              MatchesRegex("Line No\\.: [0-9]+ Line No\\.: [0-9]+ " + LevelOf("AllowPopulate") +
                           "\r\n" + LevelOf("PopulateRange")));
  EXPECT_TRUE(At("A1").IsError());
}

TEST_F(Writes, StripSpacesOnDownloadTakesTheTrailingBlanksOfATextAndLeavesTheLeadingOnes) {
  Place();
  list->PopulateRange("qty", "  text  ", 1);
  EXPECT_EQ(At("A1"), Variant("  text  "));
  list->let_StripSpacesOnDownload(true);
  list->PopulateRange("qty", "  text  ", 1);
  EXPECT_EQ(At("A1"), Variant("  text"));
}

TEST_F(Writes, StripSpacesOnDownloadTakesTheBlanksOfAFieldAtBothEnds) {
  Place();
  PopulateFromField("  text  ");
  EXPECT_EQ(At("A1"), Variant("  text  "));
  list->let_StripSpacesOnDownload(true);
  PopulateFromField("  text  ");
  EXPECT_EQ(At("A1"), Variant("text"));
}

TEST_F(Writes, AFieldKeepsItsKindAndTextsThatAreNumbersOrDatesTheirBlanks) {
  Place();
  list->let_StripSpacesOnDownload(true);
  const std::vector<std::pair<Variant, std::string>> table = {
      {12.5, "Range.Value let 12.5"},
      {std::int16_t{3}, "Range.Value let 3"},
      {DateOf(2024, 1, 31), "Range.Value let #2024-01-31#"},
      {" 12 ", "Range.Value let \" 12 \""},
      {" 1/31/2024 ", "Range.Value let \" 1/31/2024 \""},
      {" x ", "Range.Value let \"x\""},
  };
  for (const auto& [field, line] : table) {
    EXPECT_THAT(CallsOf([&, &value = field] { PopulateFromField(value); }).back(),
                ::testing::StartsWith(line));
  }
}

TEST_F(Writes, AnEmptyFieldEmptiesTheCellWhateverTheSwitchesSay) {
  Place();
  for (const bool strip : {false, true}) {
    list->let_StripSpacesOnDownload(strip);
    Put("A1", "old");
    PopulateFromField({});
    EXPECT_EQ(At("A1"), Variant());
  }
}

TEST_F(Writes, ANullFieldWritesAnEmptyTextWhateverTheSwitchesSay) {
  Place();
  for (const bool strip : {false, true}) {
    list->let_StripSpacesOnDownload(strip);
    Put("A1", "old");
    EXPECT_THAT(CallsOf([&] { PopulateFromField(Null{}); }),
                ElementsAre("Worksheet.Parent get", "Workbook.Names get \"qty\"",
                            "Name.RefersToRange get", "Range.Item get 1", "Range.Value let \"\""));
    EXPECT_EQ(At("A1"), Variant());
  }
}

TEST_F(Writes, ANullFieldIsRefusedLikeAnyOtherWrite) {
  Place();
  list->let_LeaveBlankOnPopulate(true);
  Put("A1", "old");
  PopulateFromField(Null{});
  EXPECT_EQ(At("A1"), Variant("old"));
}

TEST_F(Writes, AFieldThatTheRecordsetLacksFailsAndWritesNothing) {
  Place();
  Put("A1", "old");
  const auto row = std::make_shared<Recordset>();
  const Error error = ErrorOf([&] { list->PopulateRangeRs(row, "qty", "fld", 1); });
  EXPECT_EQ(error.Number(), 3265);
  EXPECT_EQ(error.Description(), "The row has no field \"fld\".");
  EXPECT_THAT(error.Source(),
              MatchesRegex("Line No\\.: [0-9]+ Recordset\r\n" + LevelOf("PopulateRangeRs")));
  EXPECT_EQ(At("A1"), Variant("old"));
}

TEST_F(Writes, TheRecordsetIsAskedOnlyOnceTheCellIsKnownToTakeAValue) {
  const auto record = Place();
  record->let_RangeExists(false);
  list->PopulateRangeRs({}, "qty", "fld", 1);
  record->let_RangeExists(true);
  list->let_LeaveBlankOnPopulate(true);
  Put("A1", "old");
  list->PopulateRangeRs({}, "qty", "fld", 1);
  Put("A1", Variant());
  EXPECT_EQ(ErrorOf([&] { list->PopulateRangeRs({}, "qty", "fld", 1); }).Number(), 91);
}

TEST_F(Writes, TheHostIsAskedInThisOrder) {
  Place();
  const auto write = [&] { list->PopulateDoubleRange("qty", 1.5, 2); };
  const std::vector<std::string> cell = {"Worksheet.Parent get", "Workbook.Names get \"qty\"",
                                         "Name.RefersToRange get", "Range.Item get 2"};
  const auto with = [&](const std::vector<std::string>& more) {
    auto calls = cell;
    calls.insert(calls.end(), more.begin(), more.end());
    return calls;
  };
  EXPECT_EQ(CallsOf(write), with({"Range.Value let 1.5"}));
  Put("A2", Variant());
  list->let_LeaveBlankOnPopulate(true);
  list->let_LeaveFormulaOnPopulate(true);
  EXPECT_EQ(CallsOf(write),
            with({"Range.Value get", "Range.HasFormula get", "Range.Value let 1.5"}));
  EXPECT_EQ(CallsOf(write), with({"Range.Value get"}));
  list->let_LeaveBlankOnPopulate(false);
  Put("A2", "=B1");
  EXPECT_EQ(CallsOf(write), with({"Range.HasFormula get"}));
}

TEST_F(Writes, TheSwitchesAreOffAtFirst) {
  EXPECT_FALSE(list->get_LeaveBlankOnPopulate());
  EXPECT_FALSE(list->get_LeaveFormulaOnPopulate());
  EXPECT_FALSE(list->get_DoNotCheckIsFormula());
  EXPECT_FALSE(list->get_StripSpacesOnDownload());
  EXPECT_FALSE(list->get_AddNumberValidation());
}

TEST_F(Writes, EachMemberIsReachedByNameWithNamedArgumentsAndConversions) {
  Place();
  const Object late(list);
  late.Call(Member("PopulateRange"), {"qty", 12, "1"});
  late.Call(Member("PopulateDoubleRange"), {"qty", "2.5", 2});
  late.Call(Member("PopulateYNRange"), {"qty", 1, 3});
  late.Call(Member("PopulateDateRange"), {},
            {{Member("lIndex"), 4},
             {Member("datValue"), DateOf(2024, 1, 31)},
             {Member("sRangeName"), "qty"}});
  const auto row = std::make_shared<Recordset>();
  row->SetField("Amount", 7.5);
  late.Call(Member("PopulateRangeRs"), {row, "qty", "AMOUNT", 5});
  EXPECT_EQ(At("A1"), Variant(12.0));
  EXPECT_EQ(At("A2"), Variant(2.5));
  EXPECT_EQ(At("A3"), Variant("Y"));
  EXPECT_EQ(At("A4"), Variant(DateOf(2024, 1, 31)));
  EXPECT_EQ(At("A5"), Variant(7.5));
}

using automation::Object;
using automation::Variant;

TEST(RecordsetRow, AnswersFieldsByNameInAnyCaseAndByDefaultMembers) {
  const auto row = std::make_shared<Recordset>();
  row->SetField("Amount", 1.5);
  row->SetField("amount", 2.5);
  row->SetField("None", Null{});
  const Object late(row);
  using automation::Member;
  const Object field = late.Get(Member("Fields"), {"AMOUNT"}).AsObject();
  EXPECT_EQ(field.Get(Member("Value")), Variant(2.5));
  EXPECT_EQ(field.Get(Member::Default()), Variant(2.5));
  EXPECT_EQ(field.Get(Member("Name")), Variant("amount"));
  EXPECT_TRUE(late.Get(Member::Default(), {"none"}).AsObject().Get(Member("Value")).IsNull());
  EXPECT_EQ(late.TypeName(), "Recordset");
  EXPECT_EQ(field.TypeName(), "Field");
}

}  // namespace
}  // namespace rangewerks::tests
