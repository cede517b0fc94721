#include "com/bridge/create_object.h"

#include <gtest/gtest.h>

#include "automation/dispatch.h"
#include "automation/error.h"
#include "automation/variant.h"
#include "support/error_of.h"
#include "windows/server_under_test.h"

namespace rangewerks::tests {
namespace {

using automation::Member;
using automation::Object;
using automation::Variant;

TEST(CreateObject, MakesANewObjectOfAServerEachTime) {
  const Apartment apartment;
  const Object dictionary = com::CreateObject("Scripting.Dictionary");
  dictionary.Call(Member("Add"), {"key", 12.5});
  EXPECT_EQ(dictionary.Get(Member("Item"), {"key"}), Variant(12.5));
  EXPECT_EQ(com::CreateObject("scripting.dictionary").Get(Member("Count")), Variant(0));
}

TEST(CreateObject, RaisesItsOwnErrorForANameThatIsNotRegistered) {
  const Apartment apartment;
  for (const char* name : {"Rangewerks.NoSuchClass", "", "no name at all"}) {
    EXPECT_EQ(ErrorOf([&] { com::CreateObject(name); }).Number(), 429) << name;
  }
}

}  // namespace
}  // namespace rangewerks::tests
