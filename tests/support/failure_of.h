// The words of the failure that an action ends with.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "apps/rangewerks/failure.h"

namespace rangewerks::tests {

/// Runs the action and returns the words of its Failure; the test fails when there is none.
template <class Action>
std::string FailureOf(const Action& action) {
  try {
    action();
  } catch (const apps::Failure& failure) {
    return failure.what();
  }
  ADD_FAILURE() << "no failure was raised";
  return {};
}

}  // namespace rangewerks::tests
