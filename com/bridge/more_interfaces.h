// Interfaces that objects of one class have beside those that all have.
#pragma once

#include <windows.h>

#include <memory>

#include "automation/object.h"

namespace rangewerks::com {

/// Made when an object is first asked for an interface that not all have; goes with the object.
class MoreInterfaces {
 public:
  MoreInterfaces() = default;
  MoreInterfaces(const MoreInterfaces&) = delete;
  MoreInterfaces& operator=(const MoreInterfaces&) = delete;
  virtual ~MoreInterfaces() = default;

  /// The interface with that identifier, without a reference counted; null when there is none. Its
  /// functions of IUnknown hand on to the whole object.
  virtual IUnknown* TryFind(REFIID iid) noexcept = 0;
};

/// `whole` is the object as COM sees it, which outlives what is made and holds `core`.
using MoreInterfacesMaker = std::unique_ptr<MoreInterfaces> (*)(IUnknown& whole,
                                                                const automation::Object& core);

}  // namespace rangewerks::com
