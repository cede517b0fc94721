// The colour panel as a control of other programs' forms.
#pragma once

#include "automation/object.h"
#include "com/bridge/more_interfaces.h"

namespace rangewerks::com {

/// A new one, on a desktop of its own: a thread that has none of ours may make it.
automation::Object MakeColourPallet();

/// What a container asks of it.
std::unique_ptr<MoreInterfaces> ControlOfColourPallet(IUnknown& whole,
                                                      const automation::Object& core);

}  // namespace rangewerks::com
