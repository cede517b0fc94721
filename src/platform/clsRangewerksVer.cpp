#include "platform/clsRangewerksVer.h"

namespace rangewerks {

std::string clsRangewerksVer::get_RangewerksVer() const {
  if (!system_) throw automation::Error(automation::ErrorNumber::FileNotFound);
  std::string name = system_->LibraryFile();
  name.erase(0, name.find_last_of("/\\") + 1);
  return name.substr(0, name.rfind('.')) + ": " RANGEWERKS_VERSION;
}

const automation::MemberTable& clsRangewerksVer::Members() const {
  static const automation::MemberTable table =
      automation::MemberTable::For<clsRangewerksVer>("clsRangewerksVer")
          .Get(1, "RangewerksVer", &clsRangewerksVer::get_RangewerksVer,
               "The library's file and version.");
  return table;
}

}  // namespace rangewerks
