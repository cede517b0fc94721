// The facts of a locale as Windows tells them. Private to this folder's sources.
#pragma once

#include <string>
#include <string_view>

#include "automation/locale.h"

namespace rangewerks::systems {

/// A locale by its name, such as L"de-DE"; the person's own, with what they have changed in it, for
/// null. Facts that the system can't tell are those of the default Locale.
automation::Locale ReadLocale(const wchar_t* name);

/// The FormatDate pattern for one of Windows' pictures of a date, such as "dd.MM.yyyy", in a locale
/// with this separator, which becomes "/". Eras are left out.
std::string DatePatternOf(std::string_view picture, std::string_view separator);

/// The same for a time, such as "h:mm:ss tt"; the separator becomes ":". The half of the day is
/// left out where hours are counted to 24.
std::string TimePatternOf(std::string_view picture, std::string_view separator);

}  // namespace rangewerks::systems
