// What a person sees while the layout is checked, ranges are cleared, and a copy is saved.
#include <gmock/gmock.h>

#include <sstream>

#include "apps/rangewerks/clear_command.h"
#include "apps/rangewerks/fill_command.h"
#include "apps/rangewerks/layout_check.h"
#include "apps/rangewerks/validate_command.h"
#include "automation/locale.h"
#include "hosts/temporary_folder.h"
#include "support/sheet_fixture.h"

namespace rangewerks::apps {
namespace {

using namespace std::chrono_literals;
using ::testing::ElementsAre;

/// The lines that were written over one another, without the control characters.
std::vector<std::string> LinesOf(const std::string& output) {
  constexpr std::string_view kStart = "\rrangewerks: ";
  constexpr std::string_view kEnd = "\x1b[K";
  std::vector<std::string> lines;
  for (std::size_t at = output.find(kStart); at != std::string::npos;
       at = output.find(kStart, at)) {
    at += kStart.size();
    lines.push_back(output.substr(at, output.find(kEnd, at) - at));
  }
  return lines;
}

class StepsShown : public tests::SheetFixture {
 protected:
  StepsShown() {
    for (const char* name : {"a", "b", "d"}) {
      const std::string column = name;
      Define(name, "=Sheet1!$" + column + "$1:$" + column + "$2");
      Put(column + "1", "x");
      Declare(name);
    }
    Put("B2", "=A1");
    Declare("gone");
  }

  std::ostringstream output;
  std::chrono::steady_clock::time_point now{};
  /// Each look at the clock finds a second gone, so that nothing is held back.
  Progress progress{output, true, [this] { return now += 1s; }};
};

TEST_F(StepsShown, ClearingCountsTheRangesThatItLooksIntoClearsAndChecks) {
  const ClearReport report = Clear(*list, Sheet("Sheet1"), {}, progress);
  EXPECT_TRUE(report.KeptAny());
  EXPECT_THAT(
      LinesOf(output.str()),
      ElementsAre("looking for the ranges", "looking for formulas in range 1 of 4",
                  "looking for formulas in range 2 of 4", "looking for formulas in range 3 of 4",
                  "looking for formulas in range 4 of 4", "clearing 2 ranges",
                  "checking cleared range 1 of 2", "checking cleared range 2 of 2"));
}

TEST_F(StepsShown, ALayoutCheckTellsHowManyRangesItChecks) {
  EXPECT_FALSE(CheckLayout(*list, Sheet("Sheet1"), progress).fault);
  EXPECT_THAT(LinesOf(output.str()),
              ElementsAre("looking for the ranges", "checking the layout of 3 ranges"));
}

TEST_F(StepsShown, OneRangeIsNotCalledRanges) {
  for (const char* name : {"b", "d"}) list->Remove(name);
  CheckLayout(*list, Sheet("Sheet1"), progress);
  Clear(*list, Sheet("Sheet1"), {}, progress);
  EXPECT_THAT(LinesOf(output.str()),
              ::testing::IsSupersetOf({"checking the layout of 1 range", "clearing 1 range"}));
}

class StepsOfACommand : public ::testing::Test {
 protected:
  StepsOfACommand() {
    sheet.book = folder.Write("book.json", R"({"sheets": [{"name": "S", "cells": {"A1": "x"}}],
                                               "names": {"a": "=S!$A$1"}})");
    sheet.interfaceFile = folder.Write("interface.json", R"({"ranges": [
      {"RangeName": "a", "DetailIndicator": "H", "RangeDataType": "rdtString"}]})");
  }
  ~StepsOfACommand() override { automation::Locale::SetCurrent({}); }

  tests::TemporaryFolder folder;
  SheetOptions sheet;
  std::ostringstream output;
  std::ostringstream messages;
};

TEST_F(StepsOfACommand, ValidateTakesItsLineAwayAgain) {
  EXPECT_EQ(RunValidate(sheet, {output, messages, true}), kAllWell);
  EXPECT_THAT(LinesOf(messages.str()), ::testing::Contains("checking the layout of 1 range"));
  EXPECT_TRUE(messages.str().ends_with("\r\x1b[K"));
}

TEST_F(StepsOfACommand, ClearEndsWithSavingAndTakesItsLineAwayAgain) {
  const std::string copy = folder.File("out.json");
  EXPECT_EQ(RunClear({sheet, {}, {copy, false, false}}, {output, messages, true}), kAllWell);
  EXPECT_EQ(LinesOf(messages.str()).back(), "saving to " + copy);
  EXPECT_TRUE(messages.str().ends_with("\r\x1b[K"));
}

TEST_F(StepsOfACommand, FillEndsWithSavingToo) {
  const std::string data = folder.Write("rows.csv", "row,a\n1,y\n");
  const std::string copy = folder.File("out.json");
  EXPECT_EQ(RunFill({sheet, data, {copy, false, false}}, {output, messages, true}), kAllWell);
  EXPECT_EQ(LinesOf(messages.str()).back(), "saving to " + copy);
  EXPECT_TRUE(messages.str().ends_with("\r\x1b[K"));
}

TEST_F(StepsOfACommand, NothingIsShownWhenNobodyWatches) {
  EXPECT_EQ(RunValidate(sheet, {output, messages, false}), kAllWell);
  EXPECT_EQ(
      RunClear({sheet, {}, {folder.File("out.json"), false, false}}, {output, messages, false}),
      kAllWell);
  EXPECT_EQ(messages.str(), "");
}

}  // namespace
}  // namespace rangewerks::apps
