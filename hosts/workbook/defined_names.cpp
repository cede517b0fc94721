#include "hosts/workbook/defined_names.h"

#include "hosts/common/name_rules.h"
#include "hosts/workbook/failure.h"
#include "hosts/workbook/model.h"

namespace rangewerks::hosts::workbook {
namespace {

std::string WithSheet(std::string_view sheet, std::string_view rest) {
  return QuotedSheetName(sheet) + "!" + std::string(rest);
}

std::string ConstantText(const std::string& text) {
  std::string constant = "=\"";
  for (const char c : text) {
    constant += c;
    if (c == '"') constant += c;
  }
  return constant + "\"";
}

}  // namespace

std::string DefinedName::FullName() const { return scope ? WithSheet(scope->name, name) : name; }

const Reference* DefinedName::Cells() const {
  const auto* reference = std::get_if<Reference>(&content);
  return reference == nullptr || reference->sheet->deleted ? nullptr : reference;
}

NamePointer DefinedNames::Lookup(std::string_view key) const {
  const auto found = byName_.find(key);
  return found == byName_.end() ? nullptr : found->second;
}

NamePointer DefinedNames::Find(std::string_view fullName) const {
  if (fullName.find('!') == std::string_view::npos) return Lookup(fullName);
  const SheetAndRest parts = SplitSheet(fullName);
  if (!parts.hasSheet || parts.sheet.empty()) return nullptr;
  return Lookup(WithSheet(parts.sheet, parts.rest));
}

NamePointer DefinedNames::FindOf(const Sheet& sheet, std::string_view name) const {
  return ofSheets_ == 0 ? nullptr : Lookup(WithSheet(sheet.name, name));
}

NamePointer DefinedNames::Define(std::string name, SheetPointer scope, NameContent content) {
  auto existing = scope ? FindOf(*scope, name) : Lookup(name);
  if (existing) {
    existing->content = std::move(content);
    return existing;
  }
  auto defined = std::make_shared<DefinedName>(
      DefinedName{std::move(name), std::move(scope), std::move(content)});
  Insert(defined);
  return defined;
}

void DefinedNames::Rename(const NamePointer& name, const std::string& newName) {
  Erase(name);
  name->name = newName;
  Insert(name);
}

void DefinedNames::Remove(const NamePointer& name) {
  Erase(name);
  name->deleted = true;
}

void DefinedNames::RemoveOf(const Sheet& sheet) {
  for (const NamePointer& name : AllOf(sheet)) Remove(name);
}

void DefinedNames::WhileRenaming(const Sheet& sheet, const std::function<void()>& rename) {
  const auto names = AllOf(sheet);
  for (const NamePointer& name : names) Erase(name);
  rename();
  for (const NamePointer& name : names) Insert(name);
}

std::vector<NamePointer> DefinedNames::All() const {
  std::vector<NamePointer> all;
  all.reserve(inOrder_.size());
  for (const auto& [key, name] : inOrder_) all.push_back(name);
  return all;
}

std::vector<NamePointer> DefinedNames::AllOf(const Sheet& sheet) const {
  std::vector<NamePointer> all;
  if (ofSheets_ == 0) return all;
  for (const auto& [key, name] : inOrder_) {
    if (name->scope.get() == &sheet) all.push_back(name);
  }
  return all;
}

void DefinedNames::Insert(const NamePointer& name) {
  const auto [entry, added] = inOrder_.try_emplace(name->FullName(), name);
  byName_.emplace(entry->first, name);
  if (name->scope) ++ofSheets_;
}

void DefinedNames::Erase(const NamePointer& name) {
  const auto entry = inOrder_.find(name->FullName());
  byName_.erase(entry->first);
  inOrder_.erase(entry);
  if (name->scope) --ofSheets_;
}

NameContent ParseContent(const Book& book, const std::string& text) {
  if (!text.starts_with('=')) return ConstantText(text);
  const SheetAndRest parts = SplitSheet(std::string_view(text).substr(1));
  const auto area = ParseAddress(parts.rest);
  if (!area) return text;
  const SheetPointer sheet = parts.hasSheet ? book.FindSheet(parts.sheet) : book.active;
  if (sheet) return Reference{sheet, *area};
  if (parts.sheet == "#REF") return text;  // "=#REF!$A$1" is a reference that is dead already
  Refuse("Workbook \"" + book.name + "\" has no sheet \"" + parts.sheet + "\" for " + text);
}

std::string ContentText(const NameContent& content) {
  if (const auto* text = std::get_if<std::string>(&content)) return *text;
  const auto& [sheet, area] = std::get<Reference>(content);
  if (sheet->deleted) return "=#REF!" + AddressOf(area);
  return "=" + WithSheet(sheet->name, AddressOf(area));
}

}  // namespace rangewerks::hosts::workbook
