#include "apps/rangewerks/posting_read.h"

#include <algorithm>

#include "apps/rangewerks/typed_read.h"
#include "apps/rangewerks/value_text.h"
#include "automation/conversions.h"
#include "automation/error.h"
#include "errors/attempt.h"

namespace rangewerks::apps {

namespace {

using automation::Error;
using automation::Variant;

/// What the cell holds, as text.
std::string ContentOf(const excel::Range& cell) {
  const Variant value = cell.get_Value();
  const auto* error = value.TryGet<automation::ErrorValue>();
  return error != nullptr ? CellErrorText(error->Number())
                          : ToString(value, automation::Locale::Current());
}

/// One run over one sheet.
class Reading {
 public:
  Reading(clsInterfaceRangeList& list, const excel::Worksheet& sheet) : list_(list), sheet_(sheet) {
    static_cast<SheetRanges&>(result_) = LocateRanges(list, sheet);
    for (std::size_t index = 0; index < result_.ranges.size(); ++index) {
      const RangeUse use = result_.ranges[index].use;
      if (use == RangeUse::Header) result_.headers.push_back(index);
      if (use == RangeUse::Detail) result_.details.push_back(index);
    }
  }

  PostingRead Run(const LineRead& lineRead) {
    for (const std::size_t index : result_.headers) {
      result_.header.push_back(Read(result_.ranges[index], 1));
    }
    const std::int32_t rows = LongestDetail();
    for (std::int32_t row = 1; row <= rows; ++row) {
      ReadLine(row);
      if (lineRead) lineRead(row, rows);
    }
    return std::move(result_);
  }

 private:
  /// How many lines of a range are read: its rows, and one where the area can't be told, so that
  /// the failure shows once.
  static std::int32_t LinesOf(const FoundRange& range) {
    return range.exists ? std::max(range.rows, std::int32_t{1}) : 0;
  }

  std::int32_t LongestDetail() const {
    std::int32_t longest = 0;
    for (const std::size_t index : result_.details) {
      longest = std::max(longest, LinesOf(result_.ranges[index]));
    }
    return longest;
  }

  void ReadLine(std::int32_t row) {
    DetailRow line;
    line.row = row;
    line.values.reserve(result_.details.size());
    for (const std::size_t index : result_.details) {
      const FoundRange& range = result_.ranges[index];
      line.values.push_back(row <= LinesOf(range) ? Read(range, row) : ReadValue());
    }
    result_.rows.push_back(std::move(line));
  }

  ReadValue Read(const FoundRange& range, std::int32_t row) {
    ReadValue answer;
    try {
      Variant value;
      answer.found = ReadTyped(list_, range.name, range.type, row, value);
      if (answer.found) answer.value = std::move(value);
    } catch (const Error& error) {
      RequireLivingHost();
      answer.badCell = result_.badCells.size();
      Note(range, row, error);
    }
    return answer;
  }

  /// A spreadsheet program that has ended fails every read; that is no bad cell. Raises its error.
  void RequireLivingHost() const { sheet_.get_Name(); }

  void Note(const FoundRange& range, std::int32_t row, const Error& error) {
    BadCell bad;
    bad.range = range.name;
    bad.row = list_.Item(range.name)->get_DetailIndicator() == hdiHeader ? 0 : row;
    bad.number = error.Number();
    bad.description = error.Description();
    bad.source = error.Source();
    Attempt([&] {
      const excel::Range cell = list_.GetRange(range.name).get_Cells(row, 1);
      bad.address = ShownAddress(cell, result_.sheet);
      bad.content = ContentOf(cell);
    });
    result_.badCells.push_back(std::move(bad));
  }

  clsInterfaceRangeList& list_;
  const excel::Worksheet& sheet_;
  PostingRead result_;
};

}  // namespace

PostingRead ReadPosting(clsInterfaceRangeList& list, const excel::Worksheet& sheet,
                        const LineRead& lineRead) {
  return Reading(list, sheet).Run(lineRead);
}

}  // namespace rangewerks::apps
