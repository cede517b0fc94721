// Objects between the library and COM. One object has one identity on the other side for as long as
// anybody holds it there, and one that travels out and back is the same object again.
#pragma once

#include <oaidl.h>
#include <windows.h>

#include "automation/object.h"
#include "com/bridge/owners.h"

namespace rangewerks::com {

using automation::Object;

/// The object behind an interface pointer; none for null. An object without IDispatch can be held
/// and given back, but has no members.
Object FromUnknown(IUnknown* object);

/// The object as IDispatch: the caller's own interface for one that came from outside, the dual
/// interface for one whose class is published, late binding alone for others. None for no object.
Pointer<IDispatch> ToDispatch(const Object& object);
/// The same for an object that may lack IDispatch.
Pointer<IUnknown> ToUnknown(const Object& object);

}  // namespace rangewerks::com
