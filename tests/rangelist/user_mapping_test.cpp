// Which Sage user the person at the machine is.
#include <gmock/gmock.h>

#include "support/fixed_system.h"
#include "support/sheet_fixture.h"

namespace rangewerks::tests {
namespace {

using automation::kApplicationErrorBase;
using ::testing::ElementsAre;

constexpr const char* kDefineEither =
    "For user name functionality, define either: \rA sage_users range for a single cell OR \r"
    "Both sage_users and windows_users ranges of equal sizes for mapping";

class UserMapping : public SheetFixture {
 protected:
  UserMapping() { LogOn("anna"); }

  void LogOn(const std::optional<std::string>& user) {
    system = std::make_shared<FixedSystem>("", user);
    list = std::make_shared<clsInterfaceRangeList>(system);
    list->set_ActSheet(Sheet("Sheet1"));
    list->AddUserRangesToList();
    list->SetIfRangesExist();
  }
  /// Puts the Windows users into column A and the Sage users beside them.
  void Map(const std::vector<std::string>& windows, const std::vector<std::string>& sage) const {
    const auto place = [&](const std::string& name, const std::string& column,
                           const std::vector<std::string>& users) {
      if (users.empty()) return;
      for (std::size_t i = 0; i < users.size(); ++i) {
        if (!users[i].empty()) Put(column + std::to_string(i + 1), "'" + users[i]);
      }
      Define(name, "=Sheet1!$" + column + "$1:$" + column + "$" + std::to_string(users.size()));
    };
    place("windows_users", "A", windows);
    place("sage_users", "B", sage);
    list->SetIfRangesExist();
  }
  Error Refusal() const {
    return ErrorOf([&] { list->GetSageUserName(); });
  }

  std::shared_ptr<FixedSystem> system;
};

TEST_F(UserMapping, AddUserRangesToListDeclaresBothWithTheseProperties) {
  list->ClearList();
  list->let_DefaultTag("T");
  list->AddUserRangesToList();
  ASSERT_EQ(list->Count(), 2);
  EXPECT_EQ(list->Item(1)->get_RangeName(), "windows_users");
  EXPECT_EQ(list->Item(1)->get_Description(), "Windows User for mapping to Sage User");
  EXPECT_EQ(list->Item(2)->get_RangeName(), "sage_users");
  EXPECT_EQ(list->Item(2)->get_Description(), "Sage User for mapping from Sage");
  for (const int i : {1, 2}) {
    const auto record = list->Item(i);
    EXPECT_EQ(list->Item(record->get_RangeName()), record);
    EXPECT_EQ(record->get_DetailIndicator(), hdiNone);
    EXPECT_EQ(record->get_RangeDataType(), rdtString);
    EXPECT_FALSE(record->get_IsMandatory());
    EXPECT_FALSE(record->get_RangeExists());
    EXPECT_EQ(record->get_DataLength(), 0);
    EXPECT_EQ(record->get_Value(), Variant(std::int16_t{0}));
    EXPECT_FALSE(record->get_IsBrowseable());
    EXPECT_EQ(record->get_BrowseColumn(), record->get_RangeName());
    EXPECT_EQ(record->get_Group(), "");
    EXPECT_EQ(record->get_Tag(), "");
  }
}

TEST_F(UserMapping, AddingThemASecondTimeFailsAsTheCollectionDoes) {
  const Error once = ErrorOf([&] { list->AddUserRangesToList(); });
  EXPECT_EQ(once.Number(), 457);
  EXPECT_EQ(once.Source().find("AddUserRangesToList"), std::string::npos);
  EXPECT_EQ(list->Count(), 2);
}

TEST_F(UserMapping, OneCellServesEverybodyWithoutACallToTheOperatingSystem) {
  Map({}, {" Sage One "});
  EXPECT_THAT(CallsOf([&] { EXPECT_EQ(list->GetSageUserName(), " Sage One "); }),
              ElementsAre("Worksheet.Parent get", "Workbook.Names get \"sage_users\"",
                          "Name.RefersToRange get", "Range.Rows get", "Range.Count get",
                          "Worksheet.Parent get", "Workbook.Names get \"sage_users\"",
                          "Name.RefersToRange get", "Range.Rows get", "Range.Count get",
                          "Range._Default get"));
  EXPECT_EQ(system->TimesAskedForUser(), 0);
}

TEST_F(UserMapping, OneCellIgnoresAListOfWindowsUsersOfAnySize) {
  Map({"x", "anna", "y"}, {"Sage One"});
  EXPECT_EQ(list->GetSageUserName(), "Sage One");
  EXPECT_EQ(system->TimesAskedForUser(), 0);
}

TEST_F(UserMapping, AnEmptySingleCellGivesAnEmptyName) {
  Map({}, {""});
  EXPECT_EQ(list->GetSageUserName(), "");
}

TEST_F(UserMapping, AUserInTheSecondOfThreeRowsGetsTheSageNameOfThatRowTrimmed) {
  Map({"x", "anna", "y"}, {"One", " Two ", "Three"});
  EXPECT_EQ(list->GetSageUserName(), "Two");
}

TEST_F(UserMapping, AUserInTheLastRowIsNotFound) {
  Map({"x", "y", "anna"}, {"One", "Two", "Three"});
  const Error error = Refusal();
  EXPECT_EQ(error.Number(), 0);
  EXPECT_EQ(error.Source(), "GetSageUserName");
  EXPECT_EQ(error.Description(), "User name anna not found in list");
}

TEST_F(UserMapping, AUserWhoIsInNoRowIsNotFound) {
  Map({"x", "y", "z"}, {"One", "Two", "Three"});
  EXPECT_EQ(Refusal().Description(), "User name anna not found in list");
}

TEST_F(UserMapping, TheFirstRowThatMatchesCounts) {
  Map({"anna", "anna", "y"}, {"One", "Two", "Three"});
  EXPECT_EQ(list->GetSageUserName(), "One");
}

TEST_F(UserMapping, ColumnsOfDifferentSizePassAndAMatchBeyondTheShorterReadsWhatTheHostGives) {
  Map({"v", "w", "x", "anna", "y"}, {"One", "Two", "Three"});
  EXPECT_EQ(list->GetSageUserName(), "");
  Put("B4", " below ");
  EXPECT_EQ(list->GetSageUserName(), "below");
}

TEST_F(UserMapping, BlanksAroundAWindowsUserDoNotMatterButCapitalsDo) {
  Map({"Anna", " anna  ", "y"}, {"One", "Two", "Three"});
  EXPECT_EQ(list->GetSageUserName(), "Two");
}

TEST_F(UserMapping, NeitherRangeOnTheSheetRaisesTheLongTextUnderTheNameOfTheMember) {
  const Error error = Refusal();
  EXPECT_EQ(error.Number(), kApplicationErrorBase);
  EXPECT_EQ(error.Source(), "GetSageUserName");
  EXPECT_EQ(error.Description(), kDefineEither);
}

TEST_F(UserMapping, WindowsUsersAloneOrAColumnOfSageUsersAloneAreNotEnough) {
  Map({"anna", "y"}, {});
  EXPECT_EQ(Refusal().Description(), kDefineEither);
  NewWorkbook({"Sheet1"});
  LogOn("anna");
  Map({}, {"One", "Two"});
  EXPECT_EQ(Refusal().Description(), kDefineEither);
}

TEST_F(UserMapping, RangesThatAreNotDeclaredPassTheErrorOfRangeExistsOn) {
  list->ClearList();
  const Error error = Refusal();
  EXPECT_EQ(error.Number(), kApplicationErrorBase);
  EXPECT_EQ(error.Source(), "GetSageUserName");
  EXPECT_EQ(error.Description(), "RangeExists called on range not on list (sage_users)");
}

TEST_F(UserMapping, AListBeyond16BitsOverflows) {
  Map({"anna", "y"}, {"One", "Two"});
  Define("windows_users", "=Sheet1!$A$1:$A$32768");
  const Error error = Refusal();
  EXPECT_EQ(error.Number(), 6);
  EXPECT_EQ(error.Description(), "Overflow");
  EXPECT_EQ(error.Source(), "GetSageUserName");
}

TEST_F(UserMapping, AnyOtherErrorKeepsItsNumberAndWords) {
  Map({"anna", "y"}, {"One", "Two"});
  host.Calls().FailMember("Range.Item", 1004, "busy");
  const Error error = Refusal();
  EXPECT_EQ(error.Number(), 1004);
  EXPECT_EQ(error.Description(), "busy");
  EXPECT_EQ(error.Source(), "GetSageUserName");
}

TEST_F(UserMapping, TheWindowsUserIsTheNameThatTheSystemGives) {
  EXPECT_EQ(list->GetWindowsUserName(), "anna");
}

TEST_F(UserMapping, ASystemThatCanNotTellIsAnErrorWithoutALine) {
  LogOn(std::nullopt);
  Error error = ErrorOf([&] { list->GetWindowsUserName(); });
  EXPECT_EQ(error.Number(), kApplicationErrorBase);
  EXPECT_EQ(error.Source(), "");
  EXPECT_EQ(error.Description(), "Could not get windows user name from operating system");
  Map({"anna", "y"}, {"One", "Two"});
  error = Refusal();
  EXPECT_EQ(error.Source(), "GetSageUserName");
  EXPECT_EQ(error.Description(), "Could not get windows user name from operating system");
  EXPECT_EQ(ErrorOf([] { clsInterfaceRangeList().GetWindowsUserName(); }).Description(),
            "Could not get windows user name from operating system");
}

TEST_F(UserMapping, TheMembersAreReachedByName) {
  Map({"anna", "y"}, {"One", "Two"});
  const Object late(list);
  EXPECT_EQ(late.Call(Member("GetSageUserName")), Variant("One"));
  EXPECT_EQ(late.Call(Member("GetWindowsUserName")), Variant("anna"));
  late.Call(Member("ClearList"));
  late.Call(Member("AddUserRangesToList"));
  EXPECT_EQ(list->Count(), 2);
}

}  // namespace
}  // namespace rangewerks::tests
