#include "filesave/frmPath.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "filesave/save_dialog_fixture.h"
#include "support/control_names.h"

namespace rangewerks::tests {
namespace {

using FrmPath = SaveDialogTest<frmPath>;

TEST_F(FrmPath, HasItsCaptionsAndAccessKeys) {
  EXPECT_EQ(form.get_Caption(), " Save To File");
  EXPECT_EQ(form.lblSvfile.get_Caption(), "Save File on Posting");
  EXPECT_EQ(form.lblPrmtSave.get_Caption(), "Prompt on save");
  EXPECT_EQ(form.lblPath.get_Caption(), "Default Path");
  EXPECT_EQ(form.cmdpath.get_Caption(), "...");
  EXPECT_EQ(form.lblfileformat.get_Caption(), "File Name Format");
  EXPECT_EQ(form.cmdOk.get_Caption(), "&OK");
  EXPECT_EQ(form.cmdCancel.get_Caption(), "&Cancel");
}

TEST_F(FrmPath, HasItsControlsByNameInTheTabOrder) {
  EXPECT_EQ(ControlNames(form),
            std::vector<std::string>({"lblSvfile", "ChkSvFile", "lblPrmtSave", "ChkPrmtsv",
                                      "lblPath", "txtPath", "cmdpath", "lblfileformat",
                                      "txtIdentifier", "frmidentifier", "cmdOk", "cmdCancel"}));
  EXPECT_EQ(ControlNames(form.frmidentifier), std::vector<std::string>({"txtIdentifiers"}));
}

TEST_F(FrmPath, HasALegendOfTheCodesThatCantBeChanged) {
  EXPECT_EQ(form.txtIdentifiers.get_Text(),
            "%i   - Identifier\r\n%d  - Day\r\n%m - Month\r\n%y  - Year\r\n%u  - Windows User\r\n");
  EXPECT_TRUE(form.txtIdentifiers.Properties().multiLine);
  EXPECT_TRUE(form.txtIdentifiers.Properties().locked);
}

TEST_F(FrmPath, ShowsTheSettings) {
  EXPECT_EQ(form.txtPath.get_Text(), folder.File(""));
  EXPECT_EQ(form.txtIdentifier.get_Text(), "%i-%d");
  EXPECT_TRUE(form.ChkSvFile.get_Value());
  EXPECT_TRUE(form.ChkPrmtsv.get_Value());
}

TEST_F(FrmPath, EnablesTheOtherControlsOnlyWhenFilesAreSaved) {
  EXPECT_TRUE(form.ChkPrmtsv.get_Enabled());
  EXPECT_TRUE(form.txtIdentifier.get_Enabled());
  EXPECT_TRUE(form.txtPath.get_Enabled());
  form.Unload();
  settings->let_DoSaveFile(false);
  EXPECT_FALSE(form.ChkPrmtsv.get_Enabled());
  EXPECT_FALSE(form.txtIdentifier.get_Enabled());
  EXPECT_FALSE(form.txtPath.get_Enabled());
  EXPECT_TRUE(form.cmdpath.get_Enabled());
}

TEST_F(FrmPath, UntickingSaveDisablesTheOtherControlsAndUnticksPrompt) {
  Show([&] {
    desktop.Click(form.ChkSvFile);
    EXPECT_FALSE(form.ChkPrmtsv.get_Value());
    EXPECT_FALSE(form.ChkPrmtsv.get_Enabled());
    EXPECT_FALSE(form.txtIdentifier.get_Enabled());
    EXPECT_FALSE(form.txtPath.get_Enabled());
    desktop.Click(form.cmdCancel);
  });
}

TEST_F(FrmPath, TickingSaveAgainEnablesTheOthersAndLeavesPromptUnticked) {
  Show([&] {
    desktop.Click(form.ChkSvFile);
    desktop.Click(form.ChkSvFile);
    EXPECT_FALSE(form.ChkPrmtsv.get_Value());
    EXPECT_TRUE(form.ChkPrmtsv.get_Enabled());
    EXPECT_TRUE(form.txtIdentifier.get_Enabled());
    EXPECT_TRUE(form.txtPath.get_Enabled());
    desktop.Click(form.cmdCancel);
  });
}

TEST_F(FrmPath, OkTakesOverWhatThePersonHasChosen) {
  Show([&] {
    desktop.Type(form.txtIdentifier, "J%y%m%d");
    desktop.Type(form.txtPath, folder.File("."));
    desktop.Click(form.ChkPrmtsv);
    desktop.PressEnter(form);
  });
  EXPECT_FALSE(form.IsLoaded());
  EXPECT_FALSE(form.get_Cancel());
  EXPECT_EQ(settings->get_Filename(), "J%y%m%d");
  EXPECT_EQ(settings->get_FilePath(), folder.File("."));
  EXPECT_TRUE(settings->get_DoSaveFile());
  EXPECT_FALSE(settings->get_PromptOnSave());
  EXPECT_EQ(settings->get_Identifier(), "ID");
  EXPECT_EQ(settings->get_RegSection(), "Journals");
  EXPECT_TRUE(system->Settings()->Writes().empty());
}

TEST_F(FrmPath, WithoutSavingPassesWithAnEmptyPath) {
  settings->let_DoSaveFile(false);
  settings->let_FilePath("");
  Show([&] { desktop.Click(form.cmdOk); });
  EXPECT_FALSE(form.get_Cancel());
  EXPECT_TRUE(desktop.Messages().empty());
}

TEST_F(FrmPath, StaysOpenWithoutAPatternAndSaysSo) {
  Show([&] {
    desktop.Type(form.txtIdentifier, "");
    desktop.Click(form.cmdOk);
    EXPECT_TRUE(form.IsVisible());
    desktop.Click(form.cmdCancel);
  });
  ASSERT_EQ(desktop.Messages().size(), 1U);
  EXPECT_EQ(desktop.Messages().front().text, "File name or file path missing");
}

TEST_F(FrmPath, IsNotCancelledWhenItIsCreatedAndOkTakesAnEarlierCancelBack) {
  EXPECT_FALSE(form.get_Cancel());
  Show([&] { desktop.Click(form.cmdCancel); });
  EXPECT_TRUE(form.get_Cancel());
  Show([&] { desktop.Click(form.cmdOk); });
  EXPECT_FALSE(form.get_Cancel());
  form.let_Cancel(true);
  EXPECT_TRUE(form.get_Cancel());
}

}  // namespace
}  // namespace rangewerks::tests
