// Conditional formats: a fill that cells have while a formula holds.
#include "hosts/contract.h"
#include "platform/excel_constants.h"

namespace rangewerks::tests {
namespace {

constexpr std::int32_t kWhite = 0xFFFFFF;

class ConditionalFormatsContract : public HostContract {
 protected:
  Object Conditions(const char* address) { return GetObject(Cells(address), "FormatConditions"); }
  Object Condition(const char* address, std::int32_t index) {
    return GetObject(Cells(address), "FormatConditions", {index});
  }
  std::int32_t Count(const char* address) { return GetLong(Conditions(address), "Count"); }

  /// The formula that colours every other row, with the host's own list separator.
  std::string Banding() {
    return "=MOD(ROW()" + GetText(Application(), "International", {excel::xlListSeparator}) +
           " 2)=0";
  }
  Object Add(const char* address, const std::string& formula) {
    static const automation::Member kAdd{"Add"};
    static const automation::Member kType{"Type"};
    static const automation::Member kFormula1{"Formula1"};
    const Variant type(static_cast<std::int32_t>(excel::xlExpression));
    return Conditions(address).Call(kAdd, {}, {{kType, type}, {kFormula1, formula}}).AsObject();
  }
};
CONTRACT_FOR_ALL_HOSTS(ConditionalFormatsContract);

TEST_P(ConditionalFormatsContract, CellsHaveNoneAtFirst) {
  EXPECT_EQ(excel::xlExpression, 2);
  EXPECT_EQ(Count("B2:B9"), 0);
  EXPECT_TRUE(Fails([&] { Condition("B2:B9", 1); }));
  EXPECT_TRUE(Fails([&] { Get(Conditions("B2:B9"), "Item", {1}); }));
}

TEST_P(ConditionalFormatsContract, AddGivesEveryCellTheCondition) {
  const Object added = Add("B2:B9", Banding());
  EXPECT_EQ(added.TypeName(), "FormatCondition");
  EXPECT_EQ(Count("B2:B9"), 1);
  EXPECT_EQ(Count("B5"), 1);
  EXPECT_EQ(Count("B10"), 0);
  EXPECT_EQ(Count("C5"), 0);
}

TEST_P(ConditionalFormatsContract, AConditionTellsItsTypeAndItsFormulaAsItWasGiven) {
  Add("B2:B9", Banding());
  EXPECT_EQ(GetLong(Condition("B2:B9", 1), "Type"), 2);
  EXPECT_EQ(GetText(Condition("B2:B9", 1), "Formula1"), Banding());
}

TEST_P(ConditionalFormatsContract, AConditionIsReachedThroughTheDefaultMemberToo) {
  Add("B2:B9", Banding());
  EXPECT_EQ(GetText(GetObject(Conditions("B2:B9"), "_Default", {1}), "Formula1"), Banding());
  EXPECT_EQ(GetText(GetObject(Conditions("B2:B9"), "Item", {1}), "Formula1"), Banding());
}

TEST_P(ConditionalFormatsContract, AConditionHasAFillOfItsOwn) {
  Let(GetObject(Cells("B2:B9"), "Interior"), "Color", 0x0000FF);
  Add("B2:B9", Banding());
  const auto fill = [&](const char* address) {
    return GetObject(Condition(address, 1), "Interior");
  };
  EXPECT_EQ(GetLong(fill("B2:B9"), "Color"), kWhite);
  Let(fill("B2:B9"), "Color", 0x80FF00);
  EXPECT_EQ(GetLong(fill("B2:B9"), "Color"), 0x80FF00);
  EXPECT_EQ(GetLong(fill("B3"), "Color"), 0x80FF00);
  EXPECT_EQ(GetLong(GetObject(Cells("B2:B9"), "Interior"), "Color"), 0x0000FF);
  Let(fill("B2:B9"), "ColorIndex", 3);
  EXPECT_EQ(GetLong(fill("B2:B9"), "Color"), 0x0000FF);
  EXPECT_EQ(GetLong(fill("B2:B9"), "ColorIndex"), 3);
  Let(fill("B2:B9"), "Color", -1);
  EXPECT_EQ(GetLong(fill("B2:B9"), "Color"), kWhite);
}

TEST_P(ConditionalFormatsContract, TheConditionsOfTwoRangesHaveTheirOwnFills) {
  Add("B2:B9", Banding());
  Add("C2:C9", Banding());
  Let(GetObject(Condition("B2:B9", 1), "Interior"), "Color", 0x80FF00);
  Let(GetObject(Condition("C2:C9", 1), "Interior"), "Color", 0x80FF00);
  Let(GetObject(Condition("C2:C9", 1), "Interior"), "Color", 0x0000FF);
  EXPECT_EQ(GetLong(GetObject(Condition("B2:B9", 1), "Interior"), "Color"), 0x80FF00);
}

TEST_P(ConditionalFormatsContract, ASecondConditionStandsBehindTheFirst) {
  Add("B2:B9", Banding());
  Let(GetObject(Condition("B2:B9", 1), "Interior"), "Color", 0x80FF00);
  const Object second = Add("B2:B9", "=ROW()=3");
  Let(GetObject(second, "Interior"), "Color", 0x0000FF);
  EXPECT_EQ(Count("B2:B9"), 2);
  EXPECT_EQ(Count("B9"), 2);
  EXPECT_EQ(GetText(Condition("B2:B9", 1), "Formula1"), Banding());
  EXPECT_EQ(GetLong(GetObject(Condition("B2:B9", 1), "Interior"), "Color"), 0x80FF00);
  EXPECT_EQ(GetText(Condition("B2:B9", 2), "Formula1"), "=ROW()=3");
  EXPECT_EQ(GetLong(GetObject(Condition("B2:B9", 2), "Interior"), "Color"), 0x0000FF);
}

TEST_P(ConditionalFormatsContract, ACellCanHaveTheSameConditionTwice) {
  Add("B2:B9", Banding());
  Add("B2:B9", Banding());
  EXPECT_EQ(Count("B2:B9"), 2);
}

TEST_P(ConditionalFormatsContract, AConditionOnCellsOfWhichSomeHaveOneKeepsTheOlder) {
  Add("B2:B9", Banding());
  Let(GetObject(Condition("B2:B9", 1), "Interior"), "Color", 0x80FF00);
  const Object second = Add("B5:B20", "=ROW()=3");
  EXPECT_EQ(Count("B2"), 1);
  EXPECT_EQ(Count("B5"), 2);
  EXPECT_EQ(Count("B20"), 1);
  EXPECT_EQ(Count("B2:B20"), 2);
  Let(GetObject(second, "Interior"), "Color", 0x0000FF);
  EXPECT_EQ(GetLong(GetObject(Condition("B5", 1), "Interior"), "Color"), 0x80FF00);
  EXPECT_EQ(GetLong(GetObject(Condition("B5", 2), "Interior"), "Color"), 0x0000FF);
  EXPECT_EQ(GetLong(GetObject(Condition("B20", 1), "Interior"), "Color"), 0x0000FF);
}

TEST_P(ConditionalFormatsContract, DeleteRemovesAllFromTheseCellsAlone) {
  Add("B2:B9", Banding());
  Add("B2:B9", "=ROW()=3");
  Call(Conditions("B5"), "Delete");
  EXPECT_EQ(Count("B5"), 0);
  EXPECT_EQ(Count("B4"), 2);
  EXPECT_EQ(Count("B6"), 2);
  Call(Conditions("B1:C20"), "Delete");
  EXPECT_EQ(Count("B2:B9"), 0);
  Call(Conditions("B1:C20"), "Delete");
  EXPECT_EQ(Count("B1:C20"), 0);
}

TEST_P(ConditionalFormatsContract, AfterDeleteAConditionIsTheOnlyOne) {
  Add("B2:B9", "=ROW()=3");
  Call(Conditions("B2:B9"), "Delete");
  Add("B2:B9", Banding());
  EXPECT_EQ(Count("B2:B9"), 1);
  EXPECT_EQ(GetText(Condition("B2:B9", 1), "Formula1"), Banding());
}

TEST_P(ConditionalFormatsContract, OneConditionCanBeDeleted) {
  Add("B2:B9", Banding());
  Add("B2:B9", "=ROW()=3");
  Call(Condition("B2:B9", 1), "Delete");
  EXPECT_EQ(Count("B2:B9"), 1);
  EXPECT_EQ(GetText(Condition("B2:B9", 1), "Formula1"), "=ROW()=3");
  Call(Condition("B2:B9", 1), "Delete");
  EXPECT_EQ(Count("B2:B9"), 0);
}

TEST_P(ConditionalFormatsContract, AnotherTypeThanAFormulaFails) {
  EXPECT_TRUE(Fails([&] { Call(Conditions("B2"), "Add", {99}); }));
  EXPECT_EQ(Count("B2"), 0);
}

TEST_P(ConditionalFormatsContract, AreEnumeratedInTheOrderInWhichTheyWereAdded) {
  EXPECT_TRUE(Elements(Conditions("B2:B9")).empty());
  Add("B2:B9", "=TRUE");
  Add("B2:B9", Banding());
  const auto all = Elements(Conditions("B2:B9"));
  ASSERT_EQ(all.size(), 2U);
  EXPECT_EQ(GetText(all.back().AsObject(), "Formula1"), Banding());
}

TEST_P(ConditionalFormatsContract, AConditionWithoutAFormulaIsRefused) {
  EXPECT_TRUE(Fails([&] { Call(Conditions("B2:B9"), "Add", {2}); }));
  EXPECT_EQ(Count("B2:B9"), 0);
}

}  // namespace
}  // namespace rangewerks::tests
