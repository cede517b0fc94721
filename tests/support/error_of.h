// The error that an action raises.
#pragma once

#include <gtest/gtest.h>

#include "automation/error.h"

namespace rangewerks::tests {

/// Runs the action and returns the error that leaves it; the test fails when none does.
template <class Action>
automation::Error ErrorOf(const Action& action) {
  try {
    action();
  } catch (const automation::Error& error) {
    return error;
  }
  ADD_FAILURE() << "no error was raised";
  return {0, "", ""};
}

}  // namespace rangewerks::tests
