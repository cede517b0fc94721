#include "hosts/workbook/international.h"

#include <array>
#include <string>

#include "automation/conversions.h"
#include "hosts/workbook/failure.h"
#include "platform/excel_constants.h"

namespace rangewerks::hosts::workbook {
namespace {

using automation::DateOrder;
using automation::Locale;
using automation::Variant;

/// In the order of DateOrder.
constexpr std::array<const char*, 3> kShortDates{"m/d/yyyy", "dd/mm/yyyy", "yyyy/mm/dd"};

/// Where the locale keeps the text with that index, if it does.
std::string Locale::*TextAt(std::int32_t index) {
  switch (index) {
    case excel::xlDecimalSeparator:
      return &Locale::decimalSeparator;
    case kThousandsSeparator:
      return &Locale::thousandsSeparator;
    case excel::xlListSeparator:
      return &Locale::listSeparator;
    case kDateSeparator:
      return &Locale::dateSeparator;
    case kTimeSeparator:
      return &Locale::timeSeparator;
    case kCurrencySymbol:
      return &Locale::currencySymbol;
    default:
      return nullptr;
  }
}

void Change(Locale& locale, std::int32_t index, const Variant& value) {
  if (const auto text = TextAt(index)) {
    if (const auto* given = value.TryGet<std::string>()) locale.*text = *given;
    return;
  }
  if (index != excel::xlDateOrder) return;
  const bool isNumber = IsNumeric(value, Locale()) && !value.IsString();
  const std::int32_t order = isNumber ? ToLong(value, Locale()) : -1;
  if (order < 0 || order >= static_cast<std::int32_t>(kShortDates.size())) return;
  locale.dateOrder = static_cast<DateOrder>(order);
  locale.shortDate = kShortDates.at(static_cast<std::size_t>(order));
}

}  // namespace

const Locale& International::CurrentLocale() const { return own_ ? *own_ : Locale::Current(); }

Variant International::At(std::int32_t index) const {
  if (const auto given = given_.find(index); given != given_.end()) return given->second;
  const Locale& locale = CurrentLocale();
  if (const auto text = TextAt(index)) return locale.*text;
  if (index == excel::xlDateOrder) return static_cast<std::int32_t>(locale.dateOrder);
  Refuse("Application.International has no entry " + std::to_string(index));
}

void International::Set(std::int32_t index, const Variant& value) {
  given_.insert_or_assign(index, value);
  if (!own_) own_ = Locale::Current();
  Change(*own_, index, value);
}

}  // namespace rangewerks::hosts::workbook
