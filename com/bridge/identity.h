// Which foreign objects are known already. Private to this folder.
#pragma once

#include <windows.h>

namespace rangewerks::com {

/// Called when the last reference to a foreign object goes.
void ForgetForeign(IUnknown* identity);

}  // namespace rangewerks::com
