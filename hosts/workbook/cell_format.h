// How one cell looks, apart from the lines around it.
#pragma once

#include <cstdint>
#include <string>

#include "hosts/common/palette.h"
#include "platform/excel_constants.h"

namespace rangewerks::hosts::workbook {

inline constexpr const char* kGeneralFormat = "General";
inline constexpr const char* kTextFormat = "@";

/// 0xBBGGRR.
using Color = std::int32_t;

struct CellFormat {
  std::string number;  ///< number format; empty stands for "General"
  std::int32_t alignment = excel::xlGeneral;
  bool wraps = false;
  bool isBold = false;
  Color fill = kNoFill;
  friend bool operator==(const CellFormat&, const CellFormat&) = default;
};

}  // namespace rangewerks::hosts::workbook
