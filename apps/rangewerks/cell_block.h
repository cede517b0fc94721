// Blocks of cells by their addresses, without a spreadsheet program.
//
//   const auto block = ReadAddress("$B$7:$B$30");
//   Shown(*block);  // "B7:B30"
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace rangewerks::apps {

/// Those of the largest sheet.
constexpr std::int32_t kMostColumns = 16384;
constexpr std::int32_t kMostRows = 1048576;

/// Rows and columns count from 1.
struct CellBlock {
  std::int32_t column = 1;
  std::int32_t row = 1;
  std::int32_t columns = 1;
  std::int32_t rows = 1;
};

/// The cells of an address such as "B7" or "B7:D30", in any case of letters and with "$" where it
/// may stand; none for any other text, and beyond the largest sheet.
std::optional<CellBlock> ReadAddress(std::string_view text);

/// The address without "$".
std::string Shown(const CellBlock& block);

/// Whether two blocks of one sheet have a cell in common.
bool Overlap(const CellBlock& first, const CellBlock& second);

}  // namespace rangewerks::apps
