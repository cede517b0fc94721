#include "platform/clsRangewerksVer.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "support/error_of.h"
#include "support/fixed_system.h"

namespace rangewerks::tests {
namespace {

using automation::Member;
using automation::Object;
using automation::Variant;

std::string VersionIn(const std::string& file) {
  return clsRangewerksVer(std::make_shared<FixedSystem>(file)).get_RangewerksVer();
}

TEST(ClsRangewerksVer, TellsTheLibrarysNameAndItsVersion) {
  EXPECT_EQ(VersionIn("C:\\lib\\Rangewerks.dll"), "Rangewerks: " RANGEWERKS_VERSION);
  EXPECT_EQ(VersionIn("/usr/lib/librangewerks.so"), "librangewerks: " RANGEWERKS_VERSION);
}

TEST(ClsRangewerksVer, CutsTheLastExtensionAlone) {
  EXPECT_EQ(VersionIn("C:\\lib.x\\Rangewerks.x64.dll"), "Rangewerks.x64: " RANGEWERKS_VERSION);
  EXPECT_EQ(VersionIn("C:\\lib.x\\Rangewerks"), "Rangewerks: " RANGEWERKS_VERSION);
}

TEST(ClsRangewerksVer, IsReadByName) {
  const Object late = std::make_shared<clsRangewerksVer>(std::make_shared<FixedSystem>("a.dll"));
  EXPECT_EQ(late.TypeName(), "clsRangewerksVer");
  EXPECT_EQ(late.Get(Member("RangewerksVer")), Variant("a: " RANGEWERKS_VERSION));
}

TEST(ClsRangewerksVer, FailsWithoutASystem) {
  EXPECT_TRUE(ErrorOf([] {
                (void)clsRangewerksVer(nullptr).get_RangewerksVer();
              }).Is(automation::ErrorNumber::FileNotFound));
}

}  // namespace
}  // namespace rangewerks::tests
