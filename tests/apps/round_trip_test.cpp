// What is filled in and cleared in LibreOffice's file formats, read again from the saved copies.
#ifdef RANGEWERKS_LIBREOFFICE

#include <nlohmann/json.hpp>

#include "apps/command_line.h"

namespace rangewerks::apps {
namespace {

constexpr const char* kJournal =
    " " RANGEWERKS_EXAMPLES "/journal-2024.xlsx --interface " RANGEWERKS_EXAMPLES
    "/journal.interface.json ";

/// Runs for each format that LibreOffice writes.
class RoundTrip : public CommandLine, public testing::WithParamInterface<const char*> {
 protected:
  std::string Copy(const std::string& name) const { return name + GetParam(); }
  /// What read gives of a saved copy.
  nlohmann::json ReadCopy(const std::string& name) const {
    const Outcome outcome =
        Run("read " + Copy(name) +
            " --interface " RANGEWERKS_EXAMPLES "/journal.interface.json --output json");
    EXPECT_EQ(outcome.messages, "");
    return nlohmann::json::parse(outcome.output);
  }
};

INSTANTIATE_TEST_SUITE_P(Formats, RoundTrip, testing::Values(".xlsx", ".xls", ".ods"),
                         [](const auto& format) { return std::string(format.param).substr(1); });

TEST_P(RoundTrip, WhatIsFilledInComesBackWithItsKind) {
  Write("rows.csv",
        "row,posting_reference,period,posting_date,reference,debit,entry_date,quantity,reverse\n"
        "1,POST-1,7,2024-02-29,0042,1234.56,2024-01-02,-7,Y\n"
        "181,,,,=1+1,0.07,2024-03-31,12,N\n");
  const Outcome fill = Run("fill" + std::string(kJournal) + "--data rows.csv --save " +
                           Copy("filled") + " --output json");
  EXPECT_EQ(fill.status, 0) << fill.output << fill.messages;
  EXPECT_EQ(nlohmann::json::parse(fill.output)["written"], 13);

  const auto read = ReadCopy("filled");
  EXPECT_EQ(read["header"]["posting_reference"]["value"], "POST-1");
  EXPECT_EQ(read["header"]["period"]["value"], 7);
  EXPECT_EQ(read["header"]["posting_date"]["value"], "2024-02-29");
  const auto& first = read["rows"][0]["values"];
  EXPECT_EQ(first["reference"]["value"], "0042");
  EXPECT_EQ(first["debit"]["value"], 1234.56);
  EXPECT_EQ(first["entry_date"]["value"], "2024-01-02");
  EXPECT_EQ(first["quantity"]["value"], -7);
  EXPECT_EQ(first["reverse"]["value"], true);
  const auto& last = read["rows"][180]["values"];
  EXPECT_EQ(last["reference"]["value"], "=1+1");
  EXPECT_EQ(last["debit"]["value"], 0.07);
  EXPECT_EQ(last["reverse"]["value"], false);

  // Typed cells hold numbers and dates, not texts that merely read as such.
  Write("again.csv", "row,period,debit,entry_date,quantity\n1,7,1234.56,2024-01-02,-7\n");
  const Outcome again = Run("fill " + Copy("filled") +
                            " --interface " RANGEWERKS_EXAMPLES
                            "/journal.interface.json --data again.csv --in-place --output json");
  EXPECT_EQ(again.status, 0) << again.messages;
  const auto report = nlohmann::json::parse(again.output);
  for (const auto& cell : report["cells"]) {
    EXPECT_EQ(cell["holds"], cell["value"]) << cell;
  }
}

TEST_P(RoundTrip, ClearingKeepsRangesWithAFormulaAndTheirNames) {
  const Outcome clear =
      Run("clear" + std::string(kJournal) + "--save " + Copy("cleared") + " --output json");
  EXPECT_EQ(clear.status, 1) << clear.messages;
  const auto outcomes = nlohmann::json::parse(clear.output)["ranges"];
  EXPECT_EQ(outcomes["credit"]["outcome"], "kept");
  EXPECT_EQ(outcomes["nominal_code"]["outcome"], "kept");
  EXPECT_EQ(outcomes["debit"]["outcome"], "cleared");
  EXPECT_EQ(outcomes["project_code"]["outcome"], "absent");

  const auto read = ReadCopy("cleared");
  EXPECT_EQ(read["ranges"]["debit"]["address"], "D12:D192");
  EXPECT_EQ(read["header"]["batch"]["found"], false);
  EXPECT_EQ(read["rows"][0]["values"]["debit"]["found"], false);
  EXPECT_EQ(read["rows"][0]["values"]["nominal_code"]["value"], "1100");
  ASSERT_EQ(read["errors"].size(), 3U) << read["errors"];
  EXPECT_EQ(read["errors"][0]["address"], "E58");
  EXPECT_EQ(read["errors"][1]["address"], "E99") << "the formula is still there";
  EXPECT_EQ(read["errors"][2]["address"], "B151");
}

TEST_F(CommandLine, FillLeavesTheSourceAsItWasAndNoLock) {
  std::filesystem::copy_file(RANGEWERKS_EXAMPLES "/journal-2024.xlsx", File("journal.xlsx"));
  const std::string before = Text("journal.xlsx");
  Write("rows.csv", "row,status\n1,posted\n");
  EXPECT_EQ(Run("fill journal.xlsx --interface " RANGEWERKS_EXAMPLES
                "/journal.interface.json --data rows.csv --save copy.ods")
                .status,
            0);
  EXPECT_EQ(Text("journal.xlsx"), before);
  EXPECT_FALSE(std::filesystem::exists(File(".~lock.journal.xlsx#")));
}

}  // namespace
}  // namespace rangewerks::apps

#endif
