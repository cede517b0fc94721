// Puts content and names onto a sheet of a spreadsheet program.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "journal.h"
#include "platform/excel.h"

namespace rangewerks::examples {

/// The address of one cell, "C7"; column 1 is A, up to 26.
std::string AddressOf(std::int32_t row, std::int32_t column);

class OfficeSheet {
 public:
  explicit OfficeSheet(const excel::Worksheet& sheet) : sheet_(sheet) {}

  void Put(std::int32_t row, std::int32_t column, const Content& content) const;
  /// The cells from that place downward, with their format, under each of the names given.
  void PutColumn(std::int32_t row, std::int32_t column, const Column& content,
                 const std::vector<std::string>& names) const;

 private:
  excel::Worksheet sheet_;
};

}  // namespace rangewerks::examples
