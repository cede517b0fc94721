#include "browse/clsBrowseDate.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "automation/conversions.h"
#include "automation/dispatch.h"
#include "browse/frmBrowseCalendar.h"
#include "desktops/headless/headless_desktop.h"
#include "hosts/workbook/host.h"
#include "support/control_names.h"
#include "support/error_of.h"
#include "support/fixed_system.h"
#include "support/matches_regex.h"

namespace rangewerks::tests {
namespace {

using automation::Date;
using automation::DateOf;
using automation::Error;
using automation::Member;
using automation::Object;
using automation::Variant;
using desktops::HeadlessDesktop;
using Lines = std::vector<std::string>;

const Date kToday = DateOf(2031, 4, 5);

class ClsBrowseDate : public ::testing::Test {
 protected:
  ClsBrowseDate() {
    system->SetNow({kToday.serial + 0.75});
    browse.set_ActiveCell(cell);
  }
  /// Browses with the person's part in it.
  void Browse(const std::function<void(frmBrowseCalendar&)>& person) {
    desktop->WhenShown<frmBrowseCalendar>(person);
    host.Calls().LogCalls(true);
    browse.BrowseDate();
    host.Calls().LogCalls(false);
  }
  void BrowseAndCancel() {
    Browse([&](frmBrowseCalendar& form) { desktop->Click(form.cmdCancel); });
  }
  void ExpectOpensOn(Date day) {
    Browse([&](frmBrowseCalendar& form) {
      EXPECT_EQ(form.TDBCalendar1.get_Date(), day);
      desktop->Click(form.cmdCancel);
    });
  }

  std::shared_ptr<FixedSystem> system = std::make_shared<FixedSystem>("");
  std::shared_ptr<HeadlessDesktop> desktop = std::make_shared<HeadlessDesktop>();
  hosts::workbook::Host host;
  Object workbook = host.AddWorkbook("Book1", {"Sheet1"});
  excel::Range cell =
      excel::Worksheet(workbook.Get(Member("Sheets"), {"Sheet1"}).AsObject()).get_Range("B2");
  clsBrowseDate browse{desktop, system};
};

TEST_F(ClsBrowseDate, ShowsTheCalendarOnTodayForAnEmptyCell) { ExpectOpensOn(kToday); }

TEST_F(ClsBrowseDate, ShowsTheCalendarOnTodayForACellWithOnlyBlanks) {
  cell.let_Value("   ");
  ExpectOpensOn(kToday);
}

TEST_F(ClsBrowseDate, ShowsTheCalendarOnTheDateInTheCell) {
  cell.let_Value(DateOf(2029, 2, 28));
  ExpectOpensOn(DateOf(2029, 2, 28));
}

TEST_F(ClsBrowseDate, ShowsTheCalendarOnADateWrittenAsText) {
  cell.let_Value("'2029-02-28");
  ExpectOpensOn(DateOf(2029, 2, 28));
}

TEST_F(ClsBrowseDate, ShowsTheCalendarOnTheDayOfANumber) {
  cell.let_Value(45000);
  ExpectOpensOn({45000});
}

TEST_F(ClsBrowseDate, ShowsTheCalendarOnTheDayOfAMoment) {
  cell.let_Value("'2029-02-28 18:00");
  ExpectOpensOn(DateOf(2029, 2, 28));
}

// The hours of a day before day 0 count away from it.
TEST_F(ClsBrowseDate, ShowsTheCalendarOnTheDayOfAMomentBefore1900) {
  cell.let_Value("'1850-03-01 18:00");
  ExpectOpensOn(DateOf(1850, 3, 1));
}

TEST_F(ClsBrowseDate, ShowsTheCalendarOnTodayForWhatIsNoDateAndLeavesItInTheCell) {
  cell.let_Value("abc");
  ExpectOpensOn(kToday);
  EXPECT_EQ(cell.get_Value(), Variant("abc"));
  EXPECT_TRUE(desktop->Messages().empty());
}

TEST_F(ClsBrowseDate, TakesTheMomentForWhatIsNoDateAndTheDayForAnEmptyCell) {
  auto& form = desktop->Shared<frmBrowseCalendar>();
  BrowseAndCancel();
  EXPECT_EQ(form.get_InitialDate(), kToday);
  cell.let_Value("abc");
  BrowseAndCancel();
  EXPECT_EQ(form.get_InitialDate(), Date{kToday.serial + 0.75});
}

TEST_F(ClsBrowseDate, WritesTheDayThatWasPickedAsADate) {
  Browse([&](frmBrowseCalendar& form) {
    desktop->Choose(form.TDBCalendar1, DateOf(2030, 12, 31));
    desktop->PressEnter(form);
  });
  EXPECT_EQ(cell.get_Value(), Variant(DateOf(2030, 12, 31)));
  EXPECT_EQ(host.Calls().Lines(), Lines({"Range.Value get", "Range._Default let #2030-12-31#"}));
}

TEST_F(ClsBrowseDate, WritesTheDayThatWasClickedTwice) {
  cell.let_Value("abc");
  Browse([&](frmBrowseCalendar& form) {
    desktop->DoubleClick(form.TDBCalendar1, DateOf(2030, 12, 31));
  });
  EXPECT_EQ(cell.get_Value(), Variant(DateOf(2030, 12, 31)));
  EXPECT_EQ(host.Calls().Lines(),
            Lines({"Range.Value get", "Range.Value get", "Range._Default let #2030-12-31#"}));
}

TEST_F(ClsBrowseDate, NeverChangesTheCellWhenThePersonCancels) {
  Browse([&](frmBrowseCalendar& form) {
    desktop->Choose(form.TDBCalendar1, DateOf(2030, 12, 31));
    desktop->PressEscape(form);
  });
  EXPECT_TRUE(cell.get_Value().IsEmpty());
  EXPECT_EQ(host.Calls().Lines(), Lines({"Range.Value get"}));
}

TEST_F(ClsBrowseDate, NeverChangesTheCellWhenThePersonClosesTheCalendar) {
  Browse([&](frmBrowseCalendar& form) { desktop->Close(form); });
  EXPECT_TRUE(cell.get_Value().IsEmpty());
}

TEST_F(ClsBrowseDate, PassesAFailureToReadTheCellOnWithItsText) {
  host.Calls().FailMember("Range.Value", 1004, "gone");
  const Error error = ErrorOf([&] { browse.BrowseDate(); });
  EXPECT_EQ(error.Number(), 1004);
  EXPECT_THAT(error.Source(),
              MatchesRegex("Line No\\.: [0-9]+ Workbook\r\n"
                           "BrowseDate of Class Module clsBrowseDate Line#:[0-9]+"));
  EXPECT_TRUE(desktop->FormsShown().empty());
}

TEST_F(ClsBrowseDate, PassesAFailureToWriteTheCellOn) {
  host.Calls().FailMember("Range._Default", 1004, "locked");
  desktop->WhenShown<frmBrowseCalendar>(
      [&](frmBrowseCalendar& form) { desktop->Click(form.cmdOK); });
  EXPECT_EQ(ErrorOf([&] { browse.BrowseDate(); }).Description(), "locked");
}

TEST_F(ClsBrowseDate, FailsForACellWithAnErrorValue) {
  host.SetErrorValue(cell, 2007);
  EXPECT_TRUE(ErrorOf([&] { browse.BrowseDate(); }).Is(automation::ErrorNumber::TypeMismatch));
}

TEST_F(ClsBrowseDate, FailsWithoutACell) {
  clsBrowseDate without(desktop, system);
  const Error error = ErrorOf([&] { without.BrowseDate(); });
  EXPECT_TRUE(error.Is(automation::ErrorNumber::ObjectVariableNotSet));
  EXPECT_THAT(error.Source(), MatchesRegex("Line No\\.: [0-9]+ BrowseDate of Class Module "
                                           "clsBrowseDate Line#:[0-9]+"));
}

TEST_F(ClsBrowseDate, IsCalledByName) {
  const Object late = std::make_shared<clsBrowseDate>(desktop, system);
  EXPECT_EQ(late.TypeName(), "clsBrowseDate");
  late.Set(Member("ActiveCell"), cell);
  EXPECT_EQ(late.Get(Member("ActiveCell")).AsObject(), cell);
  desktop->WhenShown<frmBrowseCalendar>(
      [&](frmBrowseCalendar& form) { desktop->Click(form.cmdOK); });
  late.Call(Member("BrowseDate"));
  EXPECT_EQ(cell.get_Value(), Variant(kToday));
}

TEST(FrmBrowseCalendar, HasItsCaptionsTooltipsAndPictures) {
  HeadlessDesktop desktop;
  frmBrowseCalendar form(desktop);
  EXPECT_EQ(form.get_Caption(), "Select Date");
  EXPECT_EQ(form.cmdOK.get_Caption(), "OK");
  EXPECT_EQ(form.cmdOK.get_ToolTipText(), "Close");
  EXPECT_EQ(form.cmdOK.Properties().picture, forms::Picture::Ok);
  EXPECT_EQ(form.cmdCancel.get_Caption(), "Cancel");
  EXPECT_EQ(form.cmdCancel.get_ToolTipText(), "Cancel Changes");
  EXPECT_EQ(form.cmdCancel.Properties().picture, forms::Picture::Cancel);
}

TEST(FrmBrowseCalendar, HasItsControlsByNameInTheTabOrder) {
  HeadlessDesktop desktop;
  EXPECT_EQ(ControlNames(frmBrowseCalendar(desktop)),
            Lines({"TDBCalendar1", "cmdOK", "cmdCancel"}));
}

TEST(FrmBrowseCalendar, KeepsWhatWasPickedUntilItIsLoadedAnew) {
  HeadlessDesktop desktop;
  auto& form = desktop.Shared<frmBrowseCalendar>();
  form.let_InitialDate(kToday);
  desktop.WhenShown<frmBrowseCalendar>([&](frmBrowseCalendar&) { desktop.Click(form.cmdOK); });
  form.Show(forms::Modality::Modal);
  EXPECT_FALSE(form.IsLoaded());
  EXPECT_TRUE(form.get_IsDateSelected());
  EXPECT_EQ(form.get_SelectedDate(), kToday);
  form.Load();
  EXPECT_FALSE(form.get_IsDateSelected());
  EXPECT_EQ(form.get_SelectedDate(), kToday);
}

}  // namespace
}  // namespace rangewerks::tests
