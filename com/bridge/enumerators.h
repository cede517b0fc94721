// Walks over collections, in both directions.
#pragma once

#include <oaidl.h>
#include <windows.h>

#include <memory>

#include "automation/dispatch.h"
#include "com/bridge/owners.h"

namespace rangewerks::com {

/// A walk over what a collection's enumerator member has answered with. Raises 451 when that is no
/// enumerator.
std::unique_ptr<automation::Enumerator> WalkOver(const VARIANT& enumerator);

/// A new enumerator over the elements of an object; it can be reset by walking the object anew, and
/// not be cloned. Raises 451 for an object that is no collection.
Pointer<IUnknown> NewEnumerator(const automation::Object& collection);

}  // namespace rangewerks::com
