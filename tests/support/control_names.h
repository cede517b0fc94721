// The controls of a form by name.
#pragma once

#include <string>
#include <vector>

#include "forms/control.h"

namespace rangewerks::tests {

/// The names of what stands on a form or panel, in the tab order.
inline std::vector<std::string> ControlNames(const forms::Container& container) {
  std::vector<std::string> names;
  for (const forms::Control* control : container.Children()) names.push_back(control->get_Name());
  return names;
}

}  // namespace rangewerks::tests
