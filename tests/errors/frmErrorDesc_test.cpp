// The mail to support: what the person fills in, and what is asked of the mail program.
#include "errors/frmErrorDesc.h"

#include <gmock/gmock.h>

#include <memory>
#include <string>

#include "desktops/headless/headless_desktop.h"
#include "errors/ErrorMessageBox.h"
#include "errors/fake_mail.h"
#include "errors/frmErrMessage.h"
#include "support/control_names.h"
#include "support/fixed_system.h"

namespace rangewerks::tests {
namespace {

using desktops::HeadlessDesktop;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class TheSupportMail : public ::testing::Test {
 protected:
  TheSupportMail() {
    system->Offer("Outlook.Application", FakeMail::Application(log));
    form->let_ErrorNumberText("Error number: 1004");
    form->let_ErrorMessageText("It failed");
    form->let_ExtraMessageText("Inner Line#:7\r\nOuter Line#:2");
  }

  /// Shows the form; the person fills it in and presses Send.
  void Send(const std::string& details = "", const std::string& name = "",
            const std::string& phone = "") {
    desktop->WhenShown<frmErrorDesc>([&](frmErrorDesc& shown) {
      desktop->Type(shown.txtProblemDetails, details);
      desktop->Type(shown.txtYourName, name);
      desktop->Type(shown.txtYourPhone, phone);
      desktop->Click(shown.cmdSend);
      EXPECT_FALSE(shown.IsLoaded());
    });
    form->Show(forms::Modality::Modal);
  }
  void ExpectCouldNotCreate() const {
    ASSERT_EQ(desktop->Messages().size(), 1U);
    EXPECT_EQ(desktop->Messages().front().text, "Sorry - Cannot create Outlook");
    EXPECT_EQ(desktop->Messages().front().flags, 16);
    EXPECT_EQ(desktop->Messages().front().title, "");
  }

  std::shared_ptr<HeadlessDesktop> desktop = std::make_shared<HeadlessDesktop>();
  std::shared_ptr<FixedSystem> system = std::make_shared<FixedSystem>("/lib");
  std::shared_ptr<MailLog> log = std::make_shared<MailLog>();
  std::shared_ptr<frmErrorDesc> form = std::make_shared<frmErrorDesc>(*desktop, system);
};

TEST_F(TheSupportMail, IsFilledInOnAFormWithTheseControls) {
  EXPECT_EQ(form->get_Caption(), "Enter error details");
  EXPECT_EQ(form->lbProblemDetails.get_Caption(),
            "Please enter some details of what you were doing when this error appeared:");
  EXPECT_EQ(form->lblName.get_Caption(), "Your name:");
  EXPECT_EQ(form->lblYourPhone.get_Caption(), "Your phone number:");
  EXPECT_EQ(form->cmdSend.get_Caption(), "Send");
  EXPECT_EQ(form->cmdCancel.get_Caption(), "Cancel");
  EXPECT_EQ(form->txtProblemDetails.get_Text(), "");
  EXPECT_TRUE(form->txtProblemDetails.Properties().multiLine);
  EXPECT_EQ(form->txtYourName.get_Text(), "");
  EXPECT_EQ(form->txtYourPhone.get_Text(), "");
}

TEST_F(TheSupportMail, FormHasItsControlsByNameEachLabelBeforeItsBox) {
  EXPECT_EQ(form->Design().fontName, "Tahoma");
  EXPECT_THAT(ControlNames(*form),
              ElementsAre("lbProblemDetails", "txtProblemDetails", "lblName", "txtYourName",
                          "lblYourPhone", "txtYourPhone", "cmdSend", "cmdCancel"));
}

TEST_F(TheSupportMail, IsSentThroughOutlookStepByStep) {
  Send("Posting a journal", "Smith", "555 1234");
  EXPECT_THAT(log->lines,
              ElementsAre("Application call GetNamespace \"MAPI\"", "NameSpace call Logon",
                          "Application call CreateItem 0",
                          "MailItem let To \"" + std::string(frmErrorDesc::kSupportAddress) + "\"",
                          "MailItem let Subject \"Sheetwright Error Message\"",
                          "MailItem let Body \"Additional Information: Posting a journal\r\n"
                          "Contact name: Smith\r\n"
                          "Contact phone: 555 1234\r\n"
                          "Error number: 1004\r\n"
                          "Error message:\r\n"
                          "It failed\r\n"
                          "Extended message:\r\n"
                          "Inner Line#:7\r\nOuter Line#:2\"",
                          "MailItem call sEnd", "NameSpace call Logoff"));
  ASSERT_EQ(desktop->Messages().size(), 1U);
  EXPECT_EQ(desktop->Messages().front().text, "Email Sent");
  EXPECT_EQ(desktop->Messages().front().title, "Email");
  EXPECT_EQ(desktop->Messages().front().flags, 65536);
}

TEST_F(TheSupportMail, MayHaveEmptyFields) {
  Send();
  EXPECT_THAT(log->lines.at(5),
              "MailItem let Body \"Additional Information: \r\n"
              "Contact name: \r\n"
              "Contact phone: \r\n"
              "Error number: 1004\r\n"
              "Error message:\r\n"
              "It failed\r\n"
              "Extended message:\r\n"
              "Inner Line#:7\r\nOuter Line#:2\"");
}

/// Tells what of the mail program is held when a message box is up.
class WatchingDesktop final : public HeadlessDesktop {
 public:
  explicit WatchingDesktop(std::shared_ptr<MailLog> log) : log_(std::move(log)) {}
  forms::Answer ShowMessage(const forms::Message& message, forms::Form* owner) override {
    heldAtMessage = log_->alive;
    linesAtMessage = log_->lines.size();
    return HeadlessDesktop::ShowMessage(message, owner);
  }
  int heldAtMessage = -1;
  std::size_t linesAtMessage = 0;

 private:
  std::shared_ptr<MailLog> log_;
};

TEST_F(TheSupportMail, ReleasesTheItemBeforeItIsToldAsSentAndTheRestAfterwards) {
  const auto watching = std::make_shared<WatchingDesktop>(log);
  const auto watched = std::make_shared<frmErrorDesc>(*watching, system);
  watching->WhenShown<frmErrorDesc>([&](frmErrorDesc& shown) { watching->Click(shown.cmdSend); });
  watched->Show(forms::Modality::Modal);
  EXPECT_EQ(watching->heldAtMessage, 2);  // application and namespace
  EXPECT_EQ(watching->linesAtMessage, 7U);
  EXPECT_EQ(log->alive, 1);  // what the system offers
}

TEST_F(TheSupportMail, AnyFailingStepEndsInOneMessageAndWithoutLogoff) {
  for (const char* step :
       {"Application call GetNamespace", "NameSpace call Logon", "Application call CreateItem",
        "MailItem let To", "MailItem let Subject", "MailItem let Body", "MailItem call sEnd"}) {
    SCOPED_TRACE(step);
    desktop = std::make_shared<HeadlessDesktop>();
    form = std::make_shared<frmErrorDesc>(*desktop, system);
    log->lines.clear();
    log->failsAt = step;
    Send();
    ExpectCouldNotCreate();
    EXPECT_TRUE(log->lines.back().starts_with(step));
    EXPECT_EQ(log->alive, 1);
  }
}

TEST_F(TheSupportMail, AFailingLogoffIsToldAsAFailureThoughTheMailIsSent) {
  log->failsAt = "NameSpace call Logoff";
  Send();
  ASSERT_EQ(desktop->Messages().size(), 2U);
  EXPECT_EQ(desktop->Messages()[0].text, "Email Sent");
  EXPECT_EQ(desktop->Messages()[1].text, "Sorry - Cannot create Outlook");
}

TEST_F(TheSupportMail, CancelSendsNothing) {
  desktop->WhenShown<frmErrorDesc>([&](frmErrorDesc& shown) { desktop->Click(shown.cmdCancel); });
  form->Show(forms::Modality::Modal);
  EXPECT_FALSE(form->IsLoaded());
  EXPECT_THAT(log->lines, IsEmpty());
  EXPECT_THAT(desktop->Messages(), IsEmpty());
}

TEST_F(TheSupportMail, WithNoOutlookSendTellsSoClosesTheDetailsFormAndLeavesTheErrorBoxOpen) {
  const auto none = std::make_shared<FixedSystem>("/lib");
  ErrorMessageBox box(desktop, none);
  desktop->WhenShown<frmErrMessage>([&](frmErrMessage& errorBox) {
    desktop->WhenShown<frmErrorDesc>([&](frmErrorDesc& details) {
      desktop->Click(details.cmdSend);
      EXPECT_FALSE(details.IsLoaded());
    });
    desktop->Click(errorBox.cmdEmail);
    ExpectCouldNotCreate();
    EXPECT_TRUE(errorBox.IsVisible());
    desktop->Click(errorBox.cmdOK);
  });
  box.DisplayMessage(1004, "It failed");
  EXPECT_EQ(desktop->PendingReactions(), 0U);
}

}  // namespace
}  // namespace rangewerks::tests
