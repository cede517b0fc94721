// A form's window: where it stands, how it ends, what it leaves behind.
#include <windows.h>
// These need what comes before.
#include <commctrl.h>

#include <stdexcept>

#include "desktops/win32/units.h"
#include "desktops/win32_form_test.h"
#include "desktops/win32_person.h"

namespace rangewerks::tests {
namespace {

using desktops::DpiOfScreen;
using desktops::ToPixels;
using desktops::ToTwips;
using testing::ElementsAre;
using testing::IsEmpty;

class Win32FormWindow : public Win32FormTest {
 protected:
  RECT Outer() const {
    RECT outer{};
    GetWindowRect(WindowOf(*form), &outer);
    return outer;
  }
  void ExpectToStandWhereTheFormSays() const {
    const RECT wanted = ToPixels(form->OuterPlace(), DpiOfScreen());
    const RECT outer = Outer();
    EXPECT_TRUE(EqualRect(&wanted, &outer));
  }
};

TEST_F(Win32FormWindow, IsHiddenUntilItIsShownAndHasTheSizeOfItsDesignByThen) {
  form->Load();
  EXPECT_FALSE(IsWindowVisible(WindowOf(*form)));
  const RECT inner = InnerArea(WindowOf(*form));
  EXPECT_EQ(inner.right, ToPixels(9240, DpiOfScreen()));
  EXPECT_EQ(inner.bottom, ToPixels(6600, DpiOfScreen()));
  form->Show();
  EXPECT_TRUE(IsWindowVisible(WindowOf(*form)));
  ExpectToStandWhereTheFormSays();
}

TEST_F(Win32FormWindow, StandsInTheMiddleOfTheScreen) {
  Show();
  const forms::Size screen = desktop.Screen();
  EXPECT_EQ(Outer().left, ToPixels((screen.width - form->get_Width()) / 2, DpiOfScreen()));
  EXPECT_EQ(Outer().top, ToPixels((screen.height - form->get_Height()) / 2, DpiOfScreen()));
}

TEST_F(Win32FormWindow, LiesAtTheRightEdgeOfTheScreenThoughABarIsAtTheLeft) {
  RECT whole{};
  ASSERT_TRUE(SystemParametersInfoW(SPI_GETWORKAREA, 0, &whole, 0));
  RECT beside{whole.left + 100, whole.top + 50, whole.right, whole.bottom};
  ASSERT_TRUE(SystemParametersInfoW(SPI_SETWORKAREA, 0, &beside, 0));
  RECT now{};
  ASSERT_TRUE(SystemParametersInfoW(SPI_GETWORKAREA, 0, &now, 0));
  Show();
  form->let_Left(desktop.Screen().width - form->get_Width());
  EXPECT_EQ(now.left, 100);
  EXPECT_EQ(Outer().right, whole.right);
  ASSERT_TRUE(SystemParametersInfoW(SPI_SETWORKAREA, 0, &whole, 0));
}

TEST_F(Win32FormWindow, FollowsCaptionAndPlaceWithoutReportingThemBack) {
  Show();
  form->let_Caption("R\xC3\xA4nge \xE2\x82\xAC");
  form->Move({1500, 750, 12000, 9000});
  EXPECT_EQ(TextOf(WindowOf(*form)), L"R\u00e4nge \u20ac");
  ExpectToStandWhereTheFormSays();
  EXPECT_THAT(form->TakeTold(), ElementsAre("Form_Resize"));
  EXPECT_EQ(form->OuterPlace(), (forms::Place{1500, 750, 12000, 9000}));
}

TEST_F(Win32FormWindow, AFormMayGrowFromAHeightOf0ThoughNoWindowIsThatLow) {
  form->Load();
  form->let_Height(0);
  EXPECT_EQ(form->get_Height(), 0);
  for (int rows = 0; rows < 24; ++rows) form->let_Height(form->get_Height() + 250);
  EXPECT_EQ(form->get_Height(), 6000);
  form->Show();
  Settle();
  EXPECT_EQ(form->get_Height(), 6000);
  ExpectToStandWhereTheFormSays();
}

TEST_F(Win32FormWindow, APersonsMoveIsNoChangeOfSize) {
  Show();
  form->let_Width(10007);  // not a whole number of pixels
  form->TakeTold();
  SetWindowPos(WindowOf(*form), nullptr, 40, 30, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
  EXPECT_THAT(form->TakeTold(), IsEmpty());
  EXPECT_EQ(form->get_Left(), ToTwips(40, DpiOfScreen()));
  EXPECT_EQ(form->get_Top(), ToTwips(30, DpiOfScreen()));
  EXPECT_EQ(form->get_Width(), 10007);
}

TEST_F(Win32FormWindow, APersonsChangeOfSizeRunsFormResizeWithTheNewSize) {
  Show();
  SetWindowPos(WindowOf(*form), nullptr, 0, 0, 500, 400, SWP_NOMOVE | SWP_NOZORDER);
  EXPECT_THAT(form->TakeTold(), ElementsAre("Form_Resize"));
  EXPECT_EQ(form->get_Width(), ToTwips(500, DpiOfScreen()));
  EXPECT_EQ(form->get_Height(), ToTwips(400, DpiOfScreen()));
}

TEST_F(Win32FormWindow, AMinimizedWindowKeepsThePlaceOfTheForm) {
  Show();
  const forms::Place before = form->OuterPlace();
  ShowWindow(WindowOf(*form), SW_MINIMIZE);
  ShowWindow(WindowOf(*form), SW_RESTORE);
  Settle();
  EXPECT_EQ(form->OuterPlace(), before);
  EXPECT_THAT(form->TakeTold(), IsEmpty());
}

TEST_F(Win32FormWindow, StaysAboveAllOthersWhileItIsTopmost) {
  Show();
  form->SetTopMost(true);
  EXPECT_NE(GetWindowLongPtrW(WindowOf(*form), GWL_EXSTYLE) & WS_EX_TOPMOST, 0);
  form->SetTopMost(false);
  EXPECT_EQ(GetWindowLongPtrW(WindowOf(*form), GWL_EXSTYLE) & WS_EX_TOPMOST, 0);
}

TEST_F(Win32FormWindow, TheTitleBarAsksAndThenUnloads) {
  Show();
  const HWND window = WindowOf(*form);
  SendMessageW(window, WM_SYSCOMMAND, SC_CLOSE, 0);
  Settle();
  EXPECT_THAT(form->TakeTold(), ElementsAre("Form_QueryUnload", "Form_Unload"));
  EXPECT_FALSE(IsWindow(window));
}

TEST_F(Win32FormWindow, UnloadingInsideAHandlerHidesAtOnceAndEndsWhenTheControlIsDone) {
  Show();
  const HWND window = WindowOf(*form);
  bool hidden = false;
  form->list.DblClick = [&] {
    form->Unload();
    hidden = IsWindowVisible(window) == FALSE;
  };
  RECT row{};
  row.left = LVIR_LABEL;
  const HWND list = WindowOf(form->list);
  SendMessageW(list, LVM_GETITEMRECT, 1, reinterpret_cast<LPARAM>(&row));
  DoubleClick(list, MiddleOf(row));
  EXPECT_TRUE(hidden);
  EXPECT_FALSE(form->IsLoaded());
  EXPECT_FALSE(IsWindow(window));
}

TEST_F(Win32FormWindow, AFormUnloadedAndShownAgainInsideItsHandlerHasANewWindow) {
  Show();
  const HWND before = WindowOf(*form);
  form->cmdOK.Click = [&] {
    form->Unload();
    form->Show();
  };
  PressKey(VK_RETURN);
  EXPECT_TRUE(form->IsVisible());
  EXPECT_NE(WindowOf(*form), before);
  EXPECT_FALSE(IsWindow(before));
  EXPECT_TRUE(IsWindowVisible(WindowOf(*form)));
}

TEST_F(Win32FormWindow, AFailureOfAHandlerIsToldAndLeavesTheFormInUse) {
  Show();
  form->cmdOK.Click = [] { throw std::runtime_error("It broke"); };
  std::wstring told;
  {
    const Person person([&](HWND dialog) {
      told = TextOf(dialog, 0xFFFF);
      Press(dialog, IDOK);
    });
    SendMessageW(WindowOf(form->cmdOK), BM_CLICK, 0, 0);
  }
  EXPECT_EQ(told, L"It broke");
  EXPECT_TRUE(form->IsVisible());
}

TEST_F(Win32FormWindow, AWaitingPointerStaysWhileTheMouseMovesOverTheForm) {
  Show();
  desktop.SetMousePointer(forms::MousePointer::Hourglass);
  const LRESULT taken = SendMessageW(WindowOf(*form), WM_SETCURSOR,
                                     reinterpret_cast<WPARAM>(WindowOf(*form)), HTCLIENT);
  EXPECT_EQ(taken, TRUE);
  EXPECT_EQ(GetCursor(), LoadCursorW(nullptr, MAKEINTRESOURCEW(32514)));
  desktop.SetMousePointer(forms::MousePointer::Default);
  EXPECT_EQ(GetCursor(), LoadCursorW(nullptr, MAKEINTRESOURCEW(32512)));
}

TEST_F(Win32FormWindow, AnEmbeddedFormIsAChildWithoutAFrame) {
  const HWND around = CreateWindowExW(0, L"Static", L"", WS_POPUP | WS_VISIBLE, 100, 100, 700, 600,
                                      nullptr, nullptr, nullptr, nullptr);
  auto inner = std::make_shared<SampleForm>(desktop, forms::Border::Embedded);
  inner->EmbedIn(reinterpret_cast<std::intptr_t>(around));
  inner->Move({0, 0, 9240, 6600});
  inner->Show();
  Settle();
  EXPECT_EQ(GetParent(WindowOf(*inner)), around);
  EXPECT_EQ(InnerArea(WindowOf(*inner)).right, ToPixels(9240, DpiOfScreen()));
  EXPECT_TRUE(IsWindowVisible(WindowOf(inner->txtName)));
  inner->txtName.SetFocus();
  PressKey('Z');
  EXPECT_EQ(inner->txtName.get_Text(), "z");
  // Tab and Enter belong to the program around it.
  PressKey(VK_RETURN);
  EXPECT_EQ(Focused(*inner), "txtName");
  EXPECT_THAT(inner->TakeTold(), testing::Not(testing::Contains("cmdOK")));
  inner->Unload();
  EXPECT_TRUE(IsWindow(around));
  DestroyWindow(around);
}

TEST_F(Win32FormWindow, AnEmbeddedFormUnloadsWithTheWindowAroundIt) {
  const HWND around = CreateWindowExW(0, L"Static", L"", WS_POPUP | WS_VISIBLE, 100, 100, 700, 600,
                                      nullptr, nullptr, nullptr, nullptr);
  auto inner = std::make_shared<SampleForm>(desktop, forms::Border::Embedded);
  inner->EmbedIn(reinterpret_cast<std::intptr_t>(around));
  inner->Show();
  inner->TakeTold();
  DestroyWindow(around);
  EXPECT_THAT(inner->TakeTold(), ElementsAre("Form_Unload"));
  EXPECT_FALSE(inner->IsLoaded());
}

TEST_F(Win32FormWindow, AnEmbeddedFormWithoutAWindowAroundItCannotLoad) {
  auto inner = std::make_shared<SampleForm>(desktop, forms::Border::Embedded);
  EXPECT_THROW(inner->Show(), automation::Error);
  EXPECT_FALSE(inner->IsLoaded());
}

TEST_F(Win32FormWindow, ItsClassIsKnownOnlyWhileAFormIsLoaded) {
  WNDCLASSEXW found{};
  found.cbSize = sizeof found;
  const HINSTANCE module = GetModuleHandleW(nullptr);
  EXPECT_FALSE(GetClassInfoExW(module, L"RangewerksForm", &found));
  Show();
  EXPECT_TRUE(GetClassInfoExW(module, L"RangewerksForm", &found));
  form->Unload();
  Settle();
  EXPECT_FALSE(GetClassInfoExW(module, L"RangewerksForm", &found));
  EXPECT_FALSE(GetClassInfoExW(module, L"RangewerksPanel", &found));
}

}  // namespace
}  // namespace rangewerks::tests
