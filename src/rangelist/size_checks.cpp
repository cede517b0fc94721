// Whether parallel detail columns have the height that they must have.
#include "rangelist/ExcelFunctions.h"
#include "rangelist/clsInterfaceRangeList.h"

namespace rangewerks {

using automation::Error;
using automation::kApplicationErrorBase;

bool clsInterfaceRangeList::CheckRangeSize(const std::string& sRngName,
                                           std::int32_t lCheckAgainstSize,
                                           std::int32_t& lSizeInvalidRange) {
  return Procedure("CheckRangeSize of Class Module clsInterfaceRangeList Line#:", [&](Line& at) {
    lSizeInvalidRange = -1;
    at();
    if (!RangeExists(sRngName)) return true;
    at();
    const std::int32_t rows = GetRange(sRngName).get_Rows().get_Count();
    if (rows == lCheckAgainstSize) return true;
    lSizeInvalidRange = rows;
    return false;
  });
}

namespace {

/// A failure to measure any range of the group is reported as its master missing.
template <class Measure>
std::int32_t Measured(const std::string& master, const Measure& measure) {
  try {
    return measure();
  } catch (const Error& error) {
    throw Error(kApplicationErrorBase, error.Source(), "Range " + master + " is missing");
  }
}

}  // namespace

void clsInterfaceRangeList::CheckGroupSizes(const std::string& sRngName) const {
  Procedure("CheckGroupSizes of Class Module clsInterfaceRangeList Line#:", [&](Line& at) {
    at();
    const std::int32_t masterSize =
        Measured(sRngName, [&] { return GetRange(sRngName).get_Rows().get_Count(); });
    for (const Record& record : ranges_->Records()) {
      if (record->get_GroupRange() != sRngName || !record->get_RangeExists()) continue;
      at();
      CheckMemberSize(*record, sRngName, masterSize);
    }
  });
}

void clsInterfaceRangeList::CheckMemberSize(const clsExInputRange& member,
                                            const std::string& master,
                                            std::int32_t masterSize) const {
  const std::string& name = member.get_RangeName();
  const std::int32_t size = Measured(master, [&] { return GetRange(name).get_Rows().get_Count(); });
  if (size == masterSize || (member.get_BecomeHeader() && size == 1)) return;
  throw Error(kApplicationErrorBase, {},
              "Range " + name + " has size " + std::to_string(size) +
                  " which is different from range " + master + ", size (" +
                  std::to_string(masterSize) + ")");
}

bool clsInterfaceRangeList::ValidateRanges() {
  return Procedure("ValidateRanges of Class Module clsInterfaceRangeList Line#:", [&](Line& at) {
    at();
    return ExcelFunctions::ValidateRanges(Self().As<clsInterfaceRangeList>(), actSheet_);
  });
}

}  // namespace rangewerks
