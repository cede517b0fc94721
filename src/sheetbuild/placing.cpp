// Turning selected cells into a declared range: its name, format, validation, input message and
// heading. A feature that can't be added is told through an event; the range is placed without it.
#include <algorithm>
#include <array>
#include <functional>
#include <optional>
#include <string>

#include "automation/conversions.h"
#include "automation/dispatch.h"
#include "errors/attempt.h"
#include "errors/procedure.h"
#include "platform/excel_format.h"
#include "rangelist/clsInterfaceRangeList.h"
#include "sheetbuild/clsRangeProperties.h"

namespace rangewerks {
namespace {

using automation::Argument;
using automation::Error;
using automation::ErrorNumber;
using automation::kApplicationErrorBase;
using automation::Locale;
using automation::Member;
using automation::Variant;
using Properties = std::shared_ptr<clsRangeProperties>;

/// What is done about a step that fails; nothing when failures go to the caller.
using Trap = std::function<void()>;

/// Runs one step under a trap: a failure is told, and the next step follows.
template <class Step>
void Trapped(const Trap& trap, const Step& step) {
  if (!trap) return step();
  if (!Attempt(step)) trap();
}

/// The stages of RangeAddTooltipError.
constexpr std::int16_t kAddingValidation = 0;
constexpr std::int16_t kSettingText = 1;

std::string FormatOfDecimals(std::int16_t places) {
  if (places == 0) return "0;_ ;-0";
  if (places < 0) throw Error(ErrorNumber::InvalidProcedureCall);
  const std::string zeros(static_cast<std::size_t>(places), '0');
  return "0." + zeros + "_ ;-0." + zeros;
}

/// A rule of what may be entered, with the words for an entry that it refuses.
struct Rule {
  excel::ValidationType type;
  std::optional<excel::ValidationOperator> comparison;
  Variant formula;
  std::string refusal;
};

/// The rule that the data type calls for; nothing when it calls for none.
std::optional<Rule> RuleOf(const clsExInputRange& definition, bool numbersToo) {
  const std::string& name = definition.get_RangeName();
  switch (definition.get_RangeDataType()) {
    case rdtString:
      if (definition.get_DataLength() == 0) return std::nullopt;
      return Rule{excel::xlValidateTextLength, excel::xlLessEqual, definition.get_DataLength(),
                  name + " cannot have more than " + std::to_string(definition.get_DataLength())};
    case rdtDouble:
      if (!numbersToo) return std::nullopt;
      return Rule{excel::xlValidateDecimal, excel::xlGreater, "-9999999999",
                  name + " can only have numbers entered"};
    case rdtInteger:
      if (!numbersToo) return std::nullopt;
      return Rule{excel::xlValidateWholeNumber, excel::xlGreater, "-9999999999",
                  name + " can only have integers entered"};
    case rdtYesNo:
      return Rule{excel::xlValidateList, std::nullopt, "Y,N",
                  name + " can only have Y or N entered"};
    default:
      return std::nullopt;  // dates are never restricted
  }
}

clsRangeProperties& Required(const Properties& properties) {
  if (!properties) throw Error(ErrorNumber::ObjectVariableNotSet);
  return *properties;
}

bool IsDetail(eRangeHeadDetailInd indicator) {
  return indicator == hdiDetail || indicator == hdiHeaderDetail;
}

}  // namespace

clsInterfaceRangeList::Record clsInterfaceRangeList::AddRangeToSpreadsheet(
    excel::Range& rngSelected, const Properties& oRngProps) {
  return Procedure("AddRangeToSpreadsheet of Class Module clsInterfaceRangeList Line#:",
                   [&](Line& at) {
                     at();
                     if (rngSelected.get_Columns().get_Count() > 1) {
                       throw Error(kApplicationErrorBase, {}, "Only one column should be selected");
                     }
                     at();
                     clsRangeProperties& properties = Required(oRngProps);
                     Record definition = ranges_->Item(properties.get_RangeName());
                     at();
                     const std::int32_t rows = SizeSelection(rngSelected, *definition, properties);
                     at();
                     rngSelected.let_Name(FullRangeName(properties.get_RangeName()));
                     at();
                     if (properties.get_AddFormat()) ApplyNumberFormat(rngSelected, *definition);
                     at();
                     AddValidationAndTooltip(rngSelected.get_Validation(), *definition, properties);
                     at();
                     DecideHeading(*definition, rows, properties);
                     at();
                     FinishFormat(rngSelected, *definition, properties);
                     definition->let_RangeExists(true);
                     return definition;
                   });
}

std::int32_t clsInterfaceRangeList::SizeSelection(excel::Range& rngSelected,
                                                  const clsExInputRange& definition,
                                                  const clsRangeProperties& properties) {
  const bool isHeader = definition.get_DetailIndicator() == hdiHeader;
  if (properties.get_RowsToAdd() > 0 && !isHeader) {
    rngSelected = rngSelected.get_Resize(properties.get_RowsToAdd());
  }
  const std::int32_t rows = rngSelected.get_Rows().get_Count();
  if (isHeader && rows > 1) {
    throw Error(kApplicationErrorBase, {},
                "Only one row should be selected for header type ranges");
  }
  return rows;
}

void clsInterfaceRangeList::ApplyNumberFormat(const excel::Range& area,
                                              const clsExInputRange& definition) const {
  const auto apply = [&](const std::string& format, excel::HorizontalAlignment alignment) {
    area.let_NumberFormat(format);
    area.let_HorizontalAlignment(alignment);
  };
  switch (definition.get_RangeDataType()) {
    case rdtString:
      return apply("@", excel::xlLeft);
    case rdtDouble:
      return apply(FormatOfDecimals(definition.get_DecimalPlaces()), excel::xlRight);
    case rdtDate:
      return apply(DateFormatForLocale(), excel::xlLeft);
    case rdtInteger:
      return apply("0", excel::xlRight);
    default:
      return;  // a yes or no keeps the format that the cells have
  }
}

void clsInterfaceRangeList::AddValidationAndTooltip(const excel::Validation& validation,
                                                    const clsExInputRange& definition,
                                                    clsRangeProperties& properties) {
  std::optional<Rule> rule;
  if (properties.get_AddValidation()) rule = RuleOf(definition, addNumberValidation_);
  if (rule) {
    const Trap failed = [&] {
      events_.Raise(Member("RangeAddValidationError"), {});
      properties.let_AddValidation(false);
      properties.let_AddToolTips(false);
    };
    Trapped(failed, [&] {
      validation.Add(rule->type, excel::xlValidAlertStop, rule->comparison, rule->formula);
    });
    if (definition.get_RangeDataType() == rdtYesNo) {
      Trapped(failed, [&] { validation.let_IgnoreBlank(false); });
    }
    if (properties.get_AddValidation()) {
      Trapped(failed, [&] { validation.let_ErrorMessage(rule->refusal); });
      Trapped(failed, [&] { validation.let_ErrorTitle("Input data error"); });
    }
  } else if (properties.get_AddToolTips()) {
    MakeRoomForTooltip(validation, properties);
  }
  if (properties.get_AddToolTips()) SetTooltip(validation, definition);
}

void clsInterfaceRangeList::MakeRoomForTooltip(const excel::Validation& validation,
                                               clsRangeProperties& properties) {
  // An input message needs a rule to hang on: one that allows everything.
  const auto add = [&] { validation.Add(excel::xlValidateInputOnly); };
  if (Attempt(add)) return;
  Attempt([&] { validation.Delete(); });
  Trapped(
      [&] {
        TellTooltipError(kAddingValidation);
        properties.let_AddToolTips(false);
      },
      add);
}

void clsInterfaceRangeList::TellTooltipError(std::int16_t stage) const {
  Variant iStage = stage;
  const std::array arguments{Argument::Reference(iStage)};
  events_.Raise(Member("RangeAddTooltipError"), arguments);
}

std::string clsInterfaceRangeList::HintFor(const clsExInputRange& definition) const {
  switch (definition.get_RangeDataType()) {
    case rdtString:
      return "Enter up to " + std::to_string(definition.get_DataLength()) + " characters";
    case rdtDouble:
      return "Enter a number";
    case rdtDate:
      return "Enter a date in " + DateFormatForLocale() + " format";
    case rdtInteger:
      return "Enter an integer";
    default:
      return {};
  }
}

void clsInterfaceRangeList::SetTooltip(const excel::Validation& validation,
                                       const clsExInputRange& definition) const {
  const Trap failed = [&] { TellTooltipError(kSettingText); };
  Trapped(failed, [&] { validation.let_InputTitle(definition.get_RangeName()); });
  std::string message = definition.get_Description() + "\n";
  const bool isDownload = definition.get_IsDownload();
  if (!isDownload) Trapped(failed, [&] { message += HintFor(definition); });
  // What a person is to type must be told rightly or not at all, so this one failure stops a range
  // that isn't filled from the accounting side.
  Trapped(isDownload ? failed : Trap(), [&] { validation.let_InputMessage(message); });
}

void clsInterfaceRangeList::DecideHeading(const clsExInputRange& definition, std::int32_t rows,
                                          clsRangeProperties& properties) {
  const eRangeHeadDetailInd indicator = definition.get_DetailIndicator();
  if (!IsDetail(indicator) || (indicator == hdiHeaderDetail && rows == 1)) {
    properties.let_AddColumnHeadings(false);
  }
  if (!properties.get_AddColumnHeadings() || !properties.get_RangeHeading().empty()) return;
  std::string heading = definition.get_RangeHeading();
  if (heading.empty()) {
    heading = properties.get_RangeName();
    std::replace(heading.begin(), heading.end(), '_', ' ');
  }
  properties.let_RangeHeading(heading);
}

void clsInterfaceRangeList::FinishFormat(const excel::Range& area,
                                         const clsExInputRange& definition,
                                         clsRangeProperties& properties) const {
  // A range that the accounting side fills is placed even where it can't be made to look right.
  const bool forgives = definition.get_IsDownload() && properties.get_AddToolTips();
  const Trap trap = forgives ? Trap([&] { TellTooltipError(kSettingText); }) : Trap();
  const auto separator = [&](excel::InternationalIndex index) {
    return ToString(actSheet_.get_Application().get_International(index), Locale::Current());
  };
  properties.set_RangeArea(area);
  Trapped(trap, [&] { properties.let_ListSeparator(separator(excel::xlListSeparator)); });
  Trapped(trap, [&] { properties.let_DecimalSeparator(separator(excel::xlDecimalSeparator)); });
  Trapped(trap, [&] { properties.FormatRange(); });
}

clsInterfaceRangeList::Record clsInterfaceRangeList::AddDetailRangeToSpreadsheet(
    const Properties& oRngProps) {
  return Procedure(
      "AddDetailRangeToSpreadsheet of Class Module clsInterfaceRangeList Line#:",
      [&](Line& at) -> Record {
        at();
        const std::shared_ptr<clsExInputRange> source = Required(oRngProps).get_ExcelRange();
        std::string sKey;
        at();
        Add(source->get_RangeName(), source->get_DetailIndicator(), source->get_RangeDataType(),
            source->get_IsMandatory(), source->get_RangeExists(), source->get_Description(),
            source->get_DataLength(), source->get_Value(), sKey, source->get_IsBrowseable(),
            source->get_BrowseColumn(), source->get_Group());
        at();
        excel::Range area = oRngProps->get_RangeArea();
        AddRangeToSpreadsheet(area, oRngProps);
        return nullptr;  // callers know that they get nothing
      });
}

}  // namespace rangewerks
