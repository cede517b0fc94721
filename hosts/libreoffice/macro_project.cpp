#include "hosts/libreoffice/macro_project.h"

#include <algorithm>
#include <com/sun/star/script/ModuleType.hpp>
#include <com/sun/star/script/vba/XVBAModuleInfo.hpp>

#include "automation/text.h"
#include "hosts/common/name_rules.h"
#include "hosts/libreoffice/failure.h"
#include "hosts/libreoffice/macro_library.h"

namespace rangewerks::hosts::libreoffice {
namespace {

using automation::EqualText;
using css::script::vba::XVBAModuleInfo;
namespace types = css::script::ModuleType;

constexpr const char* kCodeName = "CodeName";

std::int32_t OfficeType(ModuleKind kind) {
  switch (kind) {
    case ModuleKind::Class:
      return types::CLASS;
    case ModuleKind::Form:
      return types::FORM;
    case ModuleKind::Document:
      return types::DOCUMENT;
    case ModuleKind::Standard:
      break;
  }
  return types::NORMAL;
}

std::string CodeNameOf(const Reference<css::beans::XPropertySet>& object) {
  return ToUtf8(Property<OUString>(object, kCodeName));
}

void PutCodeName(const Reference<css::beans::XPropertySet>& object, const std::string& name) {
  if (CodeNameOf(object) != name) object->setPropertyValue(ToUno(kCodeName), Any(ToUno(name)));
}

bool Has(const std::vector<Module>& modules, const std::string& name) {
  return std::ranges::any_of(modules,
                             [&](const Module& each) { return EqualText(each.name, name); });
}

}  // namespace

MacroProject::MacroProject(Book& book)
    : book_(&book), libraries_(LibrariesOf(book)), libraryName_(ProjectLibraryIn(libraries_)) {
  if (!libraryName_.isEmpty()) library_ = LoadedLibrary(libraries_, libraryName_);
}

std::string MacroProject::Name() const {
  return libraryName_.isEmpty() ? kProjectName : ToUtf8(libraryName_);
}

/// A sheet has a name for its module from its file; one that was made here, whose name would be no
/// name for a module, is called by its position.
std::string MacroProject::CodeNameOfSheet(std::int32_t position,
                                          const std::vector<Module>& taken) const {
  const auto sheet = As<css::beans::XPropertySet>(book_->SheetAt(position)->Cells());
  std::string name = CodeNameOf(sheet);
  if (FaultOfModuleName(name).empty() && !Has(taken, name)) return name;
  for (std::int32_t number = position;; ++number) {
    name = "Sheet" + std::to_string(number);
    if (!Has(taken, name)) return name;
  }
}

std::vector<Module> MacroProject::DocumentModules() const {
  const std::string ofWorkbook = CodeNameOf(As<css::beans::XPropertySet>(book_->Model()));
  std::vector<Module> modules{
      {ofWorkbook.empty() ? "ThisWorkbook" : ofWorkbook, ModuleKind::Document}};
  const std::int32_t count = book_->SheetCount();
  for (std::int32_t i = 1; i <= count; ++i) {
    modules.push_back({CodeNameOfSheet(i, modules), ModuleKind::Document});
  }
  return modules;
}

ModuleKind MacroProject::KindOf(const OUString& name) const {
  const auto facts = As<XVBAModuleInfo>(library_);
  if (!facts->hasModuleInfo(name)) return ModuleKind::Standard;
  switch (facts->getModuleInfo(name).ModuleType) {
    case types::CLASS:
      return ModuleKind::Class;
    case types::FORM:
      return ModuleKind::Form;
    case types::DOCUMENT:
      return ModuleKind::Document;
    default:
      return ModuleKind::Standard;
  }
}

std::vector<Module> MacroProject::Modules() const {
  std::vector<Module> modules = DocumentModules();
  if (!library_.is()) return modules;
  const auto names = library_->getElementNames();
  for (const OUString& name : libreoffice::Elements(names)) {
    const std::string text = ToUtf8(name);
    if (!Has(modules, text)) modules.push_back({text, KindOf(name)});
  }
  return modules;
}

std::optional<Module> MacroProject::Find(const std::string& name) const {
  for (Module& each : Modules()) {
    if (EqualText(each.name, name)) return std::move(each);
  }
  return std::nullopt;
}

CodeText MacroProject::CodeOf(const Module& module) const {
  const OUString name = ToUno(module.name);
  if (!library_.is() || !library_->hasByName(name)) return {};
  return CodeIn(ToUtf8(Extract<OUString>(library_->getByName(name))));
}

void MacroProject::RequireWritable() const {
  if (book_->IsReadOnly()) {
    Fail("The macros of workbook \"" + book_->Name() +
         "\" can't be changed: it was opened for reading only");
  }
}

void MacroProject::Store(const Module& module, const CodeText& code) {
  const OUString name = ToUno(module.name);
  const Any source(ToUno(SourceOf(module.kind, code)));
  if (library_->hasByName(name)) return library_->replaceByName(name, source);
  css::script::ModuleInfo info;
  info.ModuleType = OfficeType(module.kind);
  const auto facts = As<XVBAModuleInfo>(library_);
  if (!facts->hasModuleInfo(name)) facts->insertModuleInfo(name, info);
  library_->insertByName(name, source);
}

/// With a module for the workbook and for each sheet, as files of Excel have it.
void MacroProject::MakeLibrary() {
  if (libraryName_.isEmpty()) libraryName_ = ToUno(kProjectName);
  SwitchExcelModeOn(libraries_, libraryName_);
  if (library_.is()) return;
  library_ = libraries_->createLibrary(libraryName_);
  const std::vector<Module> modules = DocumentModules();
  PutCodeName(As<css::beans::XPropertySet>(book_->Model()), modules.front().name);
  for (std::size_t i = 1; i < modules.size(); ++i) {
    const SheetPointer sheet = book_->SheetAt(static_cast<std::int32_t>(i));
    PutCodeName(As<css::beans::XPropertySet>(sheet->Cells()), modules[i].name);
  }
  for (const Module& each : modules) Store(each, {});
}

void MacroProject::PutCode(const Module& module, const CodeText& code) {
  RequireWritable();
  MakeLibrary();
  Store(module, code);
  if (code.CountOfLines() == 0) RemoveLibraryWithoutSubstance();
}

Module MacroProject::Add(ModuleKind kind) {
  RequireWritable();
  const std::string series = kind == ModuleKind::Class ? "Class" : "Module";
  const std::vector<Module> modules = Modules();
  std::int32_t number = 1;
  while (Has(modules, series + std::to_string(number))) ++number;
  Module module{series + std::to_string(number), kind};
  MakeLibrary();
  Store(module, {});
  return module;
}

void MacroProject::TakeOut(const Module& module) {
  const OUString name = ToUno(module.name);
  library_->removeByName(name);
  const auto facts = As<XVBAModuleInfo>(library_);
  if (facts->hasModuleInfo(name)) facts->removeModuleInfo(name);
}

void MacroProject::Remove(const Module& module) {
  RequireWritable();
  if (module.kind == ModuleKind::Document) {
    Fail("Module \"" + module.name +
         "\" can't be removed: it belongs to the workbook itself or to one of its sheets");
  }
  TakeOut(module);
  RemoveLibraryWithoutSubstance();
}

void MacroProject::Rename(const Module& module, const std::string& name) {
  RequireWritable();
  const auto refuse = [&](const std::string& reason) {
    Fail("Module \"" + module.name + "\" can't be called \"" + name + "\": " + reason);
  };
  if (module.kind == ModuleKind::Document) {
    refuse("it belongs to the workbook itself or to one of its sheets");
  }
  if (const std::string fault = FaultOfModuleName(name); !fault.empty()) refuse(fault);
  if (name == module.name) return;
  if (const auto other = Find(name); other && other->name != module.name) {
    refuse("there is a module of that name");
  }
  const CodeText code = CodeOf(module);
  TakeOut(module);
  Store({name, module.kind}, code);
}

/// Files of Excel's give the modules of the workbook and of its sheets an empty line.
bool MacroProject::IsOfAnySubstance() const {
  return std::ranges::any_of(Modules(), [&](const Module& each) {
    const CodeText code = CodeOf(each);
    return each.kind != ModuleKind::Document ||
           !std::ranges::all_of(code.lines(), [](const auto& line) { return line.empty(); });
  });
}

void MacroProject::RemoveLibraryWithoutSubstance() {
  if (IsOfAnySubstance()) return;
  libraries_->removeLibrary(libraryName_);
  SwitchExcelModeOff(libraries_);
  library_.clear();
  libraryName_ = {};
}

}  // namespace rangewerks::hosts::libreoffice
