// The command that gives a workbook a right-click browse: what it prints, saves and refuses.
#include <nlohmann/json.hpp>

#include "apps/command_line.h"

namespace rangewerks::apps {
namespace {

constexpr const char* kPlain = R"({"sheets": [{"name": "Journal"}]})";
constexpr const char* kWithOwnMacro = R"json({"sheets": [{"name": "Journal"}],
  "modules": [{"name": "ThisWorkbook",
               "code": ["Private Sub Workbook_Open()", "  MsgBox \"Welcome\"", "End Sub"]
}]
})json";

class BrowseCommand : public CommandLine {
 protected:
  BrowseCommand() { Write("plain.json", kPlain); }

  nlohmann::json Saved(const std::string& name = "out.json") const {
    return nlohmann::json::parse(Text(name));
  }
  void ExpectNothingDone(const std::string& arguments, const std::string& messages) const {
    ExpectRefusal(arguments, "rangewerks: " + messages + "\n");
    EXPECT_FALSE(std::filesystem::exists(File("out.json"))) << arguments;
    EXPECT_EQ(Text("plain.json"), kPlain) << arguments;
  }
};

TEST_F(BrowseCommand, MarksAWorkbookWithADocumentProperty) {
  const Outcome outcome = Run("browse plain.json --add --save out.json");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.messages, "");
  EXPECT_EQ(outcome.output, R"(Workbook               plain.json
Component              OstrelBrowseModule
Document property      yes
Browse module          no
Menu entry on opening  no
Saved to: out.json
)");
  EXPECT_EQ(Text("plain.json"), kPlain);
  EXPECT_EQ(Saved()["properties"],
            nlohmann::json::parse(R"([{"name": "OstrelBrowseModule", "value": true}])"));
}

TEST_F(BrowseCommand, TellsTheStatusAndFindsFaultWithAWorkbookThatHasNone) {
  const Outcome without = Run("browse plain.json --status");
  EXPECT_EQ(without.status, 1);
  EXPECT_EQ(without.output, R"(Workbook               plain.json
Component              OstrelBrowseModule
Document property      no
Browse module          no
Menu entry on opening  no
)");
  Run("browse plain.json --add --component Ledger.Browse --save out.json");
  const Outcome with = Run("browse out.json --status --component Ledger.Browse");
  EXPECT_EQ(with.status, 0);
  EXPECT_NE(with.output.find("Document property      yes\n"), std::string::npos);
  EXPECT_EQ(Run("browse out.json --status").status, 1) << "that is another component";
}

TEST_F(BrowseCommand, WritesTheMacroThatAddsTheMenuEntryOnOpening) {
  const Outcome outcome = Run("browse plain.json --add --method macro --save out.json");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_NE(outcome.output.find("Menu entry on opening  yes\n"), std::string::npos);
  EXPECT_EQ(Saved()["modules"], nlohmann::json::parse(R"json([{"name": "ThisWorkbook", "code": [
    "",
    "Private Sub Workbook_Open()",
    "  If Application.CommandBars(\"Cell\").Controls(1).Caption <> \"Brow&se Records\" Then",
    "      Application.ShortcutMenus(xlWorksheetCell).MenuItems.Add Caption:=\"Brow&se Records\", OnAction:=\"BrowseRecords\", Before:=\"Cut\"",
    "  End if",
    "End Sub"]}])json"));
}

TEST_F(BrowseCommand, RemovesWhatItHasAdded) {
  Run("browse plain.json --add --save out.json");
  EXPECT_EQ(Run("browse out.json --remove --in-place").status, 0);
  EXPECT_EQ(Saved()["properties"][0]["value"], false);
  Run("browse plain.json --add --method macro --save macro.json");
  const Outcome outcome = Run("browse macro.json --remove --method macro --in-place");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_NE(outcome.output.find("Menu entry on opening  no\n"), std::string::npos);
  EXPECT_EQ(Saved("macro.json")["modules"][0]["code"],
            nlohmann::json({"", "Private Sub Workbook_Open()", "End Sub"}));
}

TEST_F(BrowseCommand, RemovesAMacroWithTheOtherMenuText) {
  Run("browse plain.json --add --method macro --save out.json");
  std::string text = Text("out.json");
  for (std::size_t at = 0; (at = text.find("Brow&se", at)) != std::string::npos;) {
    text.replace(at, 7, "&Browse");
  }
  Write("other.json", text);
  EXPECT_EQ(Run("browse other.json --remove --method macro --in-place").status, 0);
  EXPECT_EQ(Saved("other.json")["modules"][0]["code"].size(), 3U);
}

TEST_F(BrowseCommand, AddsTheMacroAnewOverAnOlderOneOrItsEmptyFrame) {
  Run("browse plain.json --add --method macro --save out.json");
  const auto once = Saved();
  EXPECT_EQ(Run("browse out.json --add --method macro --in-place").status, 0);
  EXPECT_EQ(Saved(), once);
  Run("browse out.json --remove --method macro --in-place");
  EXPECT_EQ(Run("browse out.json --add --method macro --in-place").status, 0);
  EXPECT_EQ(Saved(), once);
}

TEST_F(BrowseCommand, AWorkbookOpenOfTheWorkbooksOwnIsNotLost) {
  Write("own.json", kWithOwnMacro);
  ExpectNothingDone("browse own.json --add --method macro --save out.json",
                    "own.json: the workbook has a Workbook_Open of its own, with the line \"MsgBox "
                    "\"Welcome\"\", which would be lost; use --method property, or move that code "
                    "first");
  EXPECT_EQ(Run("browse own.json --add --save out.json").status, 0);
  EXPECT_EQ(Saved()["modules"][0]["code"][1], "  MsgBox \"Welcome\"");
}

TEST_F(BrowseCommand, AnEntryOfTheWorkbooksOwnIsNoneOfABrowse) {
  const std::string own =
      R"json({"sheets": [{"name": "Journal"}],
  "modules": [{"name": "ThisWorkbook", "code": ["Private Sub Workbook_Open()",
               "  Application.ShortcutMenus(xlWorksheetCell).MenuItems.Add Caption:=\"Mine\"",
               "End Sub"]}]})json";
  Write("own.json", own);
  EXPECT_NE(Run("browse own.json --status").output.find("Menu entry on opening  no\n"),
            std::string::npos);
  ExpectNothingDone("browse own.json --add --method macro --save out.json",
                    "own.json: the workbook has a Workbook_Open of its own, with the line "
                    "\"Application.ShortcutMenus(xlWorksheetCell).MenuItems.Add "
                    "Caption:=\"Mine\"\", which would be lost; use --method property, or move "
                    "that code first");
}

TEST_F(BrowseCommand, TheLinesOfABrowseAreKnownInTheCaseThatAMacroEditorGivesThem) {
  Run("browse plain.json --add --method macro --save out.json");
  const auto once = Saved();
  std::string text = Text("out.json");
  text.replace(text.find("End if"), 6, "End If");
  Write("edited.json", text);
  EXPECT_EQ(Run("browse edited.json --add --method macro --in-place").status, 0);
  EXPECT_EQ(Saved("edited.json"), once);
}

TEST_F(BrowseCommand, WrongUsageIsToldAndNothingIsDone) {
  ExpectNothingDone("browse plain.json --add",
                    "say where to save: --save COPY for a new file, or --in-place");
  ExpectNothingDone("browse plain.json --status --save out.json",
                    "--status changes nothing and saves nothing; leave out the options of saving");
  ExpectNothingDone("browse plain.json --add --component ' ' --save out.json",
                    "--component: the name of the browse's component is blank");
  ExpectNothingDone("browse none.json --status",
                    "none.json: there is no such workbook; check the path");
  EXPECT_EQ(Run("browse plain.json").status, 2);
  EXPECT_EQ(Run("browse plain.json --add --remove --save out.json").status, 2);
  EXPECT_EQ(Run("browse plain.json --add --method magic --save out.json").status, 2);
  EXPECT_FALSE(std::filesystem::exists(File("out.json")));
}

TEST_F(BrowseCommand, AComponentIsNamedInPlainText) {
  for (const char* name : {"a\nb", "a\tb", "a\x7F", "a\x93"}) {
    ExpectNothingDone(
        std::string("browse plain.json --add --component '") + name + "' --save out.json",
        "--component: the name of the browse's component holds line ends, other "
        "control characters or bytes that are no UTF-8; leave them out");
  }
  EXPECT_EQ(Run("browse plain.json --add --component 'Zo\xC3\xAB' --save out.json").status, 0);
}

TEST_F(BrowseCommand, AFileThatHoldsNoMacrosIsRefusedForOne) {
  Write("book.xlsx", "");
  ExpectRefusal("browse book.xlsx --add --method macro --save out.xlsx",
                "rangewerks: out.xlsx: files of this kind hold no macros; save to .xlsm or .xls, "
                "or use --method property\n");
}

}  // namespace
}  // namespace rangewerks::apps
