#include "browse/clsExcelBrowse.h"

#include <gmock/gmock.h>

#include <algorithm>

#include "browse/browse_fixture.h"
#include "support/matches_regex.h"

namespace rangewerks::tests {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kOldText = "Brow&se Records";
constexpr const char* kNewText = "&Browse Records";

class ExcelBrowse : public BrowseFixture {
 protected:
  ExcelBrowse() {
    browse.set_WorkBook(Book());
    browse.let_Component("Ledger.Browse");
  }

  /// The entries of both bars named "Cell" that aren't there in a new program.
  Lines Added() const {
    Lines added;
    for (const std::int32_t bar : {2, 5}) {
      for (const std::string& caption : CaptionsOf(bar)) {
        if (caption.find("Records") != std::string::npos) added.push_back(caption);
      }
    }
    return added;
  }
  /// Puts an entry into the bar for the preview of page breaks.
  Object AddToOtherBar(const char* caption) const {
    const Object entry = Call(GetObject(BarAt(5), "Controls"), "Add").AsObject();
    Let(entry, "Caption", caption);
    return entry;
  }

  clsExcelBrowseAddin browse;
};

// --- the texts -----------------------------------------------------------------------------------

TEST_F(ExcelBrowse, StartsWithTheOldTextAndTheNewMethod) {
  const clsExcelBrowseAddin fresh;
  EXPECT_FALSE(fresh.get_UseNewBrowseShortcutName());
  EXPECT_TRUE(fresh.get_UseNewMethod());
  EXPECT_EQ(fresh.get_BrowseMenuText(), kOldText);
  EXPECT_EQ(fresh.get_Component(), "");
  EXPECT_EQ(fresh.get_Command(), "");
  EXPECT_FALSE(fresh.get_WorkBook());
}

TEST_F(ExcelBrowse, ACaptionThatWasNeverSetIsTheMenuText) {
  EXPECT_EQ(browse.get_Caption(), kOldText);
}

TEST_F(ExcelBrowse, ACaptionOfBlanksCountsAsNotSet) {
  browse.let_Caption("   ");
  EXPECT_EQ(browse.get_Caption(), kOldText);
  browse.let_Caption("  Mine ");
  EXPECT_EQ(browse.get_Caption(), "  Mine ");
}

TEST_F(ExcelBrowse, ChoosingTheTextOverwritesACaption) {
  browse.let_Caption("Mine");
  browse.let_UseNewBrowseShortcutName(true);
  EXPECT_EQ(browse.get_Caption(), kNewText);
  EXPECT_EQ(browse.get_BrowseMenuText(), kNewText);
  browse.let_UseNewBrowseShortcutName(false);
  EXPECT_EQ(browse.get_Caption(), kOldText);
}

// --- the entry -----------------------------------------------------------------------------------

TEST_F(ExcelBrowse, TheEntryIsTheFirstOfTheCellMenuAndIsToldByItsTag) {
  browse.AddBrowseShortcut();
  EXPECT_EQ(CaptionsOf(2).front(), kOldText);
  EXPECT_EQ(GetText(EntryAt(2, 1), "Tag"), "Ledger.Browse");
  EXPECT_EQ(GetText(EntryAt(2, 1), "OnAction"), "") << "it runs no macro";
  EXPECT_EQ(CaptionsOf(2)[1], "Cu&t");
}

TEST_F(ExcelBrowse, AddingWalksTheBarsAddsAndLooksAgain) {
  const Lines calls = CallsOf([&] { browse.AddBrowseShortcut(); });
  const Lines beforeAdding(calls.begin(), calls.begin() + 6);
  EXPECT_THAT(beforeAdding, ElementsAre("Workbook.Application get", "Application.CommandBars get",
                                        "CommandBars enumerate", "CommandBar.Name get",
                                        "CommandBar.Name get", "CommandBar.Controls get"));
  const auto menu = std::ranges::find(calls, "Application.ShortcutMenus get 3");
  ASSERT_NE(menu, calls.end());
  EXPECT_THAT(Lines(menu - 1, menu + 13),
              ElementsAre("Workbook.Application get", "Application.ShortcutMenus get 3",
                          "Menu.MenuItems get", "MenuItems.Add call \"Brow&se Records\", Before:=1",
                          "Workbook.Application get", "Application.CommandBars get",
                          "CommandBars enumerate", "CommandBar.Name get", "CommandBar.Name get",
                          "CommandBar.Controls get", "CommandBarControls enumerate",
                          "CommandBarControl.Caption get", "CommandBar.Controls get",
                          "CommandBarControls.Item get \"Brow&se Records\""));
  EXPECT_THAT(Lines(calls.end() - 2, calls.end()),
              ElementsAre("CommandBarControl.Caption let \"Brow&se Records\"",
                          "CommandBarControl.Tag let \"Ledger.Browse\""));
}

TEST_F(ExcelBrowse, AddingTwiceAddsOneEntry) {
  browse.AddBrowseShortcut();
  browse.AddBrowseShortcut();
  EXPECT_THAT(Added(), ElementsAre(kOldText));
}

TEST_F(ExcelBrowse, AllBarsNamedCellAreLookedThrough) {
  AddToOtherBar(kOldText);
  EXPECT_EQ(GetText(browse.FindBrowseCommandBar(), "Name"), "Cell");
  browse.AddBrowseShortcut();
  EXPECT_THAT(Added(), ElementsAre(kOldText)) << "the entry of the other bar counts";
  browse.DeleteBrowseShortcut();
  EXPECT_THAT(Added(), IsEmpty());
}

TEST_F(ExcelBrowse, BarsOfOtherNamesAreNotLookedThrough) {
  const Object entry = Call(GetObject(BarAt(3), "Controls"), "Add").AsObject();
  Let(entry, "Caption", kOldText);
  EXPECT_FALSE(browse.FindBrowseCommandBar());
}

TEST_F(ExcelBrowse, CaptionsMustBeEqualToTheLetter) {
  AddToOtherBar("brow&se records");
  AddToOtherBar("Browse Records");
  EXPECT_FALSE(browse.FindBrowseCommandBar());
}

TEST_F(ExcelBrowse, DeletingRemovesTheEntry) {
  const Lines before = CaptionsOf(2);
  browse.AddBrowseShortcut();
  const Lines calls = CallsOf([&] { browse.DeleteBrowseShortcut(); });
  EXPECT_THAT(
      Lines(calls.end() - 3, calls.end()),
      ElementsAre("CommandBar.Controls get", "CommandBarControls.Item get \"Brow&se Records\"",
                  "CommandBarControl.Delete call"));
  EXPECT_EQ(CaptionsOf(2), before);
}

TEST_F(ExcelBrowse, DeletingWithoutAnEntryDoesNothing) {
  const Lines before = CaptionsOf(2);
  browse.DeleteBrowseShortcut();
  EXPECT_EQ(CaptionsOf(2), before);
}

TEST_F(ExcelBrowse, AnEntryUnderTheOtherTextIsNotFoundAndSoNotDeleted) {
  browse.AddBrowseShortcut();
  browse.let_UseNewBrowseShortcutName(true);
  EXPECT_FALSE(browse.FindBrowseCommandBar());
  browse.DeleteBrowseShortcut();
  EXPECT_THAT(Added(), ElementsAre(kOldText));
  browse.AddBrowseShortcut();
  EXPECT_THAT(Added(), ElementsAre(kNewText, kOldText));
}

TEST_F(ExcelBrowse, AFailureOfAddingReachesTheCallerUntouched) {
  host.Calls().FailMember("MenuItems.Add", 1004, "The menu is locked");
  const Error error = ErrorOf([&] { browse.AddBrowseShortcut(); });
  EXPECT_EQ(error.Number(), 1004);
  EXPECT_EQ(error.Source(), "Workbook");
  EXPECT_EQ(error.Description(), "The menu is locked");
}

TEST_F(ExcelBrowse, AnEntryThatIsNotThereAfterAddingIsError91) {
  auto& calls = host.Calls();
  calls.LogCalls(true);
  calls.Watch([&] {
    const auto& lines = calls.Lines();
    if (!lines.empty() && lines.back().starts_with("MenuItems.Add")) Call(EntryAt(2, 1), "Delete");
  });
  const Error error = ErrorOf([&] { browse.AddBrowseShortcut(); });
  calls.Watch({});
  EXPECT_EQ(error.Number(), 91);
  EXPECT_THAT(Added(), IsEmpty());
}

TEST_F(ExcelBrowse, AFailureOfDeletingNamesTheProcedureWithoutALineBehindIt) {
  browse.AddBrowseShortcut();
  host.Calls().FailMember("CommandBarControl.Delete", 1004, "The menu is locked");
  const Error error = ErrorOf([&] { browse.DeleteBrowseShortcut(); });
  EXPECT_EQ(error.Number(), 1004);
  EXPECT_THAT(error.Source(), MatchesRegex("Line No\\.: [0-9]+ Workbook\r\n"
                                           "DeleteBrowseShortcut of Class Module clsExcelBrowse"));
  EXPECT_EQ(error.Description(), "The menu is locked");
}

TEST_F(ExcelBrowse, WhoeverListensHearsThatAPersonChoseTheEntry) {
  browse.AddBrowseShortcut();
  Lines heard;
  const auto connection =
      EntryAt(2, 1).Connect([&](Member event, std::span<const automation::Argument> given) {
        heard.push_back(event.Name() + " " + GetText(given[0].Value().AsObject(), "Tag"));
      });
  Call(EntryAt(2, 1), "Execute");
  EXPECT_THAT(heard, ElementsAre("Click Ledger.Browse"));
}

// --- the mark of the workbook --------------------------------------------------------------------

TEST_F(ExcelBrowse, AWorkbookWithoutTheMarkHasNoBrowse) {
  EXPECT_FALSE(browse.IsBrowse());
  EXPECT_FALSE(clsExcelBrowseAddin().IsBrowse()) << "nor has no workbook";
}

TEST_F(ExcelBrowse, TheMarkIsAPropertyThatIsTrue) {
  EXPECT_THAT(CallsOf([&] { browse.SetDocumentPropertyOn(); }),
              ElementsAre("Workbook.CustomDocumentProperties get",
                          "DocumentProperties.Add call Name:=\"Ledger.Browse\", "
                          "LinkToContent:=False, Type:=2, Value:=True",
                          "DocumentProperties.Item get \"Ledger.Browse\"",
                          "DocumentProperty._Default let True"));
  EXPECT_EQ(PropertyOf("Ledger.Browse"), Variant(true));
  EXPECT_THAT(CallsOf([&] { EXPECT_TRUE(browse.IsBrowse()); }),
              ElementsAre("Workbook.CustomDocumentProperties get",
                          "DocumentProperties.Item get \"Ledger.Browse\"",
                          "DocumentProperty._Default get"));
}

TEST_F(ExcelBrowse, AMarkThatIsThereIsTurnedOnAndOff) {
  browse.SetDocumentPropertyOn();
  EXPECT_THAT(CallsOf([&] { browse.SetDocumentPropertyOff(); }),
              ElementsAre("Workbook.CustomDocumentProperties get",
                          "DocumentProperties.Item get \"Ledger.Browse\"",
                          "DocumentProperty._Default let False"));
  EXPECT_EQ(PropertyOf("Ledger.Browse"), Variant(false));
  EXPECT_FALSE(browse.IsBrowse());
  browse.SetDocumentPropertyOn();
  EXPECT_TRUE(browse.IsBrowse());
  EXPECT_EQ(GetLong(Properties(), "Count"), 1);
}

TEST_F(ExcelBrowse, TurningTheMarkOffWithoutOneIsSilent) {
  browse.SetDocumentPropertyOff();
  EXPECT_EQ(GetLong(Properties(), "Count"), 0);
}

TEST_F(ExcelBrowse, AMarkThatIsNoBooleanIsNoBrowse) {
  Call(Properties(), "Add", {"Ledger.Browse", false, 4, "perhaps"});
  EXPECT_FALSE(browse.IsBrowse());
}

TEST_F(ExcelBrowse, AMarkThatCanNotBeAddedFailsUnderTheOldName) {
  host.Calls().FailMember("DocumentProperties.Add", 1004, "The workbook is protected");
  const Error error = ErrorOf([&] { browse.SetDocumentPropertyOn(); });
  EXPECT_EQ(error.Number(), 9) << "the failure that counts is that the property isn't there then";
  EXPECT_THAT(error.Source(), MatchesRegex("Line No\\.: [0-9]+ Workbook\r\n"
                                           "SetDocumentPropertyOn of frmRangeSelect Line#:[0-9]+"));
}

// --- the public class ----------------------------------------------------------------------------

TEST_F(ExcelBrowse, ThePublicClassForwardsEveryMember) {
  const Object object(std::make_shared<clsExcelBrowse>());
  EXPECT_EQ(object.TypeName(), "clsExcelBrowse");
  EXPECT_EQ(Get(object, "UseNewBrowseShortcutName"), Variant(false));
  EXPECT_EQ(Get(object, "UseNewMethod"), Variant(true));
  EXPECT_EQ(GetText(object, "Caption"), kOldText);
  object.Set(Member("WorkBook"), book);
  Let(object, "Component", "Ledger.Browse");
  Let(object, "Command", "Run");
  Let(object, "UseNewMethod", false);
  Let(object, "UseNewBrowseShortcutName", true);
  EXPECT_EQ(GetText(object, "BrowseMenuText"), kNewText);
  EXPECT_EQ(GetText(object, "Caption"), kNewText);
  Let(object, "Caption", "Look");
  EXPECT_EQ(GetText(object, "Caption"), "Look");
  EXPECT_EQ(GetText(object, "Component"), "Ledger.Browse");
  EXPECT_EQ(GetText(object, "Command"), "Run");
  EXPECT_EQ(Get(object, "UseNewMethod"), Variant(false));
  EXPECT_EQ(GetObject(object, "WorkBook"), book);

  EXPECT_EQ(Call(object, "IsBrowse"), Variant(false));
  AddProperty("Ledger.Browse", true);
  EXPECT_EQ(Call(object, "IsBrowse"), Variant(true));
  Call(object, "AddBrowseShortcut");
  EXPECT_EQ(CaptionsOf(2).front(), "Look");
  Call(object, "DeleteBrowseShortcut");
  EXPECT_EQ(CaptionsOf(2).front(), "Cu&t");
}

}  // namespace
}  // namespace rangewerks::tests
