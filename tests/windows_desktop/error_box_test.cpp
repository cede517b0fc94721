// The error box as COM callers have it shown, and the mail to support from it.
#include "com/bridge/text.h"
#include "windows_desktop/host_window.h"

namespace rangewerks::tests {
namespace {

using com::Bstr;
using ::testing::ElementsAre;

LONG HeightOf(HWND window) {
  RECT place{};
  GetWindowRect(window, &place);
  return place.bottom - place.top;
}

class ErrorBox : public FormsOfTheServer {
 protected:
  /// Shows a failure, and the person acts on the box.
  void Show(const std::function<void(HWND box)>& act) {
    Meanwhile([&] { act(WaitForForm(L"An Error Has Occurred")); },
              [&] {
                EXPECT_EQ(box_->DisplayMessage(1004, Bstr("The sheet is protected").Get(),
                                               Bstr("PostRow of Module Journal Line#:7").Get()),
                          S_OK);
              });
  }

  const com::Pointer<_ErrorMessageBox> box_ =
      CreateFromServer<_ErrorMessageBox>(__uuidof(::ErrorMessageBox));
};

TEST_F(ErrorBox, ShowsTheMessageAtOnceAndNumberAndSourceOnDemand) {
  Show([](HWND box) {
    EXPECT_THAT(TextsOf(box, L"Static"), ElementsAre(L"An Error has occurred....."));
    EXPECT_THAT(TextsOf(box, L"Edit"), ElementsAre(L"The sheet is protected"));
    EXPECT_THAT(TextsOf(box, L"Button"), ElementsAre(L"Show Detail", L"&Email", L"OK"));
    const LONG small = HeightOf(box);
    Click(ButtonOf(box, L"Show Detail"));
    EXPECT_TRUE(WaitUntil([&] { return ButtonOf(box, L"Hide Detail") != nullptr; }));
    EXPECT_THAT(TextsOf(box, L"Edit"), ElementsAre(L"The sheet is protected", L"Error number: 1004",
                                                   L"PostRow of Module Journal Line#:7"));
    EXPECT_GT(HeightOf(box), small);
    Click(ButtonOf(box, L"Hide Detail"));
    EXPECT_TRUE(WaitUntil([&] { return ButtonOf(box, L"Show Detail") != nullptr; }));
    EXPECT_EQ(HeightOf(box), small);
    EXPECT_THAT(TextsOf(box, L"Edit"), ElementsAre(L"The sheet is protected"));
    PressKeys(box, {VK_ESCAPE});
  });
}

TEST_F(ErrorBox, TheMessageHasTheKeyboardAndIsNotMarkedAsIfToBeTypedOver) {
  Show([](HWND box) {
    EXPECT_TRUE(WaitUntil([&] { return Focused(box) == L"Edit 1"; }));
    DWORD first = 0;
    DWORD last = 1;
    SendMessageW(PartOf(box, L"Edit", 1), EM_GETSEL, reinterpret_cast<WPARAM>(&first),
                 reinterpret_cast<LPARAM>(&last));
    EXPECT_EQ(first, last);
    PressKeys(box, {VK_ESCAPE});
  });
}

TEST_F(ErrorBox, TabGoesFromTheMessageToTheButtonsAndEnterOnTheMessageCloses) {
  Show([](HWND box) {
    EXPECT_THAT(TabThrough(box, 4),
                ElementsAre(L"Edit 1", L"Show Detail", L"&Email", L"OK", L"Edit 1"));
    PressKeys(box, {VK_RETURN});
    EXPECT_TRUE(WaitUntilGone(box));
  });
}

TEST_F(ErrorBox, TabReachesTheDetailWhenItIsShown) {
  Show([](HWND box) {
    Click(ButtonOf(box, L"Show Detail"));
    EXPECT_TRUE(WaitUntil([&] { return ButtonOf(box, L"Hide Detail") != nullptr; }));
    EXPECT_THAT(TabThrough(box, 5),
                ElementsAre(L"Hide Detail", L"&Email", L"OK", L"Edit 2", L"Edit 3", L"Edit 1"));
    Click(ButtonOf(box, L"OK"));
    EXPECT_TRUE(WaitUntilGone(box));
  });
}

TEST_F(ErrorBox, LetsTheHostsWindowTakeNoInputMeanwhileAndAllAfterwards) {
  Show([&](HWND box) {
    EXPECT_FALSE(IsWindowEnabled(window_));
    PressKeys(box, {VK_ESCAPE});
  });
  EXPECT_TRUE(IsWindowEnabled(window_));
  EXPECT_EQ(GetForegroundWindow(), window_);
}

TEST_F(ErrorBox, AltEAsksForDetailsAndWithoutOutlookSendLeavesTheBoxOnTheScreen) {
  Show([](HWND box) {
    PressKeys(box, {VK_MENU, 'E'});
    const HWND details = WaitForForm(L"Enter error details");
    EXPECT_EQ(GetWindow(details, GW_OWNER), box);
    EXPECT_FALSE(IsWindowEnabled(box));
    EXPECT_THAT(
        TextsOf(details, L"Static"),
        ElementsAre(L"Please enter some details of what you were doing when this error appeared:",
                    L"Your name:", L"Your phone number:"));
    EXPECT_THAT(TabThrough(details, 5),
                ElementsAre(L"Edit 1", L"Edit 2", L"Edit 3", L"Send", L"Cancel", L"Edit 1"));
    Type(details, "posting");
    PressKeys(details, {VK_RETURN});  // begins a new line
    Type(details, "row 7");
    EXPECT_TRUE(
        WaitUntil([&] { return TextOf(PartOf(details, L"Edit", 1)) == L"posting\r\nrow 7"; }));
    PressKeys(details, {VK_TAB});
    Type(details, "ann");
    EXPECT_TRUE(WaitUntil([&] { return TextOf(PartOf(details, L"Edit", 2)) == L"ann"; }));
    PressKeys(details, {VK_RETURN});
    const HWND sorry = WaitForDialog(details);
    EXPECT_EQ(TextOf(sorry), L"Rangewerks");
    EXPECT_EQ(TextOf(sorry, 0xFFFF), L"Sorry - Cannot create Outlook");
    Press(sorry, IDOK);
    EXPECT_TRUE(WaitUntilGone(details));
    EXPECT_TRUE(WaitUntil([&] { return IsWindowEnabled(box) != FALSE; }));
    EXPECT_TRUE(IsWindowVisible(box));
    PressKeys(box, {VK_ESCAPE});
  });
}

TEST_F(ErrorBox, EscapeLeavesTheDetailsOfAMailWithoutSending) {
  Show([](HWND box) {
    Click(ButtonOf(box, L"&Email"));
    const HWND details = WaitForForm(L"Enter error details");
    PressKeys(details, {VK_ESCAPE});
    EXPECT_TRUE(WaitUntilGone(details));
    PressKeys(box, {VK_ESCAPE});
  });
}

}  // namespace
}  // namespace rangewerks::tests
