#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "desktops/win32/dialogs.h"
#include "desktops/win32_person.h"

namespace rangewerks::tests {
namespace {

using desktops::ShowInputBox;

constexpr int kPrompt = 100;
constexpr int kField = 101;

TEST(Win32InputBox, ShowsPromptTitleAndTheTextToBeginWith) {
  std::wstring title;
  std::wstring prompt;
  std::wstring text;
  const Person person([&](HWND dialog) {
    title = TextOf(dialog);
    prompt = TextOf(dialog, kPrompt);
    text = TextOf(dialog, kField);
    Press(dialog, IDOK);
  });
  EXPECT_EQ(ShowInputBox("Name of the new sheet & copy", "Kopieren", "März", nullptr), "März");
  EXPECT_EQ(title, L"Kopieren");
  EXPECT_EQ(prompt, L"Name of the new sheet & copy");
  EXPECT_EQ(text, L"März");
}

TEST(Win32InputBox, IsTitledWithTheProductsNameUnlessGivenATitle) {
  std::wstring title;
  const Person person([&](HWND dialog) {
    title = TextOf(dialog);
    Press(dialog, IDCANCEL);
  });
  ShowInputBox("Rows", "", "", nullptr);
  EXPECT_EQ(title, L"Rangewerks");
}

TEST(Win32InputBox, ReturnsWhatWasTypedWithItsBlanks) {
  const Person person([](HWND dialog) {
    Write(dialog, kField, L" 12 €  ");
    Press(dialog, IDOK);
  });
  EXPECT_EQ(ShowInputBox("Rows", "", "5", nullptr), " 12 €  ");
}

TEST(Win32InputBox, AnEmptyTextIsAnAnswer) {
  const Person person([](HWND dialog) {
    Write(dialog, kField, L"");
    Press(dialog, IDOK);
  });
  EXPECT_EQ(ShowInputBox("Rows", "", "5", nullptr), "");
}

TEST(Win32InputBox, CancelGivesNothing) {
  const Person person([](HWND dialog) { Press(dialog, IDCANCEL); });
  EXPECT_EQ(ShowInputBox("Rows", "", "5", nullptr), std::nullopt);
}

TEST(Win32InputBox, ClosingGivesNothing) {
  const Person person([](HWND dialog) { PostMessageW(dialog, WM_CLOSE, 0, 0); });
  EXPECT_EQ(ShowInputBox("Rows", "", "5", nullptr), std::nullopt);
}

TEST(Win32InputBox, EnterInTheFieldAccepts) {
  const Person person([](HWND dialog) {
    Write(dialog, kField, L"7");
    TypeKey(dialog, VK_RETURN);
  });
  EXPECT_EQ(ShowInputBox("Rows", "", "5", nullptr), "7");
}

TEST(Win32InputBox, EscapeInTheFieldCancels) {
  const Person person([](HWND dialog) { TypeKey(dialog, VK_ESCAPE); });
  EXPECT_EQ(ShowInputBox("Rows", "", "5", nullptr), std::nullopt);
}

TEST(Win32InputBox, ItsOwnerTakesNoInputMeanwhile) {
  const HWND owner = CreateWindowExW(0, L"Static", L"", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 200,
                                     100, nullptr, nullptr, nullptr, nullptr);
  bool usable = true;
  {
    const Person person([&](HWND dialog) {
      usable = IsWindowEnabled(owner) != 0;
      Press(dialog, IDOK);
    });
    ShowInputBox("Rows", "", "5", owner);
  }
  EXPECT_FALSE(usable);
  EXPECT_TRUE(IsWindowEnabled(owner));
  DestroyWindow(owner);
}

}  // namespace
}  // namespace rangewerks::tests
