// The form beside the spreadsheet, as the person uses it.
#include "errors/frmErrorListDisplay.h"

#include "errors/error_list_fixture.h"
#include "support/matches_regex.h"

namespace rangewerks::tests {
namespace {

using forms::Picture;
using forms::Place;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class TheErrorList : public ErrorListFixture {
 protected:
  /// Rows 1, 2 and 4 of B5:B20 and one entry without a row.
  TheErrorList() {
    UseKeyRange("B5:B20");
    list->Add(1, "on the first row", 0, "");
    list->Add(2, "on the second row", 0, "", true);
    list->Add(0, "on no row", 0, "");
    list->Add(4, "on the fourth row", 0, "");
  }

  void Show() {
    list->DisplayList();
    sheet.get_Range("A1").Select();
  }
};

TEST_F(TheErrorList, ShowsItsControlsWithTheirTexts) {
  Show();
  EXPECT_EQ(Form().get_Caption(), "Error List");
  EXPECT_EQ(Form().lblHelp.get_Caption(),
            "List of Errors below.  Select one to highlight the line on the spreadsheet");
  EXPECT_EQ(Form().C1Elastic1.get_Name(), "C1Elastic1");
  EXPECT_EQ(Form().lblHelp.get_Name(), "lblHelp");
  EXPECT_EQ(Form().TDBGridErrors.get_Name(), "TDBGridErrors");
}

TEST_F(TheErrorList, ShowsFourOfTheSixColumns) {
  Show();
  const forms::Grid& grid = Form().TDBGridErrors;
  ASSERT_EQ(grid.ColumnCount(), 4U);
  std::vector<std::string> columns;
  for (std::size_t i = 0; i < 4; ++i) {
    const forms::GridColumn& column = grid.Column(i);
    columns.push_back(column.heading + " from " + std::to_string(column.source) +
                      (column.locked ? " locked" : ""));
  }
  EXPECT_THAT(columns, ElementsAre("Row from 0 locked", " from 1 locked", "Fixed? from 2",
                                   "Error from 3 locked"));
  EXPECT_EQ(grid.Column(0).width, 500);
  EXPECT_EQ(grid.Column(1).width, 450);
  EXPECT_EQ(grid.Column(2).width, 620);
}

TEST_F(TheErrorList, ShowsTheStoreWithAPictureForWarningsAndOneForErrors) {
  Show();
  const forms::Grid& grid = Form().TDBGridErrors;
  EXPECT_EQ(grid.CellText(0, 0), "5");
  EXPECT_EQ(grid.CellText(0, 3), "on the first row");
  EXPECT_EQ(grid.CellText(2, 0), "N/A");
  EXPECT_EQ(grid.CellPicture(0, 1), Picture::Error);
  EXPECT_EQ(grid.CellPicture(1, 1), Picture::Warning);
  EXPECT_EQ(grid.CellText(1, 1), "");
}

TEST_F(TheErrorList, HasNoPictureInABlankRow) {
  Show();
  list->ClearList();
  EXPECT_EQ(Form().TDBGridErrors.CellPicture(0, 1), Picture::None);
}

TEST_F(TheErrorList, OpensAgainstTheRightEdgeOfTheScreen) {
  desktop->SetScreen({20000, 10000});
  Show();
  EXPECT_EQ(Form().get_Left() + Form().get_Width(), 20000);
}

TEST_F(TheErrorList, KeepsTheControlsProportionalToTheForm) {
  Show();
  const Place help = Form().lblHelp.Properties().place;
  const Place grid = Form().TDBGridErrors.Properties().place;
  EXPECT_EQ(Form().C1Elastic1.Properties().place, (Place{0, 0, 6600, 4200}));
  desktop->Resize(Form(), 6600 * 2 + 240, 4200 * 1.5 + 585);
  EXPECT_EQ(Form().C1Elastic1.Properties().place, (Place{0, 0, 13200, 6300}));
  EXPECT_EQ(Form().lblHelp.Properties().place,
            (Place{help.left * 2, help.top * 1.5, help.width * 2, help.height * 1.5}));
  EXPECT_EQ(Form().TDBGridErrors.Properties().place,
            (Place{grid.left * 2, grid.top * 1.5, grid.width * 2, grid.height * 1.5}));
  desktop->Resize(Form(), 100, 100);  // less than its frame
  EXPECT_EQ(Form().TDBGridErrors.Properties().place, (Place{0, 0, 0, 0}));
  desktop->Resize(Form(), 6600 + 240, 4200 + 585);
  EXPECT_EQ(Form().TDBGridErrors.Properties().place, grid);
}

TEST_F(TheErrorList, SelectsTheSheetRowOfALineThatIsClicked) {
  Show();
  const auto calls = CallsOf([&] { desktop->Click(Form().TDBGridErrors, 1); });
  EXPECT_THAT(calls, ElementsAre("Range.Row get", "Range.Item get 2", "Range.EntireRow get",
                                 "Range.Select call"));
  EXPECT_EQ(Selection(), "$6:$6");
  EXPECT_EQ(desktop->Focus(), "frmErrorListDisplay");
  desktop->Click(Form().TDBGridErrors, 3);
  EXPECT_EQ(Selection(), "$8:$8");
}

TEST_F(TheErrorList, LeavesTheSheetAloneForALineOnNoRow) {
  Show();
  EXPECT_THAT(CallsOf([&] { desktop->Click(Form().TDBGridErrors, 2); }), IsEmpty());
  EXPECT_EQ(Selection(), "$A$1");
  EXPECT_EQ(desktop->PendingReactions(), 0U);
  EXPECT_THAT(desktop->FormsShown(), ElementsAre("frmErrorListDisplay"));
}

TEST_F(TheErrorList, LeavesTheSheetAloneForALineOnTheFirstRowOfKeyRange) {
  Show();
  EXPECT_THAT(CallsOf([&] { desktop->Click(Form().TDBGridErrors, 0); }),
              ElementsAre("Range.Row get"));
  EXPECT_EQ(Selection(), "$A$1");
}

TEST_F(TheErrorList, NeverMovesTheSheetBeforeTheFirstClick) {
  Show();
  EXPECT_FALSE(Form().get_bGridClicked());
  EXPECT_THAT(CallsOf([&] { Form().TDBGridErrors.PersonMovedTo(1); }), IsEmpty());
  EXPECT_EQ(Selection(), "$A$1");
}

TEST_F(TheErrorList, FollowsTheKeysOnceTheGridWasClickedUntilItIsClosed) {
  Show();
  desktop->Click(Form().TDBGridErrors, 0);
  EXPECT_TRUE(Form().get_bGridClicked());
  Form().TDBGridErrors.PersonMovedTo(3);
  EXPECT_EQ(Selection(), "$8:$8");
  desktop->Close(Form());
  Show();
  EXPECT_FALSE(Form().get_bGridClicked());
  Form().TDBGridErrors.PersonMovedTo(1);
  EXPECT_EQ(Selection(), "$A$1");
}

TEST_F(TheErrorList, ADoubleClickDoesNothingOfItsOwn) {
  Show();
  desktop->Click(Form().TDBGridErrors, 1);
  EXPECT_THAT(CallsOf([&] { desktop->Click(Form().TDBGridErrors, 1); }), IsEmpty());
}

TEST_F(TheErrorList, WhatIsTypedUnderFixedLandsInTheStore) {
  Show();
  desktop->Type(Form().TDBGridErrors, 1, 2, "yes");
  EXPECT_EQ(list->Rows().Cell(1, ErrorRows::kFixed), Variant("yes"));
  EXPECT_EQ(Form().TDBGridErrors.CellText(1, 2), "yes");
}

TEST_F(TheErrorList, OtherColumnsTakeNoTyping) {
  Show();
  for (const std::size_t column : {0U, 1U, 3U}) {
    desktop->Type(Form().TDBGridErrors, 1, column, "x");
  }
  EXPECT_THAT(Row(1), ElementsAre("6", "True", "-", "on the second row", "2", "-"));
}

TEST_F(TheErrorList, ShowsWhatTheCallerGoesOnAddingWhileThePersonClicks) {
  Show();
  desktop->Click(Form().TDBGridErrors, 1);
  list->Add(7, "found later", 0, "");
  EXPECT_EQ(Form().TDBGridErrors.Rows()->RowCount(), 5U);
  EXPECT_EQ(Form().TDBGridErrors.get_Row(), 1);
  desktop->Click(Form().TDBGridErrors, 4);
  EXPECT_EQ(Selection(), "$11:$11");
  list->ClearList();
  EXPECT_EQ(Form().TDBGridErrors.get_Row(), -1);
  list->Add(3, "again", 0, "");
  desktop->Click(Form().TDBGridErrors, 0);
  EXPECT_EQ(Selection(), "$7:$7");
}

TEST_F(TheErrorList, TheRowsOfTheSheetCountAsKeyRangeLiesWhenALineIsClicked) {
  Show();
  UseKeyRange("B2:B20");  // the form keeps the one that it was given
  desktop->Click(Form().TDBGridErrors, 1);
  EXPECT_EQ(Selection(), "$6:$6");
}

TEST_F(TheErrorList, TellsAFailureOfTheSheetWithTheWayThatItTook) {
  Show();
  host.Calls().FailMember("Range.Select", 1004, "Select method of Range class failed");
  ReadTheNextFailure();
  desktop->Click(Form().TDBGridErrors, 1);
  EXPECT_EQ(desktop->PendingReactions(), 0U);
  EXPECT_EQ(failure, "Select method of Range class failed");
  EXPECT_THAT(failureSource,
              MatchesRegex("Line No\\.: [1-9][0-9]* Workbook\r\n"
                           "SelectLine of Form frmErrorListDisplay Line#:[1-9][0-9]*\r\n"
                           "TDBGridErrors_RowColChange of Form frmErrorListDisplay "
                           "Line#:[1-9][0-9]*"));
}

TEST_F(TheErrorList, TellsThatThereIsNoKeyRange) {
  Show();
  Form().set_KeyRange({});
  ReadTheNextFailure();
  desktop->Click(Form().TDBGridErrors, 1);
  EXPECT_EQ(failure, "Object variable or With block variable not set");
  EXPECT_EQ(desktop->PendingReactions(), 0U);
}

TEST_F(TheErrorList, SelectLineWithoutACurrentLineDoesNothing) {
  Show();
  EXPECT_THAT(CallsOf([&] { Form().SelectLine(); }), IsEmpty());
}

TEST_F(TheErrorList, ClosingTakesTheTopMostStateOffAndReleasesTheStore) {
  Show();
  EXPECT_TRUE(Form().IsTopMost());
  bool wasTopMost = true;
  bool hadStore = true;
  const auto connection = Form().ConnectClosed([&](Member, std::span<const automation::Argument>) {
    wasTopMost = Form().IsTopMost();
    hadStore = Form().get_ErrorList() != nullptr;
  });
  desktop->Close(Form());
  EXPECT_FALSE(wasTopMost);
  EXPECT_FALSE(hadStore);
}

/// A desktop that can't tell the size of its screen.
class DesktopWithoutScreen final : public desktops::HeadlessDesktop {
 public:
  /// Asked first for the place where a form opens, then by the form itself.
  forms::Size Screen() override {
    if (++asked_ == 2) throw automation::Error(1004, "Desktop", "no screen");
    return HeadlessDesktop::Screen();
  }

 private:
  int asked_ = 0;
};

TEST(AnErrorListFormThatCannotLoad, TellsThePersonAndOpensAllTheSame) {
  const auto desktop = std::make_shared<DesktopWithoutScreen>();
  const auto box = std::make_shared<ErrorMessageBox>(desktop, nullptr);
  clsErrorList list(desktop, box);
  list.Add(0, "e", 0, "");
  std::string source;
  desktop->WhenShown<frmErrMessage>([&](frmErrMessage& form) {
    source = form.txtExtra.get_Text();
    EXPECT_EQ(form.txtMainMessage.get_Text(), "no screen");
    desktop->Click(form.cmdOK);
  });
  list.DisplayList();
  EXPECT_THAT(source, MatchesRegex("Desktop\r\nForm_Load of Form frmErrorListDisplay "
                                   "Line#:[1-9][0-9]*"));
  EXPECT_TRUE(list.Display().IsVisible());
  desktop->Close(list.Display());
}

}  // namespace
}  // namespace rangewerks::tests
