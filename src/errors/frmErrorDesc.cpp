#include "errors/frmErrorDesc.h"

#include <utility>

#include "automation/dispatch.h"
#include "automation/variant.h"
#include "errors/attempt.h"

namespace rangewerks {
namespace {

using automation::Member;
using automation::Object;

const Member kBody{"Body"};
const Member kCreateItem{"CreateItem"};
const Member kGetNamespace{"GetNamespace"};
const Member kLogoff{"Logoff"};
const Member kLogon{"Logon"};
const Member kSend{"sEnd"};
const Member kSubject{"Subject"};
const Member kTo{"To"};

constexpr std::int32_t kMailItem = 0;

}  // namespace

frmErrorDesc::frmErrorDesc(forms::Toolkit& toolkit, std::shared_ptr<const platform::System> system)
    : Form(toolkit, "frmErrorDesc",
           {.caption = "Enter error details",
            .innerWidth = 6000,
            .innerHeight = 3825,
            .fontName = "Tahoma",
            .fontSize = 8}),
      system_(std::move(system)) {
  cmdSend.Click = [this] { cmdSend_Click(); };
  cmdCancel.Click = [this] { Unload(); };
}

void frmErrorDesc::cmdSend_Click() {
  if (!Attempt([&] { SendMail(); })) {
    Desktop().ShowMessage(
        {.text = "Sorry - Cannot create Outlook", .flags = forms::Message::kCritical}, this);
  }
  Unload();
}

void frmErrorDesc::SendMail() {
  const Object outlook = system_->CreateObject("Outlook.Application");
  const Object session = outlook.Call(kGetNamespace, {"MAPI"}).AsObject();
  session.Call(kLogon);
  {
    const Object mail = outlook.Call(kCreateItem, {kMailItem}).AsObject();
    mail.Let(kTo, kSupportAddress);
    mail.Let(kSubject, "Sheetwright Error Message");
    mail.Let(kBody, MailBody());
    mail.Call(kSend);
  }
  Desktop().ShowMessage(
      {.text = "Email Sent", .flags = forms::Message::kForeground, .title = "Email"}, this);
  session.Call(kLogoff);
}

std::string frmErrorDesc::MailBody() const {
  return "Additional Information: " + txtProblemDetails.get_Text() +
         "\r\nContact name: " + txtYourName.get_Text() +
         "\r\nContact phone: " + txtYourPhone.get_Text() + "\r\n" + errorNumberText_ +
         "\r\nError message:\r\n" + errorMessageText_ + "\r\nExtended message:\r\n" +
         extraMessageText_;
}

}  // namespace rangewerks
