// Errors ignored, for exactly the step that is given.
//
//   if (!Attempt([&] { area = sheet.get_Range(name); })) continue;  // not on this sheet
#pragma once

#include "automation/error.h"

namespace rangewerks {

/// Runs one step and tells whether it succeeded; its failure goes no further.
template <class Step>
bool Attempt(Step&& step) {
  try {
    step();
    return true;
  } catch (const automation::Error&) {
    return false;
  }
}

}  // namespace rangewerks
