// The command with which an interface saves the sheet that it has posted.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "automation/conversions.h"
#include "automation/dispatch.h"
#include "desktops/headless/headless_desktop.h"
#include "filesave/frmSaveFile.h"
#include "hosts/temporary_folder.h"
#include "hosts/workbook/host.h"
#include "rangelist/ExcelFunctions.h"
#include "support/error_of.h"
#include "support/fixed_system.h"

namespace rangewerks::tests {
namespace {

using automation::Error;
using automation::Member;
using automation::Object;
using desktops::HeadlessDesktop;

using Lines = std::vector<std::string>;

class CallSaveSheet : public ::testing::Test {
 protected:
  CallSaveSheet() {
    system->SetNow(automation::DateOf(2031, 4, 5));
    host.Calls().LogCalls(true);
  }

  void Store(bool save, bool prompt, const std::string& pattern = "%i-%y") const {
    clsExcelFileSave settings(system);
    settings.let_RegSection("Journals");
    settings.let_FilePath(target);
    settings.let_Filename(pattern);
    settings.let_DoSaveFile(save);
    settings.let_PromptOnSave(prompt);
    settings.SaveSettingsToRegistry();
  }
  void Call() {
    host.Calls().Reset();
    ExcelFunctions(system, desktop).CallSaveSheet(sheet, "JNL0042", "Journals");
  }
  void ExpectNothingHappened() {
    EXPECT_EQ(host.Calls().Lines(), Lines());
    EXPECT_TRUE(desktop->Messages().empty());
  }
  /// The full name under which a copy is saved.
  std::string Copy(const std::string& name) const {
    return target + (target.ends_with('\\') ? "" : "\\") + name + ".xls";
  }
  static excel::Worksheet SheetOf(const Object& workbook) {
    return excel::Worksheet(workbook.Get(Member("Sheets"), {"Sheet1"}).AsObject());
  }

  TemporaryFolder folder;
  /// A file's name is set behind a backslash whatever the system, so the copy stands in `folder`
  /// where the system's separator is another.
  std::string target = folder.File("");
  std::shared_ptr<FixedSystem> system = std::make_shared<FixedSystem>("");
  std::shared_ptr<HeadlessDesktop> desktop = std::make_shared<HeadlessDesktop>();
  hosts::workbook::Host host;
  Object workbook = host.AddWorkbook("Book1", {"Sheet1"});
  excel::Worksheet sheet = SheetOf(workbook);
};

TEST_F(CallSaveSheet, DoesNothingForASectionWithoutStoredSettings) {
  Call();
  ExpectNothingHappened();
}

TEST_F(CallSaveSheet, DoesNothingWhenFilesArentSaved) {
  Store(false, true);
  Call();
  ExpectNothingHappened();
}

TEST_F(CallSaveSheet, SavesACopyUnderTheExpandedNameAndSaysSo) {
  Store(true, false);
  const std::string file = Copy("JNL0042-31");
  Call();
  EXPECT_EQ(host.Calls().Lines(),
            Lines({"Worksheet.Parent get", "Workbook.SaveCopyAs call \"" + file + "\""}));
  ASSERT_EQ(desktop->Messages().size(), 1U);
  EXPECT_EQ(desktop->Messages().front().text, "File " + file + " saved");
  EXPECT_EQ(desktop->Messages().front().flags, 64);
  EXPECT_TRUE(desktop->FormsShown().empty());
}

TEST_F(CallSaveSheet, LeavesTheOpenWorkbookUnderItsOwnName) {
  Store(true, false);
  sheet.get_Range("A1").let_Value("posted");
  Call();
  EXPECT_EQ(workbook.Get(Member("Name")), automation::Variant("Book1"));
  const Object copy = host.Open(Copy("JNL0042-31"));
  EXPECT_EQ(SheetOf(copy).get_Range("A1").get_Value(), automation::Variant("posted"));
}

TEST_F(CallSaveSheet, AddsTheExtensionToAPatternThatHasItAlready) {
  Store(true, false, "x.xls");
  Call();
  ASSERT_EQ(desktop->Messages().size(), 1U);
  EXPECT_EQ(desktop->Messages().front().text, "File " + Copy("x.xls") + " saved");
}

TEST_F(CallSaveSheet, AsksForNameAndFolderWhenItIsToPrompt) {
  Store(true, true);
  desktop->WhenShown<frmSaveFile>([&](frmSaveFile& form) {
    EXPECT_EQ(form.txtName.get_Text(), "JNL0042-31");
    desktop->Type(form.txtName, "other");
    desktop->Click(form.cmdOk);
  });
  Call();
  ASSERT_EQ(desktop->Messages().size(), 1U);
  EXPECT_EQ(desktop->Messages().front().text, "File " + Copy("other") + " saved");
}

TEST_F(CallSaveSheet, SavesUnderTheExtensionAloneWhenThePersonEmptiesTheName) {
  Store(true, true);
  desktop->WhenShown<frmSaveFile>([&](frmSaveFile& form) {
    desktop->Type(form.txtName, "");
    desktop->Click(form.cmdOk);
  });
  Call();
  ASSERT_EQ(desktop->Messages().size(), 1U);
  EXPECT_EQ(desktop->Messages().front().text, "File " + Copy("") + " saved");
}

TEST_F(CallSaveSheet, SavesNothingAndShowsNothingWhenThePersonCancels) {
  Store(true, true);
  desktop->WhenShown<frmSaveFile>([&](frmSaveFile& form) { desktop->Click(form.cmdCancel); });
  Call();
  ExpectNothingHappened();
}

TEST_F(CallSaveSheet, SavesNothingWhenThePersonClosesTheDialogByItsTitleBar) {
  Store(true, true);
  desktop->WhenShown<frmSaveFile>([&](frmSaveFile& form) { desktop->Close(form); });
  Call();
  ExpectNothingHappened();
}

TEST_F(CallSaveSheet, TellsThePersonAndNotTheCallerThatTheFileCantBeWritten) {
  Store(true, false);
  host.Calls().FailMember("Workbook.SaveCopyAs", 1004, "Disk full");
  EXPECT_NO_THROW(Call());
  ASSERT_EQ(desktop->Messages().size(), 1U);
  EXPECT_EQ(desktop->Messages().front().text,
            "Error saving the file.  You may not have permissions to save to the location\r\n"
            "Disk full");
  EXPECT_EQ(desktop->Messages().front().flags, 16);
}

TEST_F(CallSaveSheet, PassesAFailureToFindTheWorkbookOnAsItCame) {
  Store(true, false);
  host.Calls().FailMember("Worksheet.Parent", 1004, "gone");
  const Error error = ErrorOf([&] { Call(); });
  EXPECT_EQ(error.Number(), 1004);
  EXPECT_EQ(error.Source(), "Workbook");
  EXPECT_TRUE(desktop->Messages().empty());
}

TEST_F(CallSaveSheet, PassesTheFailureOfAPatternOn) {
  Store(true, false, "%%");
  EXPECT_TRUE(ErrorOf([&] { Call(); }).Is(automation::ErrorNumber::InvalidProcedureCall));
  ExpectNothingHappened();
}

TEST_F(CallSaveSheet, IsCalledByName) {
  Store(true, false);
  const Object late = std::make_shared<ExcelFunctions>(system, desktop);
  late.Call(Member("CallSaveSheet"), {sheet},
            {{Member("sRegSection"), "Journals"}, {Member("sIdentifier"), "late"}});
  ASSERT_EQ(desktop->Messages().size(), 1U);
  EXPECT_EQ(desktop->Messages().front().text, "File " + Copy("late-31") + " saved");
}

}  // namespace
}  // namespace rangewerks::tests
