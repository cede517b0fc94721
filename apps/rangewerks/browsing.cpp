#include "apps/rangewerks/browsing.h"

#include <algorithm>
#include <array>

#include "apps/rangewerks/failure.h"
#include "automation/dispatch.h"
#include "automation/text.h"
#include "browse/clsAddBrowse.h"
#include "errors/attempt.h"
#include "platform/excel_document_properties.h"
#include "platform/excel_vba.h"

namespace rangewerks::apps {

namespace {

using Answer = BrowseFacts::Answer;

constexpr const char* kWorkbookOpen = "Workbook_Open";
constexpr const char* kAddsEntry =
    "Application.ShortcutMenus(xlWorksheetCell).MenuItems.Add Caption:=";
constexpr const char* kAsksForEntry =
    "If Application.CommandBars(\"Cell\").Controls(1).Caption <> ";

Answer Told(bool is) { return is ? Answer::Yes : Answer::No; }

std::string_view WithoutIndent(std::string_view line) {
  while (!line.empty() && (line.front() == ' ' || line.front() == '\t')) line.remove_prefix(1);
  return automation::TrimRight(line);
}

bool BeginsWith(std::string_view line, std::string_view begin) {
  return automation::EqualText(automation::Left(line, begin.size()), begin);
}

/// Whether a line is one that a browse writes, or none at all. Macro editors change the case of
/// words.
bool IsOfBrowse(std::string_view line) {
  constexpr std::array<std::string_view, 4> kFrame{"", "Private Sub Workbook_Open()", "End If",
                                                   "End Sub"};
  const auto isLine = [line](std::string_view each) { return automation::EqualText(line, each); };
  return std::ranges::any_of(kFrame, isLine) || BeginsWith(line, kAsksForEntry) ||
         BeginsWith(line, kAddsEntry);
}

/// The lines of Workbook_Open with what is above it; empty without one.
std::string OpenMacroOf(const excel::CodeModule& code) {
  std::string text;
  Attempt([&] {
    const std::int32_t start = code.get_ProcStartLine(kWorkbookOpen, excel::vbext_pk_Proc);
    const std::int32_t count = code.get_ProcCountLines(kWorkbookOpen, excel::vbext_pk_Proc);
    text = code.get_Lines(start, count);
  });
  return text;
}

/// The first line of a text that no browse has written; empty when there is none.
std::string LineOfItsOwn(std::string_view text) {
  while (!text.empty()) {
    const std::size_t end = std::min(text.find_first_of("\r\n"), text.size());
    const std::string_view line = WithoutIndent(text.substr(0, end));
    if (!IsOfBrowse(line)) return std::string(line);
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return {};
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
  if (!Attempt([&] { modules = workbook.get_VBProject().get_VBComponents(); })) {
    facts.module = facts.openMacro = Answer::Unknown;
    return facts;
  }
  browse.let_bNewMethod(false);
  facts.module = Told(browse.IsBrowse());
  Attempt([&] {
    const std::string macro = automation::FoldCase(OpenMacroOf(WorkbookCode(modules)));
    facts.openMacro = Told(macro.find(automation::FoldCase(kAddsEntry)) != std::string::npos);
  });
  return facts;
}

void AddBrowse(const excel::Workbook& workbook, const std::string& component, BrowseMethod method) {
  clsAddBrowse browse;
  Prepare(browse, workbook, component, method);
  if (method == BrowseMethod::Macro) {
    const excel::VBComponents modules = workbook.get_VBProject().get_VBComponents();
    const std::string own = LineOfItsOwn(OpenMacroOf(WorkbookCode(modules)));
    if (!own.empty()) {
      throw Failure("the workbook has a Workbook_Open of its own, with the line \"" + own +
                    "\", which would be lost; use --method property, or move that code first");
    }
  }
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
