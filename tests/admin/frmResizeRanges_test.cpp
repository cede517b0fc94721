#include "admin/frmResizeRanges.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "desktops/headless/headless_desktop.h"
#include "support/control_names.h"

namespace rangewerks::tests {
namespace {

using desktops::HeadlessDesktop;

constexpr forms::Colour kRed = 255;

class FrmResizeRanges : public ::testing::Test {
 protected:
  FrmResizeRanges() { form.let_AllowedNumberOfRows(100); }

  /// Shows the dialog with the person's part in it.
  void Show(const std::function<void()>& person) {
    desktop.WhenShown<frmResizeRanges>([&](frmResizeRanges&) { person(); });
    form.Show(forms::Modality::Modal);
  }
  void ExpectRefused(const std::string& text) {
    Show([&] {
      const std::size_t beeps = desktop.Beeps();
      desktop.Type(form.txtResizeRows, text);
      desktop.Click(form.cmdOK);
      EXPECT_EQ(desktop.Beeps(), beeps + 1) << text;
      EXPECT_EQ(form.lblInvalid.get_Caption(), "Invalid Value") << text;
      EXPECT_EQ(form.lblInvalid.get_ForeColor(), kRed) << text;
      EXPECT_TRUE(form.IsVisible()) << text;
      EXPECT_FALSE(form.get_OKSelected()) << text;
      desktop.Click(form.cmdCancel);
    });
  }
  void ExpectAccepted(const std::string& text, std::int32_t rows) {
    Show([&] {
      desktop.Type(form.txtResizeRows, text);
      desktop.Click(form.cmdOK);
    });
    EXPECT_FALSE(form.IsLoaded()) << text;
    EXPECT_TRUE(form.get_OKSelected()) << text;
    EXPECT_EQ(form.get_ResizeRows(), rows) << text;
  }

  HeadlessDesktop desktop;
  frmResizeRanges& form = desktop.Shared<frmResizeRanges>();
};

TEST_F(FrmResizeRanges, HasItsTextsTooltipsAndPictures) {
  EXPECT_EQ(form.get_Caption(), "Recreate/Resize Detail Ranges");
  EXPECT_EQ(form.lblPrompt.get_Caption(),
            "This option will delete and recreate all detail ranges, using the enter number of "
            "rows as the new number of rows.  Ranges will be recreated with current settings "
            "(colour, headings etc)");
  EXPECT_EQ(form.txtResizeRows.get_Text(), "");
  EXPECT_EQ(form.lblInvalid.get_Caption(), "");
  EXPECT_EQ(form.cmdOK.get_Caption(), "");
  EXPECT_EQ(form.cmdOK.get_ToolTipText(), "Close");
  EXPECT_EQ(form.cmdOK.Properties().picture, forms::Picture::Ok);
  EXPECT_EQ(form.cmdCancel.get_Caption(), "Cancel");
  EXPECT_EQ(form.cmdCancel.get_ToolTipText(), "Cancel Changes");
  EXPECT_EQ(form.cmdCancel.Properties().picture, forms::Picture::Cancel);
}

TEST_F(FrmResizeRanges, HasItsControlsByNameInTheTabOrder) {
  EXPECT_EQ(ControlNames(form), std::vector<std::string>({"lblPrompt", "txtResizeRows",
                                                          "lblInvalid", "cmdOK", "cmdCancel"}));
}

TEST_F(FrmResizeRanges, AcceptsOneAndTheLimitItself) {
  ExpectAccepted("1", 1);
  ExpectAccepted("100", 100);
}

TEST_F(FrmResizeRanges, AcceptsWhatConvertsToAWholeNumber) {
  ExpectAccepted(" 12.4 ", 12);
  ExpectAccepted("&H10", 16);
}

TEST_F(FrmResizeRanges, RefusesAnEmptyBoxWordsZeroAndMoreThanTheLimit) {
  for (const char* text : {"", "abc", "0", "-1", "101", "3000000000"}) ExpectRefused(text);
}

TEST_F(FrmResizeRanges, TypingClearsTheMessage) {
  Show([&] {
    desktop.Click(form.cmdOK);
    desktop.Type(form.txtResizeRows, "5");
    EXPECT_EQ(form.lblInvalid.get_Caption(), "");
    EXPECT_EQ(form.lblInvalid.get_ForeColor(), static_cast<forms::Colour>(0x8000000FU));
    desktop.Click(form.cmdOK);
  });
  EXPECT_EQ(form.get_ResizeRows(), 5);
}

TEST_F(FrmResizeRanges, TypingChangesNothingWithoutAMessage) {
  Show([&] {
    const forms::Colour before = form.lblInvalid.get_ForeColor();
    desktop.Type(form.txtResizeRows, "5");
    EXPECT_EQ(form.lblInvalid.get_ForeColor(), before);
    desktop.Click(form.cmdCancel);
  });
}

TEST_F(FrmResizeRanges, CancelSelectsNothing) {
  Show([&] {
    desktop.Type(form.txtResizeRows, "5");
    desktop.PressEscape(form);
  });
  EXPECT_FALSE(form.get_OKSelected());
  EXPECT_FALSE(form.IsLoaded());
}

TEST_F(FrmResizeRanges, ClosingItByItsTitleBarSelectsNothing) {
  ExpectAccepted("7", 7);
  Show([&] {
    desktop.Type(form.txtResizeRows, "5");
    desktop.Close(form);
  });
  EXPECT_FALSE(form.get_OKSelected());
}

TEST_F(FrmResizeRanges, ForgetsAnEarlierOkAndNumberWhenItIsShownAnew) {
  ExpectAccepted("7", 7);
  Show([&] {
    EXPECT_FALSE(form.get_OKSelected());
    EXPECT_EQ(form.txtResizeRows.get_Text(), "");
    desktop.Click(form.cmdCancel);
  });
  EXPECT_FALSE(form.get_OKSelected());
}

TEST_F(FrmResizeRanges, KeepsItsLimit) { EXPECT_EQ(form.get_AllowedNumberOfRows(), 100); }

}  // namespace
}  // namespace rangewerks::tests
