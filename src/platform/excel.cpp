#include "platform/excel.h"

#include "automation/dispatch.h"
#include "platform/excel_document_properties.h"
#include "platform/excel_format.h"
#include "platform/excel_menus.h"
#include "platform/excel_vba.h"
#include "platform/typed_call.h"

namespace rangewerks::excel {
namespace {

using automation::Member;

const Member kAddress{"Address"};
const Member kApplication{"Application"};
const Member kAutoFit{"AutoFit"};
const Member kBorders{"Borders"};
const Member kCells{"Cells"};
const Member kClearContents{"ClearContents"};
const Member kColumnWidth{"ColumnWidth"};
const Member kColumns{"Columns"};
const Member kCommandBars{"CommandBars"};
const Member kCount{"Count"};
const Member kCustomDocumentProperties{"CustomDocumentProperties"};
const Member kDelete{"Delete"};
const Member kEntireColumn{"EntireColumn"};
const Member kEntireRow{"EntireRow"};
const Member kFont{"Font"};
const Member kFormatConditions{"FormatConditions"};
const Member kFormula{"Formula"};
const Member kHasFormula{"HasFormula"};
const Member kHorizontalAlignment{"HorizontalAlignment"};
const Member kInterior{"Interior"};
const Member kInternational{"International"};
const Member kIntersect{"Intersect"};
const Member kItem{"Item"};
const Member kNames{"Names"};
const Member kName{"Name"};
const Member kNumberFormat{"NumberFormat"};
const Member kOffset{"Offset"};
const Member kParent{"Parent"};
const Member kRange{"Range"};
const Member kRefersToRange{"RefersToRange"};
const Member kResize{"Resize"};
const Member kRow{"Row"};
const Member kRows{"Rows"};
const Member kSaveCopyAs{"SaveCopyAs"};
const Member kSelect{"Select"};
const Member kShortcutMenus{"ShortcutMenus"};
const Member kVBProject{"VBProject"};
const Member kValidation{"Validation"};
const Member kValue{"Value"};
const Member kWrapText{"WrapText"};

}  // namespace

Range Range::get_Item(std::int32_t index) const { return Typed<Range>(Get(kItem, {index})); }
Range Range::get_Cells(std::int32_t row, std::int32_t column) const {
  return Typed<Range>(Get(kCells, {row, column}));
}
Variant Range::get_Value() const { return Get(kValue); }
void Range::let_Value(const Variant& value) const { Let(kValue, value); }
Variant Range::get_Default() const { return Get(Member::Default()); }
void Range::let_Default(const Variant& value) const { Let(Member::Default(), value); }
std::string Range::get_Formula() const { return Text(Get(kFormula)); }
bool Range::get_HasFormula() const {
  const Variant result = Get(kHasFormula);
  return !result.IsNull() && ToBoolean(result, automation::Locale::Current());
}
void Range::ClearContents() const { Call(kClearContents); }
std::string Range::get_Address() const { return Text(Get(kAddress)); }
Range Range::get_Resize(std::int32_t rows) const { return Typed<Range>(Get(kResize, {rows})); }
Range Range::get_Offset(std::int32_t rows) const { return Typed<Range>(Get(kOffset, {rows})); }
Range Range::get_EntireColumn() const { return Typed<Range>(Get(kEntireColumn)); }
Range Range::get_EntireRow() const { return Typed<Range>(Get(kEntireRow)); }
std::int32_t Range::get_Row() const { return Long(Get(kRow)); }
void Range::Select() const { Call(kSelect); }
Range Range::get_Rows() const { return Typed<Range>(Get(kRows)); }
Range Range::get_Columns() const { return Typed<Range>(Get(kColumns)); }
std::int32_t Range::get_Count() const { return Long(Get(kCount)); }
void Range::let_Name(const std::string& name) const { Let(kName, name); }
Worksheet Range::get_Parent() const { return Typed<Worksheet>(Get(kParent)); }
void Range::let_NumberFormat(const std::string& format) const { Let(kNumberFormat, format); }
void Range::let_HorizontalAlignment(HorizontalAlignment alignment) const {
  Let(kHorizontalAlignment, static_cast<std::int32_t>(alignment));
}
void Range::let_WrapText(bool wraps) const { Let(kWrapText, wraps); }
void Range::let_ColumnWidth(double characters) const { Let(kColumnWidth, characters); }
void Range::AutoFit() const { Call(kAutoFit); }
Font Range::get_Font() const { return Typed<Font>(Get(kFont)); }
Interior Range::get_Interior() const { return Typed<Interior>(Get(kInterior)); }
Border Range::get_Borders(BordersIndex index) const {
  return Typed<Border>(Get(kBorders, {static_cast<std::int32_t>(index)}));
}
Validation Range::get_Validation() const { return Typed<Validation>(Get(kValidation)); }
FormatConditions Range::get_FormatConditions() const {
  return Typed<FormatConditions>(Get(kFormatConditions));
}
FormatCondition Range::get_FormatConditions(std::int32_t index) const {
  return Typed<FormatCondition>(Get(kFormatConditions, {index}));
}

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
void Workbook::SaveCopyAs(const std::string& file) const { Call(kSaveCopyAs, {file}); }
VBProject Workbook::get_VBProject() const { return Typed<VBProject>(Get(kVBProject)); }
DocumentProperties Workbook::get_CustomDocumentProperties() const {
  return Typed<DocumentProperties>(Get(kCustomDocumentProperties));
}

Names Application::get_Names() const { return Typed<Names>(Get(kNames)); }
Range Application::Intersect(const Range& first, const Range& second) const {
  return Typed<Range>(Call(kIntersect, {first, second}));
}
Variant Application::get_International(InternationalIndex index) const {
  return Get(kInternational, {static_cast<std::int32_t>(index)});
}
CommandBars Application::get_CommandBars() const { return Typed<CommandBars>(Get(kCommandBars)); }
Menu Application::get_ShortcutMenus(ShortcutMenuIndex index) const {
  return Typed<Menu>(Get(kShortcutMenus, {static_cast<std::int32_t>(index)}));
}

}  // namespace rangewerks::excel
