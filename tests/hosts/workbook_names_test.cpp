// Names and sheets of the workbook in memory, beyond what every host promises.
#include <gmock/gmock.h>

#include "hosts/late_calls.h"
#include "hosts/workbook/host.h"

namespace rangewerks::tests {
namespace {

using automation::Error;
using hosts::workbook::Host;
using testing::ElementsAre;

constexpr std::int32_t kRefused = 1004;
constexpr std::int32_t kNoSuchElement = 9;

std::string WordsOf(const std::function<void()>& step) {
  try {
    step();
  } catch (const Error& error) {
    return error.Source() + ": " + error.Description();
  }
  return "no error";
}

class WorkbookNames : public testing::Test {
 protected:
  WorkbookNames() {
    book_ = host_.AddWorkbook("Ledger", {"Sheet1", "Data Sheet"});
    names_ = GetObject(book_, "Names");
    sheet_ = GetObject(book_, "Sheets", {"Sheet1"});
  }
  std::vector<std::string> All(const Object& names) {
    std::vector<std::string> texts;
    for (const Variant& name : Elements(names)) texts.push_back(GetText(name.AsObject(), "Name"));
    return texts;
  }
  std::string Content(const char* name) {
    return GetText(GetObject(names_, "Item", {name}), "RefersTo");
  }

  Host host_;
  Object book_;
  Object names_;
  Object sheet_;
};

// --- which names can be --------------------------------------------------------------------------

TEST_F(WorkbookNames, FollowTheRulesForCharactersAndLength) {
  const std::string longest(255, 'x');
  for (const std::string& name :
       {std::string("a"), std::string("_"), std::string("\\x"), std::string("a.b"),
        std::string("a?b"), std::string("a\\b"), std::string("XFE1"), std::string("A1048577"),
        std::string("A1B"), std::string("RC1x"), std::string("Gr\xC3\xB6\xC3\x9F") + "e",
        longest}) {
    AddName(names_, name, "=Sheet1!$A$1");
    EXPECT_EQ(GetText(GetObject(names_, "Item", {name}), "Name"), name);
  }
}

struct Refused {
  std::string name;
  std::string words;
};

TEST_F(WorkbookNames, ThatCanNotBeAreRefusedWithTheReason) {
  const Refused cases[] = {
      {"", "it is empty"},
      {" ", "it is empty"},
      {"a b", "it holds a blank"},
      {"a  ", "it holds a blank"},
      {"a-b", "it holds the character \"-\""},
      {"a'b", "it holds the character \"'\""},
      {"1a", "it doesn't begin with a letter, \"_\" or \"\\\""},
      {".a", "it doesn't begin with a letter, \"_\" or \"\\\""},
      {"?a", "it doesn't begin with a letter, \"_\" or \"\\\""},
      {"A1", "it looks like a cell's address"},
      {"xfd1048576", "it looks like a cell's address"},
      {"R1C1", "it looks like a cell's address"},
      {"r1", "it looks like a cell's address"},
      {"C", "it looks like a cell's address"},
      {"RC", "it looks like a cell's address"},
      {std::string(256, 'x'), "it has more than 255 characters"},
  };
  for (const auto& [name, words] : cases) {
    const std::string shown = name.ends_with(' ') ? name.substr(0, name.size() - 1) : name;
    EXPECT_EQ(WordsOf([&] { AddName(names_, name, "=Sheet1!$A$1"); }),
              "Workbook: \"" + shown + "\" can't be a name: " + words);
  }
}

// --- order, contents, sheets ---------------------------------------------------------------------

TEST_F(WorkbookNames, AreWalkedSortedWithoutRegardToCase) {
  for (const char* name : {"beta", "Alpha", "_x", "GAMMA", "alpha2", "Sheet1!Local"}) {
    AddName(names_, name, "=Sheet1!$A$1");
  }
  EXPECT_THAT(All(names_), ElementsAre("_x", "Alpha", "alpha2", "beta", "GAMMA", "Sheet1!Local"));
  EXPECT_EQ(GetText(GetObject(names_, "Item", {2}), "Name"), "Alpha");
}

TEST_F(WorkbookNames, DeletedDuringAWalkAreNotVisited) {
  for (const char* name : {"a_", "b_", "c_"}) AddName(names_, name, "=Sheet1!$A$1");
  std::vector<std::string> visited;
  const auto walk = names_.Enumerate();
  for (Variant name; walk->Next(name);) {
    visited.push_back(GetText(name.AsObject(), "Name"));
    if (visited.size() == 1) Call(GetObject(names_, "Item", {"b_"}), "Delete");
  }
  EXPECT_THAT(visited, ElementsAre("a_", "c_"));
}

TEST_F(WorkbookNames, RefuseEverythingOnceDeleted) {
  const Object name = AddName(names_, "Code", "=Sheet1!$A$1");
  Call(GetObject(names_, "Item", {"Code"}), "Delete");
  EXPECT_EQ(WordsOf([&] { Get(name, "Name"); }), "Workbook: The name \"Code\" has been deleted");
}

TEST_F(WorkbookNames, TellTheirContentAsAbsoluteReferences) {
  const Object name = AddName(names_, "Code", "=sheet1!c3:C10");
  EXPECT_EQ(Content("Code"), "=Sheet1!$C$3:$C$10");
  Let(name, "RefersTo", "=$B$2");
  EXPECT_EQ(Content("Code"), "=Sheet1!$B$2") << "cells without a sheet lie on the one in front";
  Let(name, "RefersTo", "=1+1");
  EXPECT_EQ(Content("Code"), "=1+1");
  Let(name, "RefersTo", 12.5);
  EXPECT_EQ(Content("Code"), "=12.5");
  Let(name, "RefersTo", "abc");
  EXPECT_EQ(Content("Code"), "=\"abc\"");
}

TEST_F(WorkbookNames, CanNotReferToASheetThatIsNotThere) {
  EXPECT_EQ(WordsOf([&] { AddName(names_, "Code", "=Sheet9!$A$1"); }),
            "Workbook: Workbook \"Ledger\" has no sheet \"Sheet9\" for =Sheet9!$A$1");
}

TEST_F(WorkbookNames, CanNotReferToCellsOfAnotherWorkbook) {
  const Object other = host_.AddWorkbook("Other", {"Sheet1"});
  const Object cells = GetObject(GetObject(other, "ActiveSheet"), "Range", {"A1"});
  EXPECT_EQ(ErrorNumberOf([&] { AddName(names_, "Code", cells); }), kRefused);
}

TEST_F(WorkbookNames, OfADeletedSheetDieOrShowADeadReference) {
  AddName(names_, "Code", "='Data Sheet'!$C$3:$C$10");
  AddName(names_, "'Data Sheet'!Local", "='Data Sheet'!$A$1");
  Call(GetObject(book_, "Sheets", {"Data Sheet"}), "Delete");
  EXPECT_THAT(All(names_), ElementsAre("Code"));
  EXPECT_EQ(Content("Code"), "=#REF!$C$3:$C$10");
  EXPECT_EQ(WordsOf([&] { Get(GetObject(names_, "Item", {"Code"}), "RefersToRange"); }),
            "Workbook: The name \"Code\" refers to no cells but to =#REF!$C$3:$C$10");
}

TEST_F(WorkbookNames, OfASheetFollowItsRenaming) {
  AddName(names_, "Sheet1!Local", "=Sheet1!$A$1");
  Let(sheet_, "Name", "Q1 2024");
  EXPECT_THAT(All(names_), ElementsAre("'Q1 2024'!Local"));
  EXPECT_EQ(Content("'Q1 2024'!Local"), "='Q1 2024'!$A$1");
  EXPECT_EQ(ErrorNumberOf([&] { Get(names_, "Item", {"Sheet1!Local"}); }), kRefused);
}

TEST_F(WorkbookNames, OfTheWorksheetAreItsOwnOnly) {
  AddName(names_, "Code", "=Sheet1!$A$1");
  const Object own = GetObject(sheet_, "Names");
  AddName(own, "Local", "=Sheet1!$A$2");
  EXPECT_THAT(All(own), ElementsAre("Sheet1!Local"));
  EXPECT_EQ(GetLong(own, "Count"), 1);
  EXPECT_EQ(GetText(GetObject(own, "Item", {"local"}), "RefersTo"), "=Sheet1!$A$2");
  EXPECT_EQ(ErrorNumberOf([&] { Get(own, "Item", {"Code"}); }), kRefused);
  EXPECT_EQ(GetText(GetObject(GetObject(own, "Item", {1}), "Parent"), "Name"), "Sheet1");
}

TEST_F(WorkbookNames, CanNotMoveToAnotherSheetByRenaming) {
  const Object name = AddName(names_, "Code", "=Sheet1!$A$1");
  EXPECT_EQ(ErrorNumberOf([&] { Let(name, "Name", "'Data Sheet'!Code"); }), kRefused);
  EXPECT_EQ(GetText(name, "Name"), "Code");
}

TEST_F(WorkbookNames, MayChangeTheCaseOfTheirLetters) {
  const Object name = AddName(names_, "code", "=Sheet1!$A$1");
  Let(name, "Name", "CODE ");
  EXPECT_EQ(GetText(name, "Name"), "CODE");
}

TEST_F(WorkbookNames, InTheThousandsAreWalkedOnceEach) {
  constexpr int kCount = 10000;
  for (int i = 0; i < kCount; ++i) {
    AddName(names_, "Name_" + std::to_string(i), "=Sheet1!$A$" + std::to_string(i + 1));
  }
  host_.Calls().Reset();
  EXPECT_EQ(Elements(names_).size(), std::size_t{kCount});
  EXPECT_EQ(host_.Calls().Count(), 1U);
  EXPECT_EQ(Content("name_9999"), "=Sheet1!$A$10000");
}

TEST_F(WorkbookNames, OfSheetsNeedQuotesUnlessTheyReadAsOneWord) {
  const Refused cases[] = {{"Plain_1.x", "Plain_1.x"},
                           {"2024", "'2024'"},
                           {"A1", "'A1'"},
                           {"R1C1", "'R1C1'"},
                           {"a-b", "'a-b'"},
                           {"a!b", "'a!b'"},
                           {"it's", "'it''s'"},
                           {"\xC3\x84rger", "\xC3\x84rger"}};
  for (const auto& [name, shown] : cases) {
    Let(sheet_, "Name", name);
    const Object range = GetObject(sheet_, "Range", {"$B$2"});
    Let(range, "Name", "Code");
    EXPECT_EQ(Content("Code"), "=" + shown + "!$B$2");
    Let(GetObject(names_, "Item", {"Code"}), "RefersTo", "=" + shown + "!$B$3");
    EXPECT_EQ(Content("Code"), "=" + shown + "!$B$3") << "and are read back";
  }
}

// --- sheets --------------------------------------------------------------------------------------

TEST_F(WorkbookNames, OfSheetsAreRefusedWithTheReason) {
  const Refused cases[] = {{"", "it is empty"},
                           {std::string(32, 'x'), "it has more than 31 characters"},
                           {"a:b", "it holds the character \":\""},
                           {"'a", "it begins or ends with an apostrophe"},
                           {"a'", "it begins or ends with an apostrophe"}};
  for (const auto& [name, words] : cases) {
    EXPECT_EQ(WordsOf([&] { Let(sheet_, "Name", name); }),
              "Workbook: A sheet can't be called \"" + name + "\": " + words);
  }
  EXPECT_EQ(WordsOf([&] { Let(sheet_, "Name", "data sheet"); }),
            "Workbook: Workbook \"Ledger\" already has a sheet \"Data Sheet\"");
}

TEST_F(WorkbookNames, OfASheetMayChangeTheirCase) {
  Let(sheet_, "Name", "SHEET1");
  EXPECT_EQ(GetText(sheet_, "Name"), "SHEET1");
}

TEST_F(WorkbookNames, OfAMissingSheetIsAMissingElement) {
  EXPECT_EQ(ErrorNumberOf([&] { Get(book_, "Sheets", {"Sheet9"}); }), kNoSuchElement);
  EXPECT_EQ(ErrorNumberOf([&] { Get(book_, "Worksheets", {3}); }), kNoSuchElement);
}

}  // namespace
}  // namespace rangewerks::tests
