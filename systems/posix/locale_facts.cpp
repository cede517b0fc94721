#include "systems/posix/locale_facts.h"

#include <iconv.h>
#include <langinfo.h>
#include <locale.h>  // NOLINT(modernize-deprecated-headers): newlocale is no C++

#include <array>
#include <cstdlib>
#include <memory>
#include <type_traits>

namespace rangewerks::systems {
namespace {

using automation::Locale;

struct FreeLocale {
  void operator()(locale_t locale) const { freelocale(locale); }
};
using LocaleTables = std::unique_ptr<std::remove_pointer_t<locale_t>, FreeLocale>;

std::string ToUtf8(std::string text, const char* codeset) {
  // NOLINTNEXTLINE(performance-no-int-to-ptr): how iconv says that it can't
  static const auto kNone = reinterpret_cast<iconv_t>(-1);
  void* const converter = iconv_open("UTF-8", codeset);
  if (converter == kNone) return text;
  std::string converted(4 * text.size(), '\0');
  char* from = text.data();
  std::size_t fromLeft = text.size();
  char* to = converted.data();
  std::size_t toLeft = converted.size();
  const std::size_t result = iconv(converter, &from, &fromLeft, &to, &toLeft);
  iconv_close(converter);
  if (result == static_cast<std::size_t>(-1)) return text;
  converted.resize(converted.size() - toLeft);
  return converted;
}

std::string Fact(const LocaleTables& tables, nl_item item) {
  return ToUtf8(nl_langinfo_l(item, tables.get()), nl_langinfo_l(CODESET, tables.get()));
}

/// Whether the environment asks for a locale of its own in one category; the "C" locale has no
/// facts to tell.
bool IsSet(const char* category) {
  for (const char* variable : {"LC_ALL", category, "LANG"}) {
    const char* const value = std::getenv(variable);  // NOLINT(concurrency-mt-unsafe)
    const std::string_view name = value == nullptr ? "" : value;
    if (name.empty()) continue;
    return name != "C" && name != "POSIX" && !name.starts_with("C.");
  }
  return false;
}

void TakeNumbers(const LocaleTables& tables, Locale& locale) {
  locale.decimalSeparator = Fact(tables, RADIXCHAR);
  locale.thousandsSeparator = Fact(tables, THOUSEP);
  locale.listSeparator = locale.decimalSeparator == "," ? ";" : ",";
}

void TakeCurrency(const LocaleTables& tables, Locale& locale) {
  const std::string symbol = Fact(tables, CRNCYSTR);
  if (symbol.size() > 1) locale.currencySymbol = symbol.substr(1);  // behind the sign of its place
}

template <std::size_t N>
void TakeNames(const LocaleTables& tables, const std::array<nl_item, N>& items,
               std::array<std::string, N>& names) {
  for (std::size_t i = 0; i < N; ++i) names.at(i) = Fact(tables, items.at(i));
}

void TakeDates(const LocaleTables& tables, Locale& locale) {
  TakeDateFormat(Fact(tables, D_FMT), locale);
  TakeTimeFormat(Fact(tables, T_FMT), locale);
  TakeNames<12>(
      tables,
      {MON_1, MON_2, MON_3, MON_4, MON_5, MON_6, MON_7, MON_8, MON_9, MON_10, MON_11, MON_12},
      locale.monthNames);
  TakeNames<12>(tables,
                {ABMON_1, ABMON_2, ABMON_3, ABMON_4, ABMON_5, ABMON_6, ABMON_7, ABMON_8, ABMON_9,
                 ABMON_10, ABMON_11, ABMON_12},
                locale.shortMonthNames);
  TakeNames<7>(tables, {DAY_1, DAY_2, DAY_3, DAY_4, DAY_5, DAY_6, DAY_7}, locale.dayNames);
  TakeNames<7>(tables, {ABDAY_1, ABDAY_2, ABDAY_3, ABDAY_4, ABDAY_5, ABDAY_6, ABDAY_7},
               locale.shortDayNames);
}

}  // namespace

Locale ReadLocale() {
  Locale locale;
  const LocaleTables tables(newlocale(LC_ALL_MASK, "", nullptr));
  if (!tables) return locale;
  if (IsSet("LC_NUMERIC")) TakeNumbers(tables, locale);
  if (IsSet("LC_MONETARY")) TakeCurrency(tables, locale);
  if (IsSet("LC_TIME")) TakeDates(tables, locale);
  return locale;
}

}  // namespace rangewerks::systems
