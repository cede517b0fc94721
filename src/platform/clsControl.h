// A control of a resizable form, as it stood when the form was designed.
#pragma once

#include <cstdint>

#include "forms/control.h"

namespace rangewerks {

/// All lengths are in twips.
struct clsControl {
  std::int32_t Left = 0;
  std::int32_t RightMargin = 0;  ///< from the control's right edge to its parent's
  std::int32_t Top = 0;
  std::int32_t BottomMargin = 0;  ///< from the control's lower edge to its parent's
  std::int32_t Width = 0;
  std::int32_t Height = 0;
  std::int16_t Flags = 0;  ///< of clsLayout
  forms::Control* Control = nullptr;
};

}  // namespace rangewerks
