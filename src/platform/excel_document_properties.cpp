#include "platform/excel_document_properties.h"

#include "automation/dispatch.h"
#include "platform/typed_call.h"

namespace rangewerks::excel {
namespace {

using automation::Member;

const Member kAdd{"Add"};
const Member kItem{"Item"};
const Member kLinkToContent{"LinkToContent"};
const Member kName{"Name"};
const Member kType{"Type"};
const Member kValue{"Value"};

}  // namespace

Variant DocumentProperty::get_Default() const { return Get(Member::Default()); }
void DocumentProperty::let_Default(const Variant& value) const { Let(Member::Default(), value); }

DocumentProperty DocumentProperties::get_Item(const std::string& name) const {
  return Typed<DocumentProperty>(Get(kItem, {name}));
}
void DocumentProperties::Add(const std::string& name, DocumentPropertyType type,
                             const Variant& value) const {
  Call(kAdd, {},
       {{kName, name},
        {kLinkToContent, false},
        {kType, static_cast<std::int32_t>(type)},
        {kValue, value}});
}

}  // namespace rangewerks::excel
