// Whether given values have a place on the sheet.
#include <algorithm>
#include <unordered_map>

#include "apps/rangewerks/failure.h"
#include "apps/rangewerks/filling.h"

namespace rangewerks::apps {

namespace {

class Fitting {
 public:
  explicit Fitting(const SheetRanges& found) {
    for (const FoundRange& range : found.ranges) ranges_.emplace(range.name, &range);
  }

  std::vector<GivenValue> Fit(std::vector<GivenValue> values) {
    std::vector<GivenValue> detail;
    for (GivenValue& value : values) {
      const FoundRange& range = *ranges_.at(value.range);
      if (range.use == RangeUse::Header) {
        AddToHeader(std::move(value));
      } else if (value.row == 0 && !range.exists) {
        header_.push_back(std::move(value));  // it might have been one
      } else {
        RequireRow(range, value);
        detail.push_back(std::move(value));
      }
    }
    std::ranges::move(detail, std::back_inserter(header_));
    return std::move(header_);
  }

 private:
  /// A file may repeat the header's values in each row, as lists in one table do.
  void AddToHeader(GivenValue value) {
    const auto [first, isFirst] = headerValues_.try_emplace(value.range, header_.size());
    if (isFirst) {
      value.row = 0;
      header_.push_back(std::move(value));
    } else if (header_[first->second].value != value.value) {
      throw Failure(value.place + ": range " + value.range +
                    " has one value for the whole sheet, and another one stands at " +
                    header_[first->second].place + "; give the same value or leave one out");
    }
  }

  static void RequireRow(const FoundRange& range, const GivenValue& value) {
    if (value.row == 0) {
      throw Failure(value.place + ": range " + range.name + " is no header on this sheet: it has " +
                    std::to_string(range.rows) + " rows; give a value for each row");
    }
    const bool hasArea = range.rows > 0;  // without one, writing says what is the matter
    if (range.exists && hasArea && value.row > range.rows) {
      throw Failure(value.place + ": range " + range.name + " ends at row " +
                    std::to_string(range.rows) + "; leave this row out or make the range longer");
    }
  }

  std::unordered_map<std::string, const FoundRange*> ranges_;
  std::unordered_map<std::string, std::size_t> headerValues_;  // places in header_
  std::vector<GivenValue> header_;
};

}  // namespace

std::vector<GivenValue> FitToSheet(std::vector<GivenValue> values, const SheetRanges& found,
                                   const std::string& path) {
  try {
    return Fitting(found).Fit(std::move(values));
  } catch (const Failure& failure) {
    throw Failure(path + ": " + failure.what());
  }
}

}  // namespace rangewerks::apps
