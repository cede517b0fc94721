#include "sheetbuild/frmColourPallet.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "automation/error.h"
#include "desktops/headless/headless_desktop.h"
#include "platform/basRegistry.h"
#include "support/control_names.h"
#include "support/error_of.h"
#include "support/memory_registry.h"

namespace rangewerks::tests {
namespace {

using automation::Variant;
using desktops::HeadlessDesktop;
using platform::Registry;

constexpr std::int32_t kWhite = 0xFFFFFF;
const std::string kRangeKey =
    "Software\\Ostrel\\SheetConnectors\\RangeProperties\\ColourPallet\\AdjustmentColumn";
const std::string kAlternateKey =
    "Software\\Ostrel\\SheetConnectors\\AltRangeProperties"
    "\\ColourPallet\\AlternateAdjustmentColumn";

class FrmColourPallet : public ::testing::Test {
 protected:
  /// The styles as the caller hands them over: loaded once, so that the dialog reads the stored
  /// colours.
  void GiveStyles() {
    styles->get_AdjustmentColumn()->let_KeyPath(clsAnalyserStyles::kRangeKey);
    styles->get_AlternateAdjustmentColumn()->let_KeyPath(clsAnalyserStyles::kAlternateKey);
    styles->LoadSettingsFromRegistry();
    form.set_AnalysisStyles(styles);
  }
  void Store(const std::string& key, const std::string& name, std::int32_t value) const {
    registry->Write(Registry::kCurrentUser, key, name, value);
  }
  void StoreColours() const {
    Store(kRangeKey, "ColumnColour", 0x111111);
    Store(kRangeKey, "HeadingColour", 0x222222);
    Store(kAlternateKey, "ColumnColour", 0x333333);
    Store(kAlternateKey, "HeadingColour", 0x444444);
  }
  Variant Stored(const std::string& key, const std::string& name) const {
    return basRegistry::ReadRegistryValue(*registry, Registry::kCurrentUser, key, name);
  }
  /// Shows the dialog with the person's part in it.
  void Show(const std::function<void()>& person) {
    GiveStyles();
    desktop.WhenShown<frmColourPallet>([&](frmColourPallet&) { person(); });
    form.Show(forms::Modality::Modal);
  }

  HeadlessDesktop desktop;
  std::shared_ptr<MemoryRegistry> registry = std::make_shared<MemoryRegistry>();
  std::shared_ptr<clsAnalyserStyles> styles = std::make_shared<clsAnalyserStyles>(registry);
  frmColourPallet& form = desktop.Shared<frmColourPallet>(registry);
  ctlColourPallet& range = form.ctlColourPallet1;
  ctlColourPallet& alternate = form.ctlColourPallet2;
};

TEST_F(FrmColourPallet, HasItsCaptionsAndFont) {
  GiveStyles();
  EXPECT_EQ(form.get_Caption(), " Colour Configurator");
  EXPECT_EQ(form.Design().fontName, "MS Sans Serif");
  EXPECT_EQ(form.chkRngColor.Properties().text, "Enable Range Color");
  EXPECT_EQ(range.frmControl.get_Caption(), "Range Color");
  EXPECT_EQ(form.chkAltRngColor.Properties().text, "Enable Alternate Range Color");
  EXPECT_EQ(alternate.frmControl.get_Caption(), "Alternate Range Color");
  EXPECT_EQ(form.cmdOk.get_Caption(), "OK");
  EXPECT_EQ(form.cmdCancel.get_Caption(), "Cancel");
}

TEST_F(FrmColourPallet, HasItsControlsByNameInTheTabOrder) {
  EXPECT_EQ(ControlNames(form),
            std::vector<std::string>({"chkRngColor", "ctlColourPallet1", "chkAltRngColor",
                                      "ctlColourPallet2", "cmdOk", "cmdCancel"}));
}

TEST_F(FrmColourPallet, IsDesignedWithTwoPanelsOfOneSize) {
  EXPECT_EQ(range.Properties().place, (forms::Place{360, 600, 5895, 1935}));
  EXPECT_EQ(alternate.Properties().place, (forms::Place{360, 2880, 5895, 1935}));
  EXPECT_EQ(form.cmdOk.Properties().place, (forms::Place{480, 4800, 1575, 495}));
  EXPECT_EQ(form.cmdCancel.Properties().place, (forms::Place{4440, 4800, 1575, 495}));
}

TEST_F(FrmColourPallet, ShrinksToTheShorterAlternatePanelWhenItLoads) {
  GiveStyles();
  EXPECT_EQ(alternate.frmControl.get_Height(), 800);
  EXPECT_EQ(range.frmControl.get_Height(), 1575);
  EXPECT_EQ(form.get_Height(), 5200);
  EXPECT_EQ(form.cmdOk.get_Top(), 4100);
  EXPECT_EQ(form.cmdCancel.get_Top(), 4100);
}

TEST_F(FrmColourPallet, NoPanelLiesOverTheButtonsThatHaveMovedUp) {
  GiveStyles();
  EXPECT_EQ(alternate.get_Top() + alternate.get_Height(), form.cmdOk.get_Top());
}

TEST_F(FrmColourPallet, HasNoHeadingColourToChooseForAlternateRows) {
  GiveStyles();
  EXPECT_FALSE(alternate.txtHeadColour.get_Enabled());
  EXPECT_FALSE(alternate.cmdHeadColour.get_Enabled());
  EXPECT_TRUE(range.txtHeadColour.get_Enabled());
}

TEST_F(FrmColourPallet, ShowsTheStoredColoursAndSwitches) {
  StoreColours();
  GiveStyles();
  EXPECT_TRUE(form.chkRngColor.get_Value());
  EXPECT_TRUE(form.chkAltRngColor.get_Value());
  EXPECT_EQ(range.txtClmColour.get_BackColor(), 0x111111);
  EXPECT_EQ(range.txtHeadColour.get_BackColor(), 0x222222);
  EXPECT_EQ(alternate.txtClmColour.get_BackColor(), 0x333333);
}

TEST_F(FrmColourPallet, ShowsWhiteWithNothingStored) {
  GiveStyles();
  EXPECT_TRUE(form.chkRngColor.get_Value());
  EXPECT_TRUE(form.chkAltRngColor.get_Value());
  EXPECT_EQ(range.txtClmColour.get_BackColor(), kWhite);
  EXPECT_EQ(range.txtHeadColour.get_BackColor(), kWhite);
  EXPECT_EQ(alternate.txtClmColour.get_BackColor(), kWhite);
}

TEST_F(FrmColourPallet, HoldsWhiteForASetThatIsSwitchedOff) {
  StoreColours();
  Store(kRangeKey, "EnableRangeColor", 0);
  Store(kAlternateKey, "EnableAlternateRangeColor", 0);
  GiveStyles();
  form.Load();
  EXPECT_EQ(range.get_ColumnColour(), kWhite);
  EXPECT_EQ(range.get_HeadingColour(), kWhite);
  EXPECT_EQ(alternate.get_ColumnColour(), kWhite);
  EXPECT_FALSE(range.frmControl.get_Enabled());
  EXPECT_FALSE(alternate.frmControl.get_Enabled());
}

TEST_F(FrmColourPallet, SwitchesStoredAlternateColourOffWithoutRangeColour) {
  Store(kRangeKey, "EnableRangeColor", 0);
  GiveStyles();
  EXPECT_FALSE(form.chkRngColor.get_Value());
  EXPECT_FALSE(form.chkAltRngColor.get_Value());
  EXPECT_FALSE(alternate.frmControl.get_Enabled());
}

TEST_F(FrmColourPallet, ReadsOnceMoreWhenItLoadsAsThePersonMayHaveChangedThem) {
  GiveStyles();
  StoreColours();
  registry->Forget();
  form.Load();
  EXPECT_EQ(styles->get_AdjustmentColumn()->get_ColumnColour(), 0x111111);
}

TEST_F(FrmColourPallet, UncheckingRangeColourSwitchesBothPanelsOff) {
  StoreColours();
  Show([&] {
    desktop.Click(form.chkRngColor);
    EXPECT_FALSE(range.frmControl.get_Enabled());
    EXPECT_EQ(range.txtClmColour.get_BackColor(), kWhite);
    EXPECT_FALSE(form.chkAltRngColor.get_Value());
    EXPECT_FALSE(alternate.frmControl.get_Enabled());
    desktop.Click(form.cmdCancel);
  });
}

TEST_F(FrmColourPallet, CheckingRangeColourAgainLeavesTheAlternatePanelOff) {
  Show([&] {
    desktop.Click(form.chkRngColor);
    desktop.Click(form.chkRngColor);
    EXPECT_TRUE(range.frmControl.get_Enabled());
    EXPECT_FALSE(form.chkAltRngColor.get_Value());
    EXPECT_FALSE(alternate.frmControl.get_Enabled());
    desktop.Click(form.cmdCancel);
  });
}

TEST_F(FrmColourPallet, TheAlternateCheckBoxSwitchesItsPanel) {
  Show([&] {
    desktop.Click(form.chkAltRngColor);
    EXPECT_FALSE(alternate.frmControl.get_Enabled());
    EXPECT_TRUE(range.frmControl.get_Enabled());
    desktop.Click(form.chkAltRngColor);
    EXPECT_TRUE(alternate.frmControl.get_Enabled());
    desktop.Click(form.cmdCancel);
  });
}

TEST_F(FrmColourPallet, AlternateColourCantBeOnWithoutRangeColour) {
  Show([&] {
    desktop.Click(form.chkRngColor);
    desktop.Click(form.chkAltRngColor);
    EXPECT_FALSE(form.chkAltRngColor.get_Value());
    EXPECT_FALSE(alternate.frmControl.get_Enabled());
    desktop.Click(form.cmdCancel);
  });
}

TEST_F(FrmColourPallet, OkStoresTheChosenColoursInTheCallersStyles) {
  StoreColours();
  Show([&] {
    desktop.PickColour(0xAAAAAA);
    desktop.Click(range.cmdClmColour);
    desktop.PickColour(0xBBBBBB);
    desktop.Click(range.cmdHeadColour);
    desktop.PickColour(0xCCCCCC);
    desktop.Click(alternate.cmdClmColour);
    desktop.PressEnter(form);
  });
  EXPECT_FALSE(form.IsLoaded());
  EXPECT_EQ(styles->get_AdjustmentColumn()->get_ColumnColour(), 0xAAAAAA);
  EXPECT_EQ(Stored(kRangeKey, "ColumnColour"), Variant(0xAAAAAA));
  EXPECT_EQ(Stored(kRangeKey, "HeadingColour"), Variant(0xBBBBBB));
  EXPECT_EQ(Stored(kAlternateKey, "ColumnColour"), Variant(0xCCCCCC));
  EXPECT_EQ(Stored(kRangeKey, "EnableRangeColor"), Variant(-1));
  EXPECT_EQ(Stored(kAlternateKey, "EnableAlternateRangeColor"), Variant(-1));
}

TEST_F(FrmColourPallet, OkStoresTheHeadingColourThatTheAlternatePanelHolds) {
  StoreColours();
  Show([&] {
    alternate.let_HeadingColour(0x777777);
    desktop.Click(form.cmdOk);
  });
  EXPECT_EQ(Stored(kAlternateKey, "HeadingColour"), Variant(0x777777));
}

TEST_F(FrmColourPallet, TheAlternatePanelHoldsTheHeadingColourZeroUntilItIsGivenAnother) {
  StoreColours();
  Show([&] { desktop.Click(form.cmdOk); });
  EXPECT_EQ(Stored(kAlternateKey, "HeadingColour"), Variant(0));
}

TEST_F(FrmColourPallet, OkWithoutRangeColourStoresBothSwitchesOffAndTheColoursUnchanged) {
  StoreColours();
  Show([&] {
    desktop.Click(form.chkRngColor);
    desktop.Click(form.cmdOk);
  });
  EXPECT_EQ(Stored(kRangeKey, "EnableRangeColor"), Variant(0));
  EXPECT_EQ(Stored(kAlternateKey, "EnableAlternateRangeColor"), Variant(0));
  EXPECT_EQ(Stored(kRangeKey, "ColumnColour"), Variant(0x111111));
  EXPECT_EQ(Stored(kRangeKey, "HeadingColour"), Variant(0x222222));
  EXPECT_EQ(Stored(kAlternateKey, "ColumnColour"), Variant(0x333333));
  EXPECT_EQ(Stored(kAlternateKey, "HeadingColour"), Variant(0x444444));
}

TEST_F(FrmColourPallet, CancelStoresNothingAndLeavesTheStylesAsTheyWere) {
  StoreColours();
  Show([&] {
    registry->Forget();
    desktop.PickColour(0xAAAAAA);
    desktop.Click(range.cmdClmColour);
    desktop.PressEscape(form);
  });
  EXPECT_TRUE(registry->Writes().empty());
  EXPECT_EQ(styles->get_AdjustmentColumn()->get_ColumnColour(), 0x111111);
}

TEST_F(FrmColourPallet, HasStylesOfItsOwnFromItsCreationAndNoneOnceItIsClosed) {
  EXPECT_NE(form.get_AnalysisStyles(), nullptr);
  GiveStyles();
  EXPECT_EQ(form.get_AnalysisStyles(), styles);
  form.Load();
  form.Unload();
  EXPECT_EQ(form.get_AnalysisStyles(), nullptr);
}

TEST_F(FrmColourPallet, WithoutStylesCantBeLoaded) {
  form.set_AnalysisStyles(nullptr);
  EXPECT_TRUE(ErrorOf([&] { form.Load(); }).Is(automation::ErrorNumber::ObjectVariableNotSet));
}

TEST_F(FrmColourPallet, AFailureToStoreIsNotToldToThePerson) {
  StoreColours();
  Show([&] {
    registry->AnswerWritesWith(5);
    desktop.Click(form.cmdOk);
  });
  EXPECT_TRUE(desktop.Messages().empty());
  EXPECT_EQ(Stored(kRangeKey, "ColumnColour"), Variant(0x111111));
}

}  // namespace
}  // namespace rangewerks::tests
