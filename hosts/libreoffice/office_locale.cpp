#include "hosts/libreoffice/office_locale.h"

#include <algorithm>
#include <com/sun/star/i18n/Calendar2.hpp>
#include <com/sun/star/i18n/Currency2.hpp>
#include <com/sun/star/i18n/LocaleData2.hpp>
#include <string_view>

#include "hosts/libreoffice/configuration.h"

namespace rangewerks::hosts::libreoffice {
namespace {

using automation::DateOrder;

/// "de-DE" as the office passes a locale around.
css::lang::Locale FromTag(const std::string& tag) {
  css::lang::Locale locale;
  const std::size_t mark = tag.find('-');
  locale.Language = ToUno(std::string_view(tag).substr(0, mark));
  if (mark != std::string::npos) locale.Country = ToUno(std::string_view(tag).substr(mark + 1));
  return locale;
}

css::lang::Locale ChosenLocale(const Reference<css::uno::XComponentContext>& context) {
  std::string tag = ReadConfigured(context, "/org.openoffice.Setup/L10N", "ooSetupSystemLocale");
  if (tag.empty()) tag = ReadConfigured(context, "/org.openoffice.System/L10N", "SystemLocale");
  return FromTag(tag.empty() || tag == "*" ? "en-US" : tag);
}

/// A typed date such as "D.M.Y" shows the order and the separator that the locale understands
/// first.
void ReadDatePattern(const std::string& pattern, automation::Locale& locale) {
  if (pattern.empty()) return;
  switch (pattern.front()) {
    case 'Y':
      locale.dateOrder = DateOrder::YearFirst;
      break;
    case 'D':
      locale.dateOrder = DateOrder::DayFirst;
      break;
    default:
      locale.dateOrder = DateOrder::MonthFirst;
      break;
  }
  const std::size_t mark = pattern.find_first_not_of("DMY");
  if (mark == std::string::npos) return;
  locale.dateSeparator = pattern.substr(mark, 1);
  locale.shortDate.clear();
  for (const char part : pattern) {
    if (part == 'Y') {
      locale.shortDate += "yyyy";
    } else if (part == 'M') {
      locale.shortDate += locale.dateOrder == DateOrder::MonthFirst ? "m" : "mm";
    } else if (part == 'D') {
      locale.shortDate += locale.dateOrder == DateOrder::MonthFirst ? "d" : "dd";
    } else {
      locale.shortDate += part;
    }
  }
}

template <std::size_t Count>
void CopyNames(const Sequence<css::i18n::CalendarItem2>& items,
               std::array<std::string, Count>& full, std::array<std::string, Count>& abbreviated) {
  if (items.getLength() != static_cast<sal_Int32>(Count)) return;
  for (std::size_t i = 0; i < Count; ++i) {
    full.at(i) = ToUtf8(Elements(items)[i].FullName);
    abbreviated.at(i) = ToUtf8(Elements(items)[i].AbbrevName);
  }
}

}  // namespace

automation::Locale ReadOfficeLocale(const Reference<css::uno::XComponentContext>& context) {
  const css::lang::Locale chosen = ChosenLocale(context);
  const auto data = css::i18n::LocaleData2::create(context);
  const auto facts = data->getLocaleItem(chosen);

  automation::Locale locale;
  locale.decimalSeparator = ToUtf8(facts.decimalSeparator);
  locale.thousandsSeparator = ToUtf8(facts.thousandSeparator);
  // The office has no list separator of its own making for formulas in its own notation; callers
  // write lists as the locale does: with a semicolon where the comma is taken.
  locale.listSeparator = locale.decimalSeparator == "," ? ";" : ",";
  locale.timeSeparator = ToUtf8(facts.timeSeparator);
  locale.dateSeparator = ToUtf8(facts.dateSeparator);

  const auto currencies = data->getAllCurrencies2(chosen);
  for (const auto& currency : Elements(currencies)) {
    if (currency.Default) locale.currencySymbol = ToUtf8(currency.Symbol);
  }
  const auto patterns = data->getDateAcceptancePatterns(chosen);
  if (patterns.hasElements()) ReadDatePattern(ToUtf8(patterns[0]), locale);
  const auto calendars = data->getAllCalendars2(chosen);
  for (const auto& calendar : Elements(calendars)) {
    if (!calendar.Default) continue;
    CopyNames(calendar.Months, locale.monthNames, locale.shortMonthNames);
    CopyNames(calendar.Days, locale.dayNames, locale.shortDayNames);
  }
  if (locale.decimalSeparator != ".") locale.longTime = "hh:nn:ss";
  return locale;
}

}  // namespace rangewerks::hosts::libreoffice
