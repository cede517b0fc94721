// Values of a data file as the types that ranges are declared with.
#pragma once

#include <optional>
#include <string>

#include "apps/rangewerks/json_document.h"
#include "automation/variant.h"
#include "model/clsExInputRange.h"

namespace rangewerks::apps {

/// The value as a text, double, date, 16-bit integer or boolean; none when it isn't one of that
/// type. Nothing is rounded, cut or read by a locale.
std::optional<automation::Variant> ValueOfJson(const Json& value, eRangeDataType type);
std::optional<automation::Variant> ValueOfText(const std::string& text, eRangeDataType type);

/// What a value of that type looks like, for "expected …".
std::string ExpectedInJson(eRangeDataType type);
std::string ExpectedInText(eRangeDataType type);

}  // namespace rangewerks::apps
