// The locale of the conversions brought into line with the spreadsheet program's.
#pragma once

#include "automation/locale.h"
#include "platform/excel.h"

namespace rangewerks::apps {

/// `locale` with the host's separators and date order. Reading a date takes its order from the host
/// and its conversion from the process: where the two differ, 5 June would become 6 May. A fact
/// that the host doesn't tell stays as it is.
automation::Locale InLineWith(const excel::Application& host, automation::Locale locale);

}  // namespace rangewerks::apps
