#include "com/bridge/outgoing_arguments.h"

#include <algorithm>

#include "com/bridge/values.h"

namespace rangewerks::com {

using automation::Argument;

OutgoingArguments::OutgoingArguments(const automation::Invocation& call,
                                     std::span<const DISPID> names) {
  const std::size_t count = call.positional.size() + call.named.size();
  values_.reserve(count);
  const auto isReference = [](const Argument& each) { return each.IsReference(); };
  auto references = std::count_if(call.positional.begin(), call.positional.end(), isReference);
  for (const auto& each : call.named) references += isReference(each.argument) ? 1 : 0;
  variables_.reserve(static_cast<std::size_t>(references));

  auto positional = call.positional;
  if (Writes(call.kind) && !positional.empty()) {
    names_.push_back(DISPID_PROPERTYPUT);
    Put(positional.back());
    positional = positional.first(positional.size() - 1);
  }
  for (const auto& each : call.named) Put(each.argument);
  names_.insert(names_.end(), names.begin(), names.end());
  for (auto each = positional.rbegin(); each != positional.rend(); ++each) Put(*each);

  parameters_.rgvarg = values_.data();
  parameters_.cArgs = static_cast<UINT>(values_.size());
  parameters_.rgdispidNamedArgs = names_.data();
  parameters_.cNamedArgs = static_cast<UINT>(names_.size());
}

OutgoingArguments::~OutgoingArguments() {
  for (VARIANT& value : values_) VariantClear(&value);
  for (Variable& variable : variables_) VariantClear(&variable.content);
}

void OutgoingArguments::Put(const Argument& argument) {
  VARIANT& value = values_.emplace_back();
  VariantInit(&value);
  if (!argument.IsReference() || argument.IsOmitted()) return ToVariant(argument.Value(), value);
  Variable& variable = variables_.emplace_back(Variable{&argument, {}});
  VariantInit(&variable.content);
  ToVariant(argument.Value(), variable.content);
  if (V_VT(&variable.content) == VT_I4) {
    // A member that is declared with a Long takes a reference to one, but none to a variant.
    V_VT(&value) = VT_BYREF | VT_I4;
    V_I4REF(&value) = &V_I4(&variable.content);
    return;
  }
  V_VT(&value) = VT_BYREF | VT_VARIANT;
  V_VARIANTREF(&value) = &variable.content;
}

void OutgoingArguments::WriteBack() const {
  for (const Variable& variable : variables_) {
    variable.argument->Assign(FromVariant(variable.content));
  }
}

}  // namespace rangewerks::com
