#include "hosts/workbook/document_properties.h"

#include "hosts/workbook/failure.h"

namespace rangewerks::hosts::workbook {
namespace {

using automation::CallKind;
using automation::Member;

const Member kItem{"Item"};

}  // namespace

// --- all of a workbook ---------------------------------------------------------------------------

DocumentProperties::DocumentProperties(SessionPointer session, Book* book)
    : ModelObject(std::move(session)), book_(book) {}

const MemberTable& DocumentProperties::Members() const {
  using C = DocumentProperties;
  static const MemberTable table =
      MemberTable::For<C>("DocumentProperties")
          .Get(0, "Item", &C::GetItem, {"Index"}, "The property of a name or at a position.")
          .Get(1, "Count", &C::GetCount, "Number of properties.")
          .Method(2, "Add", &C::Add,
                  {"Name", "LinkToContent", Optional("Type"), Optional("Value"),
                   Optional("LinkSource")},
                  "A new property at the end.");
  return table;
}

Variant DocumentProperties::Carry(const Invocation& call) {
  const bool isItem = call.member == kItem || call.member == Member::Default();
  if (call.kind == CallKind::Let && isItem && call.positional.size() == 2) {
    LetItem(call.positional.front().Value(), call.positional.back().Value());
    return {};
  }
  return ModelObject::Carry(call);
}

DocumentPropertyPointer DocumentProperties::Find(const Variant& index) const {
  const auto& properties = book_->properties;
  if (const auto* name = index.TryGet<std::string>()) {
    auto property = FindProperty(properties, *name);
    if (!property) {
      RefuseElement("Workbook \"" + book_->name + "\" has no document property \"" + *name + "\"");
    }
    return property;
  }
  const std::int32_t position = LongArgument(index);
  if (position < 1 || static_cast<std::size_t>(position) > properties.size()) {
    RefuseElement("Workbook \"" + book_->name + "\" has no document property number " +
                  std::to_string(position) + " among its " + std::to_string(properties.size()));
  }
  return properties[static_cast<std::size_t>(position) - 1];
}

Variant DocumentProperties::Face(const DocumentPropertyPointer& property) const {
  return std::make_shared<DocumentProperty>(Shared(), book_, property);
}

Variant DocumentProperties::GetItem(const Variant& index) const { return Face(Find(index)); }

void DocumentProperties::LetItem(const Variant& index, const Variant& value) const {
  PutProperty(*Find(index), value);
}

Variant DocumentProperties::GetCount() const {
  return static_cast<std::int32_t>(book_->properties.size());
}

Variant DocumentProperties::Add(const std::string& name, bool linkToContent, const Variant& type,
                                const Variant& value, const Variant& /*linkSource*/) {
  if (linkToContent) Refuse("The document property \"" + name + "\" can't be linked to content");
  if (type.IsMissing() || value.IsMissing()) {
    Refuse("The document property \"" + name + "\" needs a Type and a Value");
  }
  return Face(AddProperty(book_->properties, name, LongArgument(type), value));
}

std::unique_ptr<Enumerator> DocumentProperties::Walk() {
  std::vector<Variant> properties;
  for (const auto& property : book_->properties) properties.push_back(Face(property));
  return std::make_unique<automation::SnapshotEnumerator>(std::move(properties));
}

// --- one of them ---------------------------------------------------------------------------------

DocumentProperty::DocumentProperty(SessionPointer session, Book* book,
                                   DocumentPropertyPointer property)
    : ModelObject(std::move(session)), book_(book), property_(std::move(property)) {}

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
          .Method(4, "Delete", &C::Delete, {}, "Removes the property.");
  return table;
}

void DocumentProperty::RequireAlive() const {
  if (property_->deleted) {
    Refuse("The document property \"" + property_->name + "\" has been deleted");
  }
}

Variant DocumentProperty::GetValue() const { return property_->value; }
void DocumentProperty::LetValue(const Variant& value) { PutProperty(*property_, value); }
Variant DocumentProperty::GetName() const { return property_->name; }
Variant DocumentProperty::GetType() const { return static_cast<std::int32_t>(property_->type); }
Variant DocumentProperty::GetLinkToContent() const { return false; }

void DocumentProperty::Delete() {
  std::erase(book_->properties, property_);
  property_->deleted = true;
}

}  // namespace rangewerks::hosts::workbook
