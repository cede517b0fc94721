// The arguments of one call that comes in through IDispatch. Private to this folder.
#pragma once

#include <oaidl.h>
#include <windows.h>

#include <deque>
#include <functional>
#include <vector>

#include "automation/dispatch.h"

namespace rangewerks::com {

/// Turns the caller's arguments, last first and perhaps by reference, into those of an invocation.
class IncomingArguments {
 public:
  /// `nameOf` tells the parameter behind a named argument's identifier. Raises 13 for an argument
  /// that has no counterpart, and what `nameOf` raises.
  IncomingArguments(const DISPPARAMS& parameters,
                    const std::function<automation::Member(DISPID)>& nameOf);

  std::vector<automation::Argument> positional;  ///< with the value of a let or set at the end
  std::vector<automation::NamedArgument> named;

  /// Gives the caller's variables what the callee assigned; variables that weren't assigned to keep
  /// their content and its kind. Raises 13 for what a variable can't take.
  void WriteBack() const;

 private:
  struct Variable {
    const VARIANT* reference;
    automation::Variant before;
    automation::Variant content;
  };

  automation::Argument Take(const VARIANT& value);

  std::deque<Variable> variables_;  // never moves its elements: the arguments point into it
};

}  // namespace rangewerks::com
