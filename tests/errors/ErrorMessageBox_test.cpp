// The global object that shows failures, as its callers see it.
#include "errors/ErrorMessageBox.h"

#include <gmock/gmock.h>

#include <memory>
#include <string>

#include "desktops/headless/headless_desktop.h"
#include "errors/errL100Jrn.h"
#include "errors/failing_memory.h"
#include "errors/frmErrMessage.h"
#include "errors/member_texts.h"
#include "errors/modErrorHandling.h"
#include "support/error_of.h"
#include "support/fixed_system.h"
#include "support/matches_regex.h"

namespace rangewerks::tests {
namespace {

using automation::Error;
using automation::Member;
using automation::Object;
using automation::Variant;
using desktops::HeadlessDesktop;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// What the person has read in one box.
struct Read {
  std::string message;
  std::string number;
  std::string extra;
};

class TheErrorMessageBox : public ::testing::Test {
 protected:
  /// The person opens the detail, reads everything and presses OK.
  void ReadTheNext() {
    desktop->WhenShown<frmErrMessage>([this](frmErrMessage& form) {
      desktop->Click(form.cmdShowDetail);
      read = {form.txtMainMessage.get_Text(), form.txtErrorNumber.get_Text(),
              form.txtExtra.get_Text()};
      desktop->Click(form.cmdOK);
    });
  }

  std::shared_ptr<HeadlessDesktop> desktop = std::make_shared<HeadlessDesktop>();
  std::shared_ptr<FixedSystem> system = std::make_shared<FixedSystem>("/lib");
  std::shared_ptr<ErrorMessageBox> box = std::make_shared<ErrorMessageBox>(desktop, system);
  Read read;
};

TEST_F(TheErrorMessageBox, HasItsMembersInTheirOrder) {
  EXPECT_THAT(MemberTexts(*box),
              ElementsAre("1 get ErrorMessage", "1 let ErrorMessage", "2 get ErrorNumber",
                          "2 let ErrorNumber", "3 get ExtraMessage", "3 let ExtraMessage",
                          "4 call DisplayMessage(lErrNumber = 0, sErrorMessage = , "
                          "sExtraMessage = -)",
                          "5 call DisplayErrMessage(sSource)"));
}

TEST_F(TheErrorMessageBox, KeepsWhatItsPropertiesAreGiven) {
  EXPECT_EQ(box->get_ErrorMessage(), "");
  EXPECT_EQ(box->get_ExtraMessage(), "");
  EXPECT_EQ(box->get_ErrorNumber(), 0);
  const Object object = box->Self();
  object.Let(Member("ErrorMessage"), "message ");
  object.Let(Member("ErrorNumber"), -5);
  object.Let(Member("ExtraMessage"), "extra");
  EXPECT_EQ(object.Get(Member("ErrorMessage")), Variant("message "));
  EXPECT_EQ(object.Get(Member("ErrorNumber")), Variant(-5));
  EXPECT_EQ(object.Get(Member("ExtraMessage")), Variant("extra"));
}

TEST_F(TheErrorMessageBox, DisplayMessageWithAllArgumentsOmittedShowsTheFieldsAsLastStored) {
  box->let_ErrorMessage("stored message");
  box->let_ErrorNumber(1004);
  box->let_ExtraMessage("stored extra");
  ReadTheNext();
  box->Self().Call(Member("DisplayMessage"));
  EXPECT_EQ(read.message, "stored message");
  EXPECT_EQ(read.number, "Error number: 1004");
  EXPECT_EQ(read.extra, "stored extra");
  EXPECT_THAT(desktop->FormsShown(), ElementsAre("frmErrMessage"));
  EXPECT_EQ(desktop->PendingReactions(), 0U);
}

TEST_F(TheErrorMessageBox, DisplayMessageStoresAndShowsWhatItIsGiven) {
  ReadTheNext();
  box->DisplayMessage(-2147221504, "  message  ", "line 1\r\nline 2");
  EXPECT_EQ(read.message, "  message  ");
  EXPECT_EQ(read.number, "Error number: -2147221504");
  EXPECT_EQ(read.extra, "line 1\r\nline 2");
  EXPECT_EQ(box->get_ErrorMessage(), "  message  ");
  EXPECT_EQ(box->get_ErrorNumber(), -2147221504);
  EXPECT_EQ(box->get_ExtraMessage(), "line 1\r\nline 2");
}

TEST_F(TheErrorMessageBox, NumberZeroDoesNotResetErrorNumber) {
  box->let_ErrorNumber(9);
  ReadTheNext();
  box->DisplayMessage(0, "new");
  EXPECT_EQ(box->get_ErrorNumber(), 9);
  EXPECT_EQ(read.number, "Error number: 9");
}

TEST_F(TheErrorMessageBox, AMessageOfBlanksDoesNotReplaceErrorMessage) {
  box->let_ErrorMessage("kept");
  ReadTheNext();
  box->DisplayMessage(1, "   ");
  EXPECT_EQ(box->get_ErrorMessage(), "kept");
  EXPECT_EQ(read.message, "kept");
}

TEST_F(TheErrorMessageBox, AnEmptyExtraMessageReplacesExtraMessageAndOnlyADashKeepsIt) {
  box->let_ExtraMessage("detail");
  ReadTheNext();
  box->DisplayMessage(1, "m", "-");
  EXPECT_EQ(box->get_ExtraMessage(), "detail");
  ReadTheNext();
  box->DisplayMessage(1, "m", " - ");
  EXPECT_EQ(box->get_ExtraMessage(), " - ");
  ReadTheNext();
  box->DisplayMessage(1, "m", "");
  EXPECT_EQ(box->get_ExtraMessage(), "");
  EXPECT_EQ(read.extra, "");
}

TEST_F(TheErrorMessageBox, DisplayErrMessageShowsTheCurrentErrorWithItsChain) {
  modErrorHandling::CurrentError() = {13, "Inner Line#:7", "Type mismatch", 3};
  ReadTheNext();
  box->Self().Call(Member("DisplayErrMessage"), {"Form_Load of Form frmAny Line#:3"});
  EXPECT_EQ(read.message, "Type mismatch");
  EXPECT_EQ(read.number, "Error number: 13");
  EXPECT_EQ(read.extra, "Inner Line#:7\r\nForm_Load of Form frmAny Line#:3");
  EXPECT_EQ(box->get_ErrorMessage(), "Type mismatch");
}

TEST_F(TheErrorMessageBox, DisplayErrMessageTakesEvenAnErrorWithoutNumberAndWords) {
  box->let_ErrorMessage("old");
  box->let_ErrorNumber(8);
  modErrorHandling::CurrentError() = {};
  ReadTheNext();
  box->DisplayErrMessage("here");
  EXPECT_EQ(read.message, "");
  EXPECT_EQ(read.number, "Error number: 0");
  EXPECT_EQ(read.extra, "here");
}

/// A desktop that can't make windows.
class BrokenDesktop final : public HeadlessDesktop {
 public:
  std::shared_ptr<forms::FormWindow> MakeWindow(forms::Form& /*form*/) override {
    throw Error(7, "Desktop", "Out of memory");
  }
};

TEST(AnErrorMessageBoxThatCannotShow, RaisesTheFailureAgainWithASourceOfItsOwn) {
  ErrorMessageBox box(std::make_shared<BrokenDesktop>(), nullptr);
  const Error error = ErrorOf([&] { box.DisplayMessage(1004, "m", "x"); });
  EXPECT_EQ(error.Number(), 7);
  EXPECT_EQ(error.Description(), "Out of memory");
  EXPECT_THAT(error.Source(), MatchesRegex("clsErrorMessageBox_DisplayMessageLine# [1-9][0-9]*"));
  EXPECT_EQ(box.get_ErrorNumber(), 1004);
}

TEST(AnErrorMessageBoxThatCannotShow, AddsNothingInDisplayErrMessage) {
  ErrorMessageBox box(std::make_shared<BrokenDesktop>(), nullptr);
  const Error error = ErrorOf([&] { box.DisplayErrMessage("Form_Load of Form frmAny Line#:1"); });
  EXPECT_THAT(error.Source(), MatchesRegex("clsErrorMessageBox_DisplayMessageLine# [1-9][0-9]*"));
}

TEST_F(TheErrorMessageBox, TellsAFailureOfTheGettersInAPlainMessageBox) {
  constexpr std::size_t kLarge = 1U << 20U;
  box->let_ErrorMessage(std::string(kLarge, 'x'));
  box->let_ExtraMessage(std::string(kLarge, 'y'));
  {
    const FailingMemory memory(kLarge);
    EXPECT_EQ(box->get_ErrorMessage(), "");
    EXPECT_EQ(box->get_ExtraMessage(), "");
  }
  ASSERT_EQ(desktop->Messages().size(), 2U);
  EXPECT_EQ(desktop->Messages()[0].text,
            "Error 7 (Out of memory) in procedure ErrorMessage of Class Module clsErrorMessageBox");
  EXPECT_EQ(desktop->Messages()[1].text,
            "Error 7 (Out of memory) in procedure ExtraMessage of Class Module clsErrorMessageBox");
  EXPECT_EQ(desktop->Messages()[0].flags, 0);
  EXPECT_EQ(desktop->Messages()[0].title, "");
  EXPECT_EQ(box->get_ErrorMessage().size(), kLarge);
}

TEST(TheClassErrL100Jrn, ExistsWithoutAnyMember) {
  const auto object = std::make_shared<errL100Jrn>();
  EXPECT_EQ(object->TypeName(), "errL100Jrn");
  EXPECT_THAT(MemberTexts(*object), IsEmpty());
  EXPECT_EQ(ErrorOf([&] { object->Self().Call(Member("Anything")); }).Number(), 438);
}

}  // namespace
}  // namespace rangewerks::tests
