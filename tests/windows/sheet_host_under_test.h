// SheetHost.dll as the library sees it from another module: every call goes out and comes in
// through IDispatch.
#pragma once

#include "automation/object.h"

namespace rangewerks::tests {

/// A new program of the DLL, loaded from where it was built, without the registry.
automation::Object NewSheetHost();

}  // namespace rangewerks::tests
