#include "platform/excel_vba.h"

#include "automation/dispatch.h"
#include "platform/typed_call.h"

namespace rangewerks::excel {
namespace {

using automation::Argument;
using automation::Member;

const Member kAdd{"Add"};
const Member kCodeModule{"CodeModule"};
const Member kCountOfLines{"CountOfLines"};
const Member kDeleteLines{"DeleteLines"};
const Member kFind{"Find"};
const Member kInsertLines{"InsertLines"};
const Member kItem{"Item"};
const Member kLines{"Lines"};
const Member kName{"Name"};
const Member kProcCountLines{"ProcCountLines"};
const Member kProcStartLine{"ProcStartLine"};
const Member kRemove{"Remove"};
const Member kVBComponents{"VBComponents"};

}  // namespace

std::int32_t CodeModule::get_CountOfLines() const { return Long(Get(kCountOfLines)); }
std::string CodeModule::get_Lines(std::int32_t start, std::int32_t count) const {
  return Text(Get(kLines, {start, count}));
}
void CodeModule::InsertLines(std::int32_t line, const std::string& text) const {
  Call(kInsertLines, {line, text});
}
void CodeModule::DeleteLines(std::int32_t start, std::int32_t count) const {
  Call(kDeleteLines, {start, count});
}
std::int32_t CodeModule::get_ProcStartLine(const std::string& name, ProcedureKind kind) const {
  return Long(Get(kProcStartLine, {name, static_cast<std::int32_t>(kind)}));
}
std::int32_t CodeModule::get_ProcCountLines(const std::string& name, ProcedureKind kind) const {
  return Long(Get(kProcCountLines, {name, static_cast<std::int32_t>(kind)}));
}
bool CodeModule::Find(const std::string& target, std::int32_t& startLine) const {
  constexpr std::int32_t kFirstColumn = 1;
  constexpr std::int32_t kToTheEnd = -1;
  Variant line = startLine;
  const Variant found = Call(kFind, {target, Argument::Reference(line), kFirstColumn, kToTheEnd,
                                     kToTheEnd, false, false, false});
  if (!ToBoolean(found, automation::Locale::Current())) return false;
  startLine = Long(line);
  return true;
}

void VBComponent::let_Name(const std::string& name) const { Let(kName, name); }
CodeModule VBComponent::get_CodeModule() const { return Typed<CodeModule>(Get(kCodeModule)); }

VBComponent VBComponents::get_Item(const std::string& name) const {
  return Typed<VBComponent>(Get(kItem, {name}));
}
VBComponent VBComponents::Add(ComponentType type) const {
  return Typed<VBComponent>(Call(kAdd, {static_cast<std::int32_t>(type)}));
}
void VBComponents::Remove(const VBComponent& component) const { Call(kRemove, {component}); }

VBComponents VBProject::get_VBComponents() const { return Typed<VBComponents>(Get(kVBComponents)); }

}  // namespace rangewerks::excel
