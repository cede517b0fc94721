// The lines of a macro module, as every host keeps them.
#include "hosts/common/code_text.h"

#include <gmock/gmock.h>

#include "hosts/common/name_rules.h"
#include "hosts/late_calls.h"
#include "support/error_of.h"

namespace rangewerks::tests {
namespace {

using hosts::CodePart;
using hosts::CodeText;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::int32_t kSubscriptOutOfRange = 9;
constexpr std::int32_t kSubNotDefined = 35;
constexpr std::int32_t kInvalidCall = 5;

/// Where a text was found, as "line:column-line:column"; empty when it wasn't.
std::string Found(const CodeText& code, const char* target, CodePart part = {},
                  hosts::CodeSearch how = {}) {
  if (!code.Find(target, part, how)) return {};
  return std::to_string(part.startLine) + ":" + std::to_string(part.startColumn) + "-" +
         std::to_string(part.endLine) + ":" + std::to_string(part.endColumn);
}

/// Start and count of a procedure, as "start+count".
std::string Place(const CodeText& code, const char* name, std::int32_t kind = 0) {
  return std::to_string(code.ProcStartLine(name, kind)) + "+" +
         std::to_string(code.ProcCountLines(name, kind));
}

TEST(CodeText, HoldsNoLineUntilThereIsText) {
  EXPECT_EQ(CodeText().CountOfLines(), 0);
  EXPECT_EQ(CodeText("").CountOfLines(), 0);
  EXPECT_EQ(CodeText("A").CountOfLines(), 1);
}

TEST(CodeText, LinesEndWithCarriageReturnLineFeedOrBoth) {
  EXPECT_THAT(CodeText("A\rB\nC\r\nD").lines(), ElementsAre("A", "B", "C", "D"));
  EXPECT_THAT(CodeText("\rA\r\rB\r").lines(), ElementsAre("", "A", "", "B", ""));
  EXPECT_EQ(CodeText("A\r\nB").Text(), "A\nB");
}

TEST(CodeText, LinesGivesThemWithLineBreaksBetween) {
  const CodeText code("A\rB\rC");
  EXPECT_EQ(code.Lines(2, 2), "B\r\nC");
  EXPECT_EQ(code.Lines(3, 1), "C");
  EXPECT_EQ(code.Lines(1, 0), "");
}

TEST(CodeText, InsertLinesPutsEachLineOfTheTextInFrontOfTheLine) {
  CodeText code("A\rD");
  code.InsertLines(2, "B\rC");
  EXPECT_THAT(code.lines(), ElementsAre("A", "B", "C", "D"));
}

TEST(CodeText, InsertLinesBehindTheLastLineAppends) {
  CodeText code;
  code.InsertLines(1, "\rA");
  code.InsertLines(3, "B");
  EXPECT_THAT(code.lines(), ElementsAre("", "A", "B"));
}

TEST(CodeText, InsertingEmptyTextInsertsAnEmptyLine) {
  CodeText code;
  code.InsertLines(1, "");
  EXPECT_THAT(code.lines(), ElementsAre(""));
}

TEST(CodeText, DeleteLinesTakesTheLinesAway) {
  CodeText code("A\rB\rC\rD");
  code.DeleteLines(2, 2);
  EXPECT_THAT(code.lines(), ElementsAre("A", "D"));
  code.DeleteLines(1, 2);
  EXPECT_THAT(code.lines(), IsEmpty());
}

TEST(CodeText, ReplaceLinePutsATextInItsPlace) {
  CodeText code("A\rB");
  code.ReplaceLine(1, "C\rD");
  EXPECT_THAT(code.lines(), ElementsAre("C", "D", "B"));
}

TEST(CodeText, LinesThatArentThereAreRefusedAndNothingChanges) {
  CodeText code("A\rB");
  EXPECT_EQ(ErrorNumberOf([&] { code.InsertLines(0, "X"); }), kSubscriptOutOfRange);
  EXPECT_EQ(ErrorNumberOf([&] { code.InsertLines(4, "X"); }), kSubscriptOutOfRange);
  EXPECT_EQ(ErrorNumberOf([&] { code.DeleteLines(0, 1); }), kSubscriptOutOfRange);
  EXPECT_EQ(ErrorNumberOf([&] { code.DeleteLines(3, 1); }), kSubscriptOutOfRange);
  EXPECT_EQ(ErrorNumberOf([&] { code.DeleteLines(2, 2); }), kSubscriptOutOfRange);
  EXPECT_EQ(ErrorNumberOf([&] { code.DeleteLines(1, -1); }), kSubscriptOutOfRange);
  EXPECT_EQ(ErrorNumberOf([&] { code.DeleteLines(2, 0x7FFFFFFF); }), kSubscriptOutOfRange);
  EXPECT_EQ(ErrorNumberOf([&] { code.ReplaceLine(3, "X"); }), kSubscriptOutOfRange);
  EXPECT_EQ(ErrorNumberOf([&] { code.Lines(1, 3); }), kSubscriptOutOfRange);
  EXPECT_THAT(code.lines(), ElementsAre("A", "B"));
}

TEST(CodeText, FindTellsWhereTheFirstHitLiesWhateverItsCase) {
  const CodeText code("Sub Run()\r  Call Other\r  call other");
  EXPECT_EQ(Found(code, "CALL"), "2:3-2:7");
  EXPECT_EQ(Found(code, "her"), "2:10-2:13");
  EXPECT_EQ(Found(code, "none"), "");
  EXPECT_EQ(Found(code, ""), "");
}

TEST(CodeText, FindLooksOnlyBetweenTheGivenPlaces) {
  const CodeText code("one two\rone two\rone two");
  EXPECT_EQ(Found(code, "one", {1, 2, -1, -1}), "2:1-2:4");
  EXPECT_EQ(Found(code, "one", {2, 2, 2, -1}), "");
  EXPECT_EQ(Found(code, "two", {1, 1, 1, 7}), "") << "its last character isn't in the part";
  EXPECT_EQ(Found(code, "two", {1, 1, 1, 8}), "1:5-1:8");
  EXPECT_EQ(Found(code, "one", {3, 1, 99, 1}), "3:1-3:4");
  EXPECT_EQ(Found(code, "one", {4, 1, -1, -1}), "");
}

TEST(CodeText, FindMatchesCaseAndWholeWordsOnRequest) {
  const CodeText code("caller\rCall_1 call\rCall");
  EXPECT_EQ(Found(code, "Call", {}, {.matchCase = true}), "2:1-2:5");
  EXPECT_EQ(Found(code, "Call", {}, {.wholeWord = true}), "2:8-2:12");
  EXPECT_EQ(Found(code, "Call", {}, {.wholeWord = true, .matchCase = true}), "3:1-3:5");
}

TEST(CodeText, FindCountsColumnsInCharacters) {
  const CodeText code("' \xC3\x84\xE2\x82\xAC Run");
  EXPECT_EQ(Found(code, "run"), "1:6-1:9");
  EXPECT_EQ(Found(code, "\xC3\xA4"), "1:3-1:4");
}

TEST(CodeText, APatternSearchIsRefused) {
  EXPECT_EQ(ErrorNumberOf([] { Found(CodeText("A"), "A", {}, {.patternSearch = true}); }),
            kInvalidCall);
}

TEST(CodeText, AProcedureReachesFromTheEndOfTheOneBeforeToItsEndLine) {
  const CodeText code(
      "Option Explicit\r"
      "\r"
      "' What it does.\r"
      "Public Sub First(ByVal lIndex As Long)\r"
      "  Exit Sub\r"
      "End Sub\r"
      "\r"
      "Private Static Function Second$()\r"
      "End Function\r"
      "Sub Third\r"
      "End sub\r"
      "' behind\r");
  EXPECT_EQ(Place(code, "First"), "2+5") << "the comment above it is its own";
  EXPECT_EQ(Place(code, "second"), "7+3");
  EXPECT_EQ(Place(code, "THIRD"), "10+4") << "the last one reaches to the end of the module";
  EXPECT_EQ(code.ProcBodyLine("First", 0), 4);
  EXPECT_EQ(code.ProcBodyLine("Second", 0), 8);
}

TEST(CodeText, TheProceduresOfAPropertyAreToldByTheirKind) {
  const CodeText code(
      "Property Get Code() As String\r"
      "End Property\r"
      "Property Let Code(ByVal sCode As String)\r"
      "End Property\r"
      "Friend Property Set Code(oCode)\r"
      "End Property");
  EXPECT_EQ(Place(code, "Code", 3), "1+2");
  EXPECT_EQ(Place(code, "Code", 1), "3+2");
  EXPECT_EQ(Place(code, "Code", 2), "5+2");
  EXPECT_EQ(ErrorNumberOf([&] { Place(code, "Code"); }), kSubNotDefined);
}

TEST(CodeText, AProcedureWithoutAnEndLineEndsWhereTheNextIsDeclared) {
  const CodeText code("Sub First(): End Sub\rSub Second()\rEnd Sub");
  EXPECT_EQ(Place(code, "First"), "1+1");
  EXPECT_EQ(Place(code, "Second"), "2+2");
  EXPECT_EQ(Place(CodeText("Sub First()\rx = 1"), "First"), "1+2");
}

TEST(CodeText, ALineThatGoesOnIsOneWithTheNext) {
  const CodeText code(
      "Dim one, _\r"
      "  two\r"
      "' a comment _\r"
      "Sub NotThisOne()\r"
      "Private Sub _\r"
      "  First _\r"
      "  (ByVal lIndex As Long)\r"
      "  x = _\r"
      "End Sub\r"
      "End Sub\r"
      "Sub Second()\r"
      "End Sub _");
  EXPECT_EQ(Place(code, "First"), "3+8") << "the comment is its own, on both lines";
  EXPECT_EQ(code.ProcBodyLine("First", 0), 5);
  EXPECT_EQ(Place(code, "Second"), "11+2");
  EXPECT_EQ(ErrorNumberOf([&] { Place(code, "NotThisOne"); }), kSubNotDefined);
}

TEST(CodeText, AProcedureOnOneLineLeavesWhatIsBelowToTheNext) {
  const CodeText code(
      "Sub First(): x = \": End Sub\": End Sub\r' about the second\rSub Second()\rEnd Sub");
  EXPECT_EQ(Place(code, "First"), "1+1");
  EXPECT_EQ(Place(code, "Second"), "2+3");
}

TEST(CodeText, WhatIsNoDeclarationIsNoProcedure) {
  const CodeText code(
      "Declare Sub Outside Lib \"x\" ()\r"
      "' Sub Commented()\r"
      "Dim Subtotal\r"
      "Public Property\r"
      "Sub");
  for (const char* name : {"Outside", "Commented", "total", "Subtotal", ""}) {
    EXPECT_EQ(ErrorNumberOf([&] { Place(code, name); }), kSubNotDefined) << name;
  }
}

TEST(CodeText, AMissingProcedureIsToldInTheObjectModelsWords) {
  const auto error = ErrorOf([] { CodeText().ProcStartLine("Run", 0); });
  EXPECT_EQ(error.Number(), kSubNotDefined);
  EXPECT_EQ(error.Description(), "Sub or Function not defined");
}

TEST(ModuleNames, AreLettersDigitsAndUnderscoresBehindALetter) {
  using hosts::FaultOfModuleName;
  EXPECT_EQ(FaultOfModuleName("OstrelBrowseModule"), "");
  EXPECT_EQ(FaultOfModuleName("Module_2"), "");
  EXPECT_EQ(FaultOfModuleName("Zo\xC3\xAB"), "");
  EXPECT_EQ(FaultOfModuleName(std::string(31, 'a')), "");
  EXPECT_EQ(FaultOfModuleName(""), "it is empty");
  EXPECT_EQ(FaultOfModuleName(std::string(32, 'a')), "it has more than 31 characters");
  EXPECT_EQ(FaultOfModuleName("2nd"), "it doesn't begin with a letter");
  EXPECT_EQ(FaultOfModuleName("_a"), "it doesn't begin with a letter");
  EXPECT_EQ(FaultOfModuleName("a b"), "it holds the character \" \"");
}

}  // namespace
}  // namespace rangewerks::tests
