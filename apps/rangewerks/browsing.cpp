#include "apps/rangewerks/browsing.h"

#include <algorithm>
#include <array>
#include <vector>

#include "automation/dispatch.h"
#include "automation/text.h"
#include "browse/clsAddBrowse.h"
#include "browse/clsExcelBrowse.h"
#include "browse/macro_text.h"
#include "errors/attempt.h"
#include "platform/excel_document_properties.h"
#include "platform/excel_vba.h"

namespace rangewerks::apps {

namespace {

using Answer = BrowseFacts::Answer;

constexpr const char* kWorkbookOpen = "Workbook_Open";

Answer Told(bool is) { return is ? Answer::Yes : Answer::No; }

std::string_view WithoutIndent(std::string_view line) {
  while (!line.empty() && (line.front() == ' ' || line.front() == '\t')) line.remove_prefix(1);
  return automation::TrimRight(line);
}

/// Lines without their indents.
std::vector<std::string> LinesOf(std::string_view text) {
  std::vector<std::string> lines;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find_first_of("\r\n"), text.size());
    lines.emplace_back(WithoutIndent(text.substr(0, end)));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return lines;
}

std::array<std::string, 2> MenuTexts() {
  clsExcelBrowse browse;
  const std::string first = browse.get_BrowseMenuText();
  browse.let_UseNewBrowseShortcutName(true);
  return {first, browse.get_BrowseMenuText()};
}

// Lines are compared without regard to case, which macro editors change.

bool AsksForEntry(std::string_view line) {
  return std::ranges::any_of(MenuTexts(), [line](const std::string& text) {
    return automation::EqualText(
        line, "If Application.CommandBars(\"Cell\").Controls(1).Caption <> " + MacroLiteral(text) +
                  " Then");
  });
}

bool AddsEntry(std::string_view line) {
  return std::ranges::any_of(MenuTexts(), [line](const std::string& text) {
    return automation::EqualText(
        line, "Application.ShortcutMenus(xlWorksheetCell).MenuItems.Add Caption:=" +
                  MacroLiteral(text) + R"(, OnAction:="BrowseRecords", Before:="Cut")");
  });
}

/// Whether a line is one that a browse writes, or none at all.
bool IsOfBrowse(std::string_view line) {
  constexpr std::array<std::string_view, 4> kFrame{"", "Private Sub Workbook_Open()", "End If",
                                                   "End Sub"};
  const auto isLine = [line](std::string_view each) { return automation::EqualText(line, each); };
  return std::ranges::any_of(kFrame, isLine) || AsksForEntry(line) || AddsEntry(line);
}

/// The lines of Workbook_Open with those above it; none without one.
std::vector<std::string> OpenMacroOf(const excel::CodeModule& code) {
  std::string text;
  Attempt([&] {
    const std::int32_t start = code.get_ProcStartLine(kWorkbookOpen, excel::vbext_pk_Proc);
    const std::int32_t count = code.get_ProcCountLines(kWorkbookOpen, excel::vbext_pk_Proc);
    text = code.get_Lines(start, count);
  });
  return LinesOf(text);
}

bool HasCode(const excel::CodeModule& code) {
  const std::int32_t count = code.get_CountOfLines();
  const auto lines = LinesOf(count == 0 ? std::string() : code.get_Lines(1, count));
  return std::ranges::any_of(lines, [](const std::string& line) { return !line.empty(); });
}

excel::VBComponents ModulesOf(const excel::Workbook& workbook) {
  return workbook.get_VBProject().get_VBComponents();
}

excel::CodeModule WorkbookCode(const excel::VBComponents& modules) {
  return modules.get_Item("ThisWorkbook").get_CodeModule();
}

void Prepare(clsAddBrowse& browse, const excel::Workbook& workbook, const std::string& component,
             BrowseMethod method) {
  browse.set_WorkBook(workbook);
  browse.let_sComponent(component);
  browse.let_bNewMethod(method == BrowseMethod::Property);
}

}  // namespace

BrowseFacts BrowseFactsOf(const excel::Workbook& workbook, const std::string& component) {
  BrowseFacts facts;
  clsAddBrowse browse;
  Prepare(browse, workbook, component, BrowseMethod::Property);
  workbook.get_CustomDocumentProperties();  // IsBrowse itself never tells that they can't be had
  facts.property = Told(browse.IsBrowse());
  excel::VBComponents modules;
  if (!Attempt([&] { modules = ModulesOf(workbook); })) {
    facts.module = facts.openMacro = Answer::Unknown;
    return facts;
  }
  browse.let_bNewMethod(false);
  facts.module = Told(browse.IsBrowse());
  Attempt([&] {
    facts.openMacro = Told(std::ranges::any_of(OpenMacroOf(WorkbookCode(modules)), AddsEntry));
  });
  return facts;
}

std::string LineOfItsOwn(const excel::Workbook& workbook) {
  const auto lines = OpenMacroOf(WorkbookCode(ModulesOf(workbook)));
  const auto own = std::ranges::find_if_not(lines, IsOfBrowse);
  return own == lines.end() ? std::string() : *own;
}

bool HasMacros(const excel::Workbook& workbook) {
  const auto modules = ModulesOf(workbook).Enumerate();
  for (automation::Variant module; modules->Next(module);) {
    if (HasCode(excel::VBComponent(module.AsObject()).get_CodeModule())) return true;
  }
  return false;
}

void AddBrowse(const excel::Workbook& workbook, const std::string& component, BrowseMethod method) {
  clsAddBrowse browse;
  Prepare(browse, workbook, component, method);
  browse.AddBrowseToWorkbook();
}

void RemoveBrowse(const excel::Workbook& workbook, const std::string& component,
                  BrowseMethod method) {
  clsAddBrowse browse;
  Prepare(browse, workbook, component, method);
  browse.DeleteBrowseFromWorkbook();
  if (method == BrowseMethod::Property) return;
  browse.let_UseNewBrowseShortcutName(true);
  browse.DeleteBrowseFromWorkbook();
}

}  // namespace rangewerks::apps
