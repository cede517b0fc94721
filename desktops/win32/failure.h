// The failure of Windows to give a window. Private to this folder's sources.
#pragma once

#include "automation/error.h"

namespace rangewerks::desktops {

/// An application-defined error that tells what Windows has said last.
automation::Error WindowRefused();

}  // namespace rangewerks::desktops
