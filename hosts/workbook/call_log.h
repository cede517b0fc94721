// What a workbook in memory was asked, and failures on request: for tests of call sequences, of
// call counts, and of what happens when the spreadsheet program fails.
//
//   host.Calls().FailCall(3, 1004, "busy");   // the third call from now on fails
//   list->SetIfRangesExist();
//   EXPECT_EQ(host.Calls().Count("Worksheet.Range"), 2);
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "automation/dispatch.h"

namespace rangewerks::hosts::workbook {

/// Every late-bound call on an object of one host passes here exactly once, before it has any
/// effect: those that fail too, and those to members that don't exist. What the objects ask each
/// other isn't a call. A walk over a collection is one call, made when it starts; the elements it
/// hands out aren't calls.
///
/// Members are named by type and member: "Worksheet.Range". The default member is "Range._Default",
/// a walk "Names enumerate". Case doesn't matter. Counting costs no string work, and lines are
/// written only while logging is on.
class CallLog {
 public:
  /// Switches the writing of lines on or off; off at first.
  void LogCalls(bool on) { logging_ = on; }
  bool IsLogging() const noexcept { return logging_; }
  /// The calls made while logging was on, oldest first: `Worksheet.Range get "Sheet1__Code"`,
  /// `Range.Cells get 3, 1`, `Range.Value let 12.5`, `Names.Add call Name:="x", RefersTo:="=A1"`,
  /// `Names enumerate`. Texts stand in double quotes, their own doubled; objects as their type
  /// name; numbers with a decimal point; dates as #2024-01-31#; cell errors as Error 2007; an
  /// argument left out as (omitted); blocks as Array(rows, columns).
  const std::vector<std::string>& Lines() const noexcept { return lines_; }

  /// Calls since the start or the last Reset, of all members or of one.
  std::size_t Count() const noexcept { return count_; }
  std::size_t Count(std::string_view member) const;
  /// Forgets lines and counts. Requested failures stay.
  void Reset();

  /// Makes the n-th call from now (1 is the next one) fail, once, with source "Workbook". Several
  /// may be requested. Raises 5 for an n of 0.
  void FailCall(std::size_t n, std::int32_t number, std::string description);
  /// Makes every call of a member fail until ClearFailures.
  void FailMember(std::string_view member, std::int32_t number, std::string description);
  void ClearFailures();

  /// Runs `watcher` ahead of every call, as the call is about to be noted; an empty one ends that.
  /// It may look at the host freely: its own calls are neither noted nor made to fail.
  void Watch(std::function<void()> watcher) { watcher_ = std::move(watcher); }

  /// Notes one call; raises the failure that was requested for it, if any.
  void Note(automation::Member type, const automation::Invocation& call);
  /// Notes the start of a walk.
  void NoteWalk(automation::Member type);

 private:
  using Key = std::uint64_t;
  struct Failure {
    std::int32_t number;
    std::string description;
  };

  static Key KeyOf(automation::Member type, automation::Member member);
  static Key KeyOf(std::string_view member);
  /// Whether a call is to be noted, which those of the watcher aren't.
  bool Announce();
  void NoteKey(Key key);
  void RaiseRequested(Key key);

  bool logging_ = false;
  std::vector<std::string> lines_;
  std::size_t count_ = 0;
  std::unordered_map<Key, std::size_t> counts_;
  std::size_t made_ = 0;  // like count_, but Reset leaves it alone
  std::unordered_map<std::size_t, Failure> callFailures_;
  std::unordered_map<Key, Failure> memberFailures_;
  std::function<void()> watcher_;
  bool watching_ = false;
};

}  // namespace rangewerks::hosts::workbook
