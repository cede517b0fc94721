// Data files as CSV.
#include <algorithm>

#include "apps/rangewerks/csv_document.h"
#include "apps/rangewerks/failure.h"
#include "apps/rangewerks/fill_data.h"
#include "apps/rangewerks/given_values.h"
#include "apps/rangewerks/typed_value.h"

namespace rangewerks::apps {

namespace {

std::string LineOf(const CsvRecord& record) { return "line " + std::to_string(record.line); }

class FillReader {
 public:
  FillReader(const clsInterfaceRangeList& list, const CsvRecord& heading) : given_(list) {
    hasRows_ = automation::EqualText(heading.fields.front(), "row");
    for (std::size_t column = hasRows_ ? 1 : 0; column < heading.fields.size(); ++column) {
      AddColumn(heading.fields[column], LineOf(heading));
    }
  }

  void Read(const CsvRecord& record) {
    const std::size_t expected = columns_.size() + (hasRows_ ? 1 : 0);
    if (record.fields.size() != expected) {
      throw Failure(LineOf(record) + ": found " + std::to_string(record.fields.size()) +
                    " fields, expected " + std::to_string(expected) + " as in the heading");
    }
    const std::int32_t row = hasRows_ ? RowOf(record) : ++rowsRead_;
    for (std::size_t index = 0; index < columns_.size(); ++index) {
      const std::string& text = record.fields[index + (hasRows_ ? 1 : 0)];
      if (!text.empty()) Add(*columns_[index], row, text, LineOf(record));
    }
  }

  std::vector<GivenValue> Take() { return given_.Take(); }

 private:
  void AddColumn(const std::string& name, const std::string& place) {
    const clsExInputRange& range = given_.Range(name, place);
    if (std::ranges::find(columns_, &range) != columns_.end()) {
      throw Failure(place + ": range " + range.get_RangeName() + " stands here a second time");
    }
    columns_.push_back(&range);
  }

  /// 0 for a line without a number, which has values of the header only.
  static std::int32_t RowOf(const CsvRecord& record) {
    const std::string& text = record.fields.front();
    if (text.empty()) return 0;
    const bool isDigits = text.find_first_not_of("0123456789") == std::string::npos;
    const std::int32_t row = isDigits && text.size() <= 7 ? std::stoi(text) : 0;
    if (row < 1 || row > kMostRows) {
      throw Failure(LineOf(record) + ", column row: found \"" + text +
                    "\", expected a whole number from 1 to " + std::to_string(kMostRows));
    }
    return row;
  }

  void Add(const clsExInputRange& range, std::int32_t row, const std::string& text,
           const std::string& line) {
    const std::string place = line + ", column " + range.get_RangeName() +
                              (row == 0 ? "" : " (row " + std::to_string(row) + ")");
    auto value = ValueOfText(text, range.get_RangeDataType());
    if (!value) {
      throw Failure(place + ": found \"" + text + "\", expected " +
                    ExpectedInText(range.get_RangeDataType()));
    }
    given_.Add({range.get_RangeName(), row, std::move(*value), place});
  }

  GivenValues given_;
  std::vector<const clsExInputRange*> columns_;
  bool hasRows_ = false;
  std::int32_t rowsRead_ = 0;
};

}  // namespace

std::vector<GivenValue> ParseFillCsv(const std::string& text, const clsInterfaceRangeList& list) {
  const std::vector<CsvRecord> records = ParseCsv(text);
  if (records.empty()) throw Failure("the file is empty; its first line names the ranges");
  FillReader reader(list, records.front());
  for (std::size_t index = 1; index < records.size(); ++index) reader.Read(records[index]);
  return reader.Take();
}

}  // namespace rangewerks::apps
