#include "platform/system.h"

#include <ctime>

#include "automation/conversions.h"

namespace rangewerks::platform {

automation::Date System::Now() const {
  const std::time_t now = std::time(nullptr);
  const std::tm local = *std::localtime(&now);
  const automation::Date day =
      automation::DateOf(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday);
  const int seconds = (local.tm_hour * 60 + local.tm_min) * 60 + local.tm_sec;
  return {day.serial + seconds / 86400.0};
}

}  // namespace rangewerks::platform
