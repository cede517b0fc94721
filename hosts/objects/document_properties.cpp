#include "hosts/objects/document_properties.h"

namespace rangewerks::hosts::objects {
namespace {

using automation::CallKind;
using automation::Member;

const Member kItem{"Item"};

}  // namespace

// --- all of a workbook ---------------------------------------------------------------------------

const MemberTable& DocumentProperties::Members() const {
  using C = DocumentProperties;
  static const MemberTable table =
      MemberTable::For<C>("DocumentProperties")
          .Get(0, "Item", &C::GetItem, {"Index"}, "The property of a name or at a position.")
          .Get(1, "Count", &C::GetCount, "Number of properties.")
          .Method(2, "Add", &C::Add,
                  {"Name", "LinkToContent", Optional("Type"), Optional("Value"),
                   Optional("LinkSource")},
                  "A new property at the end.")
          .Get(3, "Parent", &C::GetParent, "The workbook.")
          .Get(4, "Application", &C::GetApplication, "The application.");
  return table;
}

Variant DocumentProperties::Carry(const Invocation& call) {
  const bool isItem = call.member == kItem || call.member == Member::Default();
  if (call.kind == CallKind::Let && isItem && call.positional.size() == 2) {
    // `properties("Name") = value` writes the value of that property.
    const Variant property = GetItem(call.positional.front().Value());
    property.AsObject().As<DocumentProperty>()->LetValue(call.positional.back().Value());
    return {};
  }
  return HostObject::Carry(call);
}

Variant DocumentProperties::Add(const std::string& name, bool linkToContent, const Variant& type,
                                const Variant& value, const Variant& /*linkSource*/) {
  if (linkToContent) Refuse("The document property \"" + name + "\" can't be linked to content");
  if (type.IsMissing() || value.IsMissing()) {
    Refuse("The document property \"" + name + "\" needs a Type and a Value");
  }
  return AddProperty(name, LongArgument(type), value);
}

// --- one of them ---------------------------------------------------------------------------------

const MemberTable& DocumentProperty::Members() const {
  using C = DocumentProperty;
  static const MemberTable table =
      MemberTable::For<C>("DocumentProperty")
          .Get(0, "Value", &C::GetValue, "What it holds.")
          .Let(0, "Value", &C::LetValue, "Gives it another value, converted to its type.")
          .Get(1, "Name", &C::GetName, "The name.")
          .Get(2, "Type", &C::GetType,
               "1 a whole number, 2 a boolean, 3 a date, 4 a text, 5 a number with decimals.")
          .Get(3, "LinkToContent", &C::GetLinkToContent, "Always false.")
          .Method(4, "Delete", &C::Delete, {}, "Removes the property.")
          .Get(5, "Parent", &C::GetParent, "The collection.")
          .Get(6, "Application", &C::GetApplication, "The application.");
  return table;
}

Variant DocumentProperty::GetLinkToContent() const { return false; }

}  // namespace rangewerks::hosts::objects
