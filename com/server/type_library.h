// The DLL's own file and the type library in it.
#pragma once

#include <oaidl.h>

#include <string>

#include "com/bridge/owners.h"

namespace rangewerks::com {

/// The full path of the DLL's file. Raises the system's failure when it can't be told.
std::wstring ModuleFile();
/// The type library in the DLL's resources. Raises the system's failure when there is none.
Pointer<ITypeLib> ModuleTypeLibrary();

}  // namespace rangewerks::com
