#include "apps/rangewerks/sheet_ranges.h"

#include <algorithm>

#include "errors/attempt.h"
#include "rangelist/ExcelFunctions.h"

namespace rangewerks::apps {

namespace {

/// In single quotes, as addresses have it.
std::string QuotedSheet(const std::string& name) {
  std::string quoted = "'";
  for (const char each : name) {
    if (each == '\'') quoted += each;
    quoted += each;
  }
  return quoted + '\'';
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

/// What stands in front of the names by which SetIfRangesExist knows the ranges: unlike those of
/// FullRangeName they have the prefix under the plain scheme too.
std::string NamesBeginWith(const clsInterfaceRangeList& list, const std::string& sheet) {
  const std::string& prefix = list.get_RangePrefix();
  return list.get_UsingSheetRangeNames() ? ExcelFunctions::RangeNameMultiTab(sheet, prefix)
                                         : prefix;
}

FoundRange Described(const clsInterfaceRangeList& list, const clsExInputRange& record,
                     const SheetRanges& on) {
  FoundRange range;
  range.name = record.get_RangeName();
  range.lookedForAs = on.namesBeginWith + range.name;
  range.type = record.get_RangeDataType();
  range.decimalPlaces = record.get_DecimalPlaces();
  range.isMandatory = record.get_IsMandatory();
  range.use = UseOf(record);
  range.actsAsHeader = range.use == RangeUse::Header;
  range.exists = record.get_RangeExists();
  if (range.exists) {
    // A range that counts as there may have no area all the same; reading it then says why.
    Attempt([&] {
      const excel::Range area = list.GetRange(range.name);
      range.rows = area.get_Rows().get_Count();
      range.address = ShownAddress(area, on.sheet);
    });
  }
  return range;
}

}  // namespace

bool SheetRanges::AnyRangeExists() const {
  return std::ranges::any_of(ranges, &FoundRange::exists);
}

SheetRanges LocateRanges(clsInterfaceRangeList& list, const excel::Worksheet& sheet) {
  list.set_ActSheet(sheet);
  list.let_SheetRangeNames(list.get_SheetRangeNames());  // what an earlier sheet has put in force
  list.SetIfRangesExist();
  SheetRanges found;
  found.sheet = sheet.get_Name();
  found.usingSheetRangeNames = list.get_UsingSheetRangeNames();
  found.namesBeginWith = NamesBeginWith(list, found.sheet);
  for (std::int32_t index = 1; index <= list.Count(); ++index) {
    found.ranges.push_back(Described(list, *list.Item(index), found));
  }
  return found;
}

std::string ShownAddress(const excel::Range& area, const std::string& sheet) {
  std::string address = area.get_Address();
  std::erase(address, '$');
  const std::string place = area.get_Parent().get_Name();
  return place == sheet ? address : QuotedSheet(place) + '!' + address;
}

}  // namespace rangewerks::apps
