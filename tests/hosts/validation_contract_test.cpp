// Data validation: what a cell takes, what is said about other entries, and the tooltip.
#include "hosts/contract.h"
#include "platform/excel_constants.h"

namespace rangewerks::tests {
namespace {

constexpr std::int32_t kApplicationDefined = 1004;

class ValidationContract : public HostContract {
 protected:
  Object Validation(const char* address) { return GetObject(Cells(address), "Validation"); }

  void AddTextLength(const char* address, std::int16_t length) {
    Call(Validation(address), "Add",
         {excel::xlValidateTextLength, excel::xlValidAlertStop, excel::xlLessEqual, length});
  }
  void AddInputOnly(const char* address) {
    Call(Validation(address), "Add", {excel::xlValidateInputOnly});
  }
  void AddYesNo(const char* address) {
    Call(Validation(address), "Add",
         {excel::xlValidateList, excel::xlValidAlertStop, automation::Argument::Omitted(), "Y,N"});
  }
};
CONTRACT_FOR_ALL_HOSTS(ValidationContract);

TEST_P(ValidationContract, TheConstantsAreThePublishedNumbers) {
  EXPECT_EQ(excel::xlValidateInputOnly, 0);
  EXPECT_EQ(excel::xlValidateWholeNumber, 1);
  EXPECT_EQ(excel::xlValidateDecimal, 2);
  EXPECT_EQ(excel::xlValidateList, 3);
  EXPECT_EQ(excel::xlValidateTextLength, 6);
  EXPECT_EQ(excel::xlValidAlertStop, 1);
  EXPECT_EQ(excel::xlGreater, 5);
  EXPECT_EQ(excel::xlLessEqual, 8);
}

TEST_P(ValidationContract, TheObjectIsThereAlsoWithoutARule) {
  const Object validation = Validation("B2");
  EXPECT_EQ(validation.TypeName(), "Validation");
  EXPECT_EQ(ErrorNumberOf([&] { Get(validation, "Type"); }), kApplicationDefined);
}

TEST_P(ValidationContract, TheLengthOfATextIsLimited) {
  AddTextLength("B2:B9", 30);
  const Object validation = Validation("B5");
  EXPECT_EQ(GetLong(validation, "Type"), 6);
  EXPECT_EQ(GetLong(validation, "AlertStyle"), 1);
  EXPECT_EQ(GetLong(validation, "Operator"), 8);
  EXPECT_EQ(GetText(validation, "Formula1"), "30");
  EXPECT_EQ(Get(validation, "IgnoreBlank"), Variant(true));
}

TEST_P(ValidationContract, NumbersAreComparedWithANumber) {
  for (const auto type : {excel::xlValidateDecimal, excel::xlValidateWholeNumber}) {
    const Object validation = Validation("B2:B9");
    Call(validation, "Add", {type, excel::xlValidAlertStop, excel::xlGreater, "-9999999999"});
    EXPECT_EQ(GetLong(validation, "Type"), type);
    EXPECT_EQ(GetLong(validation, "Operator"), 5);
    EXPECT_EQ(GetText(validation, "Formula1"), "-9999999999");
    Call(validation, "Delete");
  }
}

TEST_P(ValidationContract, AListHasElementsAndMayRefuseBlankCells) {
  AddYesNo("B2:B9");
  const Object validation = Validation("B2:B9");
  EXPECT_EQ(GetLong(validation, "Type"), 3);
  EXPECT_EQ(GetText(validation, "Formula1"), "Y,N");
  EXPECT_EQ(Get(validation, "IgnoreBlank"), Variant(true));
  Let(validation, "IgnoreBlank", false);
  EXPECT_EQ(Get(Validation("B9"), "IgnoreBlank"), Variant(false));
}

TEST_P(ValidationContract, ARuleMayHaveNothingButATooltip) {
  AddInputOnly("B2:B9");
  const Object validation = Validation("B2:B9");
  EXPECT_EQ(GetLong(validation, "Type"), 0);
  Let(validation, "InputTitle", "Ref");
  Let(validation, "InputMessage", "Reference\nEnter up to 30 characters");
  EXPECT_EQ(GetText(Validation("B5"), "InputTitle"), "Ref");
  EXPECT_EQ(GetText(Validation("B5"), "InputMessage"), "Reference\nEnter up to 30 characters");
}

TEST_P(ValidationContract, CellsThatHaveARuleRefuseASecondOne) {
  AddTextLength("B2:B9", 30);
  for (const char* address : {"B2:B9", "B5", "B9:B12", "A1:C12"}) {
    EXPECT_EQ(ErrorNumberOf([&] { AddTextLength(address, 10); }), kApplicationDefined) << address;
    EXPECT_EQ(ErrorNumberOf([&] { AddYesNo(address); }), kApplicationDefined) << address;
    EXPECT_EQ(ErrorNumberOf([&] { AddInputOnly(address); }), kApplicationDefined) << address;
  }
  EXPECT_EQ(GetText(Validation("B2:B9"), "Formula1"), "30") << "the first one stays";
}

TEST_P(ValidationContract, ARuleWithoutAnythingIsARuleToo) {
  AddInputOnly("B2");
  EXPECT_EQ(ErrorNumberOf([&] { AddInputOnly("B2"); }), kApplicationDefined);
}

TEST_P(ValidationContract, AfterDeleteAnotherRuleIsTaken) {
  AddTextLength("B2:B9", 30);
  Call(Validation("B2:B9"), "Delete");
  EXPECT_EQ(ErrorNumberOf([&] { Get(Validation("B2:B9"), "Type"); }), kApplicationDefined);
  AddInputOnly("B2:B9");
  EXPECT_EQ(GetLong(Validation("B2:B9"), "Type"), 0);
}

TEST_P(ValidationContract, DeleteTakesTheRuleFromItsCellsAlone) {
  AddTextLength("B2:B9", 30);
  Call(Validation("B5:C20"), "Delete");
  EXPECT_EQ(GetText(Validation("B2:B4"), "Formula1"), "30");
  EXPECT_TRUE(Fails([&] { Get(Validation("B5"), "Type"); }));
}

TEST_P(ValidationContract, DeleteWithoutARuleDoesNothing) {
  Call(Validation("B2:B9"), "Delete");
  EXPECT_TRUE(Fails([&] { Get(Validation("B2:B9"), "Type"); }));
}

TEST_P(ValidationContract, TheTextsAreKept) {
  AddTextLength("B2:B9", 30);
  const Object validation = Validation("B2:B9");
  for (const char* member : {"ErrorMessage", "ErrorTitle", "InputTitle", "InputMessage"}) {
    EXPECT_EQ(GetText(validation, member), "") << member;
    Let(validation, member, std::string("Zo\xC3\xAB \"1\": ") + member);
    EXPECT_EQ(GetText(Validation("B9"), member), std::string("Zo\xC3\xAB \"1\": ") + member);
  }
  EXPECT_EQ(GetText(validation, "Formula1"), "30");
}

TEST_P(ValidationContract, TextsLongerThanAWorkbookHoldsFail) {
  AddTextLength("B2", 30);
  const Object validation = Validation("B2");
  for (const auto& [member, longest] :
       {std::pair{"ErrorTitle", 32U}, std::pair{"InputTitle", 32U}, std::pair{"ErrorMessage", 225U},
        std::pair{"InputMessage", 255U}}) {
    std::string text;  // characters are counted, not bytes
    for (std::size_t i = 0; i < longest; ++i) text += "\xC3\xAB";
    Let(validation, member, text);
    EXPECT_EQ(ErrorNumberOf([&] { Let(validation, member, text + "x"); }), kApplicationDefined)
        << member;
    EXPECT_EQ(GetText(validation, member), text) << member;
  }
}

TEST_P(ValidationContract, TextsWithoutARuleFail) {
  for (const char* member : {"ErrorMessage", "ErrorTitle", "InputTitle", "InputMessage"}) {
    EXPECT_EQ(ErrorNumberOf([&] { Let(Validation("B2"), member, "x"); }), kApplicationDefined)
        << member;
  }
  EXPECT_EQ(ErrorNumberOf([&] { Let(Validation("B2"), "IgnoreBlank", false); }),
            kApplicationDefined);
}

TEST_P(ValidationContract, ATypeThatIsNoneFails) {
  EXPECT_TRUE(Fails([&] { Call(Validation("B2"), "Add", {99}); }));
  EXPECT_TRUE(Fails([&] { Get(Validation("B2"), "Type"); }));
}

TEST_P(ValidationContract, AComparisonWithWhatIsNoNumberFails) {
  EXPECT_TRUE(Fails([&] {
    Call(Validation("B2"), "Add",
         {excel::xlValidateTextLength, excel::xlValidAlertStop, excel::xlLessEqual, "many"});
  }));
  EXPECT_TRUE(Fails([&] { Get(Validation("B2"), "Type"); }));
}

}  // namespace
}  // namespace rangewerks::tests
