// Listening to the events of foreign objects. Private to this folder.
#pragma once

#include <oaidl.h>
#include <windows.h>

#include "automation/dispatch.h"
#include "com/bridge/owners.h"

namespace rangewerks::com {

/// Connects a handler to the default source interface of an object's class. Arguments that the
/// object passes by reference can be assigned to. Raises 459 when the object has no events or
/// doesn't tell their names.
automation::Connection ConnectSink(const Pointer<IUnknown>& object,
                                   const Pointer<IDispatch>& dispatch,
                                   automation::EventHandler handler);

}  // namespace rangewerks::com
