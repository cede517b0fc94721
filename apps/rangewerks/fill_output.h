// The forms in which a fill is written out. Each gives the whole text, ending in a line feed.
#pragma once

#include <string>

#include "apps/rangewerks/filling.h"

namespace rangewerks::apps {

/// `saved` is the file that the workbook has been saved to.
std::string TableOf(const std::string& book, const std::string& saved, const FillReport& report);
std::string JsonOf(const std::string& book, const std::string& saved, const FillReport& report);
/// A heading, then a line for each cell.
std::string CsvOf(const FillReport& report);

}  // namespace rangewerks::apps
