#include "platform/clsLayout.h"

#include <algorithm>
#include <limits>

#include "automation/conversions.h"
#include "automation/error.h"

namespace rangewerks {

using automation::Error;
using automation::ErrorNumber;

namespace {

std::int32_t Rounded(double twips) { return ToLong(twips, automation::Locale::Current()); }

std::int32_t Product(std::int32_t left, std::int32_t right) {
  const std::int64_t product = std::int64_t{left} * right;
  if (product > std::numeric_limits<std::int32_t>::max() ||
      product < std::numeric_limits<std::int32_t>::min()) {
    throw Error(ErrorNumber::Overflow);
  }
  return static_cast<std::int32_t>(product);
}

/// A length at design, for a form that has become `now` long from `design`.
double Scaled(std::int32_t length, std::int32_t now, std::int32_t design) {
  const std::int32_t product = Product(length, now);
  if (design == 0) throw Error(ErrorNumber::DivisionByZero);
  return static_cast<double>(product) / design;
}

double LimitSize(double length) { return std::max(length, 0.0); }

/// One direction of a control: across or down.
struct Direction {
  std::int32_t start;    ///< left or top at design
  std::int32_t margin;   ///< from the other side to the parent's edge
  std::int32_t length;   ///< width or height at design
  std::int32_t design;   ///< the form's at design
  std::int32_t present;  ///< the parent's now
  bool startFixed;
  bool endFixed;
  bool startProportional;
  bool lengthProportional;
};

void PlaceAlong(const Direction& to, double& start, double& length) {
  if (to.startFixed) {
    start = to.start;
  } else if (to.startProportional) {
    start = Scaled(to.start, to.present, to.design);
  }
  if (to.startFixed && to.endFixed) {
    length = LimitSize(static_cast<double>(to.present) - to.start - to.margin);
    return;
  }
  if (to.lengthProportional) length = Scaled(to.length, to.present, to.design);
  if (to.endFixed) start = LimitSize(static_cast<double>(to.present) - to.margin - length);
}

}  // namespace

std::int16_t clsLayout::FlagsOf(std::string_view tag) {
  const auto flagsOf = [](char letter) -> int {
    switch (letter) {
      case 'L':
        return kLeftFixed;
      case 'R':
        return kRightFixed;
      case 'T':
        return kTopFixed;
      case 'B':
        return kBottomFixed;
      case 'V':
        return kTopFixed | kBottomFixed;
      case 'H':
        return kLeftFixed | kRightFixed;
      case 'F':
        return kLeftFixed | kRightFixed | kTopFixed | kBottomFixed;
      case 'X':
        return kLeftProportional;
      case 'Y':
        return kTopProportional;
      case 'W':
        return kWidthProportional;
      case 'D':
        return kHeightProportional;
      default:
        return 0;
    }
  };
  int flags = 0;
  for (const char letter : tag) flags = letter == 'N' ? 0 : flags | flagsOf(letter);
  return static_cast<std::int16_t>(flags);
}

void clsLayout::SetLayout(forms::Form& frm) {
  designWidth_ = Rounded(frm.get_Width());
  designHeight_ = Rounded(frm.get_Height());
  controls_.clear();
  Note(frm);
}

void clsLayout::Note(forms::Container& parent) {
  for (forms::Control* control : parent.Children()) {
    if (const std::int16_t flags = FlagsOf(control->get_Tag()); flags != 0) {
      const double right = control->get_Left() + control->get_Width();
      const double bottom = control->get_Top() + control->get_Height();
      controls_.push_back({.Left = Rounded(control->get_Left()),
                           .RightMargin = Rounded(parent.get_Width() - right),
                           .Top = Rounded(control->get_Top()),
                           .BottomMargin = Rounded(parent.get_Height() - bottom),
                           .Width = Rounded(control->get_Width()),
                           .Height = Rounded(control->get_Height()),
                           .Flags = flags,
                           .Control = control});
    }
    if (auto* inner = dynamic_cast<forms::Container*>(control)) Note(*inner);
  }
}

void clsLayout::RedrawLayout() {
  if (controls_.empty()) return;
  forms::Container& parent = controls_.front().Control->get_Parent();
  const std::int32_t width = std::max(Rounded(parent.get_Width()), designWidth_);
  const std::int32_t height = std::max(Rounded(parent.get_Height()), designHeight_);
  for (const clsControl& noted : controls_) {
    const auto has = [&](std::int16_t flag) { return (noted.Flags & flag) != 0; };
    forms::Place place = noted.Control->Properties().place;
    PlaceAlong({noted.Left, noted.RightMargin, noted.Width, designWidth_, width, has(kLeftFixed),
                has(kRightFixed), has(kLeftProportional), has(kWidthProportional)},
               place.left, place.width);
    PlaceAlong({noted.Top, noted.BottomMargin, noted.Height, designHeight_, height, has(kTopFixed),
                has(kBottomFixed), has(kTopProportional), has(kHeightProportional)},
               place.top, place.height);
    noted.Control->Move(place);
  }
}

}  // namespace rangewerks
