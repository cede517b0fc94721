// What one in-process server gives out. The library behind this header has the four entry points,
// the class objects and the registration; a DLL says in TheServer() what it serves:
//
//   const Server& TheServer() {
//     static const Server server = {
//         {{__uuidof(::Thing), L"Product.Thing", L"A thing", [] { return Object(...); }}}, true};
//     return server;
//   }
#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "automation/object.h"

namespace rangewerks::com {

inline constexpr int kToolboxBitmap = 101;

/// A class that a client can create.
struct ServedClass {
  CLSID id;
  std::wstring progId;
  std::wstring name;  ///< as people see it
  automation::Object (*create)();
  /// For a control, how a container should treat it: the flags of OLEMISC. 0 for other classes. The
  /// bitmap of a control for toolboxes is the DLL's resource kToolboxBitmap.
  DWORD controlStatus = 0;
};

struct Server {
  std::vector<ServedClass> classes;
  /// Whether the DLL holds a type library, which is then registered with the classes.
  bool hasTypeLibrary = false;
  /// Called once, before the first object is given out; not while the DLL is being loaded, so it
  /// may call anything. When it throws, the request fails and the next one calls it again.
  void (*prepare)() = nullptr;
};

/// Defined by each DLL.
const Server& TheServer();

}  // namespace rangewerks::com
