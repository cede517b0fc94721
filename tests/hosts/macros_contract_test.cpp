// The macro project of a workbook: its modules and their code.
#include "hosts/contract.h"
#include "platform/excel_constants.h"

namespace rangewerks::tests {
namespace {

using automation::Argument;

class MacrosContract : public HostContract {
 protected:
  void SetUp() override {
    HostContract::SetUp();
    host_->TrustMacros();
    modules_ = GetObject(GetObject(book_, "VBProject"), "VBComponents");
  }

  Object AddModule(const char* name) {
    const Object module = Call(modules_, "Add", {excel::vbext_ct_StdModule}).AsObject();
    Let(module, "Name", name);
    return module;
  }
  /// The code of a new standard module.
  Object NewCode(const std::string& text) {
    const Object code = GetObject(AddModule("Subject"), "CodeModule");
    const std::int32_t lines = GetLong(code, "CountOfLines");
    if (lines > 0) Call(code, "DeleteLines", {1, lines});
    Call(code, "InsertLines", {1, text});
    return code;
  }
  Object CodeOf(const char* module) {
    return GetObject(GetObject(modules_, "Item", {module}), "CodeModule");
  }
  static std::string TextOf(const Object& code) {
    return GetText(code, "Lines", {1, GetLong(code, "CountOfLines")});
  }
  static std::int32_t StartOf(const Object& code, const char* procedure, std::int32_t kind = 0) {
    return ToLong(Get(code, "ProcStartLine", {procedure, kind}), automation::Locale());
  }
  static std::int32_t CountOf(const Object& code, const char* procedure, std::int32_t kind = 0) {
    return ToLong(Get(code, "ProcCountLines", {procedure, kind}), automation::Locale());
  }
  /// The line of the first hit from a line on; 0 without one.
  static std::int32_t LineOf(const Object& code, const char* text, std::int32_t from = 1) {
    Variant line = from;
    const Variant found =
        Call(code, "Find", {text, Argument::Reference(line), 1, -1, -1, false, false, false});
    if (!ToBoolean(found, automation::Locale())) {
      EXPECT_EQ(ToLong(line, automation::Locale()), from) << "without a hit the line stays";
      return 0;
    }
    return ToLong(line, automation::Locale());
  }

  Object modules_;
};
CONTRACT_FOR_ALL_HOSTS(MacrosContract);

TEST_P(MacrosContract, TheConstantsAreThePublishedNumbers) {
  EXPECT_EQ(excel::vbext_ct_StdModule, 1);
  EXPECT_EQ(excel::vbext_pk_Proc, 0);
}

TEST_P(MacrosContract, ObjectsTellTheirClassNames) {
  EXPECT_EQ(GetObject(book_, "VBProject").TypeName(), "VBProject");
  EXPECT_EQ(modules_.TypeName(), "VBComponents");
  EXPECT_EQ(GetObject(modules_, "Item", {"ThisWorkbook"}).TypeName(), "VBComponent");
  EXPECT_EQ(CodeOf("ThisWorkbook").TypeName(), "CodeModule");
}

TEST_P(MacrosContract, ANewWorkbookHasAModuleOfItsOwnAndOneForEachSheet) {
  EXPECT_EQ(GetLong(modules_, "Count"), 4);
  EXPECT_EQ(GetText(GetObject(modules_, "Item", {"thisworkbook"}), "Name"), "ThisWorkbook");
  for (const Variant& module : Elements(modules_)) {
    EXPECT_EQ(GetLong(module.AsObject(), "Type"), 100);
  }
}

TEST_P(MacrosContract, AModuleIsAddedNamedAndFoundInAnyCase) {
  AddModule("OstrelBrowseModule");
  const Object found = GetObject(modules_, "Item", {"OSTRELbrowsemodule"});
  EXPECT_EQ(GetText(found, "Name"), "OstrelBrowseModule");
  EXPECT_EQ(GetLong(found, "Type"), 1);
  EXPECT_EQ(GetLong(modules_, "Count"), 5);
}

TEST_P(MacrosContract, AModuleThatIsNotThereFails) {
  EXPECT_TRUE(Fails([&] { GetObject(modules_, "Item", {"Nothing"}); }));
}

TEST_P(MacrosContract, ANameThatAnotherModuleHasFails) {
  AddModule("First");
  const Object second = AddModule("Second");
  EXPECT_TRUE(Fails([&] { Let(second, "Name", "first"); }));
  EXPECT_EQ(GetText(second, "Name"), "Second");
}

TEST_P(MacrosContract, RemoveTakesAModuleOut) {
  const Object module = AddModule("Gone");
  Call(modules_, "Remove", {module});
  EXPECT_TRUE(Fails([&] { GetObject(modules_, "Item", {"Gone"}); }));
  EXPECT_EQ(GetLong(modules_, "Count"), 4);
}

TEST_P(MacrosContract, TheModuleOfTheWorkbookCanNotBeRemoved) {
  const Object module = GetObject(modules_, "Item", {"ThisWorkbook"});
  EXPECT_TRUE(Fails([&] { Call(modules_, "Remove", {module}); }));
  EXPECT_EQ(GetLong(modules_, "Count"), 4);
}

TEST_P(MacrosContract, AnyLineEndMakesLines) {
  for (const char* text : {"Sub A()\rEnd Sub", "Sub A()\nEnd Sub", "Sub A()\r\nEnd Sub"}) {
    const Object code = NewCode(text);
    EXPECT_EQ(GetLong(code, "CountOfLines"), 2);
    EXPECT_EQ(TextOf(code), "Sub A()\r\nEnd Sub");
    Call(modules_, "Remove", {GetObject(modules_, "Item", {"Subject"})});
  }
}

TEST_P(MacrosContract, LinesGoAheadOfTheLineThatIsNamed) {
  const Object code = NewCode("' one\r' four");
  Call(code, "InsertLines", {2, "' two\r' three"});
  Call(code, "InsertLines", {5, "\r' six"});
  EXPECT_EQ(TextOf(code), "' one\r\n' two\r\n' three\r\n' four\r\n\r\n' six");
}

TEST_P(MacrosContract, DeleteLinesTakesOutAsManyAsItIsTold) {
  const Object code = NewCode("' one\r' two\r' three\r' four");
  Call(code, "DeleteLines", {2, 2});
  EXPECT_EQ(TextOf(code), "' one\r\n' four");
}

TEST_P(MacrosContract, DeleteLinesFailsForALineThatIsNotThere) {
  const Object code = NewCode("' one\r' two");
  EXPECT_TRUE(Fails([&] { Call(code, "DeleteLines", {0, 1}); }));
  EXPECT_TRUE(Fails([&] { Call(code, "DeleteLines", {3, 1}); }));
  EXPECT_EQ(TextOf(code), "' one\r\n' two");
}

TEST_P(MacrosContract, AProcedureIsFoundByNameInAnyCase) {
  const Object code = NewCode(
      "Option Explicit\rPrivate Sub First()\r  x = 1\rEnd Sub\rPublic Function Second() As Long\r"
      "End Function\rSub Third()\rEnd Sub");
  EXPECT_EQ(StartOf(code, "first"), 2);
  EXPECT_EQ(CountOf(code, "FIRST"), 3);
  EXPECT_EQ(StartOf(code, "Second"), 5);
  EXPECT_EQ(CountOf(code, "Second"), 2);
  EXPECT_EQ(StartOf(code, "Third"), 7);
  EXPECT_EQ(CountOf(code, "Third"), 2);
}

TEST_P(MacrosContract, CommentsAndBlankLinesDirectlyAboveBelongToTheProcedure) {
  const Object code = NewCode("Sub First()\rEnd Sub\r\r' about the second\rSub Second()\rEnd Sub");
  EXPECT_EQ(CountOf(code, "First"), 2);
  EXPECT_EQ(StartOf(code, "Second"), 3);
  EXPECT_EQ(CountOf(code, "Second"), 4);
}

TEST_P(MacrosContract, AProcedureThatIsNotThereFails) {
  const Object code = NewCode("Sub First()\rEnd Sub\r' Sub Second()");
  EXPECT_TRUE(Fails([&] { StartOf(code, "Second"); }));
  EXPECT_TRUE(Fails([&] { CountOf(code, "Second"); }));
}

TEST_P(MacrosContract, FindTellsTheLineOfTheFirstHitWhateverTheCase) {
  const Object code = NewCode("' one\r' Two\r' tWo again");
  EXPECT_EQ(LineOf(code, "two"), 2);
  EXPECT_EQ(LineOf(code, "TWO", 3), 3);
  EXPECT_EQ(LineOf(code, "wo ag"), 3) << "within a line";
  EXPECT_EQ(LineOf(code, "three"), 0);
}

TEST_P(MacrosContract, FindInAModuleWithoutCodeFindsNothing) {
  EXPECT_EQ(LineOf(CodeOf("ThisWorkbook"), "Sub Nothing"), 0);
}

TEST_P(MacrosContract, CodeOfTheWorkbookItselfCanBeChanged) {
  const Object code = CodeOf("ThisWorkbook");
  const std::int32_t before = GetLong(code, "CountOfLines");
  Call(code, "InsertLines", {before + 1, "\rPrivate Sub Workbook_Open()\rEnd Sub"});
  EXPECT_EQ(GetLong(CodeOf("ThisWorkbook"), "CountOfLines"), before + 3);
  Call(code, "DeleteLines", {StartOf(code, "Workbook_Open"), CountOf(code, "Workbook_Open")});
  EXPECT_TRUE(Fails([&] { StartOf(code, "Workbook_Open"); }));
}

TEST_P(MacrosContract, AnotherWorkbookHasAProjectOfItsOwn) {
  AddModule("OfTheFirst");
  const Object other = host_->NewWorkbook({"Sheet1"});
  const Object modules = GetObject(GetObject(other, "VBProject"), "VBComponents");
  EXPECT_TRUE(Fails([&] { GetObject(modules, "Item", {"OfTheFirst"}); }));
}

TEST_P(MacrosContract, ModulesKnowTheirProjectAndCodeTheNameOfItsModule) {
  EXPECT_EQ(GetObject(modules_, "Parent").TypeName(), "VBProject");
  AddModule("Subject");
  EXPECT_EQ(GetText(CodeOf("Subject"), "Name"), "Subject");
}

}  // namespace
}  // namespace rangewerks::tests
