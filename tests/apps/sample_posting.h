// A small posting with everything that an output has to show.
#pragma once

#include "apps/rangewerks/posting_read.h"
#include "automation/conversions.h"

namespace rangewerks::tests {

/// Two header ranges and one that is missing, three detail ranges and two rows, two bad cells, one
/// of them without a place.
inline apps::PostingRead SamplePosting() {
  using namespace apps;
  using automation::Variant;
  const auto range = [](const char* name, eRangeDataType type, RangeUse use, const char* address,
                        std::int32_t rows) {
    FoundRange found;
    found.name = name;
    found.lookedForAs = std::string("_2024_Q1__") + name;
    found.type = type;
    found.use = use;
    found.exists = rows > 0;
    found.actsAsHeader = use == RangeUse::Header;
    found.address = address;
    found.rows = rows;
    return found;
  };
  const auto read = [](Variant value) { return ReadValue{true, std::move(value), {}}; };

  PostingRead posting;
  posting.sheet = "2024 Q1";
  posting.usingSheetRangeNames = true;
  posting.namesBeginWith = "_2024_Q1__";
  posting.ranges = {range("batch", rdtString, RangeUse::Header, "B1", 1),
                    range("posting_date", rdtDate, RangeUse::Header, "B2", 1),
                    range("project", rdtString, RangeUse::Header, "", 0),
                    range("details", rdtString, RangeUse::Detail, "A5:A6", 2),
                    range("amount", rdtDouble, RangeUse::Detail, "B5:B6", 2),
                    range("reverse", rdtYesNo, RangeUse::Detail, "C5", 1)};
  posting.ranges[2].isMandatory = true;
  posting.headers = {0, 1, 2};
  posting.details = {3, 4, 5};
  posting.header = {read("JNL-7"), read(automation::DateOf(2024, 1, 31)), {}};
  posting.rows = {{1, {read("Rent, \"Q1\""), read(1250.5), read(true)}},
                  {2, {{false, {}, 1}, {false, {}, 0}, {}}}};
  posting.badCells = {
      {"amount", 2, "B6", "12,5x", -2147216004, "Invalid data in range 'Amount' (amount)",
       "GetValRange of Class Module clsInterfaceRangeList Line#:12"},
      {"details", 2, "", "", 1004, "The cell is\r\nlocked", "Host"}};
  return posting;
}

}  // namespace rangewerks::tests
