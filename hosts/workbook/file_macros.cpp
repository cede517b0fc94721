#include "hosts/workbook/file_macros.h"

#include <algorithm>

#include "automation/text.h"
#include "hosts/common/name_rules.h"

namespace rangewerks::hosts::workbook {
namespace {

using automation::EqualText;
using Json = nlohmann::ordered_json;

CodeText ReadCode(const JsonEntry& entry) {
  CodeText code;
  for (const JsonEntry& line : entry.Elements()) {
    const std::string text = line.Text();
    if (text.find_first_of("\r\n") != std::string::npos) {
      line.FailExpecting("a line of code without line ends");
    }
    code.InsertLines(code.CountOfLines() + 1, text);
  }
  return code;
}

ModuleKind ReadKind(const JsonEntry& entry) {
  const std::string kind = entry.Text();
  if (kind == "standard") return ModuleKind::Standard;
  if (kind == "class") return ModuleKind::Class;
  entry.FailExpecting(R"("standard" or "class")");
}

class ModuleReader {
 public:
  explicit ModuleReader(Book& book) : book_(book) {}

  void Read(const JsonEntry& entry) {
    entry.RequireKeys({"name", "kind", "sheet", "code"});
    const std::string name = entry.At("name").Text();
    if (const std::string fault = FaultOfModuleName(name); !fault.empty()) {
      entry.At("name").Fail("a module can't be called \"" + name + "\": " + fault);
    }
    RequireFree(name, entry);
    const MacroModulePointer module = ModuleFor(entry, name);
    module->name = name;
    if (entry.Has("code")) module->code = ReadCode(entry.At("code"));
    read_.push_back(module);
  }

  /// A sheet that the file says nothing of may have got a name that a later module was given.
  void NameTheOthers() {
    for (const SheetPointer& sheet : book_.sheets) {
      MacroModule& module = *sheet->module;
      if (!WasRead(sheet->module) && IsTaken(module.name)) {
        module.name = FreeModuleName(book_.Modules(), "Sheet");
      }
    }
  }

 private:
  bool WasRead(const MacroModulePointer& module) const {
    return std::ranges::find(read_, module) != read_.end();
  }
  bool IsTaken(const std::string& name) const {
    return std::ranges::any_of(
        read_, [&](const MacroModulePointer& module) { return EqualText(module->name, name); });
  }
  void RequireFree(const std::string& name, const JsonEntry& entry) const {
    if (IsTaken(name)) entry.At("name").Fail("there is a module \"" + name + "\" already");
  }

  MacroModulePointer ModuleFor(const JsonEntry& entry, const std::string& name) const {
    const bool isOfWorkbook = EqualText(name, book_.macros.ofWorkbook->name);
    const bool isOfSheet = entry.Has("sheet");
    if ((isOfWorkbook || isOfSheet) && entry.Has("kind")) {
      entry.At("kind").Fail("a module of the workbook or of a sheet has no kind");
    }
    if (isOfSheet) return ModuleOfSheet(entry.At("sheet"));
    if (isOfWorkbook) return book_.macros.ofWorkbook;
    auto module = std::make_shared<MacroModule>();
    if (entry.Has("kind")) module->kind = ReadKind(entry.At("kind"));
    book_.macros.added.push_back(module);
    return module;
  }

  MacroModulePointer ModuleOfSheet(const JsonEntry& entry) const {
    const SheetPointer sheet = book_.FindSheet(entry.Text());
    if (!sheet) entry.FailExpecting("the name of one of the file's sheets");
    if (WasRead(sheet->module)) entry.Fail("the sheet's module is given twice");
    return sheet->module;
  }

  Book& book_;
  std::vector<MacroModulePointer> read_;
};

Json JsonOf(const MacroModule& module) {
  Json entry = {{"name", module.name}};
  if (module.kind == ModuleKind::Class) entry["kind"] = "class";
  return entry;
}

void AddCode(Json& entry, const MacroModule& module) {
  if (module.code.CountOfLines() > 0) entry["code"] = module.code.lines();
}

}  // namespace

void ReadFileModules(Book& book, const JsonEntry& entry) {
  ModuleReader reader(book);
  for (const JsonEntry& module : entry.Elements()) reader.Read(module);
  reader.NameTheOthers();
}

Json JsonOfModules(const Book& book) {
  Json modules = Json::array();
  const auto add = [&](Json entry, const MacroModule& module) {
    AddCode(entry, module);
    modules.push_back(std::move(entry));
  };
  const MacroModule& ofWorkbook = *book.macros.ofWorkbook;
  if (ofWorkbook.code.CountOfLines() > 0) add(JsonOf(ofWorkbook), ofWorkbook);
  for (std::size_t i = 0; i < book.sheets.size(); ++i) {
    const MacroModule& module = *book.sheets[i]->module;
    if (module.code.CountOfLines() == 0 && module.name == "Sheet" + std::to_string(i + 1)) continue;
    Json entry = JsonOf(module);
    entry["sheet"] = book.sheets[i]->name;
    add(std::move(entry), module);
  }
  for (const MacroModulePointer& module : book.macros.added) add(JsonOf(*module), *module);
  return modules;
}

}  // namespace rangewerks::hosts::workbook
