#include "errors/report.h"

#include <gtest/gtest.h>

#include <memory>

#include "automation/error.h"
#include "desktops/headless/headless_desktop.h"
#include "errors/frmErrMessage.h"
#include "errors/modErrorHandling.h"

namespace rangewerks::tests {
namespace {

using automation::Error;
using desktops::HeadlessDesktop;

TEST(ReportFailures, ShowsWhatFailsWithTheHandlersTextAndLine) {
  const auto desktop = std::make_shared<HeadlessDesktop>();
  ErrorMessageBox box(desktop, nullptr);
  desktop->WhenShown<frmErrMessage>([&](frmErrMessage& form) {
    EXPECT_EQ(form.txtMainMessage.get_Text(), "Type mismatch");
    EXPECT_EQ(form.txtErrorNumber.get_Text(), "Error number: 13");
    EXPECT_EQ(form.txtExtra.get_Text(), "Inner Line#:4\r\ncmdAdd_Click of Form frmAny Line#:3");
    desktop->Click(form.cmdOK);
  });
  int steps = 0;
  ReportFailures(box, "cmdAdd_Click of Form frmAny Line#:", [&](Line& at) {
    at();
    ++steps;
    at();
    throw Error(13, "Inner Line#:4", "Type mismatch");
  });
  EXPECT_EQ(steps, 1);
  EXPECT_EQ(desktop->PendingReactions(), 0U);
  EXPECT_EQ(modErrorHandling::CurrentError().line, 3);
}

TEST(ReportFailures, ShowsNothingWhenNothingFails) {
  const auto desktop = std::make_shared<HeadlessDesktop>();
  ErrorMessageBox box(desktop, nullptr);
  ReportFailures(box, "Form_Load of Form frmAny Line#:", [&](Line& at) { at(); });
  EXPECT_TRUE(desktop->FormsShown().empty());
}

}  // namespace
}  // namespace rangewerks::tests
