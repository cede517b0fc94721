// Keys in a form that stands in a message loop which knows nothing of it.
#include "desktops/win32_form_test.h"

namespace rangewerks::tests {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Win32Keyboard : public Win32FormTest {};

TEST_F(Win32Keyboard, TheFirstControlThatTakesKeysHasTheKeyboardAtFirst) {
  Show();
  EXPECT_EQ(Focused(*form), "txtName");
}

TEST_F(Win32Keyboard, TabGoesThroughTheControlsInTheOrderOfTheirDeclaration) {
  Show();
  std::vector<std::string> names;
  for (int i = 0; i < 13; ++i) {
    names.push_back(Focused(*form));
    PressKey(VK_TAB);
  }
  EXPECT_THAT(names,
              ElementsAre("txtName", "txtNotes", "txtLocked", "chkOn", "txtSwatch", "cmdColour",
                          "cmdInner", "calDay", "tree", "list", "grid", "cmdOK", "cmdCancel"));
  EXPECT_EQ(Focused(*form), "txtName");
}

TEST_F(Win32Keyboard, ShiftTabGoesBack) {
  Show();
  std::vector<std::string> names;
  for (int i = 0; i < 3; ++i) {
    PressKeys({VK_SHIFT, VK_TAB});
    names.push_back(Focused(*form));
  }
  EXPECT_THAT(names, ElementsAre("cmdCancel", "cmdOK", "grid"));
}

TEST_F(Win32Keyboard, TabLeavesOutWhatIsHiddenOrDisabled) {
  Show();
  form->txtNotes.let_Enabled(false);
  form->txtLocked.let_Visible(false);
  form->frmChoice.let_Enabled(false);
  form->calDay.let_Enabled(false);
  PressKey(VK_TAB);
  EXPECT_EQ(Focused(*form), "tree");
}

TEST_F(Win32Keyboard, TheAccessKeyOfALabelLeadsToTheNextControl) {
  Show();
  PressKeys({VK_MENU, 'O'});
  EXPECT_EQ(Focused(*form), "txtNotes");
}

TEST_F(Win32Keyboard, TheAccessKeyOfAButtonPressesIt) {
  Show();
  PressKeys({VK_MENU, 'I'});
  EXPECT_THAT(form->TakeTold(), ElementsAre("cmdInner"));
}

TEST_F(Win32Keyboard, EnterPressesTheDefaultButton) {
  Show();
  PressKey(VK_RETURN);
  EXPECT_THAT(form->TakeTold(), ElementsAre("cmdOK"));
}

TEST_F(Win32Keyboard, EnterPressesTheButtonThatHasTheKeyboard) {
  Show();
  form->cmdInner.SetFocus();
  PressKey(VK_RETURN);
  EXPECT_THAT(form->TakeTold(), ElementsAre("cmdInner"));
}

TEST_F(Win32Keyboard, EnterPressesNoButtonThatIsDisabled) {
  Show();
  form->cmdOK.let_Enabled(false);
  PressKey(VK_RETURN);
  EXPECT_THAT(form->TakeTold(), IsEmpty());
}

TEST_F(Win32Keyboard, EnterBeginsANewLineInATextOfManyLines) {
  Show();
  form->txtNotes.SetFocus();
  PressKey('A');
  PressKey(VK_RETURN);
  PressKey('B');
  EXPECT_EQ(form->txtNotes.get_Text(), "a\r\nb");
}

TEST_F(Win32Keyboard, TabLeavesATextOfManyLines) {
  Show();
  form->txtNotes.SetFocus();
  PressKey(VK_TAB);
  EXPECT_EQ(Focused(*form), "txtLocked");
  PressKeys({VK_SHIFT, VK_TAB});
  EXPECT_EQ(Focused(*form), "txtNotes");
  EXPECT_EQ(form->txtNotes.get_Text(), "");
}

TEST_F(Win32Keyboard, EscapePressesTheCancelButton) {
  Show();
  PressKey(VK_ESCAPE);
  EXPECT_THAT(form->TakeTold(), ElementsAre("cmdCancel"));
}

TEST_F(Win32Keyboard, EscapeWithoutACancelButtonClosesNothing) {
  Show();
  form->cmdCancel.let_Visible(false);
  form->txtNotes.SetFocus();
  PressKey(VK_ESCAPE);
  EXPECT_THAT(form->TakeTold(), IsEmpty());
  EXPECT_TRUE(form->IsVisible());
}

TEST_F(Win32Keyboard, ArrowKeysDoNotWanderFromButtonToButton) {
  Show();
  form->cmdOK.SetFocus();
  PressKey(VK_LEFT);
  PressKey(VK_DOWN);
  EXPECT_EQ(Focused(*form), "cmdOK");
}

TEST_F(Win32Keyboard, TheSpaceBarTicksACheckBox) {
  Show();
  form->chkOn.SetFocus();
  PressKey(VK_SPACE);
  EXPECT_THAT(form->TakeTold(), ElementsAre("chkOn on"));
}

TEST_F(Win32Keyboard, AMenuIsOpenedAndChosenFromByItsAccessKeys) {
  Show();
  QueueKeys({{VK_MENU, 'F'}, {'T'}});
  EXPECT_TRUE(SettleUntil([&] { return !form->told.empty(); }));
  EXPECT_THAT(form->TakeTold(), ElementsAre("mnuTick"));
}

TEST_F(Win32Keyboard, SetFocusBeforeTheFormIsShownHolds) {
  form->list.SetFocus();
  Show();
  EXPECT_EQ(Focused(*form), "list");
}

TEST_F(Win32Keyboard, TheKeyboardComesBackToTheControlThatHadIt) {
  Show();
  form->list.SetFocus();
  auto other = std::make_shared<SampleForm>(desktop);
  other->Show();
  Settle();
  EXPECT_EQ(Focused(*form), "");
  other->Unload();
  form->SetFocus();
  Settle();
  EXPECT_EQ(Focused(*form), "list");
}

TEST_F(Win32Keyboard, AControlThatIsDisabledPassesTheKeyboardOn) {
  Show();
  form->txtName.let_Enabled(false);
  EXPECT_EQ(Focused(*form), "txtNotes");
  form->txtNotes.let_Visible(false);
  EXPECT_EQ(Focused(*form), "txtLocked");
}

TEST_F(Win32Keyboard, AFormInFrontOfAnotherHasItsOwnDefaultButton) {
  Show();
  auto other = std::make_shared<SampleForm>(desktop);
  other->Show();
  Settle();
  other->TakeTold();
  PressKey(VK_RETURN);
  EXPECT_THAT(form->TakeTold(), IsEmpty());
  EXPECT_THAT(other->TakeTold(), ElementsAre("cmdOK"));
  other->Unload();
}

TEST_F(Win32Keyboard, WindowsOfTheHostKeepTheirKeysBesideAForm) {
  Show();
  const HWND host = CreateWindowExW(0, L"Edit", L"", WS_POPUP | WS_VISIBLE, 0, 0, 100, 30, nullptr,
                                    nullptr, nullptr, nullptr);
  SetFocus(host);
  PressKey('X');
  PressKey(VK_ESCAPE);
  wchar_t text[8] = {};
  GetWindowTextW(host, text, 8);
  DestroyWindow(host);
  EXPECT_EQ(std::wstring(text), L"x");
  EXPECT_THAT(form->TakeTold(), IsEmpty());
}

}  // namespace
}  // namespace rangewerks::tests
