// What each cell of a sheet has of one thing, such as its format: most have nothing, and those that
// have come in blocks.
//
//   AreaValues<CellFormat> formats;
//   formats.Change(wholeColumn, [](CellFormat& format) { format.number = "@"; });
//   formats.At({3, 1}).number;  // "@"
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <type_traits>
#include <utility>
#include <vector>

#include "hosts/common/area.h"

namespace rangewerks::hosts::workbook {

/// Kept for each column as stretches of cells with equal values, so that a whole column takes no
/// more than one cell. Cells whose value equals Value{} have nothing and take nothing.
template <class Value>
class AreaValues {
 public:
  const Value& At(Position cell) const;
  /// Calls `step(Value&)` for the values that the area's cells have: once for a stretch of cells,
  /// so its outcome must depend on the value alone.
  template <class Step>
  void Change(const Area& area, Step step);
  void Set(const Area& area, const Value& value) {
    Change(area, [&value](Value& each) { each = value; });
  }

  /// Calls `step(const Value&)` for each stretch of the area's cells, those that have nothing too.
  template <class Step>
  void Visit(const Area& area, Step step) const;
  /// What `read` makes of the values of all cells; none when they differ.
  template <class Read>
  auto Common(const Area& area, Read read) const {
    using Result = std::remove_cvref_t<std::invoke_result_t<Read, const Value&>>;
    std::optional<Result> common;
    bool differ = false;
    Visit(area, [&](const Value& value) {
      if (!common) common = std::invoke(read, value);
      differ = differ || *common != std::invoke(read, value);
    });
    return differ ? std::nullopt : common;
  }
  /// Whether any of the area's cells has something.
  bool Any(const Area& area) const {
    bool any = false;
    Visit(area, [&](const Value& value) { any = any || value != Value{}; });
    return any;
  }
  bool IsEmpty() const noexcept { return columns_.empty(); }

  /// All that cells have, as the fewest blocks of whole stretches, by first row and column. Another
  /// history of the same cells gives the same blocks.
  std::vector<std::pair<Area, Value>> Blocks() const;

 private:
  struct Run {
    std::int32_t last;
    Value value;
  };
  using Runs = std::map<std::int32_t, Run>;  // by first row

  static const Value& Nothing() {
    static const Value nothing{};
    return nothing;
  }
  /// The run that holds the row or, without one, the next below.
  template <class SomeRuns>
  static auto RunFrom(SomeRuns& runs, std::int32_t row) {
    auto run = runs.upper_bound(row);
    if (run == runs.begin()) return run;
    auto before = std::prev(run);
    return before->second.last >= row ? before : run;
  }
  static void SplitAt(Runs& runs, std::int32_t row);
  static void Merge(Runs& runs, std::int32_t first, std::int32_t last);
  template <class Step>
  static void ChangeRuns(Runs& runs, std::int32_t first, std::int32_t last, Step& step);

  std::map<std::int32_t, Runs> columns_;
};

template <class Value>
const Value& AreaValues<Value>::At(Position cell) const {
  const auto column = columns_.find(cell.column);
  if (column == columns_.end()) return Nothing();
  const auto run = RunFrom(column->second, cell.row);
  const bool holds = run != column->second.end() && run->first <= cell.row;
  return holds ? run->second.value : Nothing();
}

template <class Value>
template <class Step>
void AreaValues<Value>::Change(const Area& area, Step step) {
  for (std::int32_t column = area.column; column <= area.LastColumn(); ++column) {
    const auto runs = columns_.try_emplace(column).first;
    ChangeRuns(runs->second, area.row, area.LastRow(), step);
    if (runs->second.empty()) columns_.erase(runs);
  }
}

template <class Value>
template <class Step>
void AreaValues<Value>::ChangeRuns(Runs& runs, std::int32_t first, std::int32_t last, Step& step) {
  SplitAt(runs, first);
  SplitAt(runs, last + 1);
  for (std::int32_t row = first; row <= last;) {
    auto run = runs.lower_bound(row);
    if (run == runs.end() || run->first != row) {  // a gap up to the next run
      const std::int32_t end = run == runs.end() ? last : std::min(last, run->first - 1);
      run = runs.emplace_hint(run, row, Run{end, Value{}});
    }
    step(run->second.value);
    row = run->second.last + 1;
    if (run->second.value == Nothing()) runs.erase(run);
  }
  Merge(runs, first, last);
}

template <class Value>
void AreaValues<Value>::SplitAt(Runs& runs, std::int32_t row) {
  const auto run = RunFrom(runs, row);
  if (run == runs.end() || run->first >= row) return;
  runs.emplace(row, run->second);
  run->second.last = row - 1;
}

/// Joins runs between these rows, and with those around them, that touch and are equal.
template <class Value>
void AreaValues<Value>::Merge(Runs& runs, std::int32_t first, std::int32_t last) {
  auto run = RunFrom(runs, first - 1);
  while (run != runs.end() && run->first <= last) {
    const auto next = std::next(run);
    const bool joins = next != runs.end() && next->first == run->second.last + 1 &&
                       next->second.value == run->second.value;
    if (!joins) {
      run = next;
      continue;
    }
    run->second.last = next->second.last;
    runs.erase(next);
  }
}

template <class Value>
template <class Step>
void AreaValues<Value>::Visit(const Area& area, Step step) const {
  for (std::int32_t column = area.column; column <= area.LastColumn(); ++column) {
    const auto runs = columns_.find(column);
    if (runs == columns_.end()) {
      step(Nothing());
      continue;
    }
    std::int32_t row = area.row;
    for (auto run = RunFrom(runs->second, row);
         run != runs->second.end() && run->first <= area.LastRow(); ++run) {
      if (run->first > row) step(Nothing());
      step(run->second.value);
      row = run->second.last + 1;
    }
    if (row <= area.LastRow()) step(Nothing());
  }
}

template <class Value>
std::vector<std::pair<Area, Value>> AreaValues<Value>::Blocks() const {
  std::vector<std::pair<Area, Value>> blocks;
  std::map<std::pair<std::int32_t, std::int32_t>, std::size_t> latest;  // by first and last row
  for (const auto& [column, runs] : columns_) {
    for (const auto& [first, run] : runs) {
      const auto [entry, isNew] = latest.try_emplace({first, run.last}, blocks.size());
      if (!isNew) {
        auto& [area, value] = blocks[entry->second];
        if (area.LastColumn() + 1 == column && value == run.value) {
          ++area.columns;
          continue;
        }
        entry->second = blocks.size();
      }
      blocks.emplace_back(Area{first, column, run.last - first + 1, 1}, run.value);
    }
  }
  std::ranges::sort(
      blocks, {}, [](const auto& block) { return std::pair(block.first.row, block.first.column); });
  return blocks;
}

}  // namespace rangewerks::hosts::workbook
