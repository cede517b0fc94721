// Days and times of day. Private to this folder's sources.
#pragma once

#include "automation/variant.h"

namespace rangewerks::automation {

inline constexpr int kFirstYear = 100;
inline constexpr int kLastYear = 9999;
inline constexpr int kSecondsOfDay = 24 * 60 * 60;

struct DateParts {
  int year;
  int month;    ///< 1 to 12
  int day;      ///< 1 to 31
  int weekday;  ///< 0 is Sunday
  int hour;
  int minute;
  int second;

  bool IsMidnight() const { return hour == 0 && minute == 0 && second == 0; }
};

/// Whether the calendar has that day, within the years of Date.
bool IsDay(int year, int month, int day);

/// The serial number of a day that IsDay knows.
int DayNumber(int year, int month, int day);

/// The date of a day number and the seconds since its midnight, 0 to 86399.
Date DateAt(int dayNumber, int seconds);

/// Whether the serial number lies within the range of Date.
bool IsInRange(Date date);

/// Takes a date apart, to the nearest second. Raises 6 outside the range of Date.
DateParts PartsOf(Date date);

/// The year of this moment, in local time.
int CurrentYear();

}  // namespace rangewerks::automation
