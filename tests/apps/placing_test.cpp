// Placing on a sheet whose spreadsheet program refuses some of it.
#include "apps/rangewerks/placing.h"

#include <gmock/gmock.h>

#include <sstream>

#include "support/failure_of.h"
#include "support/memory_registry.h"
#include "support/sheet_fixture.h"

namespace rangewerks::apps {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class PlacingWithFailures : public tests::SheetFixture {
 protected:
  PlacingWithFailures() {
    Declare("code")->let_Description("Code");
    Declare("amount", hdiDetail, rdtDouble);
    Declare("paid", hdiDetail, rdtYesNo);
    Declare("status")->let_IsDownload(true);
  }

  PlaceReport Place() {
    PlaceOrders orders(*list);
    orders.Add("code", "--range", "A2:A4", {});
    orders.Add("amount", "--range", "B2:B4", {});
    orders.Add("paid", "--range", "C2:C4", {});
    orders.Add("status", "--range", "D2:D4", {});
    Progress progress(messages, false);
    return apps::Place(*list, Sheet("Sheet1"), orders.Take(), {},
                       std::make_shared<tests::MemoryRegistry>(), progress);
  }

  std::ostringstream messages;
};

const std::string kValidation =
    "Error adding validation. Perhaps the range already has some validation.";
const std::string kTooltipRule = "Error adding tooltips (during adding validation).";
const std::string kTooltipText = "Error adding tooltips (setting text)";

TEST_F(PlacingWithFailures, EachFailureIsToldInTheWordsOfItsStageAndEveryRangeIsPlaced) {
  host.Calls().FailMember("Validation.Add", 1004, "no");
  const PlaceReport rules = Place();
  ASSERT_EQ(rules.ranges.size(), 4U);
  EXPECT_THAT(rules.ranges[0].failures, ElementsAre(kTooltipRule));
  EXPECT_THAT(rules.ranges[1].failures, ElementsAre(kTooltipRule));
  EXPECT_THAT(rules.ranges[2].failures, ElementsAre(kValidation)) << "once for both its steps";
  EXPECT_THAT(rules.ranges[3].failures, ElementsAre(kTooltipRule));
  EXPECT_TRUE(rules.AnyFailure());
  EXPECT_FALSE(rules.check.fault);
  EXPECT_EQ(RefersTo("status"), "=Sheet1!$D$2:$D$4");
}

TEST_F(PlacingWithFailures, ATitleThatCanNotBeSetIsToldAsAText) {
  host.Calls().FailMember("Validation.InputTitle", 1004, "no");
  for (const PlacedRange& placed : Place().ranges) {
    EXPECT_THAT(placed.failures, ElementsAre(kTooltipText)) << placed.name;
  }
}

TEST_F(PlacingWithFailures, WithoutAFailureNothingIsTold) {
  const PlaceReport report = Place();
  EXPECT_FALSE(report.AnyFailure());
  for (const PlacedRange& placed : report.ranges) EXPECT_THAT(placed.failures, IsEmpty());
}

TEST_F(PlacingWithFailures, AFailureThatIsNotForgivenNamesTheRangeAndItsCells) {
  host.Calls().FailMember("Interior.Color", 1004, "the sheet is protected");
  const Error error = tests::ErrorOf([&] { Place(); });
  EXPECT_EQ(error.Number(), 1004);
  EXPECT_EQ(error.Description(),
            "range code at A2:A4: Error setting format \r\nthe sheet is protected");
  EXPECT_TRUE(HasName("code"));
  EXPECT_FALSE(HasName("amount")) << "placing stops there";
}

}  // namespace
}  // namespace rangewerks::apps
