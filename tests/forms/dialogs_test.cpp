// What code asks of a desktop beside its forms: the port, as the desktop of tests keeps it.
#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "desktops/headless/headless_desktop.h"
#include "forms/toolkit.h"

namespace rangewerks {
namespace {

using desktops::HeadlessDesktop;

TEST(Dialogs, AnInputBoxIsKeptWithItsPromptItsTitleAndTheTextThatItBeganWith) {
  HeadlessDesktop desktop;
  desktop.TypeIntoInputBox("Jan 2008");
  EXPECT_EQ(desktop.ShowInput("The new name?", "Rename", "Sheet1", nullptr), "Jan 2008");
  EXPECT_EQ(desktop.ShowInput("Again?", "", "", nullptr), std::nullopt);
  ASSERT_EQ(desktop.Inputs().size(), 2U);
  EXPECT_EQ(desktop.Inputs().front().prompt, "The new name?");
  EXPECT_EQ(desktop.Inputs().front().title, "Rename");
  EXPECT_EQ(desktop.Inputs().front().text, "Sheet1");
}

TEST(Dialogs, TheMousePointerCanBePutBackToWhatItWas) {
  HeadlessDesktop desktop;
  forms::Toolkit& toolkit = desktop;
  const forms::MousePointer before = toolkit.Pointer();
  EXPECT_EQ(before, forms::MousePointer::Default);
  toolkit.SetMousePointer(forms::MousePointer::Hourglass);
  EXPECT_EQ(toolkit.Pointer(), forms::MousePointer::Hourglass);
  toolkit.SetMousePointer(before);
  EXPECT_EQ(toolkit.Pointer(), forms::MousePointer::Default);
}

TEST(Dialogs, EnterPressesTheButtonThatTheFlagsMakeTheDefault) {
  using forms::Answer;
  using forms::DefaultAnswer;
  using forms::Message;
  EXPECT_EQ(DefaultAnswer(Message::kOkOnly | Message::kSecondButton), Answer::Ok);
  EXPECT_EQ(DefaultAnswer(Message::kOkCancel | Message::kForeground), Answer::Ok);
  EXPECT_EQ(DefaultAnswer(Message::kOkCancel | Message::kSecondButton), Answer::Cancel);
  EXPECT_EQ(DefaultAnswer(Message::kYesNo | Message::kQuestion), Answer::Yes);
  EXPECT_EQ(DefaultAnswer(Message::kYesNo | Message::kSecondButton), Answer::No);
  EXPECT_EQ(DefaultAnswer(Message::kYesNoCancel | Message::kSecondButton), Answer::No);
}

}  // namespace
}  // namespace rangewerks
