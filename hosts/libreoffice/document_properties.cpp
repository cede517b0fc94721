#include "hosts/libreoffice/document_properties.h"

#include "hosts/libreoffice/application.h"
#include "hosts/libreoffice/failure.h"
#include "hosts/libreoffice/workbook.h"

namespace rangewerks::hosts::libreoffice {

DocumentProperties::DocumentProperties(SessionPointer session, BookPointer book)
    : OfficeObject(std::move(session)), book_(std::move(book)) {}

const MemberTable& DocumentProperties::Members() const {
  static const MemberTable table =
      MemberTable::For<DocumentProperties>("DocumentProperties")
          .Get(0, "Item", &DocumentProperties::GetItem, {"Index"},
               "The property of that name or at that position.")
          .Get(1, "Count", &DocumentProperties::GetCount, "Number of properties.")
          .Method(2, "Add", &DocumentProperties::Add,
                  {"Name", "LinkToContent", Optional("Type"), Optional("Value")},
                  "Adds a property; its type is 1 number, 2 boolean, 3 date, 4 text, 5 float.")
          .Get(3, "Parent", &DocumentProperties::GetParent, "The workbook.")
          .Get(4, "Application", &DocumentProperties::GetApplication, "The application.");
  return table;
}

Variant DocumentProperties::ElementOf(const std::string& name) const {
  return std::make_shared<DocumentProperty>(Office(), book_, name);
}

Variant DocumentProperties::GetItem(const Variant& index) const {
  const UserProperties properties(*book_);
  if (const auto* given = index.TryGet<std::string>()) {
    const auto name = properties.Find(*given);
    if (!name) {
      Fail("Workbook \"" + book_->Name() + "\" has no document property \"" + *given + "\"");
    }
    return ElementOf(*name);
  }
  const std::int32_t position = LongArgument(index);
  const std::vector<std::string> names = properties.Names();
  if (position < 1 || static_cast<std::size_t>(position) > names.size()) {
    Fail("Workbook \"" + book_->Name() + "\" has no document property number " +
         std::to_string(position) + " among its " + std::to_string(names.size()));
  }
  return ElementOf(names[static_cast<std::size_t>(position) - 1]);
}

Variant DocumentProperties::GetCount() const {
  return static_cast<std::int32_t>(UserProperties(*book_).Names().size());
}

Variant DocumentProperties::Add(const Variant& name, bool linkToContent, const Variant& type,
                                const Variant& value) {
  const std::string text = TextArgument(name);
  if (linkToContent) {
    Fail("The document property \"" + text +
         "\" can't be linked to cells: LibreOffice has no "
         "such properties");
  }
  if (type.IsMissing() || value.IsMissing()) {
    Fail("The document property \"" + text + "\" needs a type and a value");
  }
  UserProperties(*book_).Add(text, LongArgument(type), value);
  return ElementOf(text);
}

std::unique_ptr<Enumerator> DocumentProperties::Walk() {
  std::vector<Variant> elements;
  for (const std::string& name : UserProperties(*book_).Names()) {
    elements.push_back(ElementOf(name));
  }
  return std::make_unique<automation::SnapshotEnumerator>(std::move(elements));
}

Variant DocumentProperties::GetParent() const { return Workbook::Of(Office(), book_); }
Variant DocumentProperties::GetApplication() const { return Application::Of(Office()); }

DocumentProperty::DocumentProperty(SessionPointer session, BookPointer book, std::string name)
    : OfficeObject(std::move(session)), book_(std::move(book)), name_(std::move(name)) {}

const MemberTable& DocumentProperty::Members() const {
  static const MemberTable table =
      MemberTable::For<DocumentProperty>("DocumentProperty")
          .Get(0, "Value", &DocumentProperty::GetValue, "What the property holds.")
          .Let(0, "Value", &DocumentProperty::LetValue,
               "Gives the property a value, converted to its type.")
          .Get(1, "Name", &DocumentProperty::GetName, "The name.")
          .Get(2, "Type", &DocumentProperty::GetType, "What kind of value it holds.")
          .Get(3, "LinkToContent", &DocumentProperty::GetLinkToContent, "False.")
          .Method(4, "Delete", &DocumentProperty::Delete, {}, "Removes the property.")
          .Get(5, "Parent", &DocumentProperty::GetParent, "The collection.")
          .Get(6, "Application", &DocumentProperty::GetApplication, "The application.");
  return table;
}

Variant DocumentProperty::GetValue() const { return UserProperties(*book_).Get(name_); }
void DocumentProperty::LetValue(const Variant& value) { UserProperties(*book_).Put(name_, value); }
Variant DocumentProperty::GetName() const { return name_; }
Variant DocumentProperty::GetType() const {
  return static_cast<std::int32_t>(UserProperties(*book_).TypeOf(name_));
}
Variant DocumentProperty::GetLinkToContent() const { return false; }
Variant DocumentProperty::GetParent() const {
  return std::make_shared<DocumentProperties>(Office(), book_);
}
Variant DocumentProperty::GetApplication() const { return Application::Of(Office()); }
void DocumentProperty::Delete() { UserProperties(*book_).Remove(name_); }

}  // namespace rangewerks::hosts::libreoffice
