#include "filesave/frmSaveFile.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "filesave/save_dialog_fixture.h"
#include "support/control_names.h"

namespace rangewerks::tests {
namespace {

using FrmSaveFile = SaveDialogTest<frmSaveFile>;

TEST_F(FrmSaveFile, HasItsCaptionsAndAccessKeys) {
  EXPECT_EQ(form.get_Caption(), " Save File");
  EXPECT_EQ(form.lblfile.get_Caption(), "File Name");
  EXPECT_EQ(form.lblPath.get_Caption(), "File Path");
  EXPECT_EQ(form.cmdpath.get_Caption(), "...");
  EXPECT_EQ(form.cmdOk.get_Caption(), "&OK");
  EXPECT_EQ(form.cmdCancel.get_Caption(), "&Cancel");
}

TEST_F(FrmSaveFile, HasItsControlsByNameInTheTabOrder) {
  EXPECT_EQ(ControlNames(form),
            std::vector<std::string>(
                {"lblfile", "txtName", "lblPath", "txtPath", "cmdpath", "cmdOk", "cmdCancel"}));
}

TEST_F(FrmSaveFile, ShowsTheExpandedNameAndTheFolder) {
  EXPECT_EQ(form.txtName.get_Text(), "JNL0042");
  EXPECT_EQ(form.txtPath.get_Text(), folder.File(""));
}

TEST_F(FrmSaveFile, TakesAnEarlierCancelBackWhenItLoads) {
  form.let_Cancel(true);
  form.Load();
  EXPECT_FALSE(form.get_Cancel());
}

TEST_F(FrmSaveFile, OkTakesOverNameAndFolderAndLeavesTheRest) {
  Show([&] {
    desktop.Type(form.txtName, "other name");
    desktop.Type(form.txtPath, folder.File("."));
    desktop.PressEnter(form);
  });
  EXPECT_FALSE(form.get_Cancel());
  EXPECT_FALSE(form.IsLoaded());
  EXPECT_EQ(settings->get_ExpandedName(), "other name");
  EXPECT_EQ(settings->get_FilePath(), folder.File("."));
  EXPECT_EQ(settings->get_Filename(), "%i-%d");
  EXPECT_TRUE(settings->get_DoSaveFile());
  EXPECT_TRUE(settings->get_PromptOnSave());
}

TEST_F(FrmSaveFile, TakesAnEmptyNameAsOnlyThePatternIsLookedAt) {
  Show([&] {
    desktop.Type(form.txtName, "");
    desktop.Click(form.cmdOk);
  });
  EXPECT_EQ(settings->get_ExpandedName(), "");
  EXPECT_TRUE(desktop.Messages().empty());
}

}  // namespace
}  // namespace rangewerks::tests
