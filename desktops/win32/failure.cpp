#include "desktops/win32/failure.h"

#include <windows.h>

#include <string>

namespace rangewerks::desktops {

automation::Error WindowRefused() {
  return {automation::ErrorNumber::ApplicationDefined,
          "A window can't be made (Windows error " + std::to_string(GetLastError()) + ")"};
}

}  // namespace rangewerks::desktops
