// The facts of a locale from the C library's tables. Private to this folder's sources.
#pragma once

#include <string>
#include <string_view>

#include "automation/locale.h"

namespace rangewerks::systems {

/// The locale that the environment asks for.
automation::Locale ReadLocale();

/// Takes order, separator and short date from a date format of strftime such as "%d.%m.%Y". Years
/// are always written in full, so that a date survives being written and read. A separator other
/// than "/", "-" or "." becomes "/": "%Y年%m月%d日" is "yyyy/mm/dd".
void TakeDateFormat(std::string_view format, automation::Locale& locale);

/// Takes separator and long time from a time format of strftime such as "%H:%M:%S" or "%r".
void TakeTimeFormat(std::string_view format, automation::Locale& locale);

}  // namespace rangewerks::systems
