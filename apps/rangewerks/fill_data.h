// The data file of the command "fill": values for the ranges of an interface, as JSON or CSV.
// docs/fill-data.md describes it for those who write one.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "automation/variant.h"
#include "rangelist/clsInterfaceRangeList.h"

namespace rangewerks::apps {

/// One value that a file gives.
struct GivenValue {
  std::string range;          ///< as it is declared
  std::int32_t row = 0;       ///< the line in the range; 0 for a value of the header
  automation::Variant value;  ///< of the range's declared type
  std::string place;          ///< "/rows/0/values/debit (row 1)" or "line 2, column debit (row 1)"
};

/// The values of a file, in its order, each checked against the declared ranges: none of its name,
/// of its type, or twice for one row raises Failure with file, place and what is expected. A null
/// and an empty CSV field give no value. The extension tells the form: .json or .csv.
std::vector<GivenValue> ReadFillFile(const std::string& path, const clsInterfaceRangeList& list);

/// The same from the file's text; messages start with the place.
std::vector<GivenValue> ParseFillJson(const std::string& text, const clsInterfaceRangeList& list);
std::vector<GivenValue> ParseFillCsv(const std::string& text, const clsInterfaceRangeList& list);

}  // namespace rangewerks::apps
