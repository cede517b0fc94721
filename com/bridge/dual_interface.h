// How objects of a published class appear to COM: the dual interface of the type library. Its
// virtual table is made from the list of its methods, each slot carrying its call to the entry of
// the same position in the class's member table.
//
//   Publish(MakeDualInterface<_Thing, &_Thing::get_Name, &_Thing::put_Name, &_Thing::Add>("Thing"),
//           library);
#pragma once

#include <oaidl.h>
#include <windows.h>

#include <string>
#include <utility>
#include <vector>

#include "com/bridge/dual_slots.h"
#include "com/bridge/more_interfaces.h"
#include "com/bridge/owners.h"

namespace rangewerks::com {

struct DualInterface {
  std::string className;
  IID iid;
  std::vector<const void*> slots;  ///< with those of IDispatch in front
  MoreInterfacesMaker more = nullptr;

  // From the type library:
  Pointer<ITypeInfo> members;  ///< the interface as callers that bind late see it
  Pointer<ITypeInfo> type;     ///< the class
  Pointer<ITypeInfo> source;   ///< its default source interface, or none
};

/// The dual interface of the class with that name. `Members` are the methods of the interface in
/// the order of its slots, and as many as the member table has entries.
template <class Interface, auto... Members>
DualInterface MakeDualInterface(std::string className) {
  auto slots = DispatchSlots();
  AppendSlots<Members...>(slots, std::make_index_sequence<sizeof...(Members)>());
  return {std::move(className), __uuidof(Interface), std::move(slots), nullptr, {}, {}, {}};
}

/// From now on objects of that class have the interface, and the type information that `library`
/// gives it. Raises the library's failure when it doesn't describe it.
void Publish(DualInterface dual, ITypeLib& library);

/// The interface of the class with that name, or null when it isn't published.
const DualInterface* PublishedInterface(const std::string& className);

}  // namespace rangewerks::com
