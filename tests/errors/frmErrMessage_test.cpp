#include "errors/frmErrMessage.h"

#include <gmock/gmock.h>

#include <memory>
#include <string>

#include "automation/error.h"
#include "desktops/headless/headless_desktop.h"
#include "errors/ErrorMessageBox.h"
#include "errors/frmErrorDesc.h"
#include "support/control_names.h"
#include "support/fixed_system.h"

namespace rangewerks::tests {
namespace {

using desktops::HeadlessDesktop;
using ::testing::ElementsAre;

class TheErrorForm : public ::testing::Test {
 protected:
  /// Shows a failure; `person` deals with the form.
  void Show(const std::function<void(frmErrMessage& form)>& person) {
    desktop->WhenShown<frmErrMessage>(person);
    box.DisplayMessage(1004, "It failed", "Somewhere");
    EXPECT_EQ(desktop->PendingReactions(), 0U);
  }

  std::shared_ptr<HeadlessDesktop> desktop = std::make_shared<HeadlessDesktop>();
  std::shared_ptr<FixedSystem> system = std::make_shared<FixedSystem>("/lib");
  ErrorMessageBox box{desktop, system};
};

TEST_F(TheErrorForm, ShowsItsControlsWithTheirTexts) {
  Show([&](frmErrMessage& form) {
    EXPECT_EQ(form.get_Caption(), "An Error Has Occurred");
    EXPECT_EQ(form.Design().fontName, "Tahoma");
    EXPECT_EQ(form.lblErr.get_Caption(), "An Error has occurred.....");
    EXPECT_EQ(form.txtMainMessage.get_Text(), "It failed");
    EXPECT_EQ(form.txtErrorNumber.get_Text(), "Error number: 1004");
    EXPECT_EQ(form.txtExtra.get_Text(), "Somewhere");
    EXPECT_EQ(form.cmdShowDetail.get_Caption(), "Show Detail");
    EXPECT_EQ(form.cmdEmail.get_Caption(), "&Email");
    EXPECT_EQ(form.cmdEmail.get_ToolTipText(), "Email error information to Ostrel.  Please");
    EXPECT_EQ(form.cmdOK.get_Caption(), "OK");
    EXPECT_EQ(form.cmdOK.get_ToolTipText(), "Close");
    EXPECT_EQ(form.cmdOK.Properties().picture, forms::Picture::Ok);
    EXPECT_TRUE(form.txtMainMessage.Properties().locked);
    EXPECT_TRUE(form.txtErrorNumber.Properties().locked);
    EXPECT_TRUE(form.txtExtra.Properties().locked);
    desktop->Click(form.cmdOK);
  });
}

TEST_F(TheErrorForm, HasItsControlsByNameInTheTabOrder) {
  EXPECT_THAT(ControlNames(desktop->Shared<frmErrMessage>(system)),
              ElementsAre("lblErr", "txtMainMessage", "cmdShowDetail", "cmdEmail", "cmdOK",
                          "txtErrorNumber", "txtExtra"));
}

TEST_F(TheErrorForm, OpensWithTheHeadingAndTheMainMessageOnly) {
  Show([&](frmErrMessage& form) {
    EXPECT_TRUE(form.lblErr.IsShown());
    EXPECT_TRUE(form.txtMainMessage.IsShown());
    EXPECT_FALSE(form.txtErrorNumber.IsShown());
    EXPECT_FALSE(form.txtExtra.IsShown());
    EXPECT_EQ(form.get_Height(), form.get_FullHeight() - form.txtExtra.get_Height() -
                                     form.txtErrorNumber.get_Height());
    desktop->Click(form.cmdOK);
  });
}

TEST_F(TheErrorForm, KeepsItsHeightAsDesignedInTwips) {
  Show([&](frmErrMessage& form) {
    EXPECT_EQ(form.get_FullHeight(), 4440 + 585);
    desktop->Click(form.cmdOK);
  });
}

TEST_F(TheErrorForm, ShowDetailFollowedByHideDetailReturnsToExactlyTheCollapsedHeight) {
  Show([&](frmErrMessage& form) {
    const double collapsed = form.get_Height();
    desktop->Click(form.cmdShowDetail);
    EXPECT_EQ(form.get_Height(), form.get_FullHeight());
    EXPECT_EQ(form.cmdShowDetail.get_Caption(), "Hide Detail");
    EXPECT_TRUE(form.txtErrorNumber.IsShown());
    EXPECT_TRUE(form.txtExtra.IsShown());
    desktop->Click(form.cmdShowDetail);
    EXPECT_EQ(form.get_Height(), collapsed);
    EXPECT_EQ(form.cmdShowDetail.get_Caption(), "Show Detail");
    EXPECT_FALSE(form.txtErrorNumber.IsShown());
    EXPECT_FALSE(form.txtExtra.IsShown());
    desktop->Click(form.cmdOK);
  });
}

TEST_F(TheErrorForm, HidesTheDetailAgainOnEveryShowing) {
  Show([&](frmErrMessage& form) {
    desktop->Click(form.cmdShowDetail);
    desktop->Click(form.cmdOK);
  });
  Show([&](frmErrMessage& form) {
    EXPECT_FALSE(form.txtExtra.IsShown());
    EXPECT_EQ(form.cmdShowDetail.get_Caption(), "Show Detail");
    desktop->Click(form.cmdOK);
  });
}

TEST_F(TheErrorForm, IsOneSharedInstanceThatIsUnloadedWhenClosed) {
  frmErrMessage* first = nullptr;
  Show([&](frmErrMessage& form) {
    first = &form;
    desktop->Close(form);
  });
  EXPECT_FALSE(first->IsLoaded());
  Show([&](frmErrMessage& form) {
    EXPECT_EQ(&form, first);
    desktop->PressEscape(form);
  });
  EXPECT_FALSE(first->IsLoaded());
}

TEST_F(TheErrorForm, EmailAsksForDetailsOverTheBoxAndHandsTheTextsOfTheBoxesOver) {
  Show([&](frmErrMessage& form) {
    desktop->WhenShown<frmErrorDesc>([&](frmErrorDesc& details) {
      EXPECT_EQ(details.get_ErrorMessageText(), "It failed");
      EXPECT_EQ(details.get_ExtraMessageText(), "Somewhere");
      EXPECT_EQ(details.get_ErrorNumberText(), "Error number: 1004");
      EXPECT_TRUE(form.IsVisible());
      desktop->Click(details.cmdCancel);
    });
    desktop->Click(form.cmdEmail);
    EXPECT_TRUE(form.IsVisible());
    desktop->Click(form.cmdOK);
  });
  EXPECT_THAT(desktop->FormsShown(), ElementsAre("frmErrMessage", "frmErrorDesc"));
}

TEST_F(TheErrorForm, EmailMakesANewFormForEachUse) {
  Show([&](frmErrMessage& form) {
    desktop->WhenShown<frmErrorDesc>([&](frmErrorDesc& details) {
      desktop->Type(details.txtYourName, "Smith");
      desktop->Click(details.cmdCancel);
    });
    desktop->Click(form.cmdEmail);
    desktop->WhenShown<frmErrorDesc>([&](frmErrorDesc& details) {
      EXPECT_EQ(details.txtYourName.get_Text(), "");
      desktop->Click(details.cmdCancel);
    });
    desktop->Click(form.cmdEmail);
    desktop->Click(form.cmdOK);
  });
}

}  // namespace
}  // namespace rangewerks::tests
