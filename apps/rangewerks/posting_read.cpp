#include "apps/rangewerks/posting_read.h"

#include <algorithm>

#include "apps/rangewerks/value_text.h"
#include "automation/conversions.h"
#include "automation/error.h"
#include "errors/attempt.h"
#include "rangelist/ExcelFunctions.h"

namespace rangewerks::apps {

namespace {

using automation::Error;
using automation::Variant;

/// In single quotes, as addresses have it.
std::string QuotedSheet(const std::string& name) {
  std::string quoted = "'";
  for (const char each : name) {
    if (each == '\'') quoted += each;
    quoted += each;
  }
  return quoted + '\'';
}

/// "$B$7:$B$9" as "B7:B9", with the sheet in front when it is another than the one that is read.
std::string ShownAddress(const excel::Range& area, const std::string& sheet) {
  std::string address = area.get_Address();
  std::erase(address, '$');
  const std::string place = area.get_Parent().get_Name();
  return place == sheet ? address : QuotedSheet(place) + '!' + address;
}

/// What the cell holds, as text.
std::string ContentOf(const excel::Range& cell) {
  const Variant value = cell.get_Value();
  const auto* error = value.TryGet<automation::ErrorValue>();
  return error != nullptr ? CellErrorText(error->Number())
                          : ToString(value, automation::Locale::Current());
}

RangeUse UseOf(const clsExInputRange& record) {
  if (record.get_BecomeHeader()) return RangeUse::Header;
  switch (record.get_DetailIndicator()) {
    case hdiHeader:
      return RangeUse::Header;
    case hdiDetail:
    case hdiHeaderDetail:
      return RangeUse::Detail;
    case hdiNone:
      break;
  }
  return RangeUse::None;
}

/// One run over one sheet.
class Reading {
 public:
  Reading(clsInterfaceRangeList& list, const excel::Worksheet& sheet) : list_(list), sheet_(sheet) {
    result_.sheet = sheet.get_Name();
    result_.usingSheetRangeNames = list.get_UsingSheetRangeNames();
    result_.namesBeginWith = NamesBeginWith();
  }

  PostingRead Run(const LineRead& lineRead) {
    for (std::int32_t index = 1; index <= list_.Count(); ++index) Describe(*list_.Item(index));
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
  void Describe(const clsExInputRange& record) {
    FoundRange range;
    range.name = record.get_RangeName();
    range.lookedForAs = result_.namesBeginWith + range.name;
    range.type = record.get_RangeDataType();
    range.decimalPlaces = record.get_DecimalPlaces();
    range.isMandatory = record.get_IsMandatory();
    range.use = UseOf(record);
    range.actsAsHeader = range.use == RangeUse::Header;
    range.exists = record.get_RangeExists();
    if (range.exists) {
      // A range that counts as there may have no area all the same; reading it then says why.
      Attempt([&] {
        const excel::Range area = list_.GetRange(range.name);
        range.rows = area.get_Rows().get_Count();
        range.address = ShownAddress(area, result_.sheet);
      });
    }
    if (range.use == RangeUse::Header) result_.headers.push_back(result_.ranges.size());
    if (range.use == RangeUse::Detail) result_.details.push_back(result_.ranges.size());
    result_.ranges.push_back(std::move(range));
  }

  /// Of the names by which SetIfRangesExist knows the ranges: unlike those of FullRangeName they
  /// have the prefix under the plain scheme too.
  std::string NamesBeginWith() const {
    const std::string& prefix = list_.get_RangePrefix();
    return list_.get_UsingSheetRangeNames()
               ? ExcelFunctions::RangeNameMultiTab(result_.sheet, prefix)
               : prefix;
  }

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
      answer.found = ReadTyped(range, row, value);
      if (answer.found) answer.value = std::move(value);
    } catch (const Error& error) {
      RequireLivingHost();
      answer.badCell = result_.badCells.size();
      Note(range, row, error);
    }
    return answer;
  }

  bool ReadTyped(const FoundRange& range, std::int32_t row, Variant& value) {
    switch (range.type) {
      case rdtDouble:
        return ReadInto<double>(&clsInterfaceRangeList::GetValRange, range, row, value);
      case rdtDate:
        return ReadInto<automation::Date>(&clsInterfaceRangeList::GetDateRange, range, row, value);
      case rdtInteger:
        return ReadInto<std::int16_t>(&clsInterfaceRangeList::GetIntRange, range, row, value);
      case rdtYesNo:
        return ReadInto<bool>(&clsInterfaceRangeList::GetYNRange, range, row, value);
      case rdtString:
        break;
    }
    return ReadInto<std::string>(&clsInterfaceRangeList::GetStrRange, range, row, value);
  }

  template <class Value>
  bool ReadInto(bool (clsInterfaceRangeList::*read)(const std::string&, Value&, std::int32_t),
                const FoundRange& range, std::int32_t row, Variant& value) {
    Value typed{};
    const bool found = (list_.*read)(range.name, typed, row);
    value = std::move(typed);
    return found;
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

bool PostingRead::AnyRangeExists() const {
  return std::ranges::any_of(ranges, &FoundRange::exists);
}

PostingRead ReadPosting(clsInterfaceRangeList& list, const excel::Worksheet& sheet,
                        const LineRead& lineRead) {
  list.set_ActSheet(sheet);
  list.let_SheetRangeNames(list.get_SheetRangeNames());  // what an earlier sheet has put in force
  list.SetIfRangesExist();
  return Reading(list, sheet).Run(lineRead);
}

}  // namespace rangewerks::apps
