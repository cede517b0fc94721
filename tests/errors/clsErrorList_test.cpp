// The list as its callers see it: what is stored, what fails, when it is shown.
#include "errors/clsErrorList.h"

#include "errors/error_list_fixture.h"
#include "errors/member_texts.h"
#include "support/matches_regex.h"

namespace rangewerks::tests {
namespace {

using automation::Argument;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ErrorList : public ErrorListFixture {};

/// An error object of a caller's language.
class FakeErr final : public automation::Dispatch {
 public:
  std::string TypeName() const override { return "ErrObject"; }
  automation::Variant Invoke(const automation::Invocation& call) override {
    const std::string& member = call.member.Name();
    asked.push_back(std::string(KindName(call.kind)) + " " + member);
    if (member == failsAt) throw automation::Error(438, "Caller", "not there");
    if (member == "Number") return 1004;
    return "its " + member;
  }
  std::vector<std::string> asked;
  std::string failsAt;
};

TEST_F(ErrorList, HasItsMembersInTheirOrder) {
  EXPECT_THAT(
      MemberTexts(*list),
      ElementsAre("1 get ErrorCount", "2 get WarningCount", "3 get KeyRange", "3 set KeyRange",
                  "4 call ClearList()", "5 call ResetList()",
                  "6 call AddError(lLineNumber, Err, bIsWarning = False)", "7 call DisplayList()",
                  "8 call Add(SourceRow, Description, Number, Source, bIsWarning = "
                  "False)"));
}

TEST_F(ErrorList, BeginsEmptyWithOneBlankRow) {
  EXPECT_EQ(list->get_ErrorCount(), 0);
  EXPECT_EQ(list->get_WarningCount(), 0);
  EXPECT_FALSE(list->get_KeyRange());
  EXPECT_EQ(list->Rows().RowCount(), 1U);
  EXPECT_TRUE(list->Rows().IsEmpty());
  EXPECT_THAT(Row(0), ElementsAre("-", "-", "-", "-", "-", "-"));
  EXPECT_FALSE(Form().IsLoaded());
}

TEST_F(ErrorList, TheFirstAddWritesToRow0AndTheSecondAppends) {
  UseKeyRange("B5:B20");
  list->Add(1, "first", 9, "there");
  EXPECT_EQ(list->Rows().RowCount(), 1U);
  list->Add(4, "second", 0, "", true);
  EXPECT_EQ(list->Rows().RowCount(), 2U);
  EXPECT_THAT(Row(0), ElementsAre("5", "False", "-", "first", "1", "-"));
  EXPECT_THAT(Row(1), ElementsAre("8", "True", "-", "second", "4", "-"));
  EXPECT_EQ(list->get_ErrorCount(), 1);
  EXPECT_EQ(list->get_WarningCount(), 1);
}

TEST_F(ErrorList, KeepsTheSheetRowAsALongAndTheWarningAsABoolean) {
  UseKeyRange("B5");
  list->Add(2, "d", 0, "");
  EXPECT_EQ(list->Rows().Cell(0, 0), Variant(6));
  EXPECT_EQ(list->Rows().Cell(0, 1), Variant(false));
  EXPECT_EQ(list->Rows().Cell(0, 3), Variant("d"));
  EXPECT_EQ(list->Rows().Cell(0, 4), Variant(2));
}

TEST_F(ErrorList, AnEntryWithAnEmptyDescriptionAndSourceRow0IsNoLongerEmpty) {
  list->Add(0, "", 0, "");
  EXPECT_THAT(Row(0), ElementsAre("N/A", "False", "-", "", "0", "-"));
  EXPECT_FALSE(list->Rows().IsEmpty());
  list->Add(0, "second", 0, "");
  EXPECT_EQ(list->Rows().RowCount(), 2U);
}

TEST_F(ErrorList, AnEntryWithSourceRow0NeedsNoKeyRangeAndAnyOtherDoes) {
  list->Add(0, "general", 0, "");
  const Error error = ErrorOf([&] { list->Add(1, "row", 0, ""); });
  EXPECT_EQ(error.Number(), 91);
  EXPECT_THAT(error.Source(), MatchesRegex("Line No\\.: [1-9][0-9]* Add of Class Module "
                                           "clsErrorList Line#:[1-9][0-9]*"));
  EXPECT_EQ(list->get_ErrorCount(), 1);
}

TEST_F(ErrorList, AFailedAddLeavesTheRowThatItHasAppended) {
  list->Add(0, "general", 0, "");
  ErrorOf([&] { list->Add(1, "row", 0, ""); });
  EXPECT_EQ(list->Rows().RowCount(), 2U);
  EXPECT_THAT(Row(1), ElementsAre("-", "-", "-", "-", "-", "-"));
  list->Add(0, "later", 0, "");
  EXPECT_EQ(list->Rows().RowCount(), 3U);
  EXPECT_EQ(Row(2)[3], "later");
}

TEST_F(ErrorList, AFailedAddToAnEmptyListLeavesItEmpty) {
  ErrorOf([&] { list->Add(1, "row", 0, ""); });
  EXPECT_TRUE(list->Rows().IsEmpty());
  EXPECT_EQ(list->Rows().RowCount(), 1U);
}

TEST_F(ErrorList, AnOverflowInTheSumIsAnErrorLikeAnyOther) {
  UseKeyRange("B3");
  const Error error = ErrorOf([&] { list->Add(2147483647, "far", 0, ""); });
  EXPECT_EQ(error.Number(), 6);
  EXPECT_EQ(error.Description(), "Overflow");
  EXPECT_THAT(error.Source(), MatchesRegex("Line No\\.: [1-9][0-9]* Add of Class Module "
                                           "clsErrorList Line#:[1-9][0-9]*"));
  EXPECT_EQ(list->get_ErrorCount(), 0);
  list->Add(2147483645, "just", 0, "");
  EXPECT_EQ(list->Rows().Cell(0, 0), Variant(2147483647));
}

TEST_F(ErrorList, RowsAboveKeyRangeAreTakenAsTheyCome) {
  UseKeyRange("B3");
  list->Add(-5, "above", 0, "");
  EXPECT_EQ(list->Rows().Cell(0, 0), Variant(-3));
  EXPECT_EQ(list->Rows().Cell(0, 4), Variant(-5));
}

TEST_F(ErrorList, AsksTheHostForTheRowOfKeyRangeOnlyWhereItIsNeeded) {
  UseKeyRange("B5");
  EXPECT_THAT(CallsOf([&] { list->Add(2, "d", 0, ""); }), ElementsAre("Range.Row get"));
  EXPECT_THAT(CallsOf([&] { list->Add(0, "d", 0, ""); }), IsEmpty());
}

TEST_F(ErrorList, PassesAFailureOfTheHostOn) {
  UseKeyRange("B5");
  host.Calls().FailMember("Range.Row", 1004, "busy");
  const Error error = ErrorOf([&] { list->Add(2, "d", 0, ""); });
  EXPECT_EQ(error.Number(), 1004);
  EXPECT_EQ(error.Description(), "busy");
  EXPECT_THAT(error.Source(), MatchesRegex("Line No\\.: [1-9][0-9]* Workbook\r\n"
                                           "Add of Class Module clsErrorList Line#:[1-9][0-9]*"));
}

TEST_F(ErrorList, AddErrorTakesWhatTheErrorObjectTells) {
  UseKeyRange("B5");
  const auto err = std::make_shared<FakeErr>();
  list->Self().Call(Member("AddError"), {3, Object(err)});
  list->AddError(0, Object(err), true);
  EXPECT_THAT(Row(0), ElementsAre("7", "False", "-", "its Description", "3", "-"));
  EXPECT_THAT(Row(1), ElementsAre("N/A", "True", "-", "its Description", "0", "-"));
  EXPECT_EQ(list->get_ErrorCount(), 1);
  EXPECT_EQ(list->get_WarningCount(), 1);
  err->asked.resize(3);
  EXPECT_THAT(err->asked, ElementsAre("get Description", "get Number", "get Source"));
}

TEST_F(ErrorList, AddErrorPassesFailuresOnWithItsOwnName) {
  const auto err = std::make_shared<FakeErr>();
  err->failsAt = "Number";
  const Error missing = ErrorOf([&] { list->AddError(1, Object(err)); });
  EXPECT_EQ(missing.Number(), 438);
  EXPECT_THAT(missing.Source(),
              MatchesRegex("Line No\\.: [1-9][0-9]* Caller\r\n"
                           "AddError of Class Module clsErrorList Line#:[1-9][0-9]*"));
  EXPECT_EQ(ErrorOf([&] { list->AddError(1, {}); }).Number(), 91);
  EXPECT_TRUE(list->Rows().IsEmpty());
}

TEST_F(ErrorList, DisplayListOnANewListShowsTheMessageAndNoForm) {
  list->DisplayList();
  ASSERT_EQ(desktop->Messages().size(), 1U);
  EXPECT_EQ(desktop->Messages().front().text, "No errors or warnings found");
  EXPECT_EQ(desktop->Messages().front().flags, 0);
  EXPECT_EQ(desktop->Messages().front().title, "");
  EXPECT_THAT(desktop->FormsShown(), IsEmpty());
  EXPECT_FALSE(Form().IsLoaded());
}

TEST_F(ErrorList, AfterClearListTheCountsAre0AndDisplayListAgainShowsTheMessage) {
  list->Add(0, "e", 0, "");
  list->Add(0, "w", 0, "", true);
  list->ClearList();
  EXPECT_EQ(list->get_ErrorCount(), 0);
  EXPECT_EQ(list->get_WarningCount(), 0);
  EXPECT_EQ(list->Rows().RowCount(), 1U);
  list->DisplayList();
  ASSERT_EQ(desktop->Messages().size(), 1U);
  EXPECT_EQ(desktop->Messages().front().text, "No errors or warnings found");
}

TEST_F(ErrorList, ResetListLeavesOneBlankRowAndCountsOf0) {
  UseKeyRange("B5");
  list->Add(1, "e", 0, "");
  list->Add(2, "w", 0, "", true);
  list->ResetList();
  EXPECT_THAT(Row(0), ElementsAre("-", "-", "-", "-", "-", "-"));
  EXPECT_EQ(list->Rows().RowCount(), 1U);
  EXPECT_EQ(list->get_ErrorCount(), 0);
  EXPECT_EQ(list->get_WarningCount(), 0);
  EXPECT_TRUE(list->get_KeyRange());
}

TEST_F(ErrorList, DisplayListShowsTheFormAboveAllOthersAndReturns) {
  UseKeyRange("B5");
  list->Add(1, "e", 0, "");
  EXPECT_THAT(CallsOf([&] { list->DisplayList(); }), IsEmpty());
  EXPECT_TRUE(Form().IsVisible());
  EXPECT_TRUE(Form().IsTopMost());
  EXPECT_EQ(Form().get_ErrorList().get(), &list->Rows());
  EXPECT_EQ(Form().get_KeyRange(), list->get_KeyRange());
  EXPECT_THAT(desktop->FormsShown(), ElementsAre("frmErrorListDisplay"));
  EXPECT_THAT(desktop->Messages(), IsEmpty());
}

/// A desktop that can't make windows.
class DesktopWithoutWindows final : public desktops::HeadlessDesktop {
 public:
  std::shared_ptr<forms::FormWindow> MakeWindow(forms::Form& /*form*/) override {
    throw automation::Error(7, "Desktop", "Out of memory");
  }
};

TEST(AnErrorListThatCannotBeShown, PassesTheFailureOnWithTheTextOfDisplayList) {
  const auto desktop = std::make_shared<DesktopWithoutWindows>();
  clsErrorList list(desktop, std::make_shared<ErrorMessageBox>(desktop, nullptr));
  list.Add(0, "e", 0, "");
  const automation::Error error = ErrorOf([&] { list.DisplayList(); });
  EXPECT_EQ(error.Number(), 7);
  EXPECT_THAT(error.Source(),
              MatchesRegex("Line No\\.: [1-9][0-9]* Desktop\r\n"
                           "DisplayList of Class Module clsErrorList Line#:[1-9][0-9]*"));
}

TEST_F(ErrorList, ClosingTheFormRaisesFormClosedOnce) {
  std::vector<std::string> events;
  const auto connection = list->Connect([&](Member event, std::span<const Argument> arguments) {
    events.push_back(event.Name() + " " + std::to_string(arguments.size()));
  });
  list->Add(0, "e", 0, "");
  list->DisplayList();
  EXPECT_THAT(events, IsEmpty());
  desktop->Close(Form());
  EXPECT_THAT(events, ElementsAre("FormClosed 0"));
  EXPECT_FALSE(Form().IsLoaded());
}

TEST_F(ErrorList, CanBeShownAgainAfterItWasClosed) {
  list->Add(0, "e", 0, "");
  list->DisplayList();
  desktop->Close(Form());
  list->Add(0, "f", 0, "");
  list->DisplayList();
  EXPECT_TRUE(Form().IsTopMost());
  EXPECT_EQ(Form().TDBGridErrors.Rows()->RowCount(), 2U);
}

TEST_F(ErrorList, AListDroppedByItsListenerEndsQuietly) {
  automation::Connection connection;
  connection = list->Connect([&](Member, std::span<const Argument>) { list = nullptr; });
  list->Add(0, "e", 0, "");
  list->DisplayList();
  desktop->Close(Form());
  EXPECT_EQ(list, nullptr);
}

TEST_F(ErrorList, TheFormStaysWhenTheListEndsAndReachesBackIntoNothing) {
  UseKeyRange("B5:B20");
  int events = 0;
  const auto connection = list->Connect([&](Member, std::span<const Argument>) { ++events; });
  list->Add(3, "e", 0, "");
  list->DisplayList();
  const std::weak_ptr<forms::Form> form = Form().weak_from_this();
  list = nullptr;
  ASSERT_FALSE(form.expired());
  auto& shown = dynamic_cast<frmErrorListDisplay&>(*form.lock());
  EXPECT_TRUE(shown.IsVisible());
  desktop->Click(shown.TDBGridErrors, 0);
  EXPECT_EQ(Selection(), "$7:$7");
  desktop->Close(shown);
  EXPECT_TRUE(form.expired());
  EXPECT_EQ(events, 0);
}

TEST_F(ErrorList, LetsGoOfAFormThatIsNotShown) {
  const std::weak_ptr<forms::Form> form = Form().weak_from_this();
  list = nullptr;
  EXPECT_TRUE(form.expired());
}

}  // namespace
}  // namespace rangewerks::tests
