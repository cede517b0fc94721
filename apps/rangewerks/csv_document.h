// Comma-separated values, read strictly and written.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace rangewerks::apps {

/// One record of a file.
struct CsvRecord {
  std::size_t line = 0;  ///< of the file where it begins, from 1
  std::vector<std::string> fields;
};

/// Reads a text: fields between commas, in quotes if they hold a comma, a quote (doubled) or a line
/// break; lines that end in LF or CR LF; blank lines are passed over, as is a byte order mark in
/// front. Raises Failure with "line 3: " in front for quotes that are out of place or never closed,
/// and for text that isn't UTF-8.
std::vector<CsvRecord> ParseCsv(std::string_view text);

/// A field as it is written: in quotes when it has a comma, a quote or a line break; quotes inside
/// are doubled.
std::string CsvField(const std::string& text);

}  // namespace rangewerks::apps
