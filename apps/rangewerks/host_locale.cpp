#include "apps/rangewerks/host_locale.h"

#include <array>

#include "automation/conversions.h"
#include "errors/attempt.h"

namespace rangewerks::apps {

namespace {

using automation::DateOrder;
using automation::Locale;

// Indexes of International that the library itself has no use for.
constexpr auto kThousandsSeparator = static_cast<excel::InternationalIndex>(4);
constexpr auto kDateSeparator = static_cast<excel::InternationalIndex>(17);
constexpr auto kTimeSeparator = static_cast<excel::InternationalIndex>(18);

void TakeText(const excel::Application& host, excel::InternationalIndex index, std::string& fact) {
  Attempt([&] {
    std::string text = ToString(host.get_International(index), Locale());
    if (!text.empty()) fact = std::move(text);
  });
}

void TakeDateOrder(const excel::Application& host, Locale& locale) {
  constexpr std::array<const char*, 3> kShortDates = {"m/d/yyyy", "d/m/yyyy", "yyyy/m/d"};
  Attempt([&] {
    const std::int32_t order = ToLong(host.get_International(excel::xlDateOrder), locale);
    if (order < 0 || order > 2 || static_cast<DateOrder>(order) == locale.dateOrder) return;
    locale.dateOrder = static_cast<DateOrder>(order);
    locale.shortDate = kShortDates.at(static_cast<std::size_t>(order));
  });
}

}  // namespace

Locale InLineWith(const excel::Application& host, Locale locale) {
  TakeText(host, excel::xlDecimalSeparator, locale.decimalSeparator);
  TakeText(host, kThousandsSeparator, locale.thousandsSeparator);
  TakeText(host, excel::xlListSeparator, locale.listSeparator);
  TakeText(host, kDateSeparator, locale.dateSeparator);
  TakeText(host, kTimeSeparator, locale.timeSeparator);
  TakeDateOrder(host, locale);
  return locale;
}

}  // namespace rangewerks::apps
