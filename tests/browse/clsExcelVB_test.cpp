#include "browse/clsExcelVB.h"

#include <gmock/gmock.h>

#include "browse/browse_fixture.h"

namespace rangewerks::tests {
namespace {

using testing::ElementsAre;

constexpr std::int32_t kSubscriptOutOfRange = 9;
constexpr std::int32_t kObjectNotSet = 91;
constexpr std::int32_t kRefused = 1004;

class ExcelVB : public BrowseFixture {
 protected:
  ExcelVB() {
    editor.set_WorkBook(Book());
    editor.let_Module("Macros");
    editor.let_Procedure("Run");
  }

  clsExcelVB editor;
};

TEST_F(ExcelVB, KeepsWorkbookModuleAndProcedure) {
  EXPECT_EQ(editor.get_WorkBook(), Book());
  EXPECT_EQ(editor.get_Module(), "Macros");
  EXPECT_EQ(editor.get_Procedure(), "Run");
  EXPECT_FALSE(clsExcelVB().get_WorkBook());
}

// --- inserting -----------------------------------------------------------------------------------

TEST_F(ExcelVB, InsertCodePutsALineEndAheadOfEachLineAndDropsBlankOnes) {
  AddModule("Macros");
  for (const char* line : {"A", "", "   ", "B"}) editor.AddCodeLine(line);
  EXPECT_THAT(
      CallsOf([&] { editor.InsertCode(); }),
      ElementsAre("Workbook.VBProject get", "VBProject.VBComponents get",
                  "VBComponents.Item get \"Macros\"", "VBComponent.CodeModule get",
                  "CodeModule.CountOfLines get", "CodeModule.InsertLines call 1, \"\rA\rB\""));
  EXPECT_EQ(TextOf("Macros"), "\rA\rB");
}

TEST_F(ExcelVB, LeadingBlanksOfALineStay) {
  AddModule("Macros");
  editor.AddCodeLine("  A  ");
  editor.AddCodeLine("\t");
  EXPECT_EQ(CallsOf([&] { editor.InsertCode(); }).back(),
            "CodeModule.InsertLines call 1, \"\r  A  \r\t\"")
      << "only blanks count as blank, a tab doesn't";
}

TEST_F(ExcelVB, InsertCodeGoesBehindTheLastLineAndKeepsTheLinesForAnotherTime) {
  AddModule("Macros");
  PutCode("Macros", "' first");
  editor.AddCodeLine("A");
  editor.InsertCode();
  editor.InsertCode();
  EXPECT_EQ(TextOf("Macros"), "' first\r\rA\r\rA");
}

TEST_F(ExcelVB, InsertCodeWithoutLinesInsertsEmptyText) {
  AddModule("Macros");
  EXPECT_EQ(CallsOf([&] { editor.InsertCode(); }).back(), "CodeModule.InsertLines call 1, \"\"");
  editor.AddCodeLine("A");
  editor.ClearCode();
  EXPECT_EQ(CallsOf([&] { editor.InsertCode(); }).back(), "CodeModule.InsertLines call 2, \"\"");
}

TEST_F(ExcelVB, InsertCodeIntoAModuleThatIsNotThereFailsAsTheHostDoes) {
  const Error error = ErrorOf([&] { editor.InsertCode(); });
  EXPECT_EQ(error.Number(), kSubscriptOutOfRange);
  EXPECT_EQ(error.Source(), "Workbook");
  EXPECT_EQ(error.Description(), "Workbook \"Ledger\" has no module \"Macros\"");
}

// --- deleting ------------------------------------------------------------------------------------

TEST_F(ExcelVB, DeleteProcedureTakesItOutWithTheCommentsAboveIt) {
  AddModule("Macros");
  PutCode("Macros",
          "Sub First()\rEnd Sub\r\r' it runs\rsub RUN()\r  x = 1\rEnd Sub\rSub Last()\r"
          "End Sub");
  EXPECT_THAT(
      CallsOf([&] { editor.DeleteProcedure(); }),
      ElementsAre("Workbook.VBProject get", "VBProject.VBComponents get",
                  "VBComponents.Item get \"Macros\"", "VBComponent.CodeModule get",
                  "CodeModule.ProcStartLine get \"Run\", 0",
                  "CodeModule.ProcCountLines get \"Run\", 0", "CodeModule.DeleteLines call 3, 5"));
  EXPECT_EQ(TextOf("Macros"), "Sub First()\rEnd Sub\rSub Last()\rEnd Sub");
}

TEST_F(ExcelVB, DeleteProcedureThatIsNotThereChangesNothing) {
  AddModule("Macros");
  PutCode("Macros", "Sub First()\rEnd Sub");
  EXPECT_THAT(
      CallsOf([&] { editor.DeleteProcedure(); }),
      ElementsAre("Workbook.VBProject get", "VBProject.VBComponents get",
                  "VBComponents.Item get \"Macros\"", "VBComponent.CodeModule get",
                  "CodeModule.ProcStartLine get \"Run\", 0",
                  "CodeModule.ProcCountLines get \"Run\", 0", "CodeModule.DeleteLines call 0, 0"));
  EXPECT_EQ(TextOf("Macros"), "Sub First()\rEnd Sub");
}

TEST_F(ExcelVB, DeleteProcedureInAModuleThatIsNotThereReturnsAndChangesNothing) {
  EXPECT_THAT(CallsOf([&] { editor.DeleteProcedure(); }),
              ElementsAre("Workbook.VBProject get", "VBProject.VBComponents get",
                          "VBComponents.Item get \"Macros\""));
  EXPECT_EQ(GetLong(Modules(), "Count"), 2);
}

TEST_F(ExcelVB, LoadProcedureLeavesTheProcedureAndForgetsTheLines) {
  AddModule("Macros");
  PutCode("Macros", "Sub Run()\rEnd Sub");
  editor.AddCodeLine("A");
  EXPECT_THAT(CallsOf([&] { editor.LoadProcedure(); }),
              ElementsAre("Workbook.VBProject get", "VBProject.VBComponents get",
                          "VBComponents.Item get \"Macros\"", "VBComponent.CodeModule get",
                          "CodeModule.ProcStartLine get \"Run\", 0",
                          "CodeModule.ProcCountLines get \"Run\", 0"));
  EXPECT_EQ(TextOf("Macros"), "Sub Run()\rEnd Sub");
  EXPECT_EQ(CallsOf([&] { editor.InsertCode(); }).back(), "CodeModule.InsertLines call 3, \"\"");
}

TEST_F(ExcelVB, LoadProcedureWithoutAModuleForgetsTheLinesAllTheSame) {
  editor.AddCodeLine("A");
  editor.LoadProcedure();
  AddModule("Macros");
  EXPECT_EQ(CallsOf([&] { editor.InsertCode(); }).back(), "CodeModule.InsertLines call 1, \"\"");
}

TEST_F(ExcelVB, DeleteThisTextDeletesOneLineUnlessToldOtherwise) {
  AddModule("Macros");
  PutCode("Macros", "' one\r' TWO lines\r' two again\r' four\r' five");
  EXPECT_THAT(CallsOf([&] { editor.DeleteThisText("two L"); }),
              ElementsAre("Workbook.VBProject get", "VBProject.VBComponents get",
                          "VBComponents.Item get \"Macros\"", "VBComponent.CodeModule get",
                          "CodeModule.Find call \"two L\", 1, 1, -1, -1, False, False, False",
                          "CodeModule.DeleteLines call 2, 1"));
  EXPECT_EQ(TextOf("Macros"), "' one\r' two again\r' four\r' five");
  editor.DeleteThisText("two", 2);
  EXPECT_EQ(TextOf("Macros"), "' one\r' five");
}

TEST_F(ExcelVB, DeleteThisTextTreatsTheFirstHitOnly) {
  AddModule("Macros");
  PutCode("Macros", "' x\r' x");
  editor.DeleteThisText("x");
  EXPECT_EQ(TextOf("Macros"), "' x");
}

TEST_F(ExcelVB, DeleteThisTextThatIsNotThereDoesNothing) {
  AddModule("Macros");
  PutCode("Macros", "' one");
  EXPECT_EQ(CallsOf([&] { editor.DeleteThisText("two"); }).back(),
            "CodeModule.Find call \"two\", 1, 1, -1, -1, False, False, False");
  EXPECT_EQ(TextOf("Macros"), "' one");
}

TEST_F(ExcelVB, DeleteThisTextInAModuleThatIsNotThereFailsAsTheHostDoes) {
  const Error error = ErrorOf([&] { editor.DeleteThisText("x"); });
  EXPECT_EQ(error.Number(), kSubscriptOutOfRange);
  EXPECT_EQ(error.Source(), "Workbook");
}

// --- modules -------------------------------------------------------------------------------------

TEST_F(ExcelVB, AddModuleAddsAStandardModuleOfThatName) {
  EXPECT_THAT(CallsOf([&] { editor.AddModule(); }),
              ElementsAre("Workbook.VBProject get", "VBProject.VBComponents get",
                          "VBComponents.Add call 1", "VBComponent.Name let \"Macros\""));
  EXPECT_EQ(GetLong(GetObject(Modules(), "Item", {"Macros"}), "Type"), 1);
}

TEST_F(ExcelVB, AddModuleDoesNotLookForOneOfThatName) {
  editor.AddModule();
  EXPECT_EQ(ErrorOf([&] { editor.AddModule(); }).Number(), kRefused);
  EXPECT_TRUE(HasModule("Module1")) << "the second stays under the host's name";
}

TEST_F(ExcelVB, DeleteModuleRemovesIt) {
  AddModule("Macros");
  EXPECT_THAT(
      CallsOf([&] { editor.DeleteModule(); }),
      ElementsAre("Workbook.VBProject get", "VBProject.VBComponents get",
                  "VBComponents.Item get \"Macros\"", "VBComponents.Remove call VBComponent"));
  EXPECT_FALSE(HasModule("Macros"));
}

TEST_F(ExcelVB, DeleteModuleStopsAtOnceWithoutAWordWhenItIsNotThere) {
  EXPECT_THAT(CallsOf([&] { editor.DeleteModule(); }),
              ElementsAre("Workbook.VBProject get", "VBProject.VBComponents get",
                          "VBComponents.Item get \"Macros\""));
}

// --- without access, without a workbook ----------------------------------------------------------

TEST_F(ExcelVB, WithoutTrustDeletingIsSilentAndAddingFailsAsTheHostDoes) {
  host.TrustVBProject(false);
  editor.AddCodeLine("A");
  editor.DeleteProcedure();
  editor.DeleteModule();
  for (const std::function<void()>& step : {std::function<void()>([&] { editor.InsertCode(); }),
                                            {[&] { editor.AddModule(); }},
                                            {[&] { editor.DeleteThisText("x"); }}}) {
    const Error error = ErrorOf(step);
    EXPECT_EQ(error.Number(), kRefused);
    EXPECT_EQ(error.Source(), "Workbook");
    EXPECT_EQ(error.Description(), "Programmatic access to Visual Basic Project is not trusted");
  }
}

TEST_F(ExcelVB, WithoutAWorkbookDeletingIsSilentAndAddingIsError91) {
  clsExcelVB none;
  none.DeleteProcedure();
  none.LoadProcedure();
  none.DeleteModule();
  EXPECT_EQ(ErrorOf([&] { none.InsertCode(); }).Number(), kObjectNotSet);
  EXPECT_EQ(ErrorOf([&] { none.AddModule(); }).Number(), kObjectNotSet);
  EXPECT_EQ(ErrorOf([&] { none.DeleteThisText("x"); }).Number(), kObjectNotSet);
}

TEST_F(ExcelVB, AnswersByName) {
  const Object object(std::make_shared<clsExcelVB>());
  EXPECT_EQ(object.TypeName(), "clsExcelVB");
  object.Set(Member("WorkBook"), book);
  Let(object, "Module", "ThisWorkbook");
  Let(object, "Procedure", "Workbook_Open");
  Call(object, "AddCodeLine", {"Private Sub Workbook_Open()"});
  Call(object, "AddCodeLine", {"End Sub"});
  Call(object, "InsertCode");
  EXPECT_EQ(TextOf("ThisWorkbook"), "\rPrivate Sub Workbook_Open()\rEnd Sub");
  Call(object, "DeleteThisText", {"Private"});
  EXPECT_EQ(TextOf("ThisWorkbook"), "\rEnd Sub") << "one line when no number is given";
  EXPECT_EQ(GetObject(object, "WorkBook"), book);
  EXPECT_EQ(GetText(object, "Module"), "ThisWorkbook");
  EXPECT_EQ(GetText(object, "Procedure"), "Workbook_Open");
}

}  // namespace
}  // namespace rangewerks::tests
