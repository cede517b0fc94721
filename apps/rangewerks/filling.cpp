#include "apps/rangewerks/filling.h"

#include <algorithm>
#include <unordered_map>

#include "apps/rangewerks/failure.h"
#include "apps/rangewerks/typed_read.h"
#include "apps/rangewerks/value_text.h"
#include "automation/error.h"
#include "automation/text.h"
#include "errors/attempt.h"
#include "rangelist/recordset.h"

namespace rangewerks::apps {

namespace {

using automation::Error;
using automation::Variant;

constexpr std::int32_t kNoSuchField = 3265;  // raised by a recordset for a field that it lacks

template <class Value>
const Value& Held(const Variant& value) {
  return *value.TryGet<Value>();
}

class Writing {
 public:
  Writing(clsInterfaceRangeList& list, const SheetRanges& found) : list_(list), found_(found) {
    for (const FoundRange& range : found.ranges) ranges_.emplace(range.name, &range);
  }

  FilledCell Write(const GivenValue& given) {
    FilledCell cell{given.range, given.row, {}, given.value, CellOutcome::Absent, {}, {}};
    const FoundRange& range = *ranges_.at(given.range);
    if (!range.exists) return cell;
    const std::int32_t line = std::max(given.row, std::int32_t{1});
    const bool takes = TakesAValue(range.name, line);
    if (takes) Populate(range, given.value, line);
    const excel::Range place = list_.GetRange(range.name).get_Cells(line, 1);
    cell.address = ShownAddress(place, found_.sheet);
    cell.holds = ContentOf(place);
    cell.outcome = CellOutcome::Refused;
    if (takes) cell.outcome = OutcomeOf(range, line, cell);
    return cell;
  }

 private:
  /// Whether the list's switches let a value into the cell. The list itself is asked: a write from
  /// a recordset looks for its field only once the cell is known to take a value, and this one has
  /// no fields, so nothing is written in either case.
  bool TakesAValue(const std::string& range, std::int32_t line) const {
    if (!list_.get_LeaveBlankOnPopulate() && !list_.get_LeaveFormulaOnPopulate()) return true;
    try {
      list_.PopulateRangeRs(noFields_, range, "", line);
      return false;
    } catch (const Error& error) {
      if (error.Number() == kNoSuchField) return true;
      throw;
    }
  }

  void Populate(const FoundRange& range, const Variant& value, std::int32_t line) const {
    switch (range.type) {
      case rdtDouble:
        return list_.PopulateDoubleRange(range.name, Held<double>(value), line);
      case rdtDate:
        return list_.PopulateDateRange(range.name, Held<automation::Date>(value), line);
      case rdtInteger: {
        // As the list's own bulk write has it: the text of the number, with a blank for the sign.
        const auto number = Held<std::int16_t>(value);
        return list_.PopulateRange(range.name, (number < 0 ? "" : " ") + std::to_string(number),
                                   line);
      }
      case rdtYesNo:
        return list_.PopulateYNRange(range.name, Held<bool>(value), line);
      case rdtString:
        return list_.PopulateRange(range.name, Held<std::string>(value), line);
    }
  }

  /// Whether the posting program would read the value that was given. Spreadsheets take texts as
  /// typed, so that "007" becomes 7 unless the cell is formatted as text.
  CellOutcome OutcomeOf(const FoundRange& range, std::int32_t line, FilledCell& cell) const {
    Variant read;
    try {
      ReadTyped(list_, range.name, range.type, line, read);
    } catch (const Error& error) {
      cell.complaint = error.Description();
      return CellOutcome::Differs;
    }
    const auto* text = cell.value.TryGet<std::string>();
    const bool same =
        text != nullptr ? Held<std::string>(read) == automation::Trim(*text) : read == cell.value;
    return same ? CellOutcome::Written : CellOutcome::Differs;
  }

  static Variant ContentOf(const excel::Range& cell) {
    Variant value = cell.get_Value();
    const auto* error = value.TryGet<automation::ErrorValue>();
    return error != nullptr ? Variant(CellErrorText(error->Number())) : value;
  }

  clsInterfaceRangeList& list_;
  const SheetRanges& found_;
  std::shared_ptr<Recordset> noFields_ = std::make_shared<Recordset>();
  std::unordered_map<std::string, const FoundRange*> ranges_;
};

}  // namespace

std::size_t FillReport::Count(CellOutcome outcome) const {
  return static_cast<std::size_t>(std::ranges::count(cells, outcome, &FilledCell::outcome));
}

FillReport Fill(clsInterfaceRangeList& list, const SheetRanges& found,
                const std::vector<GivenValue>& values, const CellDone& cellDone) {
  FillReport report{found, {}};
  Writing writing(list, found);
  for (const GivenValue& given : values) {
    try {
      report.cells.push_back(writing.Write(given));
    } catch (const Error& error) {
      throw Failure(given.place + ": range " + given.range +
                    " can't be written to: " + error.Description());
    }
    if (cellDone) {
      cellDone(static_cast<std::int32_t>(report.cells.size()),
               static_cast<std::int32_t>(values.size()));
    }
  }
  return report;
}

}  // namespace rangewerks::apps
