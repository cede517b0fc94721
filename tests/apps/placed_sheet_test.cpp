// The example journal placed on an empty sheet, filled, checked and read, in every file format.
#include <nlohmann/json.hpp>

#include "apps/command_line.h"

namespace rangewerks::apps {
namespace {

const std::string kExamples = RANGEWERKS_EXAMPLES "/";
const std::string kInterfaceOption = " --interface " + kExamples + "journal.interface.json ";

/// Runs for each format of a saved workbook.
class PlacedSheet : public CommandLine, public testing::WithParamInterface<const char*> {
 protected:
  PlacedSheet() {
    Write("form.json", R"({"sheets": [{"name": "Journal"}]})");
    const bool isInMemory = std::string(GetParam()) == ".json";
    form_ = isInMemory ? "form.json" : kExamples + "journal-form.xlsx";
  }

  std::string Copy(const std::string& name) const { return name + GetParam(); }
  Outcome Place(const std::string& book, const std::string& copy) const {
    return Run("place " + book + kInterfaceOption + "--layout " + kExamples +
               "journal.layout.json --output json --save " + copy);
  }

  std::string form_;
};

#ifdef RANGEWERKS_LIBREOFFICE
INSTANTIATE_TEST_SUITE_P(Formats, PlacedSheet, testing::Values(".json", ".xlsx", ".xls", ".ods"),
                         [](const auto& format) { return std::string(format.param).substr(1); });
#else
INSTANTIATE_TEST_SUITE_P(Formats, PlacedSheet, testing::Values(".json"),
                         [](const auto& format) { return std::string(format.param).substr(1); });
#endif

TEST_P(PlacedSheet, IsSoundTakesEveryValueAndGivesItBack) {
  const Outcome place = Place(form_, Copy("placed"));
  ASSERT_EQ(place.status, 0) << place.output << place.messages;
  const auto placed = nlohmann::json::parse(place.output);
  EXPECT_EQ(placed["placed"], 18);
  EXPECT_EQ(placed["ranges"]["debit"], nlohmann::json({{"address", "D13:D28"},
                                                       {"name", "Journal__debit"},
                                                       {"outcome", "placed"},
                                                       {"moved_from", nullptr},
                                                       {"failures", nlohmann::json::array()}}));

  const Outcome validate = Run("validate " + Copy("placed") + kInterfaceOption);
  EXPECT_EQ(validate.status, 0) << validate.output << validate.messages;

  const Outcome fill = Run("fill " + Copy("placed") + kInterfaceOption + "--data " + kExamples +
                           "journal-lines.csv --save " + Copy("filled") + " --output json");
  EXPECT_EQ(fill.status, 0) << fill.output << fill.messages;
  EXPECT_EQ(nlohmann::json::parse(fill.output)["written"], 108);

  const Outcome read = Run("read " + Copy("filled") + kInterfaceOption + "--output json");
  EXPECT_EQ(read.status, 0) << read.output << read.messages;
  const auto posting = nlohmann::json::parse(read.output);
  EXPECT_EQ(posting["errors"], nlohmann::json::array());
  EXPECT_EQ(posting["header"]["batch"]["value"], "JNL-2024-Q3");
  EXPECT_EQ(posting["header"]["posting_date"]["value"], "2024-09-30");
  EXPECT_EQ(posting["header"]["period"]["value"], 9);
  EXPECT_EQ(posting["header"]["control_total"]["value"], 4178.51);
  EXPECT_EQ(posting["header"]["auto_reverse"]["value"], true);
  EXPECT_EQ(posting["header"]["department"]["value"], "100");
  ASSERT_EQ(posting["rows"].size(), 16U);
  const auto& line = posting["rows"][1]["values"];
  EXPECT_EQ(line["entry_date"]["value"], "2024-07-01");
  EXPECT_EQ(line["nominal_code"]["value"], "4010") << "the text that the format keeps";
  EXPECT_EQ(line["debit"]["found"], false);
  EXPECT_EQ(line["credit"]["value"], 627.23);
  EXPECT_EQ(line["quantity"]["value"], 30);
  EXPECT_EQ(line["reverse"]["value"], false);
  EXPECT_EQ(line["details"]["value"], "Sales invoice, spare parts");
  EXPECT_EQ(posting["rows"][14]["values"]["debit"]["found"], false);
}

TEST_P(PlacedSheet, PlacedAgainKeepsTheValidationOfTheFile) {
  ASSERT_EQ(Place(form_, Copy("placed")).status, 0);
  const Outcome again = Place(Copy("placed"), Copy("again"));
  EXPECT_EQ(again.status, 1) << again.output << again.messages;
  const auto ranges = nlohmann::json::parse(again.output)["ranges"];
  const nlohmann::json refused = {
      "Error adding validation. Perhaps the range already has some validation."};
  const nlohmann::json none = nlohmann::json::array();
  EXPECT_EQ(ranges["batch"]["failures"], refused) << "a rule of the length";
  EXPECT_EQ(ranges["reverse"]["failures"], refused) << "a list";
  EXPECT_EQ(ranges["debit"]["failures"], none) << "an input message replaces the one before";
  EXPECT_EQ(ranges["status"]["failures"], none);
  EXPECT_EQ(Run("validate " + Copy("again") + kInterfaceOption).status, 0);
}

}  // namespace
}  // namespace rangewerks::apps
