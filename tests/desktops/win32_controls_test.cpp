// The windows of the single controls.
#include "desktops/win32/units.h"
#include "desktops/win32_form_test.h"
#include "desktops/win32_person.h"
// The common controls need what comes before.
#include <commctrl.h>

namespace rangewerks::tests {
namespace {

using desktops::DpiOfScreen;
using desktops::ToPixels;
using testing::ElementsAre;
using testing::IsEmpty;

class Win32Controls : public Win32FormTest {
 protected:
  LONG_PTR StyleOf(const forms::Control& control) const {
    return GetWindowLongPtrW(WindowOf(control), GWL_STYLE);
  }
  RECT PlaceIn(const forms::Control& control, HWND parent) const {
    RECT place{};
    GetWindowRect(WindowOf(control), &place);
    MapWindowPoints(nullptr, parent, reinterpret_cast<POINT*>(&place), 2);
    return place;
  }
  static int Pixels(double twips) { return ToPixels(twips, DpiOfScreen()); }
};

TEST_F(Win32Controls, StandWhereTheDesignSaysOnWhatTheyStandOn) {
  Show();
  EXPECT_EQ(GetParent(WindowOf(form->txtName)), WindowOf(*form));
  EXPECT_EQ(GetParent(WindowOf(form->cmdInner)), WindowOf(form->pnlInner));
  EXPECT_EQ(GetParent(WindowOf(form->pnlInner)), WindowOf(form->frmChoice));
  const RECT place = PlaceIn(form->pnlInner, WindowOf(form->frmChoice));
  EXPECT_EQ(place.left, Pixels(180));
  EXPECT_EQ(place.top, Pixels(720));
  EXPECT_EQ(place.right - place.left, Pixels(3720));
  EXPECT_EQ(place.bottom - place.top, Pixels(540));
}

TEST_F(Win32Controls, FollowChangesOfPlaceAndText) {
  Show();
  form->lblName.let_Caption(
      "Gr\xC3\xB6\xC3\x9F"
      "e");
  form->lblName.Move({300, 600, 900, 450});
  EXPECT_EQ(TextOf(WindowOf(form->lblName)), L"Gr\u00f6\u00dfe");
  const RECT place = PlaceIn(form->lblName, WindowOf(*form));
  EXPECT_EQ(place.left, Pixels(300));
  EXPECT_EQ(place.bottom - place.top, Pixels(450));
}

TEST_F(Win32Controls, ALabelHasTheStylesOfItsDesign) {
  Show();
  EXPECT_NE(StyleOf(form->lblHelp) & SS_NOPREFIX, 0);
  EXPECT_EQ(StyleOf(form->lblName) & SS_NOPREFIX, 0);
  EXPECT_EQ(StyleOf(form->lblRight) & SS_TYPEMASK, SS_RIGHT);
}

TEST_F(Win32Controls, ALabelHasItsColourAndTellsOfADoubleClick) {
  Show();
  EXPECT_TRUE(ShowsColour(WindowOf(form->lblRight), RGB(255, 0, 0)));
  EXPECT_FALSE(ShowsColour(WindowOf(form->lblHelp), RGB(255, 0, 0)));
  form->lblHelp.let_ForeColor(0xFF);
  EXPECT_TRUE(ShowsColour(WindowOf(form->lblHelp), RGB(255, 0, 0)));
  DoubleClick(WindowOf(form->lblHelp), {10, 10});
  EXPECT_THAT(form->TakeTold(), ElementsAre("lblHelp DblClick"));
}

TEST_F(Win32Controls, ATextBoxTellsWhatIsTypedAndShowsWhatCodeWrites) {
  Show();
  PressKey('A');
  PressKey('B');
  EXPECT_THAT(form->TakeTold(), ElementsAre("txtName Change a", "txtName Change ab"));
  form->txtName.let_Text("\xE2\x82\xAC");
  EXPECT_EQ(TextOf(WindowOf(form->txtName)), L"\u20ac");
  EXPECT_THAT(form->TakeTold(), ElementsAre("txtName Change \xE2\x82\xAC"));
}

TEST_F(Win32Controls, ALockedTextBoxTakesNoKeys) {
  Show();
  form->txtLocked.SetFocus();
  PressKey('A');
  EXPECT_EQ(TextOf(WindowOf(form->txtLocked)), L"Locked");
  EXPECT_NE(StyleOf(form->txtLocked) & ES_READONLY, 0);
}

TEST_F(Win32Controls, ATextBoxOfManyLinesHasAScrollBar) {
  Show();
  EXPECT_EQ(StyleOf(form->txtNotes) & (ES_MULTILINE | WS_VSCROLL), ES_MULTILINE | WS_VSCROLL);
  form->txtNotes.let_Text("one\r\ntwo");
  EXPECT_EQ(SendMessageW(WindowOf(form->txtNotes), EM_GETLINECOUNT, 0, 0), 2);
  EXPECT_THAT(form->TakeTold(), ElementsAre("txtNotes Change one\r\ntwo"));
}

TEST_F(Win32Controls, ASwatchShowsItsColourAlsoWhenItCannotBeUsed) {
  Show();
  const HWND swatch = WindowOf(form->txtSwatch);
  EXPECT_EQ(PixelAt(swatch, {20, 8}), RGB(0x80, 0xFF, 0x80));
  form->txtSwatch.let_BackColor(0x112233);
  EXPECT_EQ(PixelAt(swatch, {20, 8}), RGB(0x33, 0x22, 0x11));
  form->txtSwatch.let_Enabled(false);
  EXPECT_EQ(PixelAt(swatch, {20, 8}), RGB(0x33, 0x22, 0x11));
}

TEST_F(Win32Controls, ACheckBoxFollowsThePersonAndTheCode) {
  Show();
  const HWND box = WindowOf(form->chkOn);
  Click(box, {8, 8});
  EXPECT_EQ(SendMessageW(box, BM_GETCHECK, 0, 0), BST_CHECKED);
  EXPECT_THAT(form->TakeTold(), ElementsAre("chkOn on"));
  form->chkOn.let_Value(false);
  EXPECT_EQ(SendMessageW(box, BM_GETCHECK, 0, 0), BST_UNCHECKED);
  EXPECT_THAT(form->TakeTold(), IsEmpty());
}

TEST_F(Win32Controls, AButtonTellsOfAClickAndHasItsPicture) {
  Show();
  Click(WindowOf(form->cmdOK));
  Click(WindowOf(form->cmdColour));
  EXPECT_THAT(form->TakeTold(), ElementsAre("cmdOK", "cmdColour"));
  EXPECT_NE(SendMessageW(WindowOf(form->cmdOK), BM_GETIMAGE, IMAGE_ICON, 0), 0);
  EXPECT_EQ(SendMessageW(WindowOf(form->cmdInner), BM_GETIMAGE, IMAGE_ICON, 0), 0);
  EXPECT_NE(StyleOf(form->cmdColour) & BS_ICON, 0);
}

TEST_F(Win32Controls, ADisabledFrameDisablesWhatStandsOnItAndLeavesTheirOwnState) {
  Show();
  form->cmdColour.let_Enabled(false);
  form->frmChoice.let_Enabled(false);
  EXPECT_FALSE(IsWindowEnabled(WindowOf(form->chkOn)));
  EXPECT_FALSE(IsWindowEnabled(WindowOf(form->cmdInner)));
  EXPECT_TRUE(form->chkOn.get_Enabled());
  form->frmChoice.let_Enabled(true);
  EXPECT_TRUE(IsWindowEnabled(WindowOf(form->chkOn)));
  EXPECT_TRUE(IsWindowEnabled(WindowOf(form->cmdInner)));
  EXPECT_FALSE(IsWindowEnabled(WindowOf(form->cmdColour)));
}

TEST_F(Win32Controls, AHiddenPanelHidesWhatStandsOnIt) {
  Show();
  form->pnlInner.let_Visible(false);
  EXPECT_FALSE(IsWindowVisible(WindowOf(form->cmdInner)));
  form->pnlInner.let_Visible(true);
  EXPECT_TRUE(IsWindowVisible(WindowOf(form->cmdInner)));
}

TEST_F(Win32Controls, AFrameHasItsCaptionAsABox) {
  Show();
  const HWND box = FindWindowExW(WindowOf(form->frmChoice), nullptr, L"Button", L"Choice");
  ASSERT_NE(box, nullptr);
  form->frmChoice.let_Caption("Other");
  EXPECT_EQ(TextOf(box), L"Other");
}

TEST_F(Win32Controls, TheFontsAreTheFormsUnlessAControlIsBold) {
  Show();
  LOGFONTW plain{};
  LOGFONTW bold{};
  const auto fontOf = [](HWND window) {
    return reinterpret_cast<HGDIOBJ>(SendMessageW(window, WM_GETFONT, 0, 0));
  };
  GetObjectW(fontOf(WindowOf(form->lblName)), sizeof plain, &plain);
  GetObjectW(fontOf(WindowOf(form->lblInner)), sizeof bold, &bold);
  EXPECT_LT(plain.lfWeight, FW_BOLD);
  EXPECT_EQ(bold.lfWeight, FW_BOLD);
  EXPECT_EQ(bold.lfHeight, plain.lfHeight);
}

HWND ToolTips() { return FindWindowW(TOOLTIPS_CLASSW, nullptr); }

TEST_F(Win32Controls, ToolTipsFollowTheirTexts) {
  Show();
  const auto count = [] { return SendMessageW(ToolTips(), TTM_GETTOOLCOUNT, 0, 0); };
  const LRESULT before = count();
  form->lblName.let_ToolTipText("A hint");
  EXPECT_EQ(count(), before + 1);
  form->lblName.let_ToolTipText("");
  EXPECT_EQ(count(), before);
}

TEST_F(Win32Controls, APictureBoxShowsItsPicture) {
  Show();
  EXPECT_NE(SendMessageW(WindowOf(form->picIcon), STM_GETICON, 0, 0), 0);
}

std::vector<int> DayIn(HWND calendar) {
  SYSTEMTIME day{};
  SendMessageW(calendar, MCM_GETCURSEL, 0, reinterpret_cast<LPARAM>(&day));
  return {day.wYear, day.wMonth, day.wDay};
}

TEST_F(Win32Controls, ACalendarIsWideEnoughAndShowsTheDayOfTheForm) {
  Show();
  const HWND calendar = WindowOf(form->calDay);
  EXPECT_GE(InnerArea(calendar).right, 240);
  EXPECT_THAT(DayIn(calendar), ElementsAre(2023, 3, 15));
  form->calDay.let_Date({45100.75});
  EXPECT_THAT(DayIn(calendar), ElementsAre(2023, 6, 23));
}

// A cell that holds 0 or a time alone.
TEST_F(Win32Controls, ACalendarShowsDayZero) {
  Show();
  form->calDay.let_Date({0.5});
  EXPECT_THAT(DayIn(WindowOf(form->calDay)), ElementsAre(1899, 12, 30));
}

TEST_F(Win32Controls, ACalendarThatCantShowADayHasTheOneThatItShows) {
  Show();
  form->calDay.let_Date({-150000});  // in 1489
  EXPECT_EQ(form->calDay.get_Date().serial, 45000);
  EXPECT_THAT(DayIn(WindowOf(form->calDay)), ElementsAre(2023, 3, 15));
}

TEST_F(Win32Controls, ACalendarGoesNoFurtherThanItsLastDay) {
  Show();
  form->calDay.let_Date({2958465});  // 31 December 9999
  form->calDay.SetFocus();
  PressKey(VK_DOWN);
  EXPECT_EQ(form->calDay.get_Date().serial, 2958465);
  EXPECT_THAT(DayIn(WindowOf(form->calDay)), ElementsAre(9999, 12, 31));
}

POINT PointOfDay(HWND calendar, int wanted) {
  const RECT area = InnerArea(calendar);
  for (LONG y = 0; y < area.bottom; y += 3) {
    for (LONG x = 0; x < area.right; x += 3) {
      MCHITTESTINFO hit{};
      hit.cbSize = MCHITTESTINFO_V1_SIZE;
      hit.pt = {x, y};
      SendMessageW(calendar, MCM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
      if (hit.uHit == MCHT_CALENDARDATE && hit.st.wDay == wanted && hit.st.wMonth == 3) {
        return {x + 3, y + 3};
      }
    }
  }
  return {0, 0};
}

TEST_F(Win32Controls, ACalendarTellsTheDayOfAClickAndThenOfADoubleClick) {
  Show();
  const HWND calendar = WindowOf(form->calDay);
  Click(calendar, PointOfDay(calendar, 21));
  EXPECT_EQ(form->calDay.get_Date().serial, 45006);
  EXPECT_THAT(form->TakeTold(), IsEmpty());
  std::vector<double> chosen;
  form->calDay.DblClick = [&] { chosen.push_back(form->calDay.get_Date().serial); };
  DoubleClick(calendar, PointOfDay(calendar, 22));
  EXPECT_THAT(chosen, ElementsAre(45007));
}

TEST_F(Win32Controls, ArrowKeysLeadACalendarByADayAndByAWeek) {
  Show();
  form->calDay.SetFocus();
  std::vector<double> days;
  for (const int key : {VK_RIGHT, VK_DOWN, VK_LEFT, VK_UP}) {
    PressKey(static_cast<WORD>(key));
    days.push_back(form->calDay.get_Date().serial);
  }
  EXPECT_THAT(days, ElementsAre(45001, 45008, 45007, 45000));
  EXPECT_THAT(DayIn(WindowOf(form->calDay)), ElementsAre(2023, 3, 15));
}

// By the keys that the calendar itself knows. Wine's knows none, so that the notification is sent
// in its place.
TEST_F(Win32Controls, ACalendarTellsTheDayThatOtherKeysLeadTo) {
  Show();
  NMSELCHANGE change{};
  change.nmhdr.hwndFrom = WindowOf(form->calDay);
  change.nmhdr.code = static_cast<UINT>(MCN_SELCHANGE);
  change.stSelStart = {2024, 2, 4, 29, 13, 0, 0, 0};
  SendMessageW(WindowOf(*form), WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&change));
  EXPECT_EQ(form->calDay.get_Date().serial, 45351);
}

}  // namespace
}  // namespace rangewerks::tests
