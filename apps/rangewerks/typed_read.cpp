#include "apps/rangewerks/typed_read.h"

#include <utility>

namespace rangewerks::apps {

namespace {

using List = clsInterfaceRangeList;

template <class Value>
bool ReadInto(List& list, bool (List::*read)(const std::string&, Value&, std::int32_t),
              const std::string& range, std::int32_t row, automation::Variant& value) {
  Value typed{};
  const bool found = (list.*read)(range, typed, row);
  value = std::move(typed);
  return found;
}

}  // namespace

bool ReadTyped(List& list, const std::string& range, eRangeDataType type, std::int32_t row,
               automation::Variant& value) {
  switch (type) {
    case rdtDouble:
      return ReadInto<double>(list, &List::GetValRange, range, row, value);
    case rdtDate:
      return ReadInto<automation::Date>(list, &List::GetDateRange, range, row, value);
    case rdtInteger:
      return ReadInto<std::int16_t>(list, &List::GetIntRange, range, row, value);
    case rdtYesNo:
      return ReadInto<bool>(list, &List::GetYNRange, range, row, value);
    case rdtString:
      break;
  }
  return ReadInto<std::string>(list, &List::GetStrRange, range, row, value);
}

}  // namespace rangewerks::apps
