// How a form lives: loaded when touched, shown, unloaded when closed.
#include "forms/form.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "automation/error.h"
#include "desktops/headless/headless_desktop.h"

namespace rangewerks {
namespace {

using automation::Error;
using desktops::HeadlessDesktop;

class frmSample final : public forms::Form {
 public:
  explicit frmSample(forms::Toolkit& toolkit)
      : Form(toolkit, "frmSample", {.caption = "Sample", .innerWidth = 3000, .innerHeight = 2000}) {
    cmdOK.Click = [this] {
      accepted = txtName.get_Text();
      Unload();
    };
    cmdCancel.Click = [this] { Hide(); };
    cmdFail.Click = [] { throw Error(1004, "Here", "It failed"); };
    chkOn.Click = [this] { events.push_back(chkOn.get_Value() ? "on" : "off"); };
    txtName.Change = [this] { events.push_back("change"); };
  }

  forms::TextBox txtName{*this, "txtName", {.place = {100, 100, 1000, 300}, .text = "as designed"}};
  forms::Frame fraAll{*this, "fraAll", {.place = {100, 500, 2000, 600}, .text = "All"}};
  forms::CheckBox chkOn{fraAll, "chkOn", {.place = {100, 200, 1000, 300}, .text = "&On"}};
  forms::CommandButton cmdOK{*this, "cmdOK", {.text = "OK", .isDefault = true}};
  forms::CommandButton cmdCancel{*this, "cmdCancel", {.text = "Cancel", .isCancel = true}};
  forms::CommandButton cmdFail{*this, "cmdFail", {.text = "Fail"}};

  std::vector<std::string> events;
  std::string accepted;
  bool failsToLoad = false;

 private:
  void Form_Load() override {
    events.push_back("load");
    if (failsToLoad) throw Error(5, "", "Not now");
  }
  void Form_Unload() override { events.push_back("unload"); }
  void Form_Resize() override { events.push_back("resize"); }
};

using Events = std::vector<std::string>;

/// Does what a test wants while it loads and at its first showing.
class frmEager final : public forms::Form {
 public:
  explicit frmEager(forms::Toolkit& toolkit) : Form(toolkit, "frmEager", {}) {}

  std::function<void()> atLoad = [] {};
  std::function<void()> atResize = [] {};

 private:
  void Form_Load() override { atLoad(); }
  void Form_Resize() override { atResize(); }
};

TEST(Form, IsLoadedByTheFirstTouchOfAControl) {
  HeadlessDesktop desktop;
  frmSample form(desktop);
  EXPECT_FALSE(form.IsLoaded());
  EXPECT_EQ(form.txtName.get_Text(), "as designed");
  EXPECT_TRUE(form.IsLoaded());
  EXPECT_EQ(form.events, Events({"load"}));
  EXPECT_TRUE(desktop.FormsShown().empty());
}

TEST(Form, UnloadingPutsAllPropertiesBackToTheDesign) {
  HeadlessDesktop desktop;
  frmSample form(desktop);
  form.txtName.let_Text("typed");
  form.let_Caption("Other");
  form.chkOn.let_Value(true);
  form.chkOn.let_Enabled(false);
  form.Unload();
  EXPECT_FALSE(form.IsLoaded());
  EXPECT_EQ(form.txtName.get_Text(), "as designed");
  EXPECT_EQ(form.get_Caption(), "Sample");
  EXPECT_FALSE(form.chkOn.get_Value());
  EXPECT_TRUE(form.chkOn.get_Enabled());
}

TEST(Form, LoadsAgainAtEachShowingAndTellsItsSizeAtTheFirst) {
  HeadlessDesktop desktop;
  frmSample form(desktop);
  form.Show();
  form.Hide();
  form.Show();
  form.Unload();
  form.Show();
  EXPECT_EQ(form.events, Events({"load", "resize", "unload", "load", "resize"}));
}

TEST(Form, ModalShowingReturnsWhenItHasBeenUnloadedAndItsResultStaysReadable) {
  HeadlessDesktop desktop;
  frmSample form(desktop);
  desktop.WhenShown<frmSample>([&](frmSample& shown) {
    desktop.Type(shown.txtName, "Smith");
    desktop.PressEnter(shown);
  });
  form.Show(forms::Modality::Modal);
  EXPECT_FALSE(form.IsLoaded());
  EXPECT_EQ(form.accepted, "Smith");
}

TEST(Form, ModalShowingReturnsWhenItHasBeenHiddenAndStaysLoaded) {
  HeadlessDesktop desktop;
  frmSample form(desktop);
  desktop.WhenShown<frmSample>([&](frmSample& shown) { desktop.PressEscape(shown); });
  form.Show(forms::Modality::Modal);
  EXPECT_TRUE(form.IsLoaded());
  EXPECT_FALSE(form.IsVisible());
}

TEST(Form, WhoseLoadFailsIsNotLoadedAndTellsTheCaller) {
  HeadlessDesktop desktop;
  frmSample form(desktop);
  form.failsToLoad = true;
  EXPECT_THROW(form.Show(), Error);
  EXPECT_FALSE(form.IsLoaded());
  form.failsToLoad = false;
  form.Show();
  EXPECT_TRUE(form.IsVisible());
}

TEST(Form, ThatUnloadsItselfWhileItLoadsIsNotShown) {
  for (const forms::Modality modality : {forms::Modality::Modeless, forms::Modality::Modal}) {
    HeadlessDesktop desktop;
    frmEager form(desktop);
    bool resized = false;
    form.atLoad = [&] { form.Unload(); };
    form.atResize = [&] { resized = true; };
    form.Show(modality);
    EXPECT_FALSE(form.IsLoaded());
    EXPECT_FALSE(form.IsVisible());
    EXPECT_FALSE(resized);
    EXPECT_TRUE(desktop.FormsShown().empty());
  }
}

TEST(Form, ThatUnloadsItselfAtItsFirstResizeIsNotShown) {
  HeadlessDesktop desktop;
  frmEager form(desktop);
  form.atResize = [&] { form.Unload(); };
  form.Show(forms::Modality::Modal);
  EXPECT_FALSE(form.IsLoaded());
  EXPECT_FALSE(form.IsVisible());
  EXPECT_TRUE(desktop.FormsShown().empty());
}

TEST(Form, WhoseFirstResizeFailsTellsTheCallerAndIsNotVisible) {
  HeadlessDesktop desktop;
  frmEager form(desktop);
  form.atResize = [] { throw Error(6, "", "Overflow"); };
  EXPECT_THROW(form.Show(), Error);
  EXPECT_TRUE(form.IsLoaded());
  EXPECT_FALSE(form.IsVisible());
  EXPECT_TRUE(desktop.FormsShown().empty());
  form.Show();
  EXPECT_TRUE(form.IsVisible());
}

TEST(Form, MayLoseItsLastHolderAndUnloadWhileItLoads) {
  HeadlessDesktop desktop;
  auto form = std::make_shared<frmEager>(desktop);
  const std::weak_ptr<frmEager> watched = form;
  form->atLoad = [&, &loading = *form] {
    form.reset();
    loading.Unload();
  };
  form->Show();
  EXPECT_TRUE(watched.expired());
}

TEST(Form, TellsThePersonOfAFailureThatNoHandlerTook) {
  HeadlessDesktop desktop;
  frmSample form(desktop);
  form.Show();
  desktop.Click(form.cmdFail);
  ASSERT_EQ(desktop.Messages().size(), 1U);
  EXPECT_EQ(desktop.Messages().front().text, "Run-time error '1004':\r\n\r\nIt failed");
  EXPECT_EQ(desktop.Messages().front().flags, 16);
  EXPECT_TRUE(form.IsVisible());
}

TEST(Form, ResizingByThePersonAndByCodeRunsItsHandler) {
  HeadlessDesktop desktop;
  frmSample form(desktop);
  form.Show();
  form.events.clear();
  desktop.Resize(form, 6000, 5000);
  EXPECT_EQ(form.get_Width(), 6000);
  form.let_Height(4000);
  form.let_Height(4000);
  EXPECT_EQ(form.events, Events({"resize", "resize"}));
}

TEST(Form, IncludesTitleBarAndBordersInItsSizeAndOpensInTheMiddleOfTheScreen) {
  HeadlessDesktop desktop;
  desktop.SetScreen({10000, 8000});
  frmSample form(desktop);
  EXPECT_EQ(form.get_Width(), 3240);
  EXPECT_EQ(form.get_Height(), 2585);
  EXPECT_EQ(form.get_Left(), 3380);
  EXPECT_EQ(form.get_Top(), 2707.5);
}

TEST(Form, StaysAliveWhileItIsLoadedThoughNobodyHoldsIt) {
  HeadlessDesktop desktop;
  auto form = std::make_shared<frmSample>(desktop);
  const std::weak_ptr<frmSample> watched = form;
  form->Show();
  form.reset();
  ASSERT_FALSE(watched.expired());
  desktop.Close(*watched.lock());
  EXPECT_TRUE(watched.expired());
}

TEST(Form, ThatIsLoadedGoesWithItsDesktop) {
  std::weak_ptr<frmSample> watched;
  {
    HeadlessDesktop desktop;
    const auto form = std::make_shared<frmSample>(desktop);
    watched = form;
    form->Show();
  }
  EXPECT_TRUE(watched.expired());
}

TEST(Form, HoldsTheDesktopsKeeperForAsLongAsItIsLoaded) {
  HeadlessDesktop desktop;
  std::weak_ptr<void> kept;
  desktop.KeepWhileLoaded([&] {
    const auto keeper = std::make_shared<int>(1);
    kept = keeper;
    return keeper;
  });
  frmSample form(desktop);
  form.Load();
  EXPECT_FALSE(kept.expired());
  form.Unload();
  EXPECT_TRUE(kept.expired());
}

TEST(Form, IsSharedByItsClass) {
  HeadlessDesktop desktop;
  frmSample& first = desktop.Shared<frmSample>();
  EXPECT_EQ(&first, &desktop.Shared<frmSample>());
}

TEST(Control, CanNotBeUsedOnADisabledFrame) {
  HeadlessDesktop desktop;
  frmSample form(desktop);
  form.Show();
  desktop.Click(form.chkOn);
  form.fraAll.let_Enabled(false);
  EXPECT_TRUE(form.chkOn.get_Enabled());
  EXPECT_THROW(desktop.Click(form.chkOn), std::logic_error);
}

TEST(CheckBox, TellsThePersonsClicksAndNotTheCodes) {
  HeadlessDesktop desktop;
  frmSample form(desktop);
  form.Show();
  form.events.clear();
  form.chkOn.let_Value(true);
  desktop.Click(form.chkOn);
  EXPECT_EQ(form.events, Events({"off"}));
}

TEST(TextBox, TellsEachChangeOfItsText) {
  HeadlessDesktop desktop;
  frmSample form(desktop);
  form.Show();
  form.events.clear();
  desktop.Type(form.txtName, "a");
  desktop.Type(form.txtName, "a");
  form.txtName.let_Text("b");
  form.txtName.let_Text("b");
  EXPECT_EQ(form.events, Events({"change", "change"}));
}

}  // namespace
}  // namespace rangewerks
