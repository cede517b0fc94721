#include "model/colGroupHeadings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/error_of.h"
#include "support/matches_regex.h"

namespace rangewerks::tests {
namespace {

using automation::Error;
using automation::Member;
using automation::Object;
using automation::Variant;
using ::testing::ElementsAre;

TEST(ColGroupHeadings, AddSetsTextKeyAndParent) {
  colGroupHeadings headings;
  const auto heading = headings.Add("Codes", "codes", "top");
  EXPECT_EQ(heading->get_HeadingText(), "Codes");
  EXPECT_EQ(heading->get_HeadingKey(), "codes");
  EXPECT_EQ(heading->get_ParentGroup(), "top");
  EXPECT_EQ(headings.Item("CODES"), heading);
  EXPECT_EQ(headings.Item(1), heading);
}

TEST(ColGroupHeadings, AddWithoutAParentGivesAnEmptyParentGroup) {
  colGroupHeadings headings;
  EXPECT_EQ(headings.Add("Codes", "codes")->get_ParentGroup(), "");
}

TEST(ColGroupHeadings, AddOfAKeyThatDiffersInCaseOnlyFailsWithTheCollectionsOwnWords) {
  colGroupHeadings headings;
  headings.Add("Codes", "codes");
  const Error error = ErrorOf([&] { headings.Add("Others", "Codes"); });
  EXPECT_EQ(error.Number(), 457);
  EXPECT_EQ(error.Description(),
            "This key is already associated with an element of this collection");
  EXPECT_THAT(error.Source(), MatchesRegex("Line No\\.: [0-9]+ Add of Class Module "
                                           "colGroupHeadings Line#:[0-9]+"));
  EXPECT_EQ(headings.Count(), 1);
}

TEST(ColGroupHeadings, AnEmptyKeyIsNotReplacedByAnything) {
  colGroupHeadings headings;
  headings.Add("No key", "");
  EXPECT_EQ(headings.Item("")->get_HeadingText(), "No key");
  EXPECT_THROW(headings.Add("Second without key", ""), Error);
}

TEST(ColGroupHeadings, ClearListOnAnEmptyCollectionDoesNothing) {
  colGroupHeadings headings;
  headings.ClearList();
  EXPECT_EQ(headings.Count(), 0);
}

TEST(ColGroupHeadings, ClearListAndRemoveTakeHeadingsOut) {
  colGroupHeadings headings;
  headings.Add("A", "a");
  headings.Add("B", "b");
  headings.Remove("A");
  EXPECT_EQ(headings.Item(1)->get_HeadingText(), "B");
  headings.ClearList();
  EXPECT_EQ(headings.Count(), 0);
}

TEST(ColGroupHeadings, AnUnknownKeyOrPositionPassesTheCollectionsErrorOn) {
  colGroupHeadings headings;
  EXPECT_EQ(ErrorOf([&] { headings.Item("missing"); }).Number(), 5);
  EXPECT_EQ(ErrorOf([&] { headings.Remove(1); }).Number(), 9);
}

TEST(ColGroupHeadings, AParentNeedNotExist) {
  colGroupHeadings headings;
  headings.Add("Child", "child", "parent that comes later");
  EXPECT_EQ(headings.Item("child")->get_ParentGroup(), "parent that comes later");
}

TEST(ColGroupHeadings, ForEachGoesInListOrder) {
  const auto headings = std::make_shared<colGroupHeadings>();
  headings->Add("B", "b");
  headings->Add("A", "a");
  std::vector<std::string> keys;
  const auto walk = Object(headings).Get(Member("NewEnum")).AsObject().Enumerate();
  for (Variant each; walk->Next(each);) {
    keys.push_back(each.AsObject().As<clsRangeGroupHeading>()->get_HeadingKey());
  }
  EXPECT_THAT(keys, ElementsAre("b", "a"));
}

TEST(ColGroupHeadings, MembersStandInTheOrderOfTheirSlots) {
  std::vector<std::string> slots;
  for (const auto& entry : colGroupHeadings().Members().Entries()) {
    slots.push_back(entry.name.Name());
  }
  EXPECT_THAT(slots, ElementsAre("ClearList", "Add", "Item", "Count", "Remove", "NewEnum"));
}

TEST(ClsRangeGroupHeading, IsEmptyWhenNewAndAnswersByName) {
  const Object heading(std::make_shared<clsRangeGroupHeading>());
  for (const char* name : {"HeadingKey", "HeadingText", "ParentGroup"}) {
    EXPECT_EQ(heading.Get(Member(name)), Variant(""));
    heading.Let(Member(name), name);
    EXPECT_EQ(heading.Get(Member(name)), Variant(name));
  }
}

TEST(ClsRangeGroupHeading, MembersStandInTheOrderOfTheirSlots) {
  std::vector<std::string> slots;
  for (const auto& entry : clsRangeGroupHeading().Members().Entries()) {
    slots.push_back(std::string(KindName(entry.kind)) + " " + entry.name.Name());
  }
  EXPECT_THAT(slots, ElementsAre("get ParentGroup", "let ParentGroup", "let HeadingText",
                                 "get HeadingText", "let HeadingKey", "get HeadingKey"));
}

}  // namespace
}  // namespace rangewerks::tests
