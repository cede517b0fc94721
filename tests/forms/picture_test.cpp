#include "forms/picture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <set>
#include <tuple>
#include <vector>

namespace rangewerks::tests {
namespace {

using forms::Bitmap;
using forms::Draw;
using forms::Picture;

std::uint32_t Opacity(std::uint32_t pixel) { return pixel >> 24; }

std::uint32_t PixelAt(const Bitmap& bitmap, std::int32_t column, std::int32_t row) {
  return bitmap.pixels.at(static_cast<std::size_t>(row * bitmap.size + column));
}

/// How much of the square is filled, from 0 to 1.
double FilledPart(const Bitmap& bitmap) {
  double sum = 0;
  for (const std::uint32_t pixel : bitmap.pixels) sum += Opacity(pixel) / 255.0;
  return sum / static_cast<double>(bitmap.pixels.size());
}

class APicture : public testing::TestWithParam<std::tuple<Picture, std::int32_t>> {
 protected:
  const Picture picture = std::get<0>(GetParam());
  const std::int32_t size = std::get<1>(GetParam());
  const Bitmap bitmap = Draw(picture, size);
};

TEST_P(APicture, IsASquareOfItsSize) {
  EXPECT_EQ(bitmap.size, size);
  EXPECT_EQ(bitmap.pixels.size(), static_cast<std::size_t>(size * size));
}

TEST_P(APicture, FillsATenthOfItsSquareAtLeastAndNotMoreThanFourFifths) {
  EXPECT_GT(FilledPart(bitmap), 0.1);
  EXPECT_LT(FilledPart(bitmap), 0.8);
}

TEST_P(APicture, TouchesNoSideOfItsSquare) {
  for (std::int32_t along = 0; along < size; ++along) {
    EXPECT_EQ(PixelAt(bitmap, along, 0), 0U) << along;
    EXPECT_EQ(PixelAt(bitmap, along, size - 1), 0U) << along;
    EXPECT_EQ(PixelAt(bitmap, 0, along), 0U) << along;
    EXPECT_EQ(PixelAt(bitmap, size - 1, along), 0U) << along;
  }
}

TEST_P(APicture, IsDrawnTheSameEachTime) { EXPECT_EQ(Draw(picture, size).pixels, bitmap.pixels); }

INSTANTIATE_TEST_SUITE_P(OfEachKindAndUsualSize, APicture,
                         testing::Combine(testing::Values(Picture::Ok, Picture::Cancel,
                                                          Picture::Palette, Picture::Warning,
                                                          Picture::Error, Picture::Product),
                                          testing::Values(16, 24, 32)));

TEST(Picture, NoPictureIsAllTransparent) {
  EXPECT_EQ(Draw(Picture::None, 16).pixels, std::vector<std::uint32_t>(256, 0));
}

TEST(Picture, NoTwoLookTheSame) {
  std::set<std::vector<std::uint32_t>> looks;
  for (const Picture picture : {Picture::None, Picture::Ok, Picture::Cancel, Picture::Palette,
                                Picture::Warning, Picture::Error, Picture::Product}) {
    looks.insert(Draw(picture, 16).pixels);
  }
  EXPECT_EQ(looks.size(), 7U);
}

TEST(Picture, EdgesAreSmooth) {
  const Bitmap tick = Draw(Picture::Ok, 16);
  EXPECT_GT(
      std::count_if(tick.pixels.begin(), tick.pixels.end(),
                    [](std::uint32_t pixel) { return Opacity(pixel) > 0 && Opacity(pixel) < 255; }),
      10);
}

TEST(Picture, ASmoothEdgeKeepsItsColourAndLosesOpacityOnly) {
  for (const std::uint32_t pixel : Draw(Picture::Cancel, 16).pixels) {
    if (Opacity(pixel) > 0) {
      EXPECT_EQ(pixel & 0xFFFFFFU, 0xCF3030U);
    }
  }
}

TEST(Picture, TheTickIsGreenAndTheCrossIsRed) {
  EXPECT_EQ(PixelAt(Draw(Picture::Ok, 16), 6, 12), 0xFF2C9A47U);
  EXPECT_EQ(PixelAt(Draw(Picture::Cancel, 16), 8, 8), 0xFFCF3030U);
}

TEST(Picture, ThePaletteHasThreePatchesOfDifferentColours) {
  const Bitmap palette = Draw(Picture::Palette, 32);
  EXPECT_EQ(PixelAt(palette, 16, 10), 0xFFCF3030U);
  EXPECT_EQ(PixelAt(palette, 22, 21), 0xFF2F6FC4U);
  EXPECT_EQ(PixelAt(palette, 10, 21), 0xFFF6C12DU);
}

TEST(Picture, TheSheetHasOneMarkedRangeInItsMiddle) {
  const Bitmap sheet = Draw(Picture::Product, 16);
  EXPECT_EQ(PixelAt(sheet, 8, 8), 0xFFFBE3A6U);
  EXPECT_EQ(PixelAt(sheet, 4, 8), 0xFFD98A1CU);
  EXPECT_EQ(PixelAt(sheet, 2, 8), 0xFFFFFFFFU);
}

TEST(Picture, ASinglePixelShowsTheMeanOfTheWhole) {
  const Bitmap sheet = Draw(Picture::Product, 1);
  ASSERT_EQ(sheet.pixels.size(), 1U);
  EXPECT_EQ(Opacity(sheet.pixels[0]), 255U * 14 * 12 / 256);
}

}  // namespace
}  // namespace rangewerks::tests
