// The arguments of one call on a foreign object. Private to this folder.
#pragma once

#include <oaidl.h>
#include <windows.h>

#include <span>
#include <vector>

#include "automation/dispatch.h"

namespace rangewerks::com {

/// Lays the arguments of an invocation out as IDispatch wants them: last first, the named ones and
/// the value of a let or set in front. A reference is passed as one to a variant of its own,
/// one to a Long as that.
class OutgoingArguments {
 public:
  /// `names`: the dispatch identifiers of the named arguments, in their order.
  OutgoingArguments(const automation::Invocation& call, std::span<const DISPID> names);
  OutgoingArguments(const OutgoingArguments&) = delete;
  OutgoingArguments& operator=(const OutgoingArguments&) = delete;
  ~OutgoingArguments();

  DISPPARAMS& Parameters() noexcept { return parameters_; }
  /// Hands what the callee assigned to the caller's variables.
  void WriteBack() const;

 private:
  struct Variable {
    const automation::Argument* argument;
    VARIANT content;
  };

  void Put(const automation::Argument& argument);

  std::vector<VARIANT> values_;
  std::vector<DISPID> names_;
  std::vector<Variable> variables_;  // never grows beyond its reserve: values_ points into it
  DISPPARAMS parameters_{};
};

}  // namespace rangewerks::com
