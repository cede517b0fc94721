// Parts that the outputs of several commands share.
#pragma once

#include <string>

#include "apps/rangewerks/json_document.h"
#include "apps/rangewerks/sheet_ranges.h"

namespace rangewerks::apps {

constexpr std::size_t kWidestCell = 40;    ///< characters of a text that are shown among others
constexpr std::size_t kWidestWords = 200;  ///< and of a message

/// Workbook, sheet, and how the names of the ranges begin, as lines for a person.
std::string TitleOf(const std::string& book, const SheetRanges& found);
/// The ranges that the sheet lacks, as lines for a person; empty when it has all.
std::string MissingOf(const SheetRanges& found);
/// "1 row", "2 rows".
std::string Counted(std::size_t count, const char* one, const char* many);

/// An object with a field for each range.
Json JsonRanges(const SheetRanges& found);
/// A number, a text, true or false as they are, a date as ISO 8601; null for everything else.
Json JsonValue(const automation::Variant& value);
/// Null for an empty text.
Json TextOrNull(const std::string& text);
/// The whole text of a document, ending in a line feed.
std::string JsonText(const Json& document);

}  // namespace rangewerks::apps
