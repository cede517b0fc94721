// A person's right click on a cell of a visible office, and the choice of an added entry.
#include <gmock/gmock.h>

#include <com/sun/star/awt/PosSize.hpp>
#include <com/sun/star/awt/XWindow.hpp>
#include <com/sun/star/frame/XFrame.hpp>

#include "hosts/display_in_memory.h"
#include "hosts/libreoffice_documents.h"
#include "hosts/libreoffice_under_test.h"

namespace rangewerks::tests {
namespace {

using hosts::libreoffice::MenuChoice;
using hosts::libreoffice::Office;
using testing::ElementsAre;

constexpr std::chrono::seconds kPatience{2};
constexpr int kAttempts = 10;

/// What a person does with mouse and keys, in words of xdotool. False when that isn't installed.
bool Do(const std::string& actions) {
  return std::system(("xdotool " + actions + " >/dev/null 2>&1").c_str()) == 0;
}

void FillScreen(const Object& book) {
  lo::As<css::awt::XWindow>(BookOf(book).Controller()->getFrame()->getContainerWindow())
      ->setPosSize(0, 0, 1000, 700, css::awt::PosSize::POSSIZE);
}

TEST(LibreOfficeRightClick, TheFirstEntryOfTheMenuIsTheOneThatWasAddedThere) {
  const DisplayInMemory display;
  if (!display.IsThere()) GTEST_SKIP() << "Xvfb isn't installed (Debian package xvfb)";
  if (!Do("version")) GTEST_SKIP() << "xdotool isn't installed (Debian package xdotool)";

  Office office({.visible = true});
  const Object book = office.NewWorkbook({"Ledger"});
  FillScreen(book);
  const Object menu = GetObject(office.Application(), "ShortcutMenus", {3});
  Call(GetObject(menu, "MenuItems"), "Add",
       {"Brow&se Records", automation::Argument::Omitted(), automation::Argument::Omitted(), 1});
  std::vector<std::string> told;
  office.OnMenuChoice([&](const MenuChoice& choice) { told.push_back(choice.caption); });

  // A window that isn't drawn yet takes no click; what comes too early does nothing.
  for (int i = 0; i < kAttempts && told.empty(); ++i) {
    ASSERT_TRUE(Do("key Escape mousemove 400 400 click 3 sleep 1 key Down Return"));
    office.TellMenuChoices(kPatience);
  }
  EXPECT_THAT(told, ElementsAre("Brow&se Records"));
}

}  // namespace
}  // namespace rangewerks::tests
