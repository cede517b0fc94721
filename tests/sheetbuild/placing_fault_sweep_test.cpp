// What comes out of placing and formatting, and what the sheet then has, when any one of the host
// calls fails.
#include <nlohmann/json.hpp>

#include <filesystem>
#include <fstream>
#include <random>

#include "platform/excel_format.h"
#include "rangelist/fault_sweep.h"
#include "sheetbuild/clsRangeProperties.h"

namespace rangewerks::tests::faults {
namespace {

using automation::Member;
using Pieces = std::set<std::string>;

constexpr std::int32_t kBlue = 0xF7EBDD;
constexpr std::int32_t kCream = 0xE7FDFF;

/// A sheet and a list whose ranges aren't placed yet, with an order for one of them that asks for
/// everything.
struct PlacingScene {
  explicit PlacingScene(bool sheetScheme) : workbook(host.AddWorkbook("Book", {"Sheet1"})) {
    list->set_ActSheet(excel::Worksheet(workbook.Get(Member("Sheets"), {"Sheet1"}).AsObject()));
    list->let_SheetRangeNames(sheetScheme);
    selection = Cells("B5");
    list->let_AddNumberValidation(true);
    list->Add("batch", hdiHeader, rdtString, false, "Batch", 20);
    list->Add("code", hdiDetail, rdtString, false, "Code", 8);
    list->Add("net", hdiDetail, rdtDouble, false, "Net");
    list->Add("qty", hdiDetail, rdtInteger, false, "Quantity");
    list->Add("day", hdiDetail, rdtDate, false, "Day");
    list->Add("paid", hdiDetail, rdtYesNo, false, "Paid");
    list->Add("note", hdiDetail, rdtString, false, "Note");
    list->Add("status", hdiDetail, rdtString, false, "Status")->let_IsDownload(true);
    properties->let_AddFormat(true);
    properties->let_AddValidation(true);
    properties->let_AddToolTips(true);
    properties->let_AddColumnHeadings(true);
    properties->let_BoldRangeHeadings(true);
    properties->let_AddHeadingsBorder(true);
    properties->let_WrapHeaderText(true);
    properties->let_AddLineAtBottomOfRange(true);
    properties->let_HeadingColour(kBlue);
    properties->let_RangeColour(kBlue);
    properties->let_AlternateRangeColour(kCream);
    properties->let_SetForceColumnWidth(12);
    properties->let_RowsToAdd(3);
    connection = list->Connect([this](Member event, std::span<const automation::Argument> given) {
      std::string heard = event.Name();
      for (const auto& each : given) heard += " " + ToString(each.Value(), automation::Locale());
      events.push_back(heard);
    });
  }

  excel::Range Cells(const std::string& address) const {
    return list->get_ActSheet().get_Range(address);
  }

  /// Everything that placing can change, by the kind of thing.
  State Snapshot() const {
    const auto path = std::filesystem::path(::testing::TempDir()) /
                      ("placing-" + std::to_string(std::random_device{}()) + ".json");
    host.SaveCopyAs(workbook, path.string());
    nlohmann::json book;
    std::ifstream(path) >> book;
    std::filesystem::remove(path);
    State state;
    for (const auto& [kind, content] : book["sheets"][0].items()) state[kind] = content.dump();
    state["names"] = book.value("names", nlohmann::json::object()).dump();
    state["features"] = std::string(properties->get_AddValidation() ? "validation " : "") +
                        (properties->get_AddToolTips() ? "tooltips " : "");
    state["heading"] = properties->get_RangeHeading();
    for (std::int32_t index = 1; index <= list->Count(); ++index) {
      state["exists"] += list->Item(index)->get_RangeExists() ? '1' : '0';
    }
    return state;
  }

  hosts::workbook::Host host;
  automation::Object workbook;
  std::shared_ptr<clsInterfaceRangeList> list = std::make_shared<clsInterfaceRangeList>();
  std::shared_ptr<clsRangeProperties> properties = std::make_shared<clsRangeProperties>(nullptr);
  excel::Range selection;
  Lines events;
  automation::Connection connection;
};

// --- how a failure shows -------------------------------------------------------------------------

/// What a failure that doesn't stop the placing tells and leaves out.
struct PlacingRule {
  Rule rule;
  Lines events = {};
  Pieces lacking = {};  ///< the kinds of things that may be other than after a clean run
};
using PlacingRules = std::vector<PlacingRule>;

using faults::operator+;  // beside the one that follows
PlacingRules operator+(PlacingRules first, const PlacingRules& then) {
  first.insert(first.end(), then.begin(), then.end());
  return first;
}

const std::string kValidationEvent = "RangeAddValidationError";
const std::string kTooltipRuleEvent = "RangeAddTooltipError 0";
const std::string kTooltipTextEvent = "RangeAddTooltipError 1";
const std::string kOfProperties = " of Class Module clsRangeProperties";
const Chain kPlacing = Levels({"AddRangeToSpreadsheet"});
const Pieces kHeading = {"cells", "formats", "lines", "widths"};

std::size_t FirstOf(const Lines& lines, const std::string& member) {
  return static_cast<std::size_t>(
      std::ranges::find_if(lines, [&](const auto& line) { return IsCallOf(line, member); }) -
      lines.begin());
}
std::size_t LastOf(const Lines& lines, const std::string& member) {
  std::size_t last = 0;
  for (std::size_t call = 0; call < lines.size(); ++call) {
    if (IsCallOf(lines[call], member)) last = call;
  }
  return last;
}

/// The calls on the heading cell once it is as wide as its text.
Rule OnHeading(const Shows& shows) {
  return {[](const Lines& lines, std::size_t call) {
            return call > FirstOf(lines, "Range.AutoFit") &&
                   call < LastOf(lines, "Range.Interior get");
          },
          shows};
}
/// A rule for the calls from the one that starts the formatting.
Rule Formatting(const Rule& rule) {
  return {[=](const Lines& lines, std::size_t call) {
            return call >= FirstOf(lines, "Range.Item") && rule.fits(lines, call);
          },
          rule.shows};
}

/// A failure of the format, with the words for it.
Shows Unformatted(const Chain& chain) {
  return Replaced(kFault, "Error setting format \r\n" + kFaultWords, chain);
}

/// FormatRange, called through `outer`, of a coloured range of several rows.
PlacingRules FormattingRules(const Chain& outer) {
  const Chain format = Levels({"FormatRange" + kOfProperties}) + outer;
  const Chain heading = Levels({"SetHeaderRangeFormat" + kOfProperties}) + format;
  return {
      {Formatting(At({"Range.Item", "Range.Offset"}, Forgiven())), {}, kHeading},
      {OnHeading(Unformatted(heading))},
      {Formatting(At({"Border.Weight", "Border.LineStyle", "Range.Borders get 12",
                      "Range.Borders get 10", "Range.Borders get 7"},
                     Forgiven())),
       {},
       {"lines"}},
      {Formatting(At({"Range.FormatConditions get 1"}, Unformatted(format)))},
      {Formatting(At({"Range.FormatConditions get", "FormatConditions.Add"}, Forgiven()))},
      {Formatting(Anywhere(Unformatted(format)))},
  };
}

/// A rule of what may be entered: each failure is told, and the range has neither the rest of the
/// rule nor an input message.
PlacingRules TypedRule() {
  return {{At({"Validation.Add", "Validation.ErrorMessage", "Validation.ErrorTitle"}, Forgiven()),
           {kValidationEvent},
           {"validation", "features"}}};
}

/// The title is told and the placing goes on; the message isn't forgiven.
PlacingRules Tooltip() {
  return {{At({"Validation.InputTitle"}, Forgiven()), {kTooltipTextEvent}, {"validation"}}};
}

PlacingRules Otherwise(const Chain& outer) {
  return {{At({"Worksheet.Name"}, Passed(Levels({"FullRangeName"}) + outer))},
          {Anywhere(Passed(outer))}};
}

PlacingRules PlacingADetail() {
  return TypedRule() + Tooltip() + FormattingRules(kPlacing) + Otherwise(kPlacing);
}

/// A range without a rule of its own gets one that allows everything, in place of the one that the
/// cells have: the first refusal is expected, the others are told.
PlacingRules PlacingOverARule() {
  const auto first = [](const Lines& lines, std::size_t call) {
    return call == FirstOf(lines, "Validation.Add");
  };
  return PlacingRules{{{first, Forgiven()}},
                      {At({"Validation.Add", "Validation.Delete"}, Forgiven()),
                       {kTooltipRuleEvent},
                       {"validation", "features"}}} +
         PlacingADetail();
}

/// Two steps belong to the list of Y and N: without the rule the second fails as well.
PlacingRules PlacingAYesNo() {
  return PlacingRules{{At({"Validation.Add"}, Forgiven()),
                       {kValidationEvent, kValidationEvent},
                       {"validation", "features"}},
                      {At({"Validation.IgnoreBlank"}, Forgiven()),
                       {kValidationEvent},
                       {"validation", "features"}}} +
         PlacingADetail();
}

/// A date has no rule of its own. Its format text is asked for twice, for the cells and for the
/// message, and only the latter is forgiven.
PlacingRules PlacingADate() {
  const auto isForMessage = [](const Lines& lines, std::size_t call) {
    return call > FirstOf(lines, "Validation.InputTitle") &&
           call < FirstOf(lines, "Validation.InputMessage");
  };
  return PlacingRules{{{isForMessage, Forgiven()}, {kTooltipTextEvent}, {"validation"}},
                      {At({"Validation.Add"}, Forgiven())}} +
         PlacingADetail();
}

/// A download range is placed whatever fails from its input message on.
PlacingRules PlacingADownload() {
  const auto isBehindTitle = [](const Lines& lines, std::size_t call) {
    return call > FirstOf(lines, "Validation.InputTitle");
  };
  const PlacingRule told = {
      {isBehindTitle, Forgiven()},
      {kTooltipTextEvent},
      {"cells", "formats", "lines", "widths", "conditional_formats", "validation"}};
  PlacingRules rules = {{At({"Validation.Add"}, Forgiven())}};
  for (const PlacingRule& each : FormattingRules(kPlacing)) {
    rules.push_back(each.rule.shows.forgiven
                        ? each
                        : PlacingRule{{each.rule.fits, Forgiven()}, told.events, told.lacking});
  }
  return rules + PlacingRules{told} + PlacingADetail();
}

/// A header has one row: neither heading nor banding.
PlacingRules PlacingAHeader() {
  const Chain format = Levels({"FormatRange" + kOfProperties}) + kPlacing;
  const auto isFormat = [](const Lines& lines, std::size_t call) {
    return call >= FirstOf(lines, "Range.Interior get");
  };
  const auto isLine = [=](const Lines& lines, std::size_t call) {
    return isFormat(lines, call) && lines[call] != "Range.Borders get 9" &&
           (IsCallOf(lines[call], "Range.Borders") || lines[call].starts_with("Border."));
  };
  return TypedRule() + Tooltip() +
         PlacingRules{{{isLine, Forgiven()}, {}, {"lines"}}, {{isFormat, Unformatted(format)}}} +
         Otherwise(kPlacing);
}

// --- the operations ------------------------------------------------------------------------------

struct PlacingOperation {
  std::string name;
  std::function<void(PlacingScene&)> run;
  PlacingRules rules;
  std::function<void(PlacingScene&)> prepare = [](PlacingScene&) {};
};

void PrintTo(const PlacingOperation& operation, std::ostream* out) { *out << operation.name; }

PlacingOperation Placing(const std::string& range, const PlacingRules& rules) {
  return {"Place_" + range,
          [range](PlacingScene& scene) {
            scene.properties->let_RangeName(range);
            scene.list->AddRangeToSpreadsheet(scene.selection, scene.properties);
          },
          rules};
}

std::vector<PlacingOperation> Operations() {
  std::vector<PlacingOperation> operations = {
      Placing("batch", PlacingAHeader()),  Placing("code", PlacingADetail()),
      Placing("net", PlacingADetail()),    Placing("qty", PlacingADetail()),
      Placing("day", PlacingADate()),      Placing("paid", PlacingAYesNo()),
      Placing("note", PlacingOverARule()), Placing("status", PlacingADownload()),
  };
  operations[6].prepare = [](PlacingScene& scene) {
    excel::Validation(scene.Cells("B5:B7").get_Validation())
        .Add(excel::xlValidateWholeNumber, excel::xlValidAlertStop, excel::xlGreater, "7");
  };
  operations.push_back(
      {"AddDetailRangeToSpreadsheet",
       [](PlacingScene& scene) {
         const auto& source = scene.properties->get_ExcelRange();
         source->let_RangeName("fresh");
         source->let_DetailIndicator(hdiDetail);
         source->let_RangeDataType(rdtString);
         source->let_DataLength(5);
         scene.list->AddDetailRangeToSpreadsheet(scene.properties);
       },
       TypedRule() + Tooltip() +
           FormattingRules(kPlacing + Levels({"AddDetailRangeToSpreadsheet"})) +
           Otherwise(kPlacing + Levels({"AddDetailRangeToSpreadsheet"})),
       [](PlacingScene& scene) { scene.properties->set_RangeArea(scene.Cells("B5")); }});
  operations.push_back({"FormatRange", [](PlacingScene& scene) { scene.properties->FormatRange(); },
                        FormattingRules({}),
                        [](PlacingScene& scene) {
                          scene.properties->set_RangeArea(scene.Cells("B5:B7"));
                          scene.properties->let_RangeHeading("Net");
                        }});
  return operations;
}

// --- the sweep -----------------------------------------------------------------------------------

struct CleanPlacing {
  Lines lines;
  std::vector<State> ahead;
  State end;
};

CleanPlacing PlaceCleanly(const PlacingOperation& operation, bool sheetScheme) {
  CleanPlacing run;
  PlacingScene scene(sheetScheme);
  operation.prepare(scene);
  auto& calls = scene.host.Calls();
  calls.LogCalls(true);
  calls.Watch([&] { run.ahead.push_back(scene.Snapshot()); });
  operation.run(scene);
  calls.Watch({});
  run.lines = calls.Lines();
  run.end = scene.Snapshot();
  EXPECT_TRUE(scene.events.empty());
  return run;
}

/// Everything but the kinds given is as after a clean run.
void ExpectLackingOnly(const Pieces& lacking, State after, State clean) {
  for (const std::string& kind : lacking) {
    after.erase(kind);
    clean.erase(kind);
  }
  EXPECT_EQ(after, clean);
}

void ExpectShown(const PlacingOperation& operation, const CleanPlacing& clean, std::size_t call,
                 const PlacingRule& expected, PlacingScene& scene) {
  const Shows& shows = expected.rule.shows;
  scene.host.Calls().FailCall(call + 1, kFault, kFaultWords);
  std::optional<Error> error;
  try {
    operation.run(scene);
  } catch (const Error& raised) {
    error = raised;
  }
  EXPECT_EQ(scene.events, expected.events);
  if (shows.forgiven) {
    EXPECT_FALSE(error) << error->Number() << " " << error->Description() << "\n"
                        << error->Source();
    ExpectLackingOnly(expected.lacking, scene.Snapshot(), clean.end);
    return;
  }
  ASSERT_TRUE(error) << "the failure was lost";
  EXPECT_EQ(error->Number(), shows.number);
  EXPECT_EQ(error->Description(), shows.words(clean.lines, call));
  EXPECT_THAT(error->Source(), MatchesRegex(shows.source));
  EXPECT_EQ(scene.Snapshot(), clean.ahead[call]) << "what came before is done, nothing behind it";
}

class PlacingFaultSweep : public ::testing::TestWithParam<std::tuple<PlacingOperation, bool>> {};

TEST_P(PlacingFaultSweep, AFailureOfEachHostCallComesOutAsPromisedAndSpoilsNothingElse) {
  const auto& [operation, sheetScheme] = GetParam();
  const CleanPlacing clean = PlaceCleanly(operation, sheetScheme);
  ASSERT_EQ(clean.ahead.size(), clean.lines.size());
  ASSERT_GT(clean.lines.size(), 10U);
  for (std::size_t call = 0; call < clean.lines.size(); ++call) {
    SCOPED_TRACE("call " + std::to_string(call + 1) + ": " + clean.lines[call]);
    const auto rule = std::ranges::find_if(operation.rules, [&](const PlacingRule& each) {
      return each.rule.fits(clean.lines, call);
    });
    ASSERT_NE(rule, operation.rules.end()) << "the row has no rule for this call";
    PlacingScene scene(sheetScheme);
    operation.prepare(scene);
    ExpectShown(operation, clean, call, *rule, scene);
  }
}

INSTANTIATE_TEST_SUITE_P(Operations, PlacingFaultSweep,
                         ::testing::Combine(::testing::ValuesIn(Operations()), ::testing::Bool()),
                         [](const auto& row) {
                           return std::get<0>(row.param).name +
                                  (std::get<1>(row.param) ? "OnSheetNames" : "OnPlainNames");
                         });

}  // namespace
}  // namespace rangewerks::tests::faults
