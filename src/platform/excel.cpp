#include "platform/excel.h"

#include "automation/conversions.h"
#include "automation/dispatch.h"

namespace rangewerks::excel {
namespace {

using automation::Locale;
using automation::Member;

const Member kAddress{"Address"};
const Member kApplication{"Application"};
const Member kCells{"Cells"};
const Member kClearContents{"ClearContents"};
const Member kColumns{"Columns"};
const Member kCount{"Count"};
const Member kDelete{"Delete"};
const Member kFormula{"Formula"};
const Member kHasFormula{"HasFormula"};
const Member kInternational{"International"};
const Member kIntersect{"Intersect"};
const Member kItem{"Item"};
const Member kName{"Name"};
const Member kNames{"Names"};
const Member kParent{"Parent"};
const Member kRange{"Range"};
const Member kRefersToRange{"RefersToRange"};
const Member kRows{"Rows"};
const Member kValue{"Value"};

/// A result that is an object, as its typed reference.
template <class Proxy>
Proxy Typed(const Variant& result) {
  return Proxy(result.AsObject());
}

std::string Text(const Variant& result) { return ToString(result, Locale::Current()); }

}  // namespace

Range Range::get_Item(std::int32_t index) const { return Typed<Range>(Get(kItem, {index})); }
Range Range::get_Cells(std::int32_t row, std::int32_t column) const {
  return Typed<Range>(Get(kCells, {row, column}));
}
Variant Range::get_Value() const { return Get(kValue); }
void Range::let_Value(const Variant& value) const { Let(kValue, value); }
Variant Range::get_Default() const { return Get(Member::Default()); }
std::string Range::get_Formula() const { return Text(Get(kFormula)); }
bool Range::get_HasFormula() const {
  const Variant result = Get(kHasFormula);
  return !result.IsNull() && ToBoolean(result, Locale::Current());
}
void Range::ClearContents() const { Call(kClearContents); }
std::string Range::get_Address() const { return Text(Get(kAddress)); }
Range Range::get_Rows() const { return Typed<Range>(Get(kRows)); }
Range Range::get_Columns() const { return Typed<Range>(Get(kColumns)); }
std::int32_t Range::get_Count() const { return ToLong(Get(kCount), Locale::Current()); }
void Range::let_Name(const std::string& name) const { Let(kName, name); }
Worksheet Range::get_Parent() const { return Typed<Worksheet>(Get(kParent)); }

std::string Name::get_Name() const { return Text(Get(kName)); }
void Name::let_Name(const std::string& name) const { Let(kName, name); }
Range Name::get_RefersToRange() const { return Typed<Range>(Get(kRefersToRange)); }
void Name::Delete() const { Call(kDelete); }

std::string Worksheet::get_Name() const { return Text(Get(kName)); }
Workbook Worksheet::get_Parent() const { return Typed<Workbook>(Get(kParent)); }
Application Worksheet::get_Application() const { return Typed<Application>(Get(kApplication)); }
Range Worksheet::get_Range(const std::string& nameOrAddress) const {
  return Typed<Range>(Get(kRange, {nameOrAddress}));
}

Application Workbook::get_Application() const { return Typed<Application>(Get(kApplication)); }
Name Workbook::get_Names(const std::string& name) const { return Typed<Name>(Get(kNames, {name})); }

Names Application::get_Names() const { return Typed<Names>(Get(kNames)); }
Range Application::Intersect(const Range& first, const Range& second) const {
  return Typed<Range>(Call(kIntersect, {first, second}));
}
Variant Application::get_International(InternationalIndex index) const {
  return Get(kInternational, {static_cast<std::int32_t>(index)});
}

}  // namespace rangewerks::excel
