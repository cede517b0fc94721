// Blocks of values between the library's Array and COM's SAFEARRAY. Private to this folder.
#pragma once

#include <oaidl.h>
#include <windows.h>

#include <cstddef>

#include "automation/variant.h"

namespace rangewerks::com {

/// Bytes of one value of a type, such as 8 for VT_R8. Raises 13 for a type that no variable has.
std::size_t SizeOfElement(VARTYPE type);

automation::Variant FromSafeArray(SAFEARRAY* array, VARTYPE elementType);
/// A new array of variants, which the caller destroys.
SAFEARRAY* ToSafeArray(const automation::Array& block);

}  // namespace rangewerks::com
