#include "model/colExInputRangeList.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "automation/dispatch.h"
#include "support/error_of.h"
#include "support/matches_regex.h"

namespace rangewerks::tests {
namespace {

using automation::Argument;
using automation::Error;
using automation::Member;
using automation::Object;
using automation::Variant;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

using List = std::shared_ptr<colExInputRangeList>;

List ListOf(const std::vector<std::string>& names) {
  auto list = std::make_shared<colExInputRangeList>();
  for (const auto& name : names) list->Add(name, hdiDetail, rdtString);
  return list;
}

std::vector<std::string> Names(const List& list) {
  std::vector<std::string> names;
  for (const auto& record : list->Records()) names.push_back(record->get_RangeName());
  return names;
}

void AddUnderKey(const List& list, const std::string& name, std::string key) {
  list->Add(name, hdiDetail, rdtString, false, false, "", 0, std::int16_t{0}, key, false, "", "");
}

TEST(ColExInputRangeList, AddFillsTheRecordFromItsArguments) {
  const List list = ListOf({});
  std::string key;
  const auto record = list->Add("posting_date", hdiHeaderDetail, rdtDate, true, true, "Date", 12,
                                "value", key, true, "dates", "G1");
  EXPECT_EQ(record->get_RangeName(), "posting_date");
  EXPECT_EQ(record->get_DetailIndicator(), hdiHeaderDetail);
  EXPECT_EQ(record->get_RangeDataType(), rdtDate);
  EXPECT_TRUE(record->get_IsMandatory());
  EXPECT_TRUE(record->get_RangeExists());
  EXPECT_EQ(record->get_Description(), "Date");
  EXPECT_EQ(record->get_DataLength(), 12);
  EXPECT_EQ(record->get_Value(), Variant("value"));
  EXPECT_TRUE(record->get_IsBrowseable());
  EXPECT_EQ(record->get_BrowseColumn(), "dates");
  EXPECT_EQ(record->get_Group(), "G1");
  EXPECT_FALSE(record->get_BlankValueIsFound());
  EXPECT_EQ(list->Item(1), record);
}

TEST(ColExInputRangeList, AddWithoutAValueStoresTheIntegerZero) {
  EXPECT_EQ(ListOf({"a"})->Item(1)->get_Value(), Variant(std::int16_t{0}));
}

TEST(ColExInputRangeList, AddGivesAnEmptyKeyVariableTheName) {
  const List list = ListOf({});
  std::string key;
  list->Add("a", hdiHeader, rdtString, false, false, "", 0, std::int16_t{0}, key, false, "", "");
  EXPECT_EQ(key, "a");
}

TEST(ColExInputRangeList, AddByNameWritesTheKeyBackToTheCallersVariable) {
  const Object list(ListOf({}));
  Variant key = "";
  list.Call(Member("Add"), {"a", 0, 0},
            {{Member("sKey"), Argument::Reference(key)}, {Member("Group"), "G"}});
  EXPECT_EQ(key, Variant("a"));
  EXPECT_EQ(list.Get(Member::Default(), {"a"}).AsObject().Get(Member("Group")), Variant("G"));
}

TEST(ColExInputRangeList, AddKeepsTheKeyThatWasGiven) {
  const List list = ListOf({});
  AddUnderKey(list, "name", "key");
  EXPECT_EQ(list->Item("KEY")->get_RangeName(), "name");
}

TEST(ColExInputRangeList, AddOfANameThatDiffersInCaseOnlyFailsNamingTheNewForm) {
  const List list = ListOf({"nominal_code"});
  const Error error = ErrorOf([&] { list->Add("Nominal_Code", hdiDetail, rdtString); });
  EXPECT_EQ(error.Number(), 457);
  EXPECT_EQ(error.Description(), "Range Nominal_Code already exists on list");
  EXPECT_THAT(error.Source(),
              MatchesRegex("Line No\\.: [0-9]+ Add of Class Module colExInputRangeList "
                           "Line#:[0-9]+"));
  EXPECT_THAT(Names(list), ElementsAre("nominal_code"));
}

TEST(ColExInputRangeList, ItemFindsByPositionAndByKeyWithoutRegardToCase) {
  const List list = ListOf({"a", "b"});
  EXPECT_EQ(list->Item(2)->get_RangeName(), "b");
  EXPECT_EQ(list->Item("B"), list->Item(2));
}

TEST(ColExInputRangeList, ItemAndRemovePassTheCollectionsErrorOn) {
  const List list = ListOf({"a"});
  for (const auto& action : std::vector<std::function<void(const Variant&)>>{
           [&](const Variant& key) { list->Item(key); },
           [&](const Variant& key) { list->Remove(key); }}) {
    EXPECT_EQ(ErrorOf([&] { action("missing"); }).Number(), 5);
    EXPECT_EQ(ErrorOf([&] { action(0); }).Number(), 9);
    const Error error = ErrorOf([&] { action(2); });
    EXPECT_EQ(error.Number(), 9);
    EXPECT_EQ(error.Description(), "Subscript out of range");
    EXPECT_EQ(error.Source(), "");
  }
  EXPECT_EQ(list->Count(), 1);
}

TEST(ColExInputRangeList, RemoveTakesTheRecordAndItsKeyOut) {
  const List list = ListOf({"a", "b", "c"});
  list->Remove("B");
  EXPECT_THAT(Names(list), ElementsAre("a", "c"));
  list->Remove(1);
  EXPECT_THAT(Names(list), ElementsAre("c"));
  EXPECT_EQ(ErrorOf([&] { list->Item("a"); }).Number(), 5);
}

TEST(ColExInputRangeList, ClearListOnAnEmptyListDoesNothing) {
  const List list = ListOf({});
  list->ClearList();
  EXPECT_EQ(list->Count(), 0);
}

TEST(ColExInputRangeList, ClearListTakesAllOut) {
  const List list = ListOf({"a", "b", "c"});
  list->ClearList();
  EXPECT_EQ(list->Count(), 0);
  list->Add("a", hdiHeader, rdtString);
  EXPECT_EQ(list->Count(), 1);
}

TEST(ColExInputRangeListSort, AnEmptyListSortsToAnEmptyList) {
  const List list = ListOf({});
  list->Sort();
  EXPECT_EQ(list->Count(), 0);
}

TEST(ColExInputRangeListSort, MixedCaseSortsAsIfAllInOneCase) {
  const List list = ListOf({"b", "A", "c"});
  list->Sort();
  EXPECT_THAT(Names(list), ElementsAre("A", "b", "c"));
}

TEST(ColExInputRangeListSort, AnotherKeyIsFoundBeforeAndTheNameAfterwards) {
  const List list = ListOf({"b"});
  AddUnderKey(list, "a", "first");
  EXPECT_EQ(list->Item("first")->get_RangeName(), "a");
  list->Sort();
  EXPECT_EQ(ErrorOf([&] { list->Item("first"); }).Number(), 5);
  EXPECT_EQ(list->Item("a")->get_RangeName(), "a");
}

TEST(ColExInputRangeListSort, EqualNamesUnderDifferentKeysFailAndLeaveTheListAsItWas) {
  const List list = ListOf({"b", "Same"});
  AddUnderKey(list, "same", "other");
  const Error error = ErrorOf([&] { list->Sort(); });
  EXPECT_EQ(error.Number(), 457);
  EXPECT_EQ(error.Description(),
            "This key is already associated with an element of this collection");
  EXPECT_EQ(error.Source(), "");
  EXPECT_THAT(Names(list), ElementsAre("b", "Same", "same"));
  EXPECT_EQ(list->Item("other")->get_RangeName(), "same");
}

TEST(ColExInputRangeListSort, ThePositionOfThe32768thGreaterNameOverflows) {
  const auto named = [](int number) {
    std::string digits = std::to_string(number);
    return "n" + std::string(6 - digits.size(), '0') + digits;
  };
  const List list = ListOf({});
  for (int i = 0; i < 32768; ++i) list->Add(named(i), hdiDetail, rdtString);
  list->Sort();
  EXPECT_EQ(list->Item(32768)->get_RangeName(), named(32767));
  list->Add(named(32768), hdiDetail, rdtString);
  EXPECT_EQ(ErrorOf([&] { list->Sort(); }).Number(), 6);
  EXPECT_EQ(list->Count(), 32769);
}

TEST(ColExInputRangeListAppend, WithoutOverwriteLeavesTheOldRecordInItsPlace) {
  const List list = ListOf({"a", "b"});
  const List other = ListOf({"B", "c"});
  const auto old = list->Item("b");
  list->Append(other);
  EXPECT_THAT(Names(list), ElementsAre("a", "b", "c"));
  EXPECT_EQ(list->Item("b"), old);
}

TEST(ColExInputRangeListAppend, WithOverwriteTheNewRecordStandsLastAndTheOldOneIsGone) {
  const List list = ListOf({"a", "b"});
  const List other = ListOf({"A"});
  list->Append(other, true);
  EXPECT_THAT(Names(list), ElementsAre("b", "A"));
  EXPECT_EQ(list->Item("a"), other->Item(1));
}

TEST(ColExInputRangeListAppend, TheSameObjectsStandOnBothLists) {
  const List list = ListOf({});
  const List other = ListOf({"a"});
  list->Append(other);
  list->Item("a")->let_Tag("changed");
  EXPECT_EQ(other->Item("a")->get_Tag(), "changed");
}

TEST(ColExInputRangeListAppend, UsesTheNamesAndNotTheKeysOfTheOtherList) {
  const List list = ListOf({});
  const List other = ListOf({});
  AddUnderKey(other, "name", "key");
  list->Append(other);
  EXPECT_EQ(list->Item("name")->get_RangeName(), "name");
  EXPECT_EQ(ErrorOf([&] { list->Item("key"); }).Number(), 5);
}

TEST(ColExInputRangeListAppend, AListCanBeAppendedToItself) {
  const List list = ListOf({"a", "b"});
  list->Append(list, true);
  EXPECT_THAT(Names(list), ElementsAre("a", "b"));
}

TEST(ColExInputRangeList, ForEachGoesInListOrderAndSurvivesRemovals) {
  const List list = ListOf({"a", "b", "c"});
  std::vector<std::string> seen;
  const auto walk = Object(list).Enumerate();
  for (Variant each; walk->Next(each);) {
    const auto record = each.AsObject().As<clsExInputRange>();
    seen.push_back(record->get_RangeName());
    list->Remove(record->get_RangeName());
  }
  EXPECT_THAT(seen, ElementsAre("a", "b", "c"));
  EXPECT_THAT(Names(list), IsEmpty());
}

TEST(ColExInputRangeList, MembersStandInTheOrderOfTheirSlots) {
  std::vector<std::string> slots;
  for (const auto& entry : colExInputRangeList().Members().Entries()) {
    slots.push_back(entry.name.Name());
  }
  EXPECT_THAT(slots, ElementsAre("Add", "Item", "Count", "Remove", "NewEnum", "ClearList", "Sort",
                                 "Append"));
}

}  // namespace
}  // namespace rangewerks::tests
