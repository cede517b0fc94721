#include "hosts/objects/validation.h"

#include "hosts/common/validation_texts.h"

namespace rangewerks::hosts::objects {

const MemberTable& Validation::Members() const {
  using C = Validation;
  static const MemberTable table =
      MemberTable::For<C>("Validation")
          .Method(1, "Add", &C::Add,
                  {"Type", Optional("AlertStyle"), Optional("Operator"), Optional("Formula1")},
                  "Gives cells without a rule one.")
          .Method(2, "Delete", &C::Delete, {}, "Takes the rules of the cells away.")
          .Get(3, "Type", &C::GetType, "What kind of entries the rule is about.")
          .Get(4, "AlertStyle", &C::GetAlertStyle, "What happens to other entries.")
          .Get(5, "Operator", &C::GetOperator, "How entries are compared with the formula.")
          .Get(6, "Formula1", &C::GetFormula1, "The formula as it was given.")
          .Get(7, "IgnoreBlank", &C::GetIgnoreBlank, "Whether the cell may stay empty.")
          .Let(7, "IgnoreBlank", &C::LetIgnoreBlank, "Lets the cell stay empty, or not.")
          .Get(8, "ErrorTitle", &C::GetText<0>, "Title of what is said about other entries.")
          .Let(8, "ErrorTitle", &C::LetText<0>, "Up to 32 characters.")
          .Get(9, "ErrorMessage", &C::GetText<1>, "What is said about other entries.")
          .Let(9, "ErrorMessage", &C::LetText<1>, "Up to 225 characters.")
          .Get(10, "InputTitle", &C::GetText<2>, "Title of what is shown at the selected cell.")
          .Let(10, "InputTitle", &C::LetText<2>, "Up to 32 characters.")
          .Get(11, "InputMessage", &C::GetText<3>, "What is shown at the selected cell.")
          .Let(11, "InputMessage", &C::LetText<3>, "Up to 255 characters.");
  return table;
}

template <std::size_t text>
Variant Validation::GetText() const {
  return Text(text);
}

template <std::size_t text>
void Validation::LetText(const std::string& value) {
  if (const std::string fault = FaultOfText(kValidationTexts.at(text), value); !fault.empty()) {
    Refuse(fault);
  }
  PutText(text, value);
}

}  // namespace rangewerks::hosts::objects
