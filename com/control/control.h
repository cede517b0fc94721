// A form as a control that other programs put on their own forms (an ActiveX control).
//
// The object of the control's class is the control: its members are those of the class, and what a
// container asks of a control comes beside them, from what MakeControl makes.
#pragma once

#include <windows.h>

#include <memory>
#include <string>
#include <vector>

#include "automation/object.h"
#include "com/bridge/more_interfaces.h"
#include "com/control/control_form.h"

namespace rangewerks::com {

struct ControlDescription {
  CLSID classId{};
  std::wstring name{};  ///< as people see it
  /// The properties that are stored with the container's document, 32-bit numbers all.
  std::vector<automation::Member> properties{};
  /// Called when they have been read from there, to show them.
  automation::Member shownBy;
};

/// How a container should treat such controls: the flags of OLEMISC.
extern const DWORD kControlStatus;

/// What a container asks of a control: IOleObject, IOleInPlaceObject, IOleInPlaceActiveObject,
/// IOleControl, IViewObject2, IPersistStreamInit and IPersistPropertyBag. `core` is the object with
/// the stored properties, `form` the form of its window, which lives as long as `core`.
std::unique_ptr<MoreInterfaces> MakeControl(IUnknown& whole, const automation::Object& core,
                                            ControlForm& form, ControlDescription description);

}  // namespace rangewerks::com
