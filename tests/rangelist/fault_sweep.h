// Runs an operation once for every call that it makes on the host, with that call failing, and
// checks what comes out and what is changed.
//
//   {"ClearRange", [](FaultScene& scene) { scene.list->ClearRange("amount"); return Variant(); },
//    Reaching({kClearRange})}
//
// An operation is a row: its name, what is run, and rules that tell how a failure at each call
// shows. The first rule that fits a call counts.
#pragma once

#include <gmock/gmock.h>

#include <algorithm>
#include <functional>
#include <initializer_list>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "automation/error.h"
#include "rangelist/fault_scene.h"
#include "support/matches_regex.h"

namespace rangewerks::tests::faults {

using automation::Error;
using automation::Variant;
using Lines = std::vector<std::string>;
/// Patterns of the lines that procedures add to the source, the innermost first.
using Chain = std::vector<std::string>;

/// What the failing call raises.
inline constexpr std::int32_t kFault = 50290;
inline const std::string kFaultWords = "The spreadsheet is busy";

// --- the lines of a source text ------------------------------------------------------------------

inline std::string Level(const std::string& procedure) {
  const bool whole = procedure.find(" of ") != std::string::npos;
  return procedure + (whole ? "" : " of Class Module clsInterfaceRangeList") + " Line#:[0-9]+";
}
inline Chain Levels(std::initializer_list<std::string> procedures) {
  Chain chain;
  for (const std::string& procedure : procedures) chain.push_back(Level(procedure));
  return chain;
}
inline Chain operator+(Chain inner, const Chain& outer) {
  inner.insert(inner.end(), outer.begin(), outer.end());
  return inner;
}
/// The one procedure that adds text behind its line.
inline const std::string kClearRange = Level("ClearRange") + "\r\n Range Name: [a-z_]+";

// --- how a failure shows -------------------------------------------------------------------------

struct Shows {
  bool forgiven = false;
  std::int32_t number = kFault;
  /// The description, which may depend on the failing call and its neighbours.
  std::function<std::string(const Lines&, std::size_t)> words = [](const auto&, auto) {
    return kFaultWords;
  };
  /// A pattern that the whole source matches.
  std::string source;
};

/// The source of an error of the host that went through these procedures, each of which has put its
/// line number in front.
inline std::string SourceThrough(const Chain& chain) {
  std::string source = "(Line No\\.: [0-9]+ ){" + std::to_string(chain.size()) + "}Workbook";
  if (chain.empty()) source = "Workbook";
  for (const std::string& level : chain) source += "\r\n" + level;
  return source;
}

/// The error comes out with its number and words.
inline Shows Passed(const Chain& chain) {
  Shows shows;
  shows.source = SourceThrough(chain);
  return shows;
}
/// The error comes out with another number and other words.
inline Shows Replaced(std::int32_t number, const std::string& words, const Chain& chain) {
  Shows shows = Passed(chain);
  shows.number = number;
  shows.words = [words](const auto&, auto) { return words; };
  return shows;
}
/// The error comes out with the words for an area that can't be found. The range is that of the
/// look-up next to the failing call.
inline Shows AreaNotFound(const Chain& chain) {
  Shows shows = Passed(Levels({"GetRange"}) + chain);
  shows.words = [](const Lines& lines, std::size_t call) {
    const std::string lookUp = "Workbook.Names get \"";
    for (const std::size_t near : {call, call + 1, call - 1}) {
      if (near >= lines.size() || !lines[near].starts_with(lookUp)) continue;
      const std::string full =
          lines[near].substr(lookUp.size(), lines[near].size() - lookUp.size() - 1);
      return "Error finding area on sheet referred to by range: " + FaultScene::RangeOf(full) +
             " (Full name:" + full + ").";
    }
    return std::string("no look-up next to the failing call");
  };
  return shows;
}
/// No error comes out, and at most one range stays as it was.
inline Shows Forgiven() {
  Shows shows;
  shows.forgiven = true;
  return shows;
}

// --- which calls a rule is about -----------------------------------------------------------------

struct Rule {
  std::function<bool(const Lines&, std::size_t)> fits;
  Shows shows;
};
using Rules = std::vector<Rule>;

/// `member` is as in the host's log, with or without what is done to it: "Range.Value get".
inline bool IsCallOf(const std::string& line, const std::string& member) {
  return line == member || line.starts_with(member + " ");
}
inline Rule At(std::initializer_list<std::string> members, const Shows& shows) {
  return {[members = std::vector<std::string>(members)](const Lines& lines, std::size_t call) {
            return std::any_of(members.begin(), members.end(), [&](const std::string& member) {
              return IsCallOf(lines[call], member);
            });
          },
          shows};
}
inline Rule Anywhere(const Shows& shows) {
  return {[](const auto&, auto) { return true; }, shows};
}
/// A rule narrowed to the first calls of the operation.
inline Rule WithinFirst(std::size_t calls, const Rule& rule) {
  return {
      [=](const Lines& lines, std::size_t call) { return call < calls && rule.fits(lines, call); },
      rule.shows};
}
/// A rule narrowed to the calls up to the last one of a member.
inline Rule UpToLast(const std::string& member, const Rule& rule) {
  return {[=](const Lines& lines, std::size_t call) {
            if (!rule.fits(lines, call)) return false;
            for (std::size_t later = call; later < lines.size(); ++later) {
              if (IsCallOf(lines[later], member)) return true;
            }
            return false;
          },
          rule.shows};
}
/// A rule narrowed to calls that come right after one of a member.
inline Rule RightAfter(const std::string& member, const Rule& rule) {
  return {[=](const Lines& lines, std::size_t call) {
            return call > 0 && IsCallOf(lines[call - 1], member) && rule.fits(lines, call);
          },
          rule.shows};
}
inline Rules operator+(Rules first, const Rules& then) {
  first.insert(first.end(), then.begin(), then.end());
  return first;
}

/// The rules of whatever finds its cells through GetRange: its own calls pass through `chain`.
inline Rules Reaching(const Chain& chain) {
  return {At({"Worksheet.Name"}, Passed(Levels({"FullRangeName", "GetRange"}) + chain)),
          At({"Worksheet.Parent", "Workbook.Names", "Name.RefersToRange"}, AreaNotFound(chain)),
          Anywhere(Passed(chain))};
}
/// The rules of a walk over the workbook's names, for the calls up to its last look at an area.
inline Rules Locating(const Chain& outer) {
  const Chain chain = Levels({"SetIfRangesExist"}) + outer;
  const auto walk = [](const Rule& rule) { return UpToLast("Worksheet.Range", rule); };
  return {
      WithinFirst(2, Anywhere(Replaced(automation::kApplicationErrorBase,
                                       "Worksheet object error when checking if ranges exists on "
                                       "sheet \r\n" +
                                           kFaultWords,
                                       chain))),
      walk(At({"Worksheet.Range", "Range.Rows", "Range.Count"}, Forgiven())),
      walk(Anywhere(Passed(chain))),
  };
}
/// The same rules with another source, for what names itself alone.
inline Rules WithSource(const std::string& source, Rules rules) {
  for (Rule& rule : rules) rule.shows.source = source;
  return rules;
}

// --- the sweep -----------------------------------------------------------------------------------

struct Operation {
  std::string name;
  std::function<Variant(FaultScene&)> run;
  Rules rules;
  /// Done ahead of each run, with no call failing.
  std::function<void(FaultScene&)> prepare = [](FaultScene& scene) {
    scene.list->SetIfRangesExist();
  };
  /// The result when a forgiven failure has kept the operation from its answer.
  Variant nothing = {};
};

inline void PrintTo(const Operation& operation, std::ostream* out) { *out << operation.name; }

/// A run without failures: its calls, the state ahead of each, and how it ends.
struct CleanRun {
  Lines lines;
  std::vector<State> ahead;
  State end;
  Variant result;
};

inline CleanRun RunCleanly(const Operation& operation, bool sheetScheme) {
  CleanRun run;
  FaultScene scene(sheetScheme);
  operation.prepare(scene);
  auto& calls = scene.host.Calls();
  calls.LogCalls(true);
  calls.Watch([&] { run.ahead.push_back(scene.Snapshot()); });
  run.result = operation.run(scene);
  calls.Watch({});
  run.lines = calls.Lines();
  run.end = scene.Snapshot();
  return run;
}

/// Everything is as after a clean run, but for one range at most that has something left as it was.
inline void ExpectAtMostOneRangePassedOver(const State& after, const CleanRun& clean) {
  const State& start = clean.ahead.front();
  const auto valueIn = [](const State& state, const std::string& piece) {
    const auto found = state.find(piece);
    return found == state.end() ? std::string("(none)") : found->second;
  };
  std::set<std::string> pieces;
  for (const State* state : {&start, &clean.end, &after}) {
    for (const auto& [piece, value] : *state) pieces.insert(piece);
  }
  std::set<std::string> passedOver;
  for (const std::string& piece : pieces) {
    const std::string value = valueIn(after, piece);
    if (value == valueIn(clean.end, piece)) continue;
    EXPECT_EQ(value, valueIn(start, piece)) << piece;
    passedOver.insert(piece.substr(0, piece.find(':')));
  }
  EXPECT_LE(passedOver.size(), 1U) << ::testing::PrintToString(passedOver);
}

inline void ExpectShown(const Operation& operation, const CleanRun& clean, std::size_t call,
                        const Shows& shows, FaultScene& scene) {
  scene.host.Calls().FailCall(call + 1, kFault, kFaultWords);
  std::optional<Error> error;
  Variant result;
  try {
    result = operation.run(scene);
  } catch (const Error& raised) {
    error = raised;
  }
  const State after = scene.Snapshot();
  if (shows.forgiven) {
    EXPECT_FALSE(error) << error->Number() << " " << error->Description() << "\n"
                        << error->Source();
    EXPECT_TRUE(result == clean.result || result == operation.nothing);
    ExpectAtMostOneRangePassedOver(after, clean);
    return;
  }
  ASSERT_TRUE(error) << "the failure was lost";
  EXPECT_EQ(error->Number(), shows.number);
  EXPECT_EQ(error->Description(), shows.words(clean.lines, call));
  EXPECT_THAT(error->Source(), MatchesRegex(shows.source));
  EXPECT_EQ(after, clean.ahead[call]) << "what came before is done and nothing behind it";
}

/// Fails each call of the operation in turn, every time on a fresh scene.
inline void Sweep(const Operation& operation, bool sheetScheme) {
  const CleanRun clean = RunCleanly(operation, sheetScheme);
  ASSERT_EQ(clean.ahead.size(), clean.lines.size());
  for (std::size_t call = 0; call < clean.lines.size(); ++call) {
    SCOPED_TRACE("call " + std::to_string(call + 1) + ": " + clean.lines[call]);
    const auto rule = std::find_if(operation.rules.begin(), operation.rules.end(),
                                   [&](const Rule& each) { return each.fits(clean.lines, call); });
    ASSERT_NE(rule, operation.rules.end()) << "the row has no rule for this call";
    FaultScene scene(sheetScheme);
    operation.prepare(scene);
    ExpectShown(operation, clean, call, rule->shows, scene);
  }
}

}  // namespace rangewerks::tests::faults
