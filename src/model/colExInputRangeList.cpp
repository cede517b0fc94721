#include "model/colExInputRangeList.h"

#include <algorithm>
#include <limits>
#include <vector>

#include "errors/attempt.h"
#include "errors/procedure.h"

namespace rangewerks {

using automation::Collection;
using automation::Error;
using automation::ErrorNumber;
using automation::MemberTable;

namespace {

/// Where a record with that name goes: behind every record whose name is not greater.
std::int16_t PlaceOf(const std::string& name,
                     const Collection<colExInputRangeList::Record>& sorted) {
  const auto& records = sorted.Items();
  const auto greater =
      std::upper_bound(records.begin(), records.end(), name,
                       [](const std::string& wanted, const colExInputRangeList::Record& placed) {
                         return automation::CompareText(wanted, placed->get_RangeName()) < 0;
                       });
  const auto place = greater - records.begin();
  // The position has always been a 16-bit number; beyond it the sort refuses.
  if (place > std::numeric_limits<std::int16_t>::max()) throw Error(ErrorNumber::Overflow);
  return static_cast<std::int16_t>(place);
}

}  // namespace

colExInputRangeList::Record colExInputRangeList::Add(
    const std::string& RangeName, eRangeHeadDetailInd DetailIndicator, eRangeDataType RangeDataType,
    bool IsMandatory, bool RangeExists, const std::string& Description, std::int16_t DataLength,
    const Variant& Value, std::string& sKey, bool IsBrowseable, const std::string& BrowseColumn,
    const std::string& Group) {
  return Procedure("Add of Class Module colExInputRangeList Line#:", [&](Line& at) {
    at();
    auto record = std::make_shared<clsExInputRange>();
    record->let_IsMandatory(IsMandatory);
    record->let_RangeExists(RangeExists);
    record->let_Description(Description);
    record->let_RangeName(RangeName);
    record->let_DetailIndicator(DetailIndicator);
    record->let_BrowseColumn(BrowseColumn);
    record->let_IsBrowseable(IsBrowseable);
    record->let_RangeDataType(RangeDataType);
    record->let_DataLength(DataLength);
    record->let_Value(Value);
    record->let_Group(Group);
    record->let_BlankValueIsFound(false);
    if (sKey.empty()) sKey = RangeName;
    at();
    try {
      records_.Add(record, sKey);
    } catch (const Error& error) {
      if (!error.Is(ErrorNumber::KeyAlreadyExists)) throw;
      throw Error(error.Number(), error.Source(), "Range " + RangeName + " already exists on list");
    }
    return record;
  });
}

colExInputRangeList::Record colExInputRangeList::Add(const std::string& RangeName,
                                                     eRangeHeadDetailInd DetailIndicator,
                                                     eRangeDataType RangeDataType, bool IsMandatory,
                                                     const std::string& Description,
                                                     std::int16_t DataLength) {
  std::string key;
  return Add(RangeName, DetailIndicator, RangeDataType, IsMandatory, false, Description, DataLength,
             std::int16_t{0}, key, false, {}, {});
}

void colExInputRangeList::ClearList() {
  while (Count() >= 1) Remove(1);
}

void colExInputRangeList::Sort() {
  Collection<Record> sorted;
  for (const Record& record : records_.Items()) {
    const std::string& name = record->get_RangeName();
    const std::int16_t place = PlaceOf(name, sorted);
    if (place != 0) {
      sorted.AddAfter(place, record, name);
    } else if (sorted.Count() > 0) {
      sorted.AddBefore(1, record, name);
    } else {
      sorted.Add(record, name);
    }
  }
  records_ = std::move(sorted);
}

void colExInputRangeList::Append(const std::shared_ptr<colExInputRangeList>& oISESAppend,
                                 bool bOverWrite) {
  if (!oISESAppend) throw Error(ErrorNumber::ObjectVariableNotSet);
  const auto& items = oISESAppend->Records();
  // A list can be appended to itself, so its records are taken down first.
  for (const Record& record : std::vector<Record>(items.begin(), items.end())) {
    const std::string& name = record->get_RangeName();
    const auto add = [&] { records_.Add(record, name); };
    if (Attempt(add) || !bOverWrite) continue;
    Attempt([&] { records_.Remove(name); });
    Attempt(add);
  }
}

std::unique_ptr<automation::Enumerator> colExInputRangeList::Enumerate() {
  const auto& items = records_.Items();
  return std::make_unique<automation::SnapshotEnumerator>(
      std::vector<Variant>(items.begin(), items.end()));
}

const std::vector<automation::Parameter>& colExInputRangeList::AddParameters() {
  static const std::vector<automation::Parameter> parameters = {{"RangeName"},
                                                                {"DetailIndicator"},
                                                                {"RangeDataType"},
                                                                {"IsMandatory", false},
                                                                {"RangeExists", false},
                                                                {"Description", ""},
                                                                {"DataLength", std::int16_t{0}},
                                                                {"Value", std::int16_t{0}},
                                                                {"sKey", ""},
                                                                {"IsBrowseable", false},
                                                                {"BrowseColumn", ""},
                                                                {"Group", ""}};
  return parameters;
}

const MemberTable& colExInputRangeList::Members() const {
  using C = colExInputRangeList;
  using AddMember = Record (C::*)(const std::string&, eRangeHeadDetailInd, eRangeDataType, bool,
                                  bool, const std::string&, std::int16_t, const Variant&,
                                  std::string&, bool, const std::string&, const std::string&);
  static const MemberTable table =
      MemberTable::For<C>("colExInputRangeList")
          .Method(
              1, "Add", static_cast<AddMember>(&C::Add), AddParameters(),
              "Makes a range record and adds it at the end, under its name unless sKey is given.")
          .Get(0, "Item", &C::Item, {{"vntIndexKey"}}, "The record at a position or with a key.")
          .Get(2, "Count", &C::Count, "The number of records.")
          .Method(3, "Remove", &C::Remove, {{"vntIndexKey"}}, "Takes a record out.")
          .Enumerator("NewEnum")
          .Method(4, "ClearList", &C::ClearList, {}, "Takes all records out.")
          .Method(5, "Sort", &C::Sort, {}, "Puts the records in the order of their names.")
          .Method(6, "Append", &C::Append, {{"oISESAppend"}, {"bOverWrite", false}},
                  "Adds the records of another list.");
  return table;
}

}  // namespace rangewerks
