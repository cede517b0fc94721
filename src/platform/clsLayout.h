// Moves and sizes the controls of a resizable form, as the capital letters in their tags say.
//
//   forms::TreeView TreeView1{*this, "TreeView1", {.place = ..., .tag = "varFull"}};
//   void Form_Load() override { layout_.SetLayout(*this); }
//   void Form_Resize() override { layout_.RedrawLayout(); }
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "forms/form.h"
#include "platform/clsControl.h"

namespace rangewerks {

class clsLayout {
 public:
  // What a control keeps, and what grows with the form. Left and right kept together stretch the
  // width, top and bottom together the height.
  static constexpr std::int16_t kLeftFixed = 1;
  static constexpr std::int16_t kRightFixed = 2;
  static constexpr std::int16_t kTopFixed = 4;
  static constexpr std::int16_t kBottomFixed = 8;
  static constexpr std::int16_t kLeftProportional = 16;
  static constexpr std::int16_t kTopProportional = 32;
  static constexpr std::int16_t kWidthProportional = 64;
  static constexpr std::int16_t kHeightProportional = 128;

  /// The flags of a tag. L, R, T, B fix a side; V both top and bottom, H both left and right, F all
  /// four; X, Y, W, D make left, top, width, height proportional; N takes back all before it.
  /// Everything else means nothing, small letters too.
  static std::int16_t FlagsOf(std::string_view tag);

  /// Notes the size of the form and the places of the controls that have flags, as they are now.
  /// The controls must outlive the last RedrawLayout.
  void SetLayout(forms::Form& frm);
  /// Places the noted controls for the present size of what the first of them stands on; below the
  /// design size they stay as designed. Raises 6 when a length times a length doesn't fit into 32
  /// bits.
  void RedrawLayout();
  /// The noted controls, in their order.
  const std::vector<clsControl>& Controls() const { return controls_; }

 private:
  void Note(forms::Container& parent);

  std::vector<clsControl> controls_;
  std::int32_t designWidth_ = 0;
  std::int32_t designHeight_ = 0;
};

}  // namespace rangewerks
