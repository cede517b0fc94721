#include "apps/rangewerks/browse_command.h"

#include <filesystem>

#include "apps/rangewerks/sheet_session.h"
#include "apps/rangewerks/text_table.h"
#include "automation/text.h"

namespace rangewerks::apps {

namespace {

using Answer = BrowseFacts::Answer;

const char* WordOf(Answer answer) {
  if (answer == Answer::Unknown) return "not to be had";
  return answer == Answer::Yes ? "yes" : "no";
}

std::string TableOf(const BrowseOptions& options, const BrowseFacts& facts) {
  TextTable table({{}, {}});
  table.Add({"Workbook", options.book.book});
  table.Add({"Component", options.component});
  table.Add({"Document property", WordOf(facts.property)});
  table.Add({"Browse module", WordOf(facts.module)});
  table.Add({"Menu entry on opening", WordOf(facts.openMacro)});
  return table.Render("");
}

/// Whether a text has no line ends, other control characters or bytes that are no characters.
bool IsPlain(std::string_view text) {
  while (!text.empty()) {
    const std::string_view character = automation::Left(text, 1);
    const auto first = static_cast<unsigned char>(character.front());
    if (character.size() == 1 && (first < 0x20 || first >= 0x7F)) return false;
    text.remove_prefix(character.size());
  }
  return true;
}

void RequireUsage(const BrowseOptions& options) {
  if (automation::IsBlank(options.component)) {
    throw Failure("--component: the name of the browse's component is blank");
  }
  if (!IsPlain(options.component)) {
    throw Failure(
        "--component: the name of the browse's component holds line ends, other control characters "
        "or bytes that are no UTF-8; leave them out");
  }
  const bool saves = !options.save.copy.empty() || options.save.inPlace || options.save.overwrite;
  if (options.action == BrowseAction::Status && saves) {
    throw Failure("--status changes nothing and saves nothing; leave out the options of saving");
  }
}

bool HoldsMacros(const std::string& path) {
  return !automation::EqualText(std::filesystem::path(path).extension().string(), ".xlsx");
}

bool AddsMacro(const BrowseOptions& options) {
  return options.action == BrowseAction::Add && options.method == BrowseMethod::Macro;
}

/// A macro that the saved file can't hold would be lost without a word.
void RequireRoomForMacro(const BrowseOptions& options, const std::string& path) {
  if (AddsMacro(options) && !HoldsMacros(path)) {
    throw Failure(path +
                  ": files of this kind hold no macros; save to .xlsm or .xls, or use "
                  "--method property");
  }
}

void RequireNothingLost(const BrowseOptions& options, const excel::Workbook& workbook,
                        const std::string& path) {
  if (!HoldsMacros(path) && HasMacros(workbook)) {
    throw Failure(path +
                  ": files of this kind hold no macros, and the workbook's would be lost; save to "
                  ".xlsm or .xls");
  }
  const std::string own = AddsMacro(options) ? LineOfItsOwn(workbook) : std::string();
  if (!own.empty()) {
    throw Failure(options.book.book +
                  ": the workbook has a Workbook_Open of its own, with the line \"" + own +
                  "\", which would be lost; use --method property, or move that code first");
  }
}

void Change(const BrowseOptions& options, const excel::Workbook& workbook) {
  if (options.action == BrowseAction::Add) {
    AddBrowse(workbook, options.component, options.method);
  } else {
    RemoveBrowse(workbook, options.component, options.method);
  }
}

ExitStatus TellStatus(const BrowseOptions& options, Console console) {
  SheetSession session(options.book, Access::Read);
  const BrowseFacts facts = WithHost(options.book.book + ": the browse can't be looked for", [&] {
    return BrowseFactsOf(session.Sheet().get_Parent(), options.component);
  });
  WriteResult(console, TableOf(options, facts));
  return facts.Any() ? kAllWell : kFindings;
}

}  // namespace

ExitStatus RunBrowse(const BrowseOptions& options, Console console) {
  RequireUsage(options);
  RequireFile(options.book.book);
  if (options.action == BrowseAction::Status) return TellStatus(options, console);
  const SaveTarget target(options.save, options.book);
  RequireRoomForMacro(options, target.Path());
  SheetSession session(options.book, Access::Write);
  const BrowseFacts facts = WithHost(options.book.book + ": the browse can't be changed", [&] {
    const excel::Workbook workbook = session.Sheet().get_Parent();
    RequireNothingLost(options, workbook, target.Path());
    Change(options, workbook);
    const BrowseFacts changed = BrowseFactsOf(workbook, options.component);
    target.Write([&](const std::string& path) { session.SaveCopyAs(path); });
    return changed;
  });
  WriteResult(console, TableOf(options, facts) + "Saved to: " + target.Path() + "\n",
              "; the workbook has been saved to " + target.Path() + " all the same");
  return kAllWell;
}

}  // namespace rangewerks::apps
