// What the two dialogs of the file-save settings have in common.
#include <gtest/gtest.h>

#include <string>
#include <type_traits>
#include <vector>

#include "automation/error.h"
#include "filesave/frmPath.h"
#include "filesave/frmSaveFile.h"
#include "filesave/save_dialog_fixture.h"
#include "support/error_of.h"

namespace rangewerks::tests {
namespace {

/// The box of the name, or of the pattern of it.
forms::TextBox& NameIn(frmPath& form) { return form.txtIdentifier; }
forms::TextBox& NameIn(frmSaveFile& form) { return form.txtName; }

/// The person changes what the dialog shows.
template <class Dialog>
void ChangeAll(desktops::HeadlessDesktop& desktop, Dialog& form) {
  desktop.Type(NameIn(form), "other");
  desktop.Type(form.txtPath, "other");
  if constexpr (std::is_same_v<Dialog, frmPath>) desktop.Click(form.ChkSvFile);
}

template <class Dialog>
using SaveDialogs = SaveDialogTest<Dialog>;

struct DialogNames {
  template <class Dialog>
  static std::string GetName(int /*index*/) {
    return std::is_same_v<Dialog, frmPath> ? "frmPath" : "frmSaveFile";
  }
};

using Dialogs = ::testing::Types<frmPath, frmSaveFile>;
TYPED_TEST_SUITE(SaveDialogs, Dialogs, DialogNames);

TYPED_TEST(SaveDialogs, StaysOpenWithAFolderThatDoesntExistAndSaysSo) {
  this->Show([&] {
    this->desktop.Type(NameIn(this->form), "other");
    this->desktop.Type(this->form.txtPath, this->folder.File("none"));
    this->desktop.Click(this->form.cmdOk);
    EXPECT_TRUE(this->form.IsVisible());
    this->ExpectSettingsAsTheyWere();
    this->desktop.Click(this->form.cmdCancel);
  });
  ASSERT_EQ(this->desktop.Messages().size(), 1U);
  EXPECT_EQ(this->desktop.Messages().front().text, "File path not found or access denied");
  EXPECT_EQ(this->desktop.Messages().front().flags, 16);
}

TYPED_TEST(SaveDialogs, CancelLeavesTheSettingsAsTheyWere) {
  this->Show([&] {
    ChangeAll(this->desktop, this->form);
    this->desktop.PressEscape(this->form);
  });
  EXPECT_TRUE(this->form.get_Cancel());
  EXPECT_FALSE(this->form.IsLoaded());
  this->ExpectSettingsAsTheyWere();
}

TYPED_TEST(SaveDialogs, ClosingItByItsTitleBarCancels) {
  this->Show([&] {
    ChangeAll(this->desktop, this->form);
    this->desktop.Close(this->form);
  });
  EXPECT_TRUE(this->form.get_Cancel());
  this->ExpectSettingsAsTheyWere();
}

TYPED_TEST(SaveDialogs, TakesTheFolderThatThePersonPicks) {
  this->Show([&] {
    this->desktop.PickFolder("/picked");
    this->desktop.Click(this->form.cmdpath);
    EXPECT_EQ(this->form.txtPath.get_Text(), "/picked");
    this->desktop.Click(this->form.cmdCancel);
  });
  EXPECT_EQ(this->desktop.FolderTitles(), std::vector<std::string>({"Please select a folder"}));
}

TYPED_TEST(SaveDialogs, CancellingTheFolderDialogKeepsThePathTyped) {
  this->Show([&] {
    this->desktop.Type(this->form.txtPath, "typed");
    this->desktop.Click(this->form.cmdpath);
    EXPECT_EQ(this->form.txtPath.get_Text(), "typed");
    this->desktop.Click(this->form.cmdCancel);
  });
  EXPECT_EQ(this->desktop.FolderTitles().size(), 1U);
}

TYPED_TEST(SaveDialogs, CantBeLoadedWithoutSettings) {
  this->form.set_FileSave(nullptr);
  EXPECT_TRUE(
      ErrorOf([&] { this->form.Load(); }).Is(automation::ErrorNumber::ObjectVariableNotSet));
}

}  // namespace
}  // namespace rangewerks::tests
