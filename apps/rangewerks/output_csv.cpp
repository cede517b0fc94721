#include "apps/rangewerks/csv_document.h"
#include "apps/rangewerks/output.h"
#include "apps/rangewerks/value_text.h"

namespace rangewerks::apps {

namespace {

void AppendNames(std::string& line, const PostingRead& posting,
                 const std::vector<std::size_t>& places) {
  for (const std::size_t place : places) line += ',' + CsvField(posting.ranges[place].name);
}

void AppendValues(std::string& line, const std::vector<ReadValue>& values) {
  for (const ReadValue& read : values) line += ',' + CsvField(ValueText(read.value));
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
