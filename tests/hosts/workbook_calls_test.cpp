// The call log of the workbook in memory: lines, counts, failures on request.
#include <gmock/gmock.h>

#include "hosts/late_calls.h"
#include "hosts/workbook/host.h"

namespace rangewerks::tests {
namespace {

using automation::Array;
using automation::Date;
using automation::Error;
using automation::ErrorValue;
using automation::Null;
using hosts::workbook::Host;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::int32_t kRefused = 1004;

class WorkbookCalls : public testing::Test {
 protected:
  WorkbookCalls() {
    book_ = host_.AddWorkbook("Book", {"Sheet1"});
    sheet_ = GetObject(book_, "ActiveSheet");
    host_.Calls().Reset();
  }
  const std::vector<std::string>& Logged(const std::function<void()>& step) {
    host_.Calls().Reset();
    host_.Calls().LogCalls(true);
    step();
    return host_.Calls().Lines();
  }

  Host host_;
  Object book_;
  Object sheet_;
};

// --- lines ---------------------------------------------------------------------------------------

TEST_F(WorkbookCalls, AreLoggedAsTypeMemberKindAndArguments) {
  const auto& lines = Logged([&] {
    const Object cells = GetObject(sheet_, "Range", {"A1:A3"});
    Let(GetObject(cells, "Cells", {3, 1}), "Value", 12.5);
    Get(GetObject(cells, "Item", {2}), "_Default");
    Call(cells, "ClearContents");
    Get(GetObject(cells, "Rows"), "Count");
  });
  EXPECT_THAT(lines, ElementsAre("Worksheet.Range get \"A1:A3\"", "Range.Cells get 3, 1",
                                 "Range.Value let 12.5", "Range.Item get 2", "Range._Default get",
                                 "Range.ClearContents call", "Range.Rows get", "Range.Count get"));
}

TEST_F(WorkbookCalls, AreLoggedWithNamedArgumentsAndObjectsByTypeName) {
  const Object cells = GetObject(sheet_, "Range", {"A1"});
  const auto& lines = Logged([&] {
    const Object names = GetObject(book_, "Names");
    AddName(names, "x", "=Sheet1!$A$1");
    AddName(names, "y", cells);
    Call(GetObject(sheet_, "Application"), "Intersect", {cells, cells});
  });
  EXPECT_THAT(
      lines,
      ElementsAre("Workbook.Names get", "Names.Add call Name:=\"x\", RefersTo:=\"=Sheet1!$A$1\"",
                  "Names.Add call Name:=\"y\", RefersTo:=Range", "Worksheet.Application get",
                  "Application.Intersect call Range, Range"));
}

TEST_F(WorkbookCalls, AreLoggedWithEveryKindOfValue) {
  const Object cell = GetObject(sheet_, "Range", {"A1"});
  const auto& lines = Logged([&] {
    Let(cell, "Value", "say \"so\"");
    Let(cell, "Value", true);
    Let(cell, "Value", std::int32_t{7});
    Let(cell, "Value", Date{45322});
    Let(cell, "Value", ErrorValue::FromNumber(2007));
    Let(cell, "Value", Variant());
    Let(cell, "Value", Null());
    Let(cell, "Value", Array(2, 3));
    Get(sheet_, "Cells", {Argument::Omitted(), 2});
  });
  EXPECT_THAT(lines, ElementsAre("Range.Value let \"say \"\"so\"\"\"", "Range.Value let True",
                                 "Range.Value let 7", "Range.Value let #2024-01-31#",
                                 "Range.Value let Error 2007", "Range.Value let Empty",
                                 "Range.Value let Null", "Range.Value let Array(2, 3)",
                                 "Worksheet.Cells get (omitted), 2"));
}

TEST_F(WorkbookCalls, CountAWalkOnceAndItsElementsNot) {
  const Object names = GetObject(book_, "Names");
  AddName(names, "x", "=Sheet1!$A$1");
  AddName(names, "y", "=Sheet1!$A$1");
  const auto& lines = Logged([&] { EXPECT_EQ(Elements(names).size(), 2U); });
  EXPECT_THAT(lines, ElementsAre("Names enumerate"));
  EXPECT_EQ(host_.Calls().Count(), 1U);
  EXPECT_EQ(host_.Calls().Count("Names enumerate"), 1U);
}

TEST_F(WorkbookCalls, AreNotLoggedUntilAsked) {
  Get(sheet_, "Name");
  EXPECT_THAT(host_.Calls().Lines(), IsEmpty());
  EXPECT_EQ(host_.Calls().Count(), 1U);
}

TEST_F(WorkbookCalls, ThatFailAreLoggedAndCountedToo) {
  const auto& lines = Logged([&] {
    EXPECT_TRUE(Fails([&] { Get(sheet_, "Range", {"nothing"}); }));
    EXPECT_TRUE(Fails([&] { Get(sheet_, "NoSuchThing"); }));
  });
  EXPECT_THAT(lines, ElementsAre("Worksheet.Range get \"nothing\"", "Worksheet.NoSuchThing get"));
  EXPECT_EQ(host_.Calls().Count(), 2U);
}

TEST_F(WorkbookCalls, BetweenObjectsOfTheHostDoNotCount) {
  const Object cell = GetObject(sheet_, "Range", {"A1"});
  const Object other = GetObject(sheet_, "Range", {"A2"});
  host_.Calls().Reset();
  Let(cell, "Value", other);
  EXPECT_EQ(host_.Calls().Count(), 1U);
}

// --- counts --------------------------------------------------------------------------------------

TEST_F(WorkbookCalls, AreCountedByMemberInAnyCase) {
  Get(sheet_, "Range", {"A1"});
  Get(sheet_, "Range", {"A2"});
  Get(sheet_, "Name");
  EXPECT_EQ(host_.Calls().Count(), 3U);
  EXPECT_EQ(host_.Calls().Count("Worksheet.Range"), 2U);
  EXPECT_EQ(host_.Calls().Count("worksheet.RANGE"), 2U);
  EXPECT_EQ(host_.Calls().Count("Range.Value"), 0U);
}

TEST_F(WorkbookCalls, AreForgottenByReset) {
  Logged([&] { Get(sheet_, "Name"); });
  host_.Calls().Reset();
  EXPECT_EQ(host_.Calls().Count(), 0U);
  EXPECT_EQ(host_.Calls().Count("Worksheet.Name"), 0U);
  EXPECT_THAT(host_.Calls().Lines(), IsEmpty());
}

TEST_F(WorkbookCalls, CanNotBeCountedByATextWithoutAMember) {
  EXPECT_EQ(ErrorNumberOf([&] { host_.Calls().Count("Worksheet"); }), 5);
}

// --- failures on request -------------------------------------------------------------------------

TEST_F(WorkbookCalls, FailAtTheRequestedOneOnlyAndBeforeAnyEffect) {
  const Object cell = GetObject(sheet_, "Range", {"A1"});
  host_.Calls().FailCall(2, kRefused, "busy");
  Let(cell, "Value", 1.0);
  try {
    Let(cell, "Value", 2.0);
    FAIL() << "the second call should have failed";
  } catch (const Error& error) {
    EXPECT_EQ(error.Number(), kRefused);
    EXPECT_EQ(error.Source(), "Workbook");
    EXPECT_EQ(error.Description(), "busy");
  }
  EXPECT_EQ(Get(cell, "Value"), Variant(1.0));
  Let(cell, "Value", 2.0);
  EXPECT_EQ(Get(cell, "Value"), Variant(2.0));
}

TEST_F(WorkbookCalls, FailAtEachOfSeveralRequestedOnes) {
  host_.Calls().FailCall(1, kRefused, "first");
  host_.Calls().FailCall(3, 7, "third");
  EXPECT_EQ(ErrorNumberOf([&] { Get(sheet_, "Name"); }), kRefused);
  EXPECT_EQ(ErrorNumberOf([&] { Get(sheet_, "Name"); }), 0);
  EXPECT_EQ(ErrorNumberOf([&] { Get(sheet_, "Name"); }), 7);
}

TEST_F(WorkbookCalls, FailAtTheRequestedOneAlsoAfterAReset) {
  host_.Calls().FailCall(2, kRefused, "busy");
  Get(sheet_, "Name");
  host_.Calls().Reset();
  EXPECT_EQ(ErrorNumberOf([&] { Get(sheet_, "Name"); }), kRefused);
}

TEST_F(WorkbookCalls, OfAMemberFailUntilTheFailuresAreCleared) {
  const Object cell = GetObject(sheet_, "Range", {"A1"});
  host_.Calls().FailMember("Range.Value", kRefused, "locked");
  EXPECT_EQ(ErrorNumberOf([&] { Get(cell, "Value"); }), kRefused);
  EXPECT_EQ(ErrorNumberOf([&] { Let(cell, "Value", 1.0); }), kRefused);
  EXPECT_EQ(ErrorNumberOf([&] { Get(cell, "Address"); }), 0);
  host_.Calls().ClearFailures();
  EXPECT_TRUE(Get(cell, "Value").IsEmpty());
}

TEST_F(WorkbookCalls, ToWalkCanFailToo) {
  const Object names = GetObject(book_, "Names");
  host_.Calls().FailMember("Names enumerate", kRefused, "busy");
  EXPECT_EQ(ErrorNumberOf([&] { Elements(names); }), kRefused);
}

TEST_F(WorkbookCalls, ThatFailOnRequestAreCounted) {
  host_.Calls().FailCall(1, kRefused, "busy");
  EXPECT_TRUE(Fails([&] { Get(sheet_, "Name"); }));
  EXPECT_EQ(host_.Calls().Count("Worksheet.Name"), 1U);
}

TEST_F(WorkbookCalls, AreAnnouncedToAWatcherWhoseOwnCallsAreNotNoted) {
  const Object cell = GetObject(sheet_, "Range", {"A1"});
  std::vector<Variant> seen;
  host_.Calls().Reset();
  host_.Calls().FailCall(2, kRefused, "locked");
  host_.Calls().Watch([&] { seen.push_back(Get(cell, "Value")); });
  Let(cell, "Value", 1.0);
  EXPECT_TRUE(Fails([&] { Let(cell, "Value", 2.0); }));
  host_.Calls().Watch({});
  EXPECT_EQ(Get(cell, "Value"), Variant(1.0));
  EXPECT_EQ(seen, (std::vector<Variant>{Variant(), Variant(1.0)}));
  EXPECT_EQ(host_.Calls().Count(), 3U);
}

TEST_F(WorkbookCalls, HaveNoCallNumberZeroToFail) {
  EXPECT_EQ(ErrorNumberOf([&] { host_.Calls().FailCall(0, kRefused, "never"); }), 5);
}

}  // namespace
}  // namespace rangewerks::tests
