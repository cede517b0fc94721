// Declaring ranges, the switches and the collection-like face of the list.
#include <gmock/gmock.h>

#include "support/matches_regex.h"
#include "support/sheet_fixture.h"

namespace rangewerks::tests {
namespace {

using automation::Argument;
using ::testing::ElementsAre;
using ::testing::ElementsAreArray;

class Declaration : public SheetFixture {};

TEST_F(Declaration, ANewListHasEveryFieldAtItsDefault) {
  const clsInterfaceRangeList fresh;
  EXPECT_EQ(fresh.Count(), 0);
  EXPECT_FALSE(fresh.get_ActSheet());
  EXPECT_FALSE(fresh.get_SheetRangeNames());
  EXPECT_FALSE(fresh.get_UsingSheetRangeNames());
  EXPECT_EQ(fresh.get_GroupHeadings()->Count(), 0);
  EXPECT_FALSE(fresh.get_GroupFound());
  EXPECT_FALSE(fresh.get_SaveTheSpreadSheet());
  EXPECT_FALSE(fresh.get_CallerObject());
  EXPECT_FALSE(fresh.get_UseCallerObject());
  EXPECT_FALSE(fresh.get_BlankRangeIsThere());
  EXPECT_EQ(fresh.get_InvalidRange(), "");
  EXPECT_FALSE(fresh.get_AddNumberValidation());
  EXPECT_FALSE(fresh.get_StripSpacesOnDownload());
  EXPECT_FALSE(fresh.get_ValidateDecimalPlaces());
  EXPECT_FALSE(fresh.get_UseNewBrowseShortcutName());
  EXPECT_FALSE(fresh.get_LeaveBlankOnPopulate());
  EXPECT_FALSE(fresh.get_LeaveFormulaOnPopulate());
  EXPECT_EQ(fresh.get_RangePrefix(), "");
  EXPECT_EQ(fresh.get_DefaultTag(), "");
  EXPECT_FALSE(fresh.get_DoNotCheckIsFormula());
}

TEST_F(Declaration, AddStampsTheDefaultTagAndAddInterfaceDoesNot) {
  list->let_DefaultTag("T1");
  EXPECT_EQ(list->Add("a", hdiHeader, rdtString)->get_Tag(), "T1");
  list->AddInterface("b", true, "D", rdtDouble, 8, "Words");
  const auto record = list->Item("b");
  EXPECT_EQ(record->get_Tag(), "");
  EXPECT_TRUE(record->get_IsMandatory());
  EXPECT_EQ(record->get_DetailIndicator(), hdiDetail);
  EXPECT_EQ(record->get_RangeDataType(), rdtDouble);
  EXPECT_EQ(record->get_DataLength(), 8);
  EXPECT_EQ(record->get_Description(), "Words");
  EXPECT_EQ(record->get_Value(), Variant(std::int16_t{0}));
}

TEST_F(Declaration, AddInterfaceWithAnUnknownCodeDeclaresAHeader) {
  list->AddInterface("a", false, "X", rdtString);
  EXPECT_EQ(list->Item("a")->get_DetailIndicator(), hdiHeader);
}

TEST_F(Declaration, AddClsCopiesTheDeclaredFieldsAndNoOthers) {
  const auto given = std::make_shared<clsExInputRange>();
  given->let_RangeName("a");
  given->let_DetailIndicator(hdiHeaderDetail);
  given->let_RangeDataType(rdtDate);
  given->let_IsMandatory(true);
  given->let_RangeExists(true);
  given->let_Description("Words");
  given->let_DataLength(4);
  given->let_Value(1.5);
  given->let_IsBrowseable(true);
  given->let_BrowseColumn("b");
  given->let_Group("G");
  given->let_RangeHeading("Heading");
  given->let_IsDownload(true);
  given->let_DecimalPlaces(5);
  given->let_Tag("tag");
  given->let_GroupRange("master");
  given->let_CanBeHeader(true);
  given->let_BecomeHeader(true);
  given->let_IsSageCompany(true);
  given->let_IsValueFound(true);
  given->let_BlankValueIsFound(true);
  given->let_Offset(7);
  list->let_DefaultTag("T1");

  const auto record = list->AddCls(given);

  EXPECT_NE(record, given);
  EXPECT_EQ(list->Item("a"), record);
  EXPECT_EQ(record->get_DetailIndicator(), hdiHeaderDetail);
  EXPECT_EQ(record->get_RangeDataType(), rdtDate);
  EXPECT_TRUE(record->get_IsMandatory());
  EXPECT_TRUE(record->get_RangeExists());
  EXPECT_EQ(record->get_Description(), "Words");
  EXPECT_EQ(record->get_DataLength(), 4);
  EXPECT_EQ(record->get_Value(), Variant(1.5));
  EXPECT_TRUE(record->get_IsBrowseable());
  EXPECT_EQ(record->get_BrowseColumn(), "b");
  EXPECT_EQ(record->get_Group(), "G");
  EXPECT_EQ(record->get_RangeHeading(), "Heading");
  EXPECT_TRUE(record->get_IsDownload());
  EXPECT_EQ(record->get_DecimalPlaces(), 5);
  EXPECT_EQ(record->get_Tag(), "T1");
  EXPECT_EQ(record->get_GroupRange(), "");
  EXPECT_FALSE(record->get_CanBeHeader());
  EXPECT_FALSE(record->get_BecomeHeader());
  EXPECT_FALSE(record->get_IsSageCompany());
  EXPECT_FALSE(record->get_IsValueFound());
  EXPECT_FALSE(record->get_BlankValueIsFound());
  EXPECT_EQ(record->get_Offset(), 0);
}

TEST_F(Declaration, ChangingTheRecordThatAddClsMadeLeavesTheGivenOneAlone) {
  const auto given = std::make_shared<clsExInputRange>();
  given->let_RangeName("a");
  list->AddCls(given)->let_Description("changed");
  EXPECT_EQ(given->get_Description(), "");
}

TEST_F(Declaration, ADuplicateIsReportedWithTheSourceOfEachLevel) {
  list->Add("a", hdiHeader, rdtString);
  const Error added = ErrorOf([&] { list->Add("A", hdiHeader, rdtString); });
  EXPECT_EQ(added.Number(), 457);
  EXPECT_EQ(added.Description(), "Range A already exists on list");
  EXPECT_THAT(added.Source(),
              MatchesRegex("Line No\\.: [0-9]+ Line No\\.: [0-9]+ Add of Class Module "
                           "colExInputRangeList Line#:[0-9]+\r\n"
                           "Add of Class Module clsInterfaceRangeList Line#:[0-9]+"));
  const Error declared = ErrorOf([&] { list->AddInterface("A", false, "H", rdtString); });
  EXPECT_EQ(declared.Description(), "Range A already exists on list");
  EXPECT_THAT(declared.Source(),
              MatchesRegex(".*colExInputRangeList Line#:[0-9]+\r\n"
                           "AddInterface of Class Module clsInterfaceRangeList Line#:[0-9]+"));
}

TEST_F(Declaration, AddClsPassesTheErrorOfADuplicateOnUnchanged) {
  list->Add("a", hdiHeader, rdtString);
  const auto given = std::make_shared<clsExInputRange>();
  given->let_RangeName("A");
  const Error error = ErrorOf([&] { list->AddCls(given); });
  EXPECT_EQ(error.Number(), 457);
  EXPECT_THAT(error.Source(), MatchesRegex(".*\r\nAdd of Class Module clsInterfaceRangeList "
                                           "Line#:[0-9]+"));
  EXPECT_EQ(given->get_RangeName(), "A");
  EXPECT_EQ(list->Count(), 1);
}

TEST_F(Declaration, ClearListLeavesTheInvalidRangeAndEverythingElse) {
  Define("a", "=Sheet1!$A$1");
  Put("A1", "text");
  Declare("a", hdiHeader, rdtDouble)->let_Group("G");
  list->SetIfRangesExist();
  list->get_GroupHeadings()->Add("Group", "G");
  double value = 0;
  ErrorOf([&] { list->GetValRange("a", value, 1); });
  list->ClearList();
  EXPECT_EQ(list->Count(), 0);
  EXPECT_EQ(list->get_InvalidRange(), "a");
  EXPECT_TRUE(list->get_GroupFound());
  EXPECT_EQ(list->get_GroupHeadings()->Count(), 1);
  EXPECT_TRUE(list->get_ActSheet());
}

TEST_F(Declaration, WritingSheetRangeNamesPutsThemInForceAtOnce) {
  list->let_SheetRangeNames(true);
  EXPECT_TRUE(list->get_UsingSheetRangeNames());
  list->let_SheetRangeNames(false);
  EXPECT_FALSE(list->get_UsingSheetRangeNames());
}

TEST_F(Declaration, SettingTheSheetRefreshesNothing) {
  Define("a", "=Sheet1!$A$1");
  const auto record = Declare("a");
  EXPECT_TRUE(CallsOf([&] { list->set_ActSheet(Sheet("Sheet1")); }).size() == 1);  // Sheets itself
  EXPECT_FALSE(record->get_RangeExists());
}

TEST_F(Declaration, ItemAndRemovePassTheCollectionsErrorOn) {
  Declare("a");
  EXPECT_EQ(ErrorOf([&] { list->Item("missing"); }).Number(), 5);
  const Error error = ErrorOf([&] { list->Remove(2); });
  EXPECT_EQ(error.Number(), 9);
  EXPECT_EQ(error.Source(), "");
  list->Remove("A");
  EXPECT_EQ(list->Count(), 0);
}

TEST_F(Declaration, ChangeSESConnectionReturnsFalse) {
  EXPECT_EQ(Object(list).Call(Member("ChangeSESConnection")), Variant(false));
}

TEST_F(Declaration, AnOperationBeforeTheSheetIsSetFailsLikeAnyUseOfAMissingObject) {
  list->set_ActSheet({});
  EXPECT_EQ(ErrorOf([&] { list->GetRange("a"); }).Number(), 91);
}

TEST_F(Declaration, AForEachGoesThroughTheRangesAndItemIsTheDefaultMember) {
  Declare("b");
  Declare("a");
  const Object late(list);
  std::vector<std::string> names;
  const auto walk = late.Enumerate();
  for (Variant each; walk->Next(each);) {
    names.push_back(each.AsObject().As<clsExInputRange>()->get_RangeName());
  }
  EXPECT_THAT(names, ElementsAre("b", "a"));
  EXPECT_EQ(late.Get(Member::Default(), {"A"}).AsObject(), Object(list->Item("a")));
}

TEST_F(Declaration, EverySwitchIsReadAndWrittenByName) {
  const Object late(list);
  for (const char* name :
       {"StripSpacesOnDownload", "AddNumberValidation", "BlankRangeIsThere", "SaveTheSpreadSheet",
        "UseCallerObject", "SheetRangeNames", "ValidateDecimalPlaces", "UseNewBrowseShortcutName",
        "LeaveFormulaOnPopulate", "LeaveBlankOnPopulate", "DoNotCheckIsFormula"}) {
    EXPECT_EQ(late.Get(Member(name)), Variant(false)) << name;
    late.Let(Member(name), true);
    EXPECT_EQ(late.Get(Member(name)), Variant(true)) << name;
  }
  for (const char* name : {"RangePrefix", "DefaultTag"}) {
    late.Let(Member(name), name);
    EXPECT_EQ(late.Get(Member(name)), Variant(name));
  }
  late.Set(Member("CallerObject"), late);
  EXPECT_EQ(late.Get(Member("CallerObject")).AsObject(), late);
  late.Set(Member("CallerObject"), {});  // else the list would hold itself
  late.Set(Member("ActSheet"), Sheet("Sheet2"));
  EXPECT_EQ(list->get_ActSheet().get_Name(), "Sheet2");
}

TEST_F(Declaration, ReadOnlyMembersCanNotBeWritten) {
  for (const char* name : {"InvalidRow", "InvalidRange", "InvalidRangeType", "GroupFound",
                           "UsingSheetRangeNames", "GroupHeadings"}) {
    EXPECT_EQ(ErrorOf([&] { Object(list).Let(Member(name), true); }).Number(), 438) << name;
  }
}

TEST_F(Declaration, MembersStandInTheOrderOfTheirSlots) {
  std::vector<std::string> slots;
  for (const auto& entry : list->Members().Entries()) {
    const std::string& name = entry.name.Name();
    if (slots.empty() || slots.back() != name) slots.push_back(name);
  }
  EXPECT_THAT(slots, ElementsAreArray({"StripSpacesOnDownload",
                                       "AddNumberValidation",
                                       "InvalidRow",
                                       "InvalidRangeType",
                                       "InvalidRange",
                                       "BlankRangeIsThere",
                                       "SaveTheSpreadSheet",
                                       "CallerObject",
                                       "UseCallerObject",
                                       "GroupFound",
                                       "UsingSheetRangeNames",
                                       "FullRangeName",
                                       "SheetRangeNames",
                                       "GroupHeadings",
                                       "ActSheet",
                                       "ValidateRanges",
                                       "InRange",
                                       "InAnyRange",
                                       "BrowseColumn",
                                       "AddInterface",
                                       "ClearList",
                                       "SetIfRangesExist",
                                       "AddUserRangesToList",
                                       "GetRange",
                                       "GetValRange",
                                       "GetIntRange",
                                       "GetStrRangeBlk",
                                       "GetStrRange",
                                       "GetDateRange",
                                       "PopulateRange",
                                       "PopulateRangeRs",
                                       "ClearRange",
                                       "ChangeSESConnection",
                                       "RangeExists",
                                       "GetSageUserName",
                                       "GetWindowsUserName",
                                       "CorrectRangeNames",
                                       "AddRangeNotOnListToSpreadsheet",
                                       "AddDetailRangeToSpreadsheet",
                                       "AddRangeToSpreadsheet",
                                       "CellOffsetInRange",
                                       "ClearAllRanges",
                                       "ClearDetailRanges",
                                       "IsFormula",
                                       "Add",
                                       "AddCls",
                                       "Item",
                                       "Count",
                                       "Remove",
                                       "NewEnum",
                                       "ValidateDecimalPlaces",
                                       "PopulateDateRange",
                                       "CheckRangeSize",
                                       "CheckGroupSizes",
                                       "UseNewBrowseShortcutName",
                                       "PopulateDoubleRange",
                                       "LeaveFormulaOnPopulate",
                                       "LeaveBlankOnPopulate",
                                       "GetValues",
                                       "RangePrefix",
                                       "GetYNRange",
                                       "PopulateYNRange",
                                       "PutValues",
                                       "DefaultTag",
                                       "ClearRangesForTag",
                                       "RenameNamesForNewSheet",
                                       "DoNotCheckIsFormula"}));
}

TEST_F(Declaration, EveryPublicMemberHasAHelpString) {
  for (const auto& entry : list->Members().Entries()) {
    EXPECT_FALSE(entry.help.empty()) << entry.name.Name();
  }
}

}  // namespace
}  // namespace rangewerks::tests
