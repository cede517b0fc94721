// The menus of the program in memory, beyond what every host does.
#include <gmock/gmock.h>

#include "automation/dispatch.h"
#include "hosts/late_calls.h"
#include "hosts/workbook/host.h"
#include "support/error_of.h"

namespace rangewerks::tests {
namespace {

using automation::Error;
using automation::Member;
using hosts::workbook::Host;
using testing::ElementsAre;

constexpr std::int32_t kSubscriptOutOfRange = 9;

class WorkbookMenus : public testing::Test {
 protected:
  Object Bars() { return GetObject(host_.Application(), "CommandBars"); }
  Object Controls(const Variant& bar) {
    return GetObject(GetObject(Bars(), "Item", {bar}), "Controls");
  }
  Object Items() {
    return GetObject(GetObject(host_.Application(), "ShortcutMenus", {3}), "MenuItems");
  }
  std::vector<std::string> Captions(const Variant& bar) {
    std::vector<std::string> captions;
    for (const Variant& control : Elements(Controls(bar))) {
      captions.push_back(GetText(control.AsObject(), "Caption"));
    }
    return captions;
  }

  Host host_;
};

TEST_F(WorkbookMenus, TwoBarsAreNamedCellAndTheNameFindsTheFirst) {
  std::vector<std::string> names;
  for (const Variant& bar : Elements(Bars())) names.push_back(GetText(bar.AsObject(), "Name"));
  EXPECT_THAT(names, ElementsAre("Worksheet Menu Bar", "Cell", "Row", "Column", "Cell"));
  EXPECT_EQ(GetLong(Bars(), "Count"), 5);
  EXPECT_EQ(Captions("cell"), Captions(2));
  EXPECT_NE(Captions(2), Captions(5));
}

TEST_F(WorkbookMenus, ItemsOfTheShortcutMenuAreControlsOfTheFirstCellBar) {
  Items().Call(
      Member("Add"), {},
      {{Member("Caption"), "&Look"}, {Member("OnAction"), "LookUp"}, {Member("Before"), "Cut"}});
  EXPECT_EQ(Captions(2).front(), "&Look");
  const Object control = GetObject(Controls(2), "Item", {1});
  EXPECT_EQ(GetText(control, "OnAction"), "LookUp");
  EXPECT_EQ(GetLong(control, "Index"), 1);
  EXPECT_EQ(GetText(GetObject(Items(), "Item", {"&Look"}), "Caption"), "&Look");
  EXPECT_EQ(GetLong(Items(), "Count"), GetLong(Controls(2), "Count"));
  Call(GetObject(Items(), "Item", {1}), "Delete");
  EXPECT_EQ(Captions(2).front(), "Cu&t");
}

TEST_F(WorkbookMenus, AnEntryGoesToTheEndWithoutAPlace) {
  Call(Items(), "Add", {"Last"});
  EXPECT_EQ(Captions(2).back(), "Last");
  Items().Call(Member("Add"), {"Second"}, {{Member("Before"), 2}});
  EXPECT_EQ(Captions(2)[1], "Second");
}

TEST_F(WorkbookMenus, APlaceThatIsNotThereIsRefusedAndNothingIsAdded) {
  const auto before = Captions(2);
  EXPECT_EQ(ErrorNumberOf([&] {
              Items().Call(Member("Add"), {"x"}, {{Member("Before"), 99}});
            }),
            kSubscriptOutOfRange);
  EXPECT_EQ(ErrorNumberOf([&] {
              Items().Call(Member("Add"), {"x"}, {{Member("Before"), "?"}});
            }),
            kSubscriptOutOfRange);
  EXPECT_EQ(Captions(2), before);
}

TEST_F(WorkbookMenus, CaptionsAreFoundWithoutAccessKeyAndCaseButAsTheyStandFirst) {
  Call(Items(), "Add", {"&Browse"});
  Call(Items(), "Add", {"Brow&se"});
  EXPECT_EQ(GetText(GetObject(Controls(2), "Item", {"Brow&se"}), "Caption"), "Brow&se");
  EXPECT_EQ(GetText(GetObject(Controls(2), "Item", {"browse"}), "Caption"), "&Browse");
  EXPECT_EQ(GetText(GetObject(Controls(2), "Item", {"CUT"}), "Caption"), "Cu&t");
}

TEST_F(WorkbookMenus, WhatIsNotThereIsError9) {
  const Error error = ErrorOf([&] { GetObject(Controls("Cell"), "Item", {"Nothing"}); });
  EXPECT_EQ(error.Number(), kSubscriptOutOfRange);
  EXPECT_EQ(error.Source(), "Workbook");
  EXPECT_EQ(error.Description(), "Menu \"Cell\" has no entry \"Nothing\"");
  EXPECT_EQ(ErrorOf([&] { GetObject(Controls("Row"), "Item", {6}); }).Description(),
            "Menu \"Row\" has no entry number 6 among its 5");
  EXPECT_EQ(ErrorOf([&] { Controls("Nothing"); }).Description(),
            "There is no command bar \"Nothing\"");
  EXPECT_EQ(ErrorOf([&] { Controls(6); }).Description(),
            "There is no command bar number 6 among 5");
  EXPECT_EQ(ErrorOf([&] { GetObject(host_.Application(), "ShortcutMenus", {4}); }).Description(),
            "There is no shortcut menu number 4 here, only 3, that of the cells");
}

TEST_F(WorkbookMenus, ADeletedEntryIsRefusedEverything) {
  const Object control = GetObject(Controls(2), "Item", {"Copy"});
  const Object item = GetObject(Items(), "Item", {"Copy"});
  Call(control, "Delete");
  EXPECT_EQ(ErrorOf([&] { Get(control, "Caption"); }).Description(),
            "The menu entry \"&Copy\" has been deleted");
  EXPECT_TRUE(Fails([&] { Let(item, "Caption", "x"); }));
  EXPECT_TRUE(Fails([&] { Call(control, "Delete"); }));
  EXPECT_TRUE(Fails([&] { control.Connect([](auto, auto) {}); }));
}

TEST_F(WorkbookMenus, ButtonsAloneAreAdded) {
  const Object button = Call(Controls(5), "Add", {1}).AsObject();
  EXPECT_EQ(GetText(button, "Caption"), "");
  EXPECT_EQ(GetLong(Controls(5), "Count"), 5);
  EXPECT_TRUE(Fails([&] { Call(Controls(5), "Add", {10}); }));
  EXPECT_TRUE(Fails([&] { Call(Controls(5), "Add", {1, 21}); }));
}

TEST_F(WorkbookMenus, ChoosingAnEntryIsHeardByWhoeverListens) {
  int heard = 0;
  auto connection = GetObject(Controls(2), "Item", {1}).Connect([&](Member event, auto given) {
    EXPECT_EQ(event.Name(), "Click");
    ASSERT_EQ(given.size(), 1U);
    EXPECT_EQ(GetText(given[0].Value().AsObject(), "Caption"), "Cu&t");
    ++heard;
  });
  Call(GetObject(Controls(2), "Item", {1}), "Execute");
  Call(GetObject(Controls(2), "Item", {2}), "Execute");
  EXPECT_EQ(heard, 1);
  connection.Disconnect();
  Call(GetObject(Controls(2), "Item", {1}), "Execute");
  EXPECT_EQ(heard, 1);
}

TEST_F(WorkbookMenus, AListenerMayDeleteTheEntryThatWasChosen) {
  const Object control = GetObject(Controls(2), "Item", {1});
  const auto connection = control.Connect([&](auto, auto) { Call(control, "Delete"); });
  Call(control, "Execute");
  EXPECT_EQ(Captions(2).front(), "&Copy");
}

TEST_F(WorkbookMenus, EachProgramHasMenusOfItsOwn) {
  Call(Items(), "Add", {"Mine"});
  Host other;
  const Object items = GetObject(GetObject(other.Application(), "ShortcutMenus", {3}), "MenuItems");
  EXPECT_TRUE(Fails([&] { GetObject(items, "Item", {"Mine"}); }));
}

}  // namespace
}  // namespace rangewerks::tests
