#include "filesave/frmSaveFile.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "automation/error.h"
#include "desktops/headless/headless_desktop.h"
#include "hosts/temporary_folder.h"
#include "support/error_of.h"
#include "support/fixed_system.h"

namespace rangewerks::tests {
namespace {

using desktops::HeadlessDesktop;

class FrmSaveFile : public ::testing::Test {
 protected:
  FrmSaveFile() {
    settings->let_FilePath(folder.File(""));
    settings->let_Filename("%i");
    settings->let_ExpandedName("JNL0042");
    settings->let_DoSaveFile(true);
    settings->let_PromptOnSave(true);
    form.set_FileSave(settings);
  }
  /// Shows the dialog with the person's part in it.
  void Show(const std::function<void()>& person) {
    desktop.WhenShown<frmSaveFile>([&](frmSaveFile&) { person(); });
    form.Show(forms::Modality::Modal);
  }
  void ExpectSettingsAsTheyWere() const {
    EXPECT_EQ(settings->get_ExpandedName(), "JNL0042");
    EXPECT_EQ(settings->get_FilePath(), folder.File(""));
  }

  TemporaryFolder folder;
  HeadlessDesktop desktop;
  std::shared_ptr<clsExcelFileSave> settings =
      std::make_shared<clsExcelFileSave>(std::make_shared<FixedSystem>(""));
  frmSaveFile& form = desktop.Shared<frmSaveFile>();
};

TEST_F(FrmSaveFile, HasItsCaptionsAndAccessKeys) {
  EXPECT_EQ(form.get_Caption(), " Save File");
  EXPECT_EQ(form.lblfile.get_Caption(), "File Name");
  EXPECT_EQ(form.lblPath.get_Caption(), "File Path");
  EXPECT_EQ(form.cmdpath.get_Caption(), "...");
  EXPECT_EQ(form.cmdOk.get_Caption(), "&OK");
  EXPECT_EQ(form.cmdCancel.get_Caption(), "&Cancel");
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
    desktop.PressEnter(form);
  });
  EXPECT_FALSE(form.get_Cancel());
  EXPECT_FALSE(form.IsLoaded());
  EXPECT_EQ(settings->get_ExpandedName(), "other name");
  EXPECT_EQ(settings->get_FilePath(), folder.File(""));
  EXPECT_EQ(settings->get_Filename(), "%i");
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

TEST_F(FrmSaveFile, StaysOpenWithAFolderThatDoesntExistAndSaysSo) {
  Show([&] {
    desktop.Type(form.txtName, "other");
    desktop.Type(form.txtPath, folder.File("none"));
    desktop.Click(form.cmdOk);
    EXPECT_TRUE(form.IsVisible());
    ExpectSettingsAsTheyWere();
    desktop.Click(form.cmdCancel);
  });
  ASSERT_EQ(desktop.Messages().size(), 1U);
  EXPECT_EQ(desktop.Messages().front().text, "File path not found or access denied");
  EXPECT_EQ(desktop.Messages().front().flags, 16);
}

TEST_F(FrmSaveFile, CancelLeavesTheSettingsAsTheyWere) {
  Show([&] {
    desktop.Type(form.txtName, "other");
    desktop.Type(form.txtPath, "other");
    desktop.PressEscape(form);
  });
  EXPECT_TRUE(form.get_Cancel());
  EXPECT_FALSE(form.IsLoaded());
  ExpectSettingsAsTheyWere();
}

TEST_F(FrmSaveFile, ClosingItByItsTitleBarCancels) {
  Show([&] {
    desktop.Type(form.txtName, "other");
    desktop.Close(form);
  });
  EXPECT_TRUE(form.get_Cancel());
  ExpectSettingsAsTheyWere();
}

TEST_F(FrmSaveFile, TakesTheFolderThatThePersonPicks) {
  Show([&] {
    desktop.PickFolder("/picked");
    desktop.Click(form.cmdpath);
    EXPECT_EQ(form.txtPath.get_Text(), "/picked");
    desktop.Click(form.cmdCancel);
  });
  EXPECT_EQ(desktop.FolderTitles(), std::vector<std::string>({"Please select a folder"}));
}

TEST_F(FrmSaveFile, CancellingTheFolderDialogKeepsThePathTyped) {
  Show([&] {
    desktop.Type(form.txtPath, "typed");
    desktop.Click(form.cmdpath);
    EXPECT_EQ(form.txtPath.get_Text(), "typed");
    desktop.Click(form.cmdCancel);
  });
}

TEST_F(FrmSaveFile, CantBeLoadedWithoutSettings) {
  form.set_FileSave(nullptr);
  EXPECT_TRUE(ErrorOf([&] { form.Load(); }).Is(automation::ErrorNumber::ObjectVariableNotSet));
}

}  // namespace
}  // namespace rangewerks::tests
