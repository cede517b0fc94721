#include "apps/rangewerks/csv_document.h"

#include <utility>

#include "apps/rangewerks/failure.h"
#include "apps/rangewerks/json_document.h"

namespace rangewerks::apps {

namespace {

class CsvReader {
 public:
  explicit CsvReader(std::string_view text) : text_(text) {}

  std::vector<CsvRecord> Read() {
    while (at_ < text_.size()) {
      CsvRecord record = ReadRecord();
      const bool isBlank = record.fields.size() == 1 && record.fields.front().empty();
      if (!isBlank) records_.push_back(std::move(record));
    }
    return std::move(records_);
  }

 private:
  CsvRecord ReadRecord() {
    CsvRecord record{line_, {}};
    do {
      record.fields.push_back(Next() == '"' ? ReadQuoted() : ReadPlain());
    } while (Skip(','));
    if (Next() == '\r' && at_ + 1 < text_.size() && text_[at_ + 1] == '\n') ++at_;
    if (Skip('\n')) ++line_;
    return record;
  }

  std::string ReadPlain() {
    const std::size_t start = at_;
    while (at_ < text_.size() && Next() != ',' && !AtLineEnd()) {
      if (Next() == '"') Refuse("a quote stands inside a field that doesn't begin with one");
      ++at_;
    }
    return RequireUtf8(std::string(text_.substr(start, at_ - start)));
  }

  std::string ReadQuoted() {
    const std::size_t opening = line_;
    std::string field;
    for (++at_;; ++at_) {
      if (at_ >= text_.size()) {
        throw Failure("line " + std::to_string(opening) +
                      ": a quote opens here and is never closed");
      }
      if (Next() == '\n') ++line_;
      if (Next() == '"') {
        ++at_;
        if (Next() != '"') break;
      }
      field += Next();
    }
    if (at_ < text_.size() && Next() != ',' && !AtLineEnd()) {
      Refuse("something follows a closing quote; a quote inside a field must be doubled");
    }
    return RequireUtf8(std::move(field));
  }

  /// 0 at the end.
  char Next() const { return at_ < text_.size() ? text_[at_] : '\0'; }
  bool AtLineEnd() const {
    return Next() == '\n' || (Next() == '\r' && text_.substr(at_).starts_with("\r\n"));
  }
  bool Skip(char wanted) {
    if (at_ >= text_.size() || text_[at_] != wanted) return false;
    ++at_;
    return true;
  }

  std::string RequireUtf8(std::string field) const {
    try {
      static_cast<void>(Json(field).dump());
    } catch (const Json::exception&) {
      Refuse("a field isn't UTF-8; save the file in that encoding");
    }
    return field;
  }

  [[noreturn]] void Refuse(const std::string& words) const {
    throw Failure("line " + std::to_string(line_) + ": " + words);
  }

  std::string_view text_;
  std::size_t at_ = 0;
  std::size_t line_ = 1;
  std::vector<CsvRecord> records_;
};

}  // namespace

std::vector<CsvRecord> ParseCsv(std::string_view text) {
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  if (text.starts_with(kByteOrderMark)) text.remove_prefix(kByteOrderMark.size());
  return CsvReader(text).Read();
}

std::string CsvField(const std::string& text) {
  if (text.find_first_of(",\"\r\n") == std::string::npos) return text;
  std::string quoted = "\"";
  for (const char each : text) {
    if (each == '"') quoted += '"';
    quoted += each;
  }
  return quoted + '"';
}

}  // namespace rangewerks::apps
