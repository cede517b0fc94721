// Finding the entry of a menu by what it says.
#include "hosts/common/captions.h"

#include <gtest/gtest.h>

#include <vector>

namespace rangewerks::tests {
namespace {

using hosts::FindCaption;

TEST(Captions, ACaptionIsFoundWithoutItsAccessKeyAndWhateverItsCase) {
  const std::vector<std::string> captions{"Cu&t", "&Copy"};
  EXPECT_EQ(FindCaption(captions, "Cut"), 0U);
  EXPECT_EQ(FindCaption(captions, "COP&Y"), 1U);
  EXPECT_EQ(FindCaption(captions, "Paste"), std::nullopt);
}

TEST(Captions, ACaptionAsItStandsGoesFirst) {
  const std::vector<std::string> captions{"Brow&se", "&Browse", "&Browse"};
  EXPECT_EQ(FindCaption(captions, "&Browse"), 1U);
  EXPECT_EQ(FindCaption(captions, "Browse"), 0U);
}

}  // namespace
}  // namespace rangewerks::tests
