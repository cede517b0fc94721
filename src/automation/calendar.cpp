#include "automation/calendar.h"

#include <chrono>
#include <cmath>
#include <ctime>

#include "automation/conversions.h"
#include "automation/error.h"

namespace rangewerks::automation {
namespace {

constexpr int kFirstDay = -657434;   // 1 January 100
constexpr int kEndOfDays = 2958466;  // 1 January 10000

constexpr std::chrono::sys_days kDayZero{std::chrono::year{1899} / 12 / 30};

std::chrono::year_month_day Civil(int year, int month, int day) {
  return std::chrono::year{year} / month / day;
}

struct Moment {
  int day;
  int second;
};

/// To the nearest second. The fraction counts forward from midnight on either side of day 0.
Moment MomentOf(Date date) {
  if (!IsInRange(date)) throw Error(ErrorNumber::Overflow);
  const double day = std::trunc(date.serial);
  const Moment moment{static_cast<int>(day),
                      static_cast<int>(std::lround(std::abs(date.serial - day) * kSecondsOfDay))};
  if (moment.second < kSecondsOfDay) return moment;
  if (moment.day + 1 == kEndOfDays) return {moment.day, kSecondsOfDay - 1};
  return {moment.day + 1, 0};
}

}  // namespace

bool IsDay(int year, int month, int day) {
  return year >= kFirstYear && year <= kLastYear && month >= 1 && month <= 12 && day >= 1 &&
         day <= 31 && Civil(year, month, day).ok();
}

int DayNumber(int year, int month, int day) {
  const auto days = std::chrono::sys_days(Civil(year, month, day)) - kDayZero;
  return static_cast<int>(days.count());
}

Date DateAt(int dayNumber, int seconds) {
  const double fraction = static_cast<double>(seconds) / kSecondsOfDay;
  return {dayNumber < 0 ? dayNumber - fraction : dayNumber + fraction};
}

bool IsInRange(Date date) { return date.serial > kFirstDay - 1 && date.serial < kEndOfDays; }

DateParts PartsOf(Date date) {
  const Moment moment = MomentOf(date);
  const std::chrono::sys_days day = kDayZero + std::chrono::days{moment.day};
  const std::chrono::year_month_day civil{day};
  return {static_cast<int>(civil.year()),
          static_cast<int>(static_cast<unsigned>(civil.month())),
          static_cast<int>(static_cast<unsigned>(civil.day())),
          static_cast<int>(std::chrono::weekday{day}.c_encoding()),
          moment.second / 3600,
          moment.second / 60 % 60,
          moment.second % 60};
}

int CurrentYear() {
  const std::time_t now = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
  // The calendar of the standard library has no local time in every compiler that is in use.
  return std::localtime(&now)->tm_year + 1900;
}

Date DateOf(int year, int month, int day) {
  if (!IsDay(year, month, day)) throw Error(ErrorNumber::TypeMismatch);
  return DateAt(DayNumber(year, month, day), 0);
}

}  // namespace rangewerks::automation
