#include "apps/rangewerks/clearing.h"

#include <algorithm>
#include <functional>

#include "apps/rangewerks/closest_word.h"
#include "apps/rangewerks/failure.h"
#include "automation/value_list.h"

namespace rangewerks::apps {

namespace {

using automation::Variant;

using TextOfRange = std::function<const std::string&(const clsExInputRange&)>;

void RequireOne(const clsInterfaceRangeList& list, const std::string& text, const char* option,
                const char* field, const TextOfRange& textOf) {
  std::vector<std::string> texts;
  for (std::int32_t index = 1; index <= list.Count(); ++index) {
    texts.push_back(textOf(*list.Item(index)));
  }
  if (std::ranges::find(texts, text) != texts.end()) return;
  const std::vector<std::string_view> known(texts.begin(), texts.end());
  throw Failure(std::string(option) + ": no range of the interface file has the " + field + " \"" +
                text + "\"" + DidYouMean(text, known));
}

bool IsExcluded(const clsExInputRange& record, const ClearChoice& choice) {
  return std::ranges::find(choice.excludeGroups, record.get_Group()) != choice.excludeGroups.end();
}

bool IsChosen(const clsExInputRange& record, const ClearChoice& choice) {
  if (choice.tag) return record.get_Tag() == *choice.tag;
  return !choice.details || record.get_DetailIndicator() == hdiDetail;
}

/// What the list will do with a range, by what it says of itself before anything is cleared.
RangeOutcome OutcomeFor(const clsInterfaceRangeList& list, const clsExInputRange& record,
                        const ClearChoice& choice) {
  if (!IsChosen(record, choice)) return RangeOutcome::Other;
  if (!record.get_RangeExists()) return RangeOutcome::Absent;
  if (IsExcluded(record, choice)) return RangeOutcome::Excluded;
  const bool formulasToo = !choice.tag && !choice.details && list.get_DoNotCheckIsFormula();
  return !formulasToo && list.IsFormula(record.get_RangeName()) ? RangeOutcome::Kept
                                                                : RangeOutcome::Cleared;
}

void ClearChosen(clsInterfaceRangeList& list, const ClearChoice& choice) {
  if (choice.details) return list.ClearDetailRanges();
  if (!choice.tag) return list.ClearAllRanges();
  const std::vector<Variant> groups(choice.excludeGroups.begin(), choice.excludeGroups.end());
  list.ClearRangesForTag(*choice.tag, std::make_shared<automation::ValueList>(groups));
}

/// A spreadsheet program may pass over a change without a word, as for a protected sheet.
void RequireEmpty(const clsInterfaceRangeList& list, const FoundRange& range) {
  const excel::Range area = list.GetRange(range.name);
  for (std::int32_t row = 1; row <= range.rows; ++row) {
    if (area.get_Item(row).get_Value().IsEmpty()) continue;
    throw Failure("range " + range.name + " (" + range.address +
                  ") still has content after it was cleared; is the sheet protected?");
  }
}

}  // namespace

bool ClearReport::KeptAny() const {
  return std::ranges::find(outcomes, RangeOutcome::Kept) != outcomes.end();
}

void RequireDeclared(const ClearChoice& choice, const clsInterfaceRangeList& list) {
  if (choice.tag) {
    RequireOne(list, *choice.tag, "--tag", "Tag", &clsExInputRange::get_Tag);
  }
  for (const std::string& group : choice.excludeGroups) {
    RequireOne(list, group, "--exclude-group", "Group", &clsExInputRange::get_Group);
  }
}

ClearReport Clear(clsInterfaceRangeList& list, const excel::Worksheet& sheet,
                  const ClearChoice& choice, Progress& progress) {
  progress.Say("looking for the ranges");
  ClearReport report{LocateRanges(list, sheet), {}};
  const std::int32_t ranges = list.Count();
  for (std::int32_t index = 1; index <= ranges; ++index) {
    progress.Show(index, ranges, "looking for formulas in range");
    report.outcomes.push_back(OutcomeFor(list, *list.Item(index), choice));
  }
  const auto cleared =
      static_cast<std::int32_t>(std::ranges::count(report.outcomes, RangeOutcome::Cleared));
  progress.Say("clearing " + std::to_string(cleared) + (cleared == 1 ? " range" : " ranges"));
  ClearChosen(list, choice);
  std::int32_t checked = 0;
  for (std::size_t index = 0; index < report.outcomes.size(); ++index) {
    if (report.outcomes[index] != RangeOutcome::Cleared) continue;
    progress.Show(++checked, cleared, "checking cleared range");
    RequireEmpty(list, report.found.ranges[index]);
  }
  return report;
}

}  // namespace rangewerks::apps
