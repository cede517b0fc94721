// The command that puts declared ranges onto a sheet: what it prints, saves and refuses.
#include <nlohmann/json.hpp>

#include "apps/command_line.h"

namespace rangewerks::apps {
namespace {

constexpr const char* kForm =
    R"({"sheets": [{"name": "Front", "cells": {"A1": "Form"}}, {"name": "2024 Q1"}]})";

/// An interface with more fields of the file in front.
std::string Interface(const std::string& fields = "") {
  return "{" + fields + R"("ranges": [
    {"RangeName": "batch", "DetailIndicator": "H", "RangeDataType": "rdtString",
     "DataLength": 20, "Description": "Batch reference"},
    {"RangeName": "day", "DetailIndicator": "D", "RangeDataType": "rdtDate"},
    {"RangeName": "net_amount", "DetailIndicator": "D", "RangeDataType": "rdtDouble",
     "IsMandatory": true},
    {"RangeName": "paid", "DetailIndicator": "D", "RangeDataType": "rdtYesNo"},
    {"RangeName": "note", "DetailIndicator": "D", "RangeDataType": "rdtString"}]})";
}

constexpr const char* kLayout = R"({"RowsToAdd": 3, "ranges": [
  {"RangeName": "batch", "At": "C2"},
  {"RangeName": "day", "At": "A5", "SetForceColumnWidth": 12},
  {"RangeName": "net_amount", "At": "B5"},
  {"RangeName": "paid", "At": "C5", "RangeHeading": "Paid?"}]})";

constexpr const char* kPlace = "place form.json --interface form.interface.json ";
constexpr const char* kPlaceAll =
    "place form.json --interface form.interface.json --layout layout.json --save out.json ";

class PlaceCommand : public CommandLine {
 protected:
  PlaceCommand() {
    Write("form.json", kForm);
    Write("form.interface.json", Interface());
    Write("layout.json", kLayout);
  }

  void ExpectNothingDone(const std::string& arguments, const std::string& messages) const {
    ExpectRefusal(arguments, "rangewerks: " + messages + "\n");
    EXPECT_FALSE(std::filesystem::exists(File("out.json"))) << arguments;
    EXPECT_EQ(Text("form.json"), kForm) << arguments;
  }
  nlohmann::json Saved(const std::string& name = "out.json") const {
    return nlohmann::json::parse(Text(name));
  }
  nlohmann::json SheetOf(const nlohmann::json& book, std::size_t index = 0) const {
    return book["sheets"][index];
  }
  /// What stands for the cells of an address in a list of the sheet, such as "formats".
  nlohmann::json At(const std::string& address, const char* list, std::size_t sheet = 0) const {
    for (const auto& each : SheetOf(Saved(), sheet).value(list, nlohmann::json::array())) {
      if (each["at"] == address) return each;
    }
    return nullptr;
  }
};

TEST_F(PlaceCommand, PlacesALayoutAndTellsWhatCameOfIt) {
  const Outcome outcome = Run(kPlaceAll);
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.messages, "");
  EXPECT_EQ(outcome.output, R"(Workbook  form.json
Sheet     Front
Names     <range>  (plain scheme)

Ranges
  range       address  name        outcome
  ──────────  ───────  ──────────  ───────
  batch       C2       batch       placed
  day         A5:A7    day         placed
  net_amount  B5:B7    net_amount  placed
  paid        C5:C7    paid        placed

Declared, but not on this sheet
  note  looked for as note

The layout is sound.

Placed: 4 ranges
Saved to: out.json
)");
  EXPECT_EQ(Text("form.json"), kForm);
  EXPECT_EQ(Saved()["names"], nlohmann::json({{"batch", "=Front!$C$2"},
                                              {"day", "=Front!$A$5:$A$7"},
                                              {"net_amount", "=Front!$B$5:$B$7"},
                                              {"paid", "=Front!$C$5:$C$7"}}));
  const auto sheet = SheetOf(Saved());
  EXPECT_EQ(sheet["cells"],
            nlohmann::json({{"A1", "Form"}, {"A4", "day"}, {"B4", "net amount"}, {"C4", "Paid?"}}));
  EXPECT_EQ(sheet["widths"]["A:A"], 12.0);
  EXPECT_EQ(At("B5:B7", "formats")["number"], "0.00_ ;-0.00");
  EXPECT_EQ(At("C2", "validation"),
            nlohmann::json({{"at", "C2"},
                            {"type", "text_length"},
                            {"operator", "less_equal"},
                            {"formula", "20"},
                            {"error_title", "Input data error"},
                            {"error_message", "batch cannot have more than 20"},
                            {"input_title", "batch"},
                            {"input_message", "Batch reference\nEnter up to 20 characters"}}));
  EXPECT_EQ(At("B5:B7", "validation"), nlohmann::json({{"at", "B5:B7"},
                                                       {"type", "input_only"},
                                                       {"input_title", "net_amount"},
                                                       {"input_message", "\nEnter a number"}}));
}

TEST_F(PlaceCommand, TellsAProgramTheSame) {
  const Outcome json = Run(std::string(kPlaceAll) + "--output json");
  EXPECT_EQ(json.status, 0);
  const auto result = nlohmann::json::parse(json.output);
  EXPECT_EQ(result["book"], "form.json");
  EXPECT_EQ(result["sheet"], "Front");
  EXPECT_EQ(result["saved"], "out.json");
  EXPECT_EQ(result["placed"], 4);
  EXPECT_EQ(result["sound"], true);
  EXPECT_EQ(result["error"], nullptr);
  EXPECT_EQ(result["ranges"]["day"], nlohmann::json({{"address", "A5:A7"},
                                                     {"name", "day"},
                                                     {"outcome", "placed"},
                                                     {"moved_from", nullptr},
                                                     {"failures", nlohmann::json::array()}}));
  EXPECT_EQ(result["ranges"]["note"],
            nlohmann::json({{"outcome", "absent"}, {"mandatory", false}}));

  const Outcome csv = Run(std::string(kPlaceAll) + "--output csv --overwrite");
  EXPECT_EQ(csv.status, 0);
  EXPECT_EQ(csv.output,
            "range,address,name,outcome,failures\n"
            "batch,C2,batch,placed,\n"
            "day,A5:A7,day,placed,\n"
            "net_amount,B5:B7,net_amount,placed,\n"
            "paid,C5:C7,paid,placed,\n"
            "note,,,absent,\n");
}

TEST_F(PlaceCommand, PaintsThePersonsStoredColours) {
  std::filesystem::create_directory(File("rangewerks"));
  Write("rangewerks/settings",
        R"([Software\\Ostrel\\SheetConnectors\\RangeProperties\\ColourPallet\\AdjustmentColumn]
"ColumnColour" = 16247773
"EnableRangeColor" = -1
"HeadingColour" = 15123357

[Software\\Ostrel\\SheetConnectors\\AltRangeProperties\\ColourPallet\\AlternateAdjustmentColumn]
"ColumnColour" = 15203839
"EnableAlternateRangeColor" = -1

end
)");
  EXPECT_EQ(Run(kPlaceAll).status, 0);
  EXPECT_EQ(At("A4:C4", "formats"),
            nlohmann::json({{"at", "A4:C4"}, {"bold", true}, {"fill", "#9DC3E6"}}));
  EXPECT_EQ(At("C2", "formats")["fill"], "#DDEBF7");
  EXPECT_EQ(At("A5:A7", "formats")["fill"], "#DDEBF7");
  EXPECT_EQ(
      At("A5:A7", "conditional_formats"),
      nlohmann::json({{"at", "A5:A7"}, {"formula", "=MOD(ROW(), 2)=0"}, {"fill", "#FFFDE7"}}));
  EXPECT_EQ(At("C2", "conditional_formats"), nullptr) << "one row has no banding";
}

TEST_F(PlaceCommand, EachFeatureCanBeLeftOut) {
  const std::string place = std::string(kPlaceAll) + "--overwrite ";
  EXPECT_EQ(Run(place + "--no-format").status, 0);
  EXPECT_EQ(At("B5:B7", "formats"), nullptr);
  EXPECT_EQ(At("C2", "validation")["input_title"], "batch");
  EXPECT_EQ(SheetOf(Saved())["cells"]["A4"], "day");

  EXPECT_EQ(Run(place + "--no-validation").status, 0);
  EXPECT_EQ(At("C2", "validation")["type"], "input_only");
  EXPECT_EQ(At("C5:C7", "validation")["type"], "input_only");
  EXPECT_EQ(At("B5:B7", "formats")["number"], "0.00_ ;-0.00");

  EXPECT_EQ(Run(place + "--no-tooltips").status, 0);
  EXPECT_EQ(At("C2", "validation")["type"], "text_length");
  EXPECT_FALSE(At("C2", "validation").contains("input_title"));
  EXPECT_EQ(At("B5:B7", "validation"), nullptr);

  EXPECT_EQ(Run(place + "--no-headings").status, 0);
  EXPECT_EQ(SheetOf(Saved())["cells"], nlohmann::json({{"A1", "Form"}}));

  EXPECT_EQ(Run(place + "--no-format --no-validation --no-tooltips --no-headings").status, 0);
  const auto bare = SheetOf(Saved());
  EXPECT_FALSE(bare.contains("formats")) << bare;
  EXPECT_FALSE(bare.contains("validation")) << bare;
  EXPECT_EQ(Saved()["names"].size(), 4U);
}

TEST_F(PlaceCommand, PlacesOneRangeOnTheSheetAskedFor) {
  Write("form.interface.json", Interface(R"("SheetRangeNames": true, "RangePrefix": "J_", )"));
  const Outcome outcome = Run(std::string(kPlace) +
                              "--range Net_Amount --at b5 --rows 4 --sheet \"2024 q1\" "
                              "--save out.json");
  EXPECT_EQ(outcome.status, 0) << outcome.messages;
  EXPECT_EQ(outcome.output, R"(Workbook  form.json
Sheet     2024 Q1
Names     _2024_Q1__J_<range>  (sheet scheme)

Ranges
  range       address  name                    outcome
  ──────────  ───────  ──────────────────────  ───────
  net_amount  B5:B8    _2024_Q1__J_net_amount  placed

Placed: 1 range
Saved to: out.json
)");
  EXPECT_EQ(Saved()["names"], nlohmann::json({{"_2024_Q1__J_net_amount", "='2024 Q1'!$B$5:$B$8"}}));
  EXPECT_EQ(SheetOf(Saved(), 1)["cells"], nlohmann::json({{"B4", "net amount"}}));
}

TEST_F(PlaceCommand, RowsDontStretchAHeader) {
  EXPECT_EQ(Run(std::string(kPlace) + "--range batch --at C2 --rows 4 --save out.json").status, 0);
  EXPECT_EQ(Saved()["names"]["batch"], "=Front!$C$2");
}

TEST_F(PlaceCommand, AValidationThatCanNotBeAddedIsReportedAndStopsNothing) {
  ASSERT_EQ(Run(kPlaceAll).status, 0);
  const std::string again =
      "place out.json --interface form.interface.json --layout layout.json --save out.json "
      "--in-place ";
  const Outcome table = Run(again);
  EXPECT_EQ(table.status, 1);
  EXPECT_NE(table.output.find(
                "  paid        C5:C7    paid        placed\n"
                "\n"
                "Not everything could be added\n"
                "  batch  Error adding validation. Perhaps the range already has some validation.\n"
                "  paid   Error adding validation. Perhaps the range already has some validation.\n"
                "\n"),
            std::string::npos)
      << table.output;

  const Outcome json = Run(again + "--output json");
  EXPECT_EQ(json.status, 1);
  EXPECT_EQ(
      nlohmann::json::parse(json.output)["ranges"]["paid"]["failures"],
      nlohmann::json({"Error adding validation. Perhaps the range already has some validation."}));

  const Outcome csv = Run(again + "--output csv");
  EXPECT_EQ(csv.status, 1);
  EXPECT_EQ(csv.messages, "");
  EXPECT_NE(csv.output.find("paid,C5:C7,paid,placed,Error adding validation. Perhaps the range "
                            "already has some validation.\n"),
            std::string::npos)
      << csv.output;
}

TEST_F(PlaceCommand, ARangeThatIsOnTheSheetMoves) {
  ASSERT_EQ(Run(kPlaceAll).status, 0);
  const std::string move =
      "place out.json --interface form.interface.json --range paid --at E5:E7 --in-place ";
  const Outcome table = Run(move);
  EXPECT_EQ(table.status, 0);
  EXPECT_NE(table.output.find("  paid   E5:E7    paid  moved from C5:C7\n"), std::string::npos)
      << table.output;
  EXPECT_EQ(Saved()["names"]["paid"], "=Front!$E$5:$E$7");
  const auto json = nlohmann::json::parse(
      Run("place out.json --interface form.interface.json --range paid --at F5:F7 --in-place "
          "--output json")
          .output);
  EXPECT_EQ(json["ranges"]["paid"]["outcome"], "moved");
  EXPECT_EQ(json["ranges"]["paid"]["moved_from"], "E5:E7");
  EXPECT_FALSE(json.contains("sound"));
}

TEST_F(PlaceCommand, UnderThePlainSchemeAPrefixGetsASecondName) {
  Write("form.interface.json", Interface(R"("RangePrefix": "SO_", )"));
  EXPECT_EQ(Run(kPlaceAll).status, 0);
  EXPECT_EQ(Saved()["names"]["net_amount"], "=Front!$B$5:$B$7");
  EXPECT_EQ(Saved()["names"]["SO_net_amount"], "=Front!$B$5:$B$7");
  EXPECT_EQ(Run("validate out.json --interface form.interface.json").status, 0);
}

TEST_F(PlaceCommand, NumbersAreValidatedWhenTheInterfaceSaysSo) {
  Write("form.interface.json", Interface(R"("AddNumberValidation": true, )"));
  EXPECT_EQ(Run(kPlaceAll).status, 0);
  EXPECT_EQ(At("B5:B7", "validation")["error_message"], "net_amount can only have numbers entered");
}

TEST_F(PlaceCommand, ALayoutThatIsNotSoundIsSavedAndComplainedOf) {
  Write("layout.json", R"({"ranges": [{"RangeName": "day", "At": "A5:A7"}]})");
  const Outcome table = Run(kPlaceAll);
  EXPECT_EQ(table.status, 1);
  EXPECT_TRUE(table.output.ends_with(R"(
Declared, but not on this sheet
  batch       looked for as batch
  net_amount  looked for as net_amount  (declared as mandatory)
  paid        looked for as paid
  note        looked for as note

The layout isn't sound:
  Range 'net_amount' must be defined. [-2147221504 (0x80040000)]

Placed: 1 range
Saved to: out.json
)")) << table.output;
  EXPECT_EQ(Saved()["names"]["day"], "=Front!$A$5:$A$7");

  const auto json =
      nlohmann::json::parse(Run(std::string(kPlaceAll) + "--overwrite --output json").output);
  EXPECT_EQ(json["sound"], false);
  EXPECT_EQ(json["error"]["description"], "Range 'net_amount' must be defined.");
  EXPECT_EQ(json["ranges"]["net_amount"],
            nlohmann::json({{"outcome", "absent"}, {"mandatory", true}}));
  EXPECT_EQ(Run(std::string(kPlaceAll) + "--overwrite --output csv").messages,
            "Range 'net_amount' must be defined. [-2147221504 (0x80040000)]\n");

  Write("layout.json", R"({"ranges": [{"RangeName": "day", "At": "A5:A7"},
                                      {"RangeName": "net_amount", "At": "B5:B6"}]})");
  const Outcome lengths = Run(std::string(kPlaceAll) + "--overwrite");
  EXPECT_EQ(lengths.status, 1);
  EXPECT_NE(lengths.output.find("  (First different found:net_amount)\n"), std::string::npos)
      << lengths.output;
}

TEST_F(PlaceCommand, OneRangeSaysNothingOfTheOthers) {
  const Outcome outcome = Run(std::string(kPlace) + "--range day --at A5:A7 --save out.json");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.output.find("net_amount"), std::string::npos) << outcome.output;
}

TEST_F(PlaceCommand, NothingIsSavedWhenARangeCanNotBePlaced) {
  ExpectNothingDone(std::string(kPlace) + "--range batch --at C2:C3 --save out.json",
                    "form.json: placing stopped: range batch at C2:C3: Only one row should be "
                    "selected for header type ranges");
  ExpectNothingDone(std::string(kPlace) + "--range day --at A5:B7 --save out.json",
                    "form.json: placing stopped: range day at A5:B7: Only one column should be "
                    "selected");
}

TEST_F(PlaceCommand, CellsThatTwoRangesWouldShareAreRefused) {
  const auto layout = [&](const std::string& ranges) {
    Write("layout.json", R"({"ranges": [)" + ranges + "]}");
  };
  layout(R"({"RangeName": "day", "At": "A5:A7"}, {"RangeName": "paid", "At": "A7:A9"})");
  ExpectNothingDone(kPlaceAll,
                    "layout.json: /ranges/1/At (range paid): range paid (A7:A9) lies on range day "
                    "(A5:A7), see layout.json: /ranges/0/At (range day)");
  layout(R"({"RangeName": "day", "At": "A5:A7"}, {"RangeName": "batch", "At": "A4"})");
  ExpectNothingDone(kPlaceAll,
                    "layout.json: /ranges/0/At (range day): the heading of range day (A4) lies on "
                    "range batch (A4), see layout.json: /ranges/1/At (range batch)");
  EXPECT_EQ(Run(std::string(kPlaceAll) + "--no-headings").status, 1) << "net_amount is missing";
  const Outcome onSheet =
      Run("place out.json --interface form.interface.json --range note --at A3 --rows 2 "
          "--in-place");
  EXPECT_EQ(onSheet.status, 2);
  EXPECT_EQ(onSheet.messages,
            "rangewerks: --at: range note (A3:A4) lies on range batch (A4), which is on the sheet "
            "already\n");
}

TEST_F(PlaceCommand, WrongUsageIsRefused) {
  const std::string place = kPlace;
  ExpectNothingDone(place + "--save out.json",
                    "say what to place: --layout FILE for several ranges, or --range NAME --at "
                    "ADDRESS for one");
  ExpectNothingDone(place + "--range dya --at A5 --save out.json",
                    "--range: the interface file declares no range \"dya\"; did you mean day?");
  ExpectNothingDone(place + "--range day --at A --save out.json",
                    "--at: found \"A\", expected the address of one cell or of a column of cells, "
                    "such as B7 or B7:B30");
  ExpectNothingDone(place + "--range day --at A5",
                    "say where to save: --save COPY for a new file, or --in-place");
  ExpectNothingDone(place + "--range day --at A5 --sheet None --save out.json",
                    "form.json: there is no sheet \"None\"; the workbook has \"Front\", \"2024 "
                    "Q1\"");
  ExpectNothingDone(place + "--layout none.json --save out.json",
                    "none.json: can't open the layout file: No such file or directory");
  Write("layout.json", R"({"ranges": [{"RangeName": "dya", "At": "A5"}]})");
  ExpectNothingDone(kPlaceAll,
                    "layout.json: /ranges/0/RangeName (range dya): the interface file declares no "
                    "range \"dya\"; did you mean day?");
  ExpectNothingDone(
      "place none.json --interface form.interface.json --layout layout.json --save "
      "out.json",
      "layout.json: /ranges/0/RangeName (range dya): the interface file declares no "
      "range \"dya\"; did you mean day?");
  for (const char* arguments :
       {"--range day", "--at A5", "--rows 3", "--range day --at A5 --layout layout.json",
        "--range day --at A5 --rows 0", "--layout layout.json --rows 3"}) {
    EXPECT_EQ(Run(place + arguments + " --save out.json").status, 2) << arguments;
  }
}

}  // namespace
}  // namespace rangewerks::apps
