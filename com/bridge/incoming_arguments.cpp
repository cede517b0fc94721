#include "com/bridge/incoming_arguments.h"

#include "com/bridge/values.h"

namespace rangewerks::com {

using automation::Argument;

IncomingArguments::IncomingArguments(const DISPPARAMS& parameters,
                                     const std::function<automation::Member(DISPID)>& nameOf) {
  positional.reserve(parameters.cArgs);
  for (UINT i = parameters.cArgs; i > parameters.cNamedArgs; --i) {
    positional.push_back(Take(parameters.rgvarg[i - 1]));
  }
  for (UINT i = 0; i < parameters.cNamedArgs; ++i) {
    const DISPID name = parameters.rgdispidNamedArgs[i];
    if (name == DISPID_PROPERTYPUT) {
      positional.push_back(Take(parameters.rgvarg[i]));
    } else {
      named.push_back({nameOf(name), Take(parameters.rgvarg[i])});
    }
  }
}

Argument IncomingArguments::Take(const VARIANT& value) {
  automation::Variant content = FromVariant(value);
  if ((V_VT(&value) & VT_BYREF) == 0 || content.IsMissing()) return Argument(std::move(content));
  Variable& variable = variables_.emplace_back(Variable{&value, content, std::move(content)});
  return Argument::Reference(variable.content);
}

void IncomingArguments::WriteBack() const {
  for (const Variable& variable : variables_) {
    if (!(variable.content == variable.before))
      AssignThrough(*variable.reference, variable.content);
  }
}

}  // namespace rangewerks::com
