// Nothing waits for a person who isn't there, and what would have been shown is written down.
#include "desktops/unattended/unattended_desktop.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "automation/error.h"
#include "forms/form.h"
#include "forms/grid.h"
#include "forms/list_view.h"
#include "forms/simple_controls.h"
#include "forms/tree_view.h"

namespace rangewerks::tests {
namespace {

using desktops::IsUnattended;
using desktops::UnattendedDesktop;
using forms::Answer;
using forms::Message;

class Unattended : public ::testing::Test {
 protected:
  std::ostringstream output;
  UnattendedDesktop desktop{output};
};

TEST_F(Unattended, AMessageBoxIsWrittenDownAndAnsweredWithItsDefaultButton) {
  EXPECT_EQ(desktop.ShowMessage({.text = "All done\r\nGo on", .title = "Title"}, nullptr),
            Answer::Ok);
  EXPECT_EQ(desktop.ShowMessage({.text = "Sure?", .flags = Message::kYesNo}, nullptr), Answer::Yes);
  EXPECT_EQ(desktop.ShowMessage(
                {.text = "Sure?", .flags = Message::kYesNo | Message::kSecondButton}, nullptr),
            Answer::No);
  EXPECT_EQ(output.str(),
            "Message: Title\n  All done\n  Go on\n"
            "Message: Rangewerks\n  Sure?\n"
            "Message: Rangewerks\n  Sure?\n");
}

TEST_F(Unattended, DialogsAreWrittenDownAndCancelled) {
  EXPECT_FALSE(desktop.ShowInput("New name", "Rename", "Sheet1", nullptr).has_value());
  EXPECT_FALSE(desktop.ChooseColour(nullptr).has_value());
  EXPECT_FALSE(desktop.ChooseFile({.title = "Save", .file = "ranges.def"}, nullptr).has_value());
  EXPECT_EQ(desktop.BrowseForFolder("Choose a folder", nullptr), "");
  desktop.ShowHelp("/lib/help.chm");
  EXPECT_EQ(output.str(),
            "Input: Rename\n  New name\n"
            "Colours: Rangewerks\n"
            "Files: Save\n  ranges.def\n"
            "Folders: Choose a folder\n"
            "Help: /lib/help.chm\n");
}

/// The rows of a grid.
class TwoRows final : public forms::GridRows {
 public:
  std::size_t RowCount() const override { return 2; }
  automation::Variant Cell(std::size_t row, std::size_t column) const override {
    return std::to_string(row) + std::to_string(column);
  }
  void SetCell(std::size_t /*row*/, std::size_t /*column*/,
               const automation::Variant& /*value*/) override {}
};

class frmSample final : public forms::Form {
 public:
  explicit frmSample(forms::Toolkit& toolkit) : Form(toolkit, "frmSample", {.caption = "Sample"}) {}

  forms::Label lblHelp{*this, "lblHelp", {.text = "Help line"}};
  forms::TextBox txtHidden{*this, "txtHidden", {.text = "hidden", .visible = false}};
  forms::Frame fraAll{*this, "fraAll", {.text = "All"}};
  forms::TextBox txtLines{fraAll, "txtLines", {.text = "one\r\ntwo", .multiLine = true}};
  forms::TreeView tvwRanges{*this, "tvwRanges", {}};
  forms::ListView lvwRanges{*this, "lvwRanges", {}};
  forms::Grid grdRows{*this, "grdRows", {}, {{.source = 0}, {.source = 1}}};

  std::vector<std::string> events;
  bool failsToUnload = false;

 private:
  void Form_Load() override {
    events.emplace_back("load");
    tvwRanges.Add("h", "Header");
    tvwRanges.AddChild("h", "h1", "date");
    lvwRanges.Add("k", "code").AddSubItem("Detail");
    grdRows.set_Array(std::make_shared<TwoRows>());
  }
  void Form_QueryUnload() override { events.emplace_back("query"); }
  void Form_Unload() override {
    events.emplace_back("unload");
    if (failsToUnload) throw automation::Error(1004, "", "Not now");
  }
};

constexpr const char* kSampleTexts =
    "Form: Sample\n"
    "  Help line\n"
    "  All\n"
    "  one\n"
    "  two\n"
    "  Header\n"
    "    date\n"
    "  code, Detail\n"
    "  00, 01\n"
    "  10, 11\n";

TEST_F(Unattended, AModalFormIsWrittenDownAndClosedAtOnceAsByItsTitleBar) {
  const auto form = std::make_shared<frmSample>(desktop);
  form->Show(forms::Modality::Modal);
  EXPECT_FALSE(form->IsLoaded());
  EXPECT_EQ(form->events, (std::vector<std::string>{"load", "query", "unload"}));
  EXPECT_EQ(output.str(), kSampleTexts);
}

TEST_F(Unattended, AModalFormThatFailsToCloseIsToldAndLeftAllTheSame) {
  const auto form = std::make_shared<frmSample>(desktop);
  form->failsToUnload = true;
  form->Show(forms::Modality::Modal);
  EXPECT_FALSE(form->IsVisible());
  EXPECT_EQ(output.str(), std::string(kSampleTexts) +
                              "Message: Rangewerks\n  Run-time error '1004':\n  \n  Not now\n");
}

TEST_F(Unattended, AModelessFormStaysLoadedWithoutAWindow) {
  const auto form = std::make_shared<frmSample>(desktop);
  form->Show();
  EXPECT_TRUE(form->IsVisible());
  EXPECT_EQ(form->get_hWnd(), 0);
  EXPECT_EQ(output.str(), kSampleTexts);
  form->Unload();
  EXPECT_EQ(form->events, (std::vector<std::string>{"load", "unload"}));
}

TEST_F(Unattended, AFormMayMoveAndTakeTheKeyboardWithoutAnyEffect) {
  const auto form = std::make_shared<frmSample>(desktop);
  form->Show();
  form->let_Left(desktop.Screen().width - form->get_Width());
  form->SetTopMost(true);
  form->SetFocus();
  form->txtLines.SetFocus();
  form->let_Caption("Other");
  desktop.Beep();
  desktop.SetMousePointer(forms::MousePointer::Hourglass);
  EXPECT_EQ(desktop.Pointer(), forms::MousePointer::Hourglass);
  EXPECT_EQ(form->get_Left(), 28800 - 4800);
  EXPECT_EQ(output.str(), kSampleTexts);
}

TEST(TheSwitchForUnattendedRuns, IsAVariableOfTheEnvironment) {
  struct Case {
    std::string value;
    bool unattended;
  };
  for (const Case& each :
       {Case{"1", true}, {"yes", true}, {"00", true}, {"0", false}, {"", false}}) {
    const std::string setting = "RANGEWERKS_UNATTENDED=" + each.value;
#ifdef _WIN32
    ASSERT_EQ(_putenv(setting.c_str()), 0);
#else
    ASSERT_EQ(setenv("RANGEWERKS_UNATTENDED", each.value.c_str(), 1), 0);
#endif
    EXPECT_EQ(IsUnattended(), each.unattended) << setting;
  }
#ifndef _WIN32
  unsetenv("RANGEWERKS_UNATTENDED");
#endif
  EXPECT_FALSE(IsUnattended());
}

}  // namespace
}  // namespace rangewerks::tests
