// What comes out of the browse operations, and what workbook and menus then have, when any one of
// the host calls fails.
#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <optional>
#include <random>

#include "browse/browse_fixture.h"
#include "browse/clsAddBrowse.h"
#include "support/matches_regex.h"

namespace rangewerks::tests {
namespace {

constexpr std::int32_t kFault = 50290;
constexpr const char* kFaultWords = "The spreadsheet is busy";

/// A workbook with a module, a procedure, a property that is false, and a menu entry.
struct BrowseScene {
  BrowseScene() : workbook(host.AddWorkbook("Ledger", {"Sheet1"})) {
    host.TrustVBProject(true);
    editor.set_WorkBook(excel::Workbook(workbook));
    editor.let_Module("Macros");
    editor.AddModule();
    editor.let_Procedure("Run");
    editor.AddCodeLine("Sub Run()");
    editor.AddCodeLine("End Sub");
    editor.InsertCode();
    browse.set_WorkBook(excel::Workbook(workbook));
    shortcut.set_WorkBook(excel::Workbook(workbook));
    for (const char* name : {"OstrelBrowseModule", "Ledger.Browse"}) {
      const Object properties = GetObject(workbook, "CustomDocumentProperties");
      Call(properties, "Add", {name, false, 2, false});
    }
    shortcut.let_Component("Ledger.Browse");
  }

  /// All that the operations can change.
  std::string Snapshot() const {
    const auto path = std::filesystem::path(::testing::TempDir()) /
                      ("browse-" + std::to_string(std::random_device{}()) + ".json");
    host.SaveCopyAs(workbook, path.string());
    std::string state;
    {
      std::ifstream file(path);
      state.assign(std::istreambuf_iterator<char>(file), {});
    }
    std::filesystem::remove(path);
    for (const Variant& bar : Elements(GetObject(host.Application(), "CommandBars"))) {
      for (const Variant& control : Elements(GetObject(bar.AsObject(), "Controls"))) {
        const Object entry = control.AsObject();
        state += GetText(entry, "Caption") + "|" + GetText(entry, "Tag") + "\n";
      }
    }
    return state;
  }

  hosts::workbook::Host host;
  Object workbook;
  clsExcelVB editor;
  clsAddBrowse browse;
  clsExcelBrowseAddin shortcut;
};

/// What a forgiven failure leaves behind.
enum class Leaves { Start, End };

struct BrowseOperation {
  std::string name;
  std::function<void(BrowseScene&)> run;
  /// The first so many calls are forgiven.
  std::size_t forgiven = 0;
  Leaves leaves = Leaves::Start;
  /// A pattern for the source of the others.
  std::string source = "Workbook";
  std::function<void(BrowseScene&)> prepare = [](BrowseScene&) {};
};

void PrintTo(const BrowseOperation& operation, std::ostream* out) { *out << operation.name; }

constexpr std::size_t kAll = 1000;

std::string Through(const std::vector<std::string>& procedures) {
  std::string source = "(Line No\\.: [0-9]+ ){" + std::to_string(procedures.size()) + "}Workbook";
  for (const std::string& procedure : procedures) source += "\r\n" + procedure;
  return source;
}
const std::string kAdd = "AddBrowseToWorkbook of Clas Module clsAddBrowse Line#:[0-9]+";
const std::string kDelete = "DeleteBrowseFromWorkbook of Class Module clsAddBrowse Line#:[0-9]+";
const std::string kOpen = "AddWorkbookOpenBrowse of Clas Module clsAddBrowse Line#:[0-9]+";
const std::string kMark = "SetDocumentPropertyOn of Clas Module clsAddBrowse Line#:[0-9]+";

std::vector<BrowseOperation> Operations() {
  const auto withEntry = [](BrowseScene& scene) { scene.shortcut.AddBrowseShortcut(); };
  const auto withMacro = [](BrowseScene& scene) { scene.browse.AddBrowseToWorkbook(); };
  const auto byProperty = [](BrowseScene& scene) { scene.browse.let_bNewMethod(true); };
  return {
      {"DeleteProcedure", [](BrowseScene& scene) { scene.editor.DeleteProcedure(); }, kAll},
      {"LoadProcedure", [](BrowseScene& scene) { scene.editor.LoadProcedure(); }, kAll},
      {"DeleteModule", [](BrowseScene& scene) { scene.editor.DeleteModule(); }, kAll},
      {"DeleteThisText", [](BrowseScene& scene) { scene.editor.DeleteThisText("run"); }},
      {"InsertCode", [](BrowseScene& scene) { scene.editor.InsertCode(); }},
      {"AddModule",
       [](BrowseScene& scene) {
         scene.editor.let_Module("More");
         scene.editor.AddModule();
       }},
      // There is no Workbook_Open yet, so that a deletion which fails changes nothing.
      {"AddByMacro", [](BrowseScene& scene) { scene.browse.AddBrowseToWorkbook(); }, 7, Leaves::End,
       Through({kOpen, kAdd})},
      {"DeleteByMacro", [](BrowseScene& scene) { scene.browse.DeleteBrowseFromWorkbook(); }, 0,
       Leaves::Start, Through({kDelete}), withMacro},
      {"DeleteByProperty", [](BrowseScene& scene) { scene.browse.DeleteBrowseFromWorkbook(); },
       kAll, Leaves::Start, "", byProperty},
      {"IsBrowseByMacro", [](BrowseScene& scene) { scene.browse.IsBrowse(); }, kAll},
      {"IsBrowseByProperty", [](BrowseScene& scene) { scene.browse.IsBrowse(); }, kAll,
       Leaves::Start, "", byProperty},
      {"AddBrowseShortcut", [](BrowseScene& scene) { scene.browse.AddBrowseShortcut(); }},
      {"AddBrowseShortcutThatIsThere",
       [](BrowseScene& scene) { scene.shortcut.AddBrowseShortcut(); }, 0, Leaves::Start, "Workbook",
       withEntry},
      {"DeleteBrowseShortcut", [](BrowseScene& scene) { scene.browse.DeleteBrowseShortcut(); }, 0,
       Leaves::Start,
       Through({"DeleteBrowseShortcut of Class Module clsExcelBrowse",
                "DeleteBrowseShortcut of Class Module clsAddBrowse Line#:[0-9]+"}),
       withEntry},
      {"SetDocumentPropertyOff",
       [](BrowseScene& scene) { scene.shortcut.SetDocumentPropertyOff(); }, kAll},
  };
}

struct CleanBrowse {
  Lines lines;
  std::vector<std::string> ahead;
  std::string end;
};

CleanBrowse RunCleanly(const BrowseOperation& operation) {
  CleanBrowse run;
  BrowseScene scene;
  operation.prepare(scene);
  auto& calls = scene.host.Calls();
  calls.LogCalls(true);
  calls.Watch([&] { run.ahead.push_back(scene.Snapshot()); });
  operation.run(scene);
  calls.Watch({});
  run.lines = calls.Lines();
  run.end = scene.Snapshot();
  return run;
}

/// Runs the operation with one call failing, and gives the error that comes out.
std::optional<Error> RunFailing(const BrowseOperation& operation, std::size_t call,
                                BrowseScene& scene) {
  operation.prepare(scene);
  scene.host.Calls().FailCall(call + 1, kFault, kFaultWords);
  try {
    operation.run(scene);
    return std::nullopt;
  } catch (const Error& error) {
    return error;
  }
}

class BrowseFaultSweep : public ::testing::TestWithParam<BrowseOperation> {};

TEST_P(BrowseFaultSweep, AFailureOfEachHostCallComesOutAsPromisedAndSpoilsNothingElse) {
  const BrowseOperation& operation = GetParam();
  const CleanBrowse clean = RunCleanly(operation);
  ASSERT_EQ(clean.ahead.size(), clean.lines.size());
  ASSERT_GT(clean.lines.size(), 2U);
  for (std::size_t call = 0; call < clean.lines.size(); ++call) {
    SCOPED_TRACE("call " + std::to_string(call + 1) + ": " + clean.lines[call]);
    BrowseScene scene;
    const std::optional<Error> error = RunFailing(operation, call, scene);
    if (call < operation.forgiven) {
      EXPECT_FALSE(error) << error->Description();
      EXPECT_EQ(scene.Snapshot(),
                operation.leaves == Leaves::Start ? clean.ahead.front() : clean.end);
      continue;
    }
    ASSERT_TRUE(error) << "the failure was lost";
    EXPECT_EQ(error->Number(), kFault);
    EXPECT_EQ(error->Description(), kFaultWords);
    EXPECT_THAT(error->Source(), MatchesRegex(operation.source));
    EXPECT_EQ(scene.Snapshot(), clean.ahead[call]) << "what came before is done, nothing behind it";
  }
}

INSTANTIATE_TEST_SUITE_P(Operations, BrowseFaultSweep, ::testing::ValuesIn(Operations()),
                         [](const auto& row) { return row.param.name; });

/// Of the calls of a marking only that of Add is forgiven.
void ExpectMarkingTold(const BrowseOperation& operation) {
  const CleanBrowse clean = RunCleanly(operation);
  ASSERT_EQ(clean.lines.size(), 4U);
  for (std::size_t call = 0; call < clean.lines.size(); ++call) {
    SCOPED_TRACE(clean.lines[call]);
    BrowseScene scene;
    const std::optional<Error> error = RunFailing(operation, call, scene);
    if (call == 1) {
      EXPECT_FALSE(error);
      EXPECT_EQ(scene.Snapshot(), clean.end);
      continue;
    }
    ASSERT_TRUE(error);
    EXPECT_EQ(error->Number(), kFault);
    EXPECT_THAT(error->Source(), MatchesRegex(operation.source));
    EXPECT_EQ(scene.Snapshot(), clean.ahead[call]);
  }
}

TEST(BrowseFaults, MarkingAWorkbookForgivesThatThePropertyIsThere) {
  ExpectMarkingTold({"AddByProperty",
                     [](BrowseScene& scene) { scene.browse.AddBrowseToWorkbook(); }, 0,
                     Leaves::Start, Through({kMark, kAdd}),
                     [](BrowseScene& scene) { scene.browse.let_bNewMethod(true); }});
  ExpectMarkingTold(
      {"SetDocumentPropertyOn", [](BrowseScene& scene) { scene.shortcut.SetDocumentPropertyOn(); },
       0, Leaves::Start, Through({"SetDocumentPropertyOn of frmRangeSelect Line#:[0-9]+"})});
}

}  // namespace
}  // namespace rangewerks::tests
