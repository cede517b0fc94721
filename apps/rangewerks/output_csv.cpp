#include <string_view>

#include "apps/rangewerks/output.h"
#include "apps/rangewerks/value_text.h"

namespace rangewerks::apps {

namespace {

/// In quotes when it has a comma, a quote or a line break; quotes inside are doubled.
std::string Quoted(const std::string& text) {
  if (text.find_first_of(",\"\r\n") == std::string::npos) return text;
  std::string quoted = "\"";
  for (const char each : text) {
    if (each == '"') quoted += '"';
    quoted += each;
  }
  return quoted + '"';
}

void AppendNames(std::string& line, const PostingRead& posting,
                 const std::vector<std::size_t>& places) {
  for (const std::size_t place : places) line += ',' + Quoted(posting.ranges[place].name);
}

void AppendValues(std::string& line, const std::vector<ReadValue>& values) {
  for (const ReadValue& read : values) line += ',' + Quoted(ValueText(read.value));
}

}  // namespace

std::string CsvOf(const PostingRead& posting) {
  std::string text = "row";
  AppendNames(text, posting, posting.headers);
  AppendNames(text, posting, posting.details);
  text += '\n';

  std::string header;
  AppendValues(header, posting.header);
  for (const DetailRow& row : posting.rows) {
    text += std::to_string(row.row) + header;
    AppendValues(text, row.values);
    text += '\n';
  }
  if (posting.rows.empty()) text += header + std::string(posting.details.size(), ',') + '\n';
  return text;
}

}  // namespace rangewerks::apps
