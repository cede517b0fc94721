#include "forms/picture.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <initializer_list>

namespace rangewerks::forms {

namespace {

// A picture is drawn in a square from (0, 0) to (1, 1), of which a sixteenth at each side stays
// free. What a place shows is told for any point; a pixel is the mean of many points in it.

struct Point {
  double x = 0;
  double y = 0;
};

constexpr std::uint32_t kNothing = 0;
constexpr std::uint32_t kGreen = 0xFF2C9A47;
constexpr std::uint32_t kRed = 0xFFCF3030;
constexpr std::uint32_t kYellow = 0xFFF6C12D;
constexpr std::uint32_t kBlue = 0xFF2F6FC4;
constexpr std::uint32_t kDark = 0xFF3A3A3A;
constexpr std::uint32_t kWhite = 0xFFFFFFFF;
constexpr std::uint32_t kSheetEdge = 0xFF6B7785;
constexpr std::uint32_t kSheetLine = 0xFFB9C2CC;
constexpr std::uint32_t kSheetHeading = 0xFFDDE3EA;
constexpr std::uint32_t kMarked = 0xFFFBE3A6;
constexpr std::uint32_t kMarkedEdge = 0xFFD98A1C;

double DistanceToSegment(Point at, Point from, Point to) {
  const Point along{to.x - from.x, to.y - from.y};
  const double length2 = along.x * along.x + along.y * along.y;
  const double part = ((at.x - from.x) * along.x + (at.y - from.y) * along.y) / length2;
  const double nearest = std::clamp(part, 0.0, 1.0);
  return std::hypot(at.x - from.x - nearest * along.x, at.y - from.y - nearest * along.y);
}

/// A line of this width through the points, with round ends.
bool OnLine(Point at, std::initializer_list<Point> points, double width) {
  const Point* from = points.begin();
  for (const Point* to = from + 1; to != points.end(); from = to++) {
    if (DistanceToSegment(at, *from, *to) <= width / 2) return true;
  }
  return false;
}

bool InDisc(Point at, Point centre, double radius) {
  return std::hypot(at.x - centre.x, at.y - centre.y) <= radius;
}

struct Box {
  double left = 0;
  double top = 0;
  double right = 0;
  double bottom = 0;
};

bool InBox(Point at, const Box& box) {
  return at.x >= box.left && at.x < box.right && at.y >= box.top && at.y < box.bottom;
}

/// A triangle that stands on its base, with corners rounded by this radius.
bool InTriangle(Point at, Point tip, double base, double halfWidth, double radius) {
  const Point left{tip.x - halfWidth, base};
  const Point right{tip.x + halfWidth, base};
  const double height = (at.y - tip.y) / (base - tip.y);
  const bool inside = height >= 0 && height <= 1 && std::abs(at.x - tip.x) <= halfWidth * height;
  return inside || OnLine(at, {tip, left, right, tip}, 2 * radius);
}

std::uint32_t Tick(Point at) {
  return OnLine(at, {{0.16, 0.54}, {0.40, 0.78}, {0.84, 0.24}}, 0.16) ? kGreen : kNothing;
}

bool OnCross(Point at, double reach, double width) {
  const double low = 0.5 - reach;
  const double high = 0.5 + reach;
  return OnLine(at, {{low, low}, {high, high}}, width) ||
         OnLine(at, {{low, high}, {high, low}}, width);
}

std::uint32_t Cross(Point at) { return OnCross(at, 0.30, 0.16) ? kRed : kNothing; }

std::uint32_t Patches(Point at) {
  struct Patch {
    Point centre;
    std::uint32_t colour;
  };
  static constexpr std::array<Patch, 3> kFromTheFront{
      {{{0.50, 0.315}, kRed}, {{0.68, 0.655}, kBlue}, {{0.32, 0.655}, kYellow}}};
  constexpr double kRadius = 0.245;
  constexpr double kEdge = 0.035;  // keeps them apart on any ground
  for (const Patch& patch : kFromTheFront) {
    if (InDisc(at, patch.centre, kRadius - kEdge)) return patch.colour;
    if (InDisc(at, patch.centre, kRadius)) return kWhite;
  }
  return kNothing;
}

std::uint32_t Triangle(Point at) {
  if (OnLine(at, {{0.5, 0.38}, {0.5, 0.58}}, 0.125) || InDisc(at, {0.5, 0.76}, 0.065)) return kDark;
  if (InTriangle(at, {0.5, 0.20}, 0.83, 0.34, 0.045)) return kYellow;
  if (InTriangle(at, {0.5, 0.20}, 0.83, 0.34, 0.095)) return kDark;
  return kNothing;
}

std::uint32_t Disc(Point at) {
  if (OnCross(at, 0.16, 0.12)) return kWhite;
  return InDisc(at, {0.5, 0.5}, 0.43) ? kRed : kNothing;
}

std::uint32_t Sheet(Point at) {
  // In sixteenths, so that its lines are sharp at the usual sizes.
  const Point in16{at.x * 16, at.y * 16};
  if (!InBox(in16, {1, 2, 15, 14})) return kNothing;
  if (!InBox(in16, {2, 3, 14, 13})) return kSheetEdge;
  if (InBox(in16, {4, 6, 12, 11})) return InBox(in16, {5, 7, 11, 10}) ? kMarked : kMarkedEdge;
  if (in16.y < 5) return kSheetHeading;
  const bool onColumnLine = InBox(in16, {4, 5, 5, 13}) || InBox(in16, {11, 5, 12, 13});
  const bool onRowLine = InBox(in16, {2, 6, 14, 7}) || InBox(in16, {2, 10, 14, 11});
  return onColumnLine || onRowLine ? kSheetLine : kWhite;
}

std::uint32_t ColourAt(Picture picture, Point at) {
  switch (picture) {
    case Picture::None:
      return kNothing;
    case Picture::Ok:
      return Tick(at);
    case Picture::Cancel:
      return Cross(at);
    case Picture::Palette:
      return Patches(at);
    case Picture::Warning:
      return Triangle(at);
    case Picture::Error:
      return Disc(at);
    case Picture::Product:
      return Sheet(at);
  }
  return kNothing;
}

/// The mean of points that are opaque or empty: colour of the opaque ones, opacity of all.
class Mean {
 public:
  void Add(std::uint32_t colour) {
    ++points_;
    if (colour == kNothing) return;
    ++opaque_;
    for (std::size_t part = 0; part < sums_.size(); ++part) {
      sums_[part] += (colour >> (8 * part)) & 0xFFU;
    }
  }

  std::uint32_t Pixel() const {
    if (opaque_ == 0) return kNothing;
    std::uint32_t pixel = Rounded(255 * opaque_, points_) << 24;
    for (std::size_t part = 0; part < sums_.size(); ++part) {
      pixel |= Rounded(sums_[part], opaque_) << (8 * part);
    }
    return pixel;
  }

 private:
  static std::uint32_t Rounded(std::uint32_t sum, std::uint32_t count) {
    return (sum + count / 2) / count;
  }

  std::uint32_t points_ = 0;
  std::uint32_t opaque_ = 0;
  std::array<std::uint32_t, 3> sums_{};
};

std::uint32_t PixelOf(Picture picture, std::int32_t column, std::int32_t row, std::int32_t size) {
  constexpr std::int32_t kPointsAcross = 8;
  Mean mean;
  for (std::int32_t j = 0; j < kPointsAcross; ++j) {
    for (std::int32_t i = 0; i < kPointsAcross; ++i) {
      mean.Add(ColourAt(picture, {(column + (i + 0.5) / kPointsAcross) / size,
                                  (row + (j + 0.5) / kPointsAcross) / size}));
    }
  }
  return mean.Pixel();
}

}  // namespace

Bitmap Draw(Picture picture, std::int32_t size) {
  Bitmap bitmap{.size = size, .pixels = {}};
  const auto width = static_cast<std::size_t>(size);
  bitmap.pixels.reserve(width * width);
  for (std::int32_t row = 0; row < size; ++row) {
    for (std::int32_t column = 0; column < size; ++column) {
      bitmap.pixels.push_back(PixelOf(picture, column, row, size));
    }
  }
  return bitmap;
}

}  // namespace rangewerks::forms
