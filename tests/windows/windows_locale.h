// The facts of one of Windows' locales, for conversions in locales other than the person's own.
#pragma once

#include <windows.h>

#include "automation/locale.h"

namespace rangewerks::tests {

/// As the system ships the locale, whatever the person has changed in it.
automation::Locale LocaleOf(LCID id);

}  // namespace rangewerks::tests
