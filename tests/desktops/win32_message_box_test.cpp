#include <gtest/gtest.h>

#include <string>
#include <tuple>

#include "desktops/win32/dialogs.h"
#include "desktops/win32_person.h"

namespace rangewerks::tests {
namespace {

using desktops::ShowMessageBox;
using forms::Answer;
using forms::Message;

constexpr int kText = 0xFFFF;  // the number of the text in a message box

TEST(Win32MessageBox, ShowsTextAndTitle) {
  std::wstring title;
  std::wstring text;
  const Person person([&](HWND dialog) {
    title = TextOf(dialog);
    text = TextOf(dialog, kText);
    Press(dialog, IDOK);
  });
  EXPECT_EQ(
      ShowMessageBox({.text = "Größe ≤ 5 €", .flags = Message::kInformation, .title = "Prüfung"},
                     nullptr),
      Answer::Ok);
  EXPECT_EQ(title, L"Prüfung");
  EXPECT_EQ(text, L"Größe ≤ 5 €");
}

TEST(Win32MessageBox, IsTitledWithTheProductsNameUnlessGivenATitle) {
  std::wstring title;
  const Person person([&](HWND dialog) {
    title = TextOf(dialog);
    Press(dialog, IDOK);
  });
  ShowMessageBox({.text = "Done."}, nullptr);
  EXPECT_EQ(title, L"Rangewerks");
}

class AButtonOfAMessageBox : public testing::TestWithParam<std::tuple<std::int32_t, int, Answer>> {
};

TEST_P(AButtonOfAMessageBox, IsItsAnswer) {
  const auto [flags, button, answer] = GetParam();
  const Person person([id = button](HWND dialog) { Press(dialog, id); });
  EXPECT_EQ(ShowMessageBox({.text = "Replace it?", .flags = flags}, nullptr), answer);
}

INSTANTIATE_TEST_SUITE_P(
    OfEachSet, AButtonOfAMessageBox,
    testing::Values(std::tuple(Message::kOkCancel, IDOK, Answer::Ok),
                    std::tuple(Message::kOkCancel, IDCANCEL, Answer::Cancel),
                    std::tuple(Message::kYesNo, IDYES, Answer::Yes),
                    std::tuple(Message::kYesNo, IDNO, Answer::No),
                    std::tuple(Message::kYesNoCancel, IDYES, Answer::Yes),
                    std::tuple(Message::kYesNoCancel, IDNO, Answer::No),
                    std::tuple(Message::kYesNoCancel, IDCANCEL, Answer::Cancel),
                    std::tuple(Message::kCritical + Message::kForeground, IDOK, Answer::Ok)));

TEST(Win32MessageBox, EnterPressesTheSecondButtonWhenTheFlagsSaySo) {
  const Person person([](HWND dialog) { TypeKey(dialog, VK_RETURN); });
  EXPECT_EQ(ShowMessageBox({.text = "Delete?", .flags = Message::kYesNo + Message::kSecondButton},
                           nullptr),
            Answer::No);
}

TEST(Win32MessageBox, ClosedWithoutAButtonItAnswersCancel) {
  const Person person([](HWND dialog) { PostMessageW(dialog, WM_CLOSE, 0, 0); });
  EXPECT_EQ(ShowMessageBox({.text = "Go on?", .flags = Message::kOkCancel}, nullptr),
            Answer::Cancel);
}

class AMessageThatCannotBeShown : public testing::TestWithParam<std::tuple<std::int32_t, Answer>> {
};

TEST_P(AMessageThatCannotBeShown, IsAnsweredWithWhatDoesTheLeast) {
  const auto [flags, answer] = GetParam();
  const HWND gone =
      CreateWindowExW(0, L"Static", L"", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
  DestroyWindow(gone);
  EXPECT_EQ(ShowMessageBox({.text = "Go on?", .flags = flags}, gone), answer);
}

INSTANTIATE_TEST_SUITE_P(OfEachSet, AMessageThatCannotBeShown,
                         testing::Values(std::tuple(Message::kOkOnly, Answer::Ok),
                                         std::tuple(Message::kOkCancel, Answer::Cancel),
                                         std::tuple(Message::kYesNo, Answer::No),
                                         std::tuple(Message::kYesNoCancel, Answer::Cancel)));

}  // namespace
}  // namespace rangewerks::tests
