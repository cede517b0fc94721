// Layout files: what they order and what they are refused with.
#include <gtest/gtest.h>

#include "apps/rangewerks/interface_file.h"
#include "apps/rangewerks/place_order.h"
#include "support/failure_of.h"

namespace rangewerks::apps {
namespace {

using tests::FailureOf;

std::shared_ptr<clsInterfaceRangeList> Declared() {
  return ParseInterface(R"({"ranges": [
    {"RangeName": "batch", "DetailIndicator": "H", "RangeDataType": "rdtString"},
    {"RangeName": "debit", "DetailIndicator": "D", "RangeDataType": "rdtDouble"},
    {"RangeName": "department", "DetailIndicator": "H/D", "RangeDataType": "rdtString"},
    {"RangeName": "users", "DetailIndicator": "hdiNone", "RangeDataType": "rdtString"}]})");
}

std::string Refusal(const std::string& text) {
  return FailureOf([&] { ParseLayout(text, *Declared()); });
}

TEST(LayoutFile, OrdersEachRangeWithWhatIsSaidOfIt) {
  const auto list = Declared();
  const auto orders = ParseLayout(R"({"RowsToAdd": 20, "ranges": [
    {"RangeName": "DEBIT", "At": "$d$12", "RangeHeading": "Debit EUR", "SetForceColumnWidth": 0},
    {"RangeName": "batch", "At": "C3:C3", "RowsToAdd": 0}]})",
                                  *list);
  ASSERT_EQ(orders.size(), 2U);
  EXPECT_EQ(orders[0].range, list->Item("debit").get());
  EXPECT_EQ(orders[0].Name(), "debit");
  EXPECT_EQ(Shown(orders[0].at), "D12");
  EXPECT_EQ(Shown(orders[0].Covered()), "D12:D31");
  EXPECT_EQ(orders[0].rowsToAdd, 20);
  EXPECT_EQ(orders[0].heading, "Debit EUR");
  EXPECT_EQ(orders[0].columnWidth, 0);
  EXPECT_EQ(orders[0].place, "/ranges/0/At (range DEBIT)");
  EXPECT_EQ(orders[1].Name(), "batch");
  EXPECT_EQ(orders[1].rowsToAdd, 0);
  EXPECT_EQ(orders[1].heading, "");
  EXPECT_EQ(orders[1].columnWidth, -1);
}

TEST(LayoutFile, RowsAreThoseOfTheRangeThenOfTheFileThenOfTheAddress) {
  const auto list = Declared();
  const auto covered = [&](const std::string& fields, const std::string& range) {
    return Shown(ParseLayout("{" + fields + R"("ranges": [{"RangeName": )" + range + "}]}", *list)
                     .front()
                     .Covered());
  };
  const std::string debit = R"("debit", "At": "D12:D14")";
  EXPECT_EQ(covered("", debit), "D12:D14");
  EXPECT_EQ(covered(R"("RowsToAdd": 20, )", debit), "D12:D31");
  EXPECT_EQ(covered(R"("RowsToAdd": 20, )", debit + R"(, "RowsToAdd": 2)"), "D12:D13");
  EXPECT_EQ(covered(R"("RowsToAdd": 20, )", debit + R"(, "RowsToAdd": 0)"), "D12:D14");
  EXPECT_EQ(covered(R"("RowsToAdd": 20, )", R"("batch", "At": "C3")"), "C3") << "a header";
  EXPECT_EQ(covered(R"("RowsToAdd": 20, )", R"("department", "At": "C3")"), "C3:C22");
}

TEST(LayoutFile, OnlyDetailColumnsBelowTheFirstRowTakeAHeading) {
  const auto list = Declared();
  const auto takesHeading = [&](const std::string& range) {
    return ParseLayout(R"({"ranges": [{"RangeName": )" + range + "}]}", *list)
        .front()
        .TakesHeading();
  };
  EXPECT_TRUE(takesHeading(R"("debit", "At": "A2")"));
  EXPECT_FALSE(takesHeading(R"("debit", "At": "A1:A9")"));
  EXPECT_TRUE(takesHeading(R"("department", "At": "A2:A3")"));
  EXPECT_FALSE(takesHeading(R"("department", "At": "A2")"));
  EXPECT_FALSE(takesHeading(R"("batch", "At": "A2")"));
  EXPECT_FALSE(takesHeading(R"("users", "At": "A2:A9")"));
}

TEST(LayoutFile, IsRefusedWithThePlaceAndWhatIsExpected) {
  EXPECT_EQ(Refusal("[]"), "the whole file: found a list, expected an object, {…}");
  EXPECT_EQ(Refusal("{}"), "/ranges: the field is missing, expected a list, […]");
  EXPECT_EQ(Refusal(R"({"ranges": []})"), "/ranges: the list is empty; name at least one range");
  EXPECT_EQ(Refusal(R"({"range": []})"),
            "/range: there is no field of this name; did you mean ranges?");
  EXPECT_EQ(Refusal(R"({"RowsToAdd": -1, "ranges": []})"),
            "/RowsToAdd: found -1, expected a whole number from 0 to 1048576");
  EXPECT_EQ(Refusal(R"({"RowsToAdd": 1048577, "ranges": []})"),
            "/RowsToAdd: found 1048577, expected a whole number from 0 to 1048576");
  EXPECT_EQ(Refusal(R"({"RowsToAdd": 1.5, "ranges": []})"),
            "/RowsToAdd: found 1.5, expected a whole number from 0 to 1048576");
  EXPECT_EQ(Refusal(R"({"ranges": [7]})"), "/ranges/0: found 7, expected an object, {…}");
  EXPECT_EQ(Refusal(R"({"ranges": [{"At": "C3"}]})"),
            "/ranges/0/RangeName: the field is missing, expected a text in quotes");
  EXPECT_EQ(Refusal(R"({"ranges": [{"RangeName": "batch"}]})"),
            "/ranges/0/At (range batch): the field is missing, expected a text in quotes");
  EXPECT_EQ(Refusal(R"({"ranges": [{"RangeName": "batch", "At": "C"}]})"),
            "/ranges/0/At (range batch): found \"C\", expected the address of one cell or of a "
            "column of cells, such as B7 or B7:B30");
  EXPECT_EQ(Refusal(R"({"ranges": [{"RangeName": "debti", "At": "C3"}]})"),
            "/ranges/0/RangeName (range debti): the interface file declares no range \"debti\"; "
            "did you mean debit?");
  EXPECT_EQ(Refusal(R"({"ranges": [{"RangeName": "debit", "At": "C3"},
                                   {"RangeName": "Debit", "At": "C9"}]})"),
            "/ranges/1/RangeName (range Debit): range debit stands already at /ranges/0/At (range "
            "debit); leave one of the two out");
  EXPECT_EQ(Refusal(R"({"ranges": [{"RangeName": "debit", "At": "C3", "Rows": 7}]})"),
            "/ranges/0/Rows (range debit): there is no field of this name");
  EXPECT_EQ(Refusal(R"({"ranges": [{"RangeName": "debit", "At": "C3",
                                    "SetForceColumnWidth": 256}]})"),
            "/ranges/0/SetForceColumnWidth (range debit): found 256, expected a whole number from "
            "-1 to 255");
}

}  // namespace
}  // namespace rangewerks::apps
