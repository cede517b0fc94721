// The ordered, keyed collection of declared ranges.
#pragma once

#include <cstdint>
#include <deque>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "automation/collection.h"
#include "automation/member_table.h"
#include "model/clsExInputRange.h"
#include "model/enumerations.h"

namespace rangewerks {

/// Records in list order. Keys are unique and compared without regard to case. Records are held by
/// reference: one that stands on two lists is one object.
class colExInputRangeList final : public automation::AutomationClass {
 public:
  using Variant = automation::Variant;
  using Record = std::shared_ptr<clsExInputRange>;

  const automation::MemberTable& Members() const override;
  std::unique_ptr<automation::Enumerator> Enumerate() override;

  /// Makes a record and adds it at the end under `sKey`, or under its name when `sKey` is empty,
  /// which then is what `sKey` holds afterwards. Raises 457 when the key exists.
  Record Add(const std::string& RangeName, eRangeHeadDetailInd DetailIndicator,
             eRangeDataType RangeDataType, bool IsMandatory, bool RangeExists,
             const std::string& Description, std::int16_t DataLength, const Variant& Value,
             std::string& sKey, bool IsBrowseable, const std::string& BrowseColumn,
             const std::string& Group);
  /// The same with every optional argument left out but those given.
  Record Add(const std::string& RangeName, eRangeHeadDetailInd DetailIndicator,
             eRangeDataType RangeDataType, bool IsMandatory = false,
             const std::string& Description = {}, std::int16_t DataLength = 0);

  /// The record at a 1-based position or with a key. Raises 9 or 5 when there is none.
  Record Item(const Variant& vntIndexKey) const { return records_.At(vntIndexKey); }
  std::int32_t Count() const { return records_.Count(); }
  /// Takes a record out; fails as Item does.
  void Remove(const Variant& vntIndexKey) { records_.Remove(vntIndexKey); }
  /// Takes all records out.
  void ClearList();
  /// Puts the records in ascending order of their names, without regard to case; from then on each
  /// is found by its name alone. Raises 457 when two have the same name; the list then stays as it
  /// was.
  void Sort();
  /// Adds the records of another list, the same objects, under their names. A name that is already
  /// there is passed over, or with `bOverWrite` replaced, the new record standing last.
  void Append(const std::shared_ptr<colExInputRangeList>& oISESAppend, bool bOverWrite = false);

  /// The names and defaults of Add's arguments, which the range list's own Add shares.
  static const std::vector<automation::Parameter>& AddParameters();

  /// The record with that key, or null.
  Record TryItem(std::string_view key) const {
    const Record* record = records_.TryAt(key);
    return record != nullptr ? *record : nullptr;
  }
  /// The records in list order, for a loop that doesn't change the list.
  const std::deque<Record>& Records() const { return records_.Items(); }

 private:
  automation::Collection<Record> records_;
};

}  // namespace rangewerks
