// One of the two dialogs that edit file-save settings, with settings that can be used.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <type_traits>

#include "desktops/headless/headless_desktop.h"
#include "filesave/clsExcelFileSave.h"
#include "hosts/temporary_folder.h"
#include "support/fixed_system.h"

namespace rangewerks::tests {

template <class Dialog>
class SaveDialogTest : public ::testing::Test {
 protected:
  SaveDialogTest() {
    settings->let_FilePath(folder.File(""));
    settings->let_Filename("%i-%d");
    settings->let_ExpandedName("JNL0042");
    settings->let_DoSaveFile(true);
    settings->let_PromptOnSave(true);
    settings->let_Identifier("ID");
    settings->let_RegSection("Journals");
    form.set_FileSave(settings);
  }
  /// Shows the dialog with the person's part in it.
  void Show(const std::function<void()>& person) {
    desktop.WhenShown<Dialog>([&](Dialog&) { person(); });
    form.Show(forms::Modality::Modal);
  }
  void ExpectSettingsAsTheyWere() const {
    EXPECT_EQ(settings->get_FilePath(), folder.File(""));
    EXPECT_EQ(settings->get_Filename(), "%i-%d");
    EXPECT_EQ(settings->get_ExpandedName(), "JNL0042");
    EXPECT_TRUE(settings->get_DoSaveFile());
    EXPECT_TRUE(settings->get_PromptOnSave());
  }

  TemporaryFolder folder;
  desktops::HeadlessDesktop desktop;
  std::shared_ptr<FixedSystem> system = std::make_shared<FixedSystem>("");
  std::shared_ptr<clsExcelFileSave> settings = std::make_shared<clsExcelFileSave>(system);
  Dialog& form = SharedDialog();

 private:
  Dialog& SharedDialog() {
    if constexpr (std::is_constructible_v<Dialog, forms::Toolkit&, std::shared_ptr<FixedSystem>>) {
      return desktop.template Shared<Dialog>(system);
    } else {
      return desktop.template Shared<Dialog>();
    }
  }
};

}  // namespace rangewerks::tests
