#include "sheetbuild/ctlColourPallet.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "automation/error.h"
#include "desktops/headless/headless_desktop.h"
#include "sheetbuild/colour_pallet_object.h"
#include "support/control_names.h"

namespace rangewerks::tests {
namespace {

using automation::Member;
using automation::Object;
using automation::Variant;
using desktops::HeadlessDesktop;

constexpr forms::Colour kWhite = 0xFFFFFF;

/// A colour dialog that doesn't open.
class DesktopWithoutColours final : public HeadlessDesktop {
 public:
  std::optional<forms::Colour> ChooseColour(forms::Form* /*owner*/) override {
    throw automation::Error(automation::ErrorNumber::OutOfMemory);
  }
};

/// A form that goes while the person chooses a colour.
class DesktopThatUnloads final : public HeadlessDesktop {
 public:
  std::optional<forms::Colour> ChooseColour(forms::Form* owner) override {
    owner->Unload();
    return std::nullopt;
  }
};

class frmWithPanel final : public forms::Form {
 public:
  explicit frmWithPanel(forms::Toolkit& toolkit) : Form(toolkit, "frmWithPanel", {}) {}
  ctlColourPallet panel{*this, "panel", {.place = {0, 0, 5895, 1935}}};
};

class CtlColourPallet : public ::testing::Test {
 protected:
  void SetUp() override { form->Show(); }

  HeadlessDesktop desktop;
  std::shared_ptr<frmWithPanel> form = std::make_shared<frmWithPanel>(desktop);
  ctlColourPallet& panel = form->panel;
};

TEST_F(CtlColourPallet, HasAFrameThatHoldsLabelsSwatchesAndButtonsWithAPalette) {
  EXPECT_EQ(ControlNames(panel), std::vector<std::string>({"frmControl"}));
  EXPECT_EQ(ControlNames(panel.frmControl),
            std::vector<std::string>({"lblClmcolour", "txtClmColour", "cmdClmColour",
                                      "lblHeadColour", "txtHeadColour", "cmdHeadColour"}));
  EXPECT_EQ(panel.frmControl.get_Caption(), "");
  EXPECT_EQ(panel.lblClmcolour.get_Caption(), "Column Colour");
  EXPECT_EQ(panel.lblHeadColour.get_Caption(), "Heading Colour");
  EXPECT_EQ(panel.txtClmColour.get_Text(), "");
  EXPECT_EQ(panel.txtHeadColour.get_Text(), "");
  for (const auto* button : {&panel.cmdClmColour, &panel.cmdHeadColour}) {
    EXPECT_EQ(button->get_Caption(), "");
    EXPECT_EQ(button->Properties().picture, forms::Picture::Palette);
  }
}

TEST_F(CtlColourPallet, HasAFrameOfItsDesignedSize) {
  EXPECT_EQ(panel.frmControl.get_Left(), 120);
  EXPECT_EQ(panel.frmControl.get_Width(), 5535);
  EXPECT_EQ(panel.frmControl.get_Height(), 1575);
}

TEST_F(CtlColourPallet, LoadColoursShowsBothColoursOnTheSwatches) {
  panel.let_ColumnColour(0x112233);
  panel.let_HeadingColour(0x445566);
  EXPECT_NE(panel.txtClmColour.get_BackColor(), 0x112233);
  panel.LoadColours();
  EXPECT_EQ(panel.txtClmColour.get_BackColor(), 0x112233);
  EXPECT_EQ(panel.txtHeadColour.get_BackColor(), 0x445566);
}

TEST_F(CtlColourPallet, NameOfTheFrameIsItsCaption) {
  panel.NameOfTheFrame("Range Color");
  EXPECT_EQ(panel.frmControl.get_Caption(), "Range Color");
}

TEST_F(CtlColourPallet, SwitchedOffIsWhiteAndKeepsItsColours) {
  panel.let_ColumnColour(1);
  panel.let_HeadingColour(2);
  panel.LoadColours();
  panel.EnableControl(false);
  EXPECT_FALSE(panel.frmControl.get_Enabled());
  EXPECT_EQ(panel.txtClmColour.get_BackColor(), kWhite);
  EXPECT_EQ(panel.txtHeadColour.get_BackColor(), kWhite);
  EXPECT_EQ(panel.get_ColumnColour(), 1);
  EXPECT_EQ(panel.get_HeadingColour(), 2);
}

TEST_F(CtlColourPallet, SwitchedOnAgainDoesntShowItsColoursByItself) {
  panel.let_ColumnColour(1);
  panel.LoadColours();
  panel.EnableControl(false);
  panel.EnableControl(true);
  EXPECT_TRUE(panel.frmControl.get_Enabled());
  EXPECT_EQ(panel.txtClmColour.get_BackColor(), kWhite);
}

TEST_F(CtlColourPallet, EnablesTheColumnsSwatchAlone) {
  panel.EnableTxtClmColour(false);
  EXPECT_FALSE(panel.txtClmColour.get_Enabled());
  EXPECT_TRUE(panel.cmdClmColour.get_Enabled());
  panel.EnableTxtClmColour(true);
  EXPECT_TRUE(panel.txtClmColour.get_Enabled());
}

TEST_F(CtlColourPallet, EnablesTheHeadingsSwatchWithItsButton) {
  panel.EnableTxtHeadColour(false);
  EXPECT_FALSE(panel.txtHeadColour.get_Enabled());
  EXPECT_FALSE(panel.cmdHeadColour.get_Enabled());
  panel.EnableTxtHeadColour(true);
  EXPECT_TRUE(panel.txtHeadColour.get_Enabled());
  EXPECT_TRUE(panel.cmdHeadColour.get_Enabled());
}

TEST_F(CtlColourPallet, FramelengthIsTheHeightOfTheFrame) {
  panel.Framelength(800);
  EXPECT_EQ(panel.frmControl.get_Height(), 800);
  EXPECT_EQ(panel.get_Height(), 1935);
}

TEST_F(CtlColourPallet, TheColumnsButtonPutsTheChosenColourOnItsSwatch) {
  desktop.PickColour(0xABCDEF);
  desktop.Click(panel.cmdClmColour);
  EXPECT_EQ(panel.txtClmColour.get_BackColor(), 0xABCDEF);
  EXPECT_EQ(panel.get_ColumnColour(), 0xABCDEF);
  EXPECT_EQ(panel.get_HeadingColour(), 0);
}

TEST_F(CtlColourPallet, TheHeadingsButtonPutsTheChosenColourOnItsSwatch) {
  desktop.PickColour(0xABCDEF);
  desktop.Click(panel.cmdHeadColour);
  EXPECT_EQ(panel.txtHeadColour.get_BackColor(), 0xABCDEF);
  EXPECT_EQ(panel.get_HeadingColour(), 0xABCDEF);
  EXPECT_EQ(panel.get_ColumnColour(), 0);
}

TEST_F(CtlColourPallet, CancellingTheColourDialogLeavesTheSwatchAsItWas) {
  panel.let_ColumnColour(0x123456);
  panel.let_HeadingColour(0x654321);
  panel.LoadColours();
  desktop.Click(panel.cmdClmColour);
  desktop.Click(panel.cmdHeadColour);
  EXPECT_EQ(desktop.ColourDialogs(), 2U);
  EXPECT_EQ(panel.txtClmColour.get_BackColor(), 0x123456);
  EXPECT_EQ(panel.txtHeadColour.get_BackColor(), 0x654321);
}

TEST_F(CtlColourPallet, TakesTheColourOfItsSwatchWhenTheDialogIsCancelled) {
  panel.let_ColumnColour(0x123456);
  panel.EnableControl(false);
  panel.EnableControl(true);
  desktop.Click(panel.cmdClmColour);
  EXPECT_EQ(panel.get_ColumnColour(), kWhite);
}

TEST_F(CtlColourPallet, HasColoursOfZeroWhenTheFormIsLoadedAnew) {
  panel.let_ColumnColour(1);
  panel.let_HeadingColour(2);
  form->Unload();
  EXPECT_EQ(panel.get_ColumnColour(), 0);
  EXPECT_EQ(panel.get_HeadingColour(), 0);
}

TEST(CtlColourPalletDialog, ThatFailsLeavesTheSwatchAsItWas) {
  DesktopWithoutColours desktop;
  const auto form = std::make_shared<frmWithPanel>(desktop);
  form->Show();
  form->panel.let_ColumnColour(0x123456);
  form->panel.LoadColours();
  desktop.Click(form->panel.cmdClmColour);
  EXPECT_EQ(form->panel.txtClmColour.get_BackColor(), 0x123456);
  EXPECT_TRUE(desktop.Messages().empty());
}

TEST(CtlColourPalletDialog, DoesntBringAFormBackThatHasGoneMeanwhile) {
  DesktopThatUnloads desktop;
  const auto form = std::make_shared<frmWithPanel>(desktop);
  form->Show();
  desktop.Click(form->panel.cmdHeadColour);
  EXPECT_FALSE(form->IsLoaded());
}

TEST_F(CtlColourPallet, IsCalledByNameLikeAnyPublicClass) {
  const Object late =
      std::make_shared<ColourPalletObject>(std::shared_ptr<ctlColourPallet>(form, &form->panel));
  EXPECT_EQ(late.TypeName(), "ctlColourPallet");
  late.Let(Member("HeadingColour"), 3);
  late.Let(Member("ColumnColour"), 4);
  EXPECT_EQ(late.Get(Member("HeadingColour")), Variant(3));
  EXPECT_EQ(late.Get(Member("ColumnColour")), Variant(4));
  late.Call(Member("LoadColours"));
  EXPECT_EQ(panel.txtClmColour.get_BackColor(), 4);
  EXPECT_EQ(panel.txtHeadColour.get_BackColor(), 3);
  late.Call(Member("NameOfTheFrame"), {"Colours"});
  EXPECT_EQ(panel.frmControl.get_Caption(), "Colours");
  late.Call(Member("EnableTxtClmColour"), {false});
  EXPECT_FALSE(panel.txtClmColour.get_Enabled());
  late.Call(Member("EnableTxtHeadColour"), {false});
  EXPECT_FALSE(panel.txtHeadColour.get_Enabled());
  late.Call(Member("Framelength"), {900});
  EXPECT_EQ(panel.frmControl.get_Height(), 900);
  late.Call(Member("EnableControl"), {false});
  EXPECT_FALSE(panel.frmControl.get_Enabled());
}

TEST_F(CtlColourPallet, TakesAFramelengthOf16Bits) {
  const Object late =
      std::make_shared<ColourPalletObject>(std::shared_ptr<ctlColourPallet>(form, &form->panel));
  try {
    late.Call(Member("Framelength"), {40000});
    FAIL() << "too great a length was taken";
  } catch (const automation::Error& error) {
    EXPECT_TRUE(error.Is(automation::ErrorNumber::Overflow));
  }
}

TEST_F(CtlColourPallet, ListsItsMembersInTheirOrder) {
  const ColourPalletObject late(std::shared_ptr<ctlColourPallet>(form, &form->panel));
  std::vector<std::string> members;
  for (const auto& entry : late.Members().Entries()) members.push_back(entry.name.Name());
  EXPECT_EQ(members, std::vector<std::string>({"HeadingColour", "HeadingColour", "ColumnColour",
                                               "ColumnColour", "LoadColours", "NameOfTheFrame",
                                               "EnableControl", "EnableTxtClmColour",
                                               "EnableTxtHeadColour", "Framelength"}));
}

}  // namespace
}  // namespace rangewerks::tests
