// The event of an error list, as a caller connects to it.
#include <gtest/gtest.h>
#include <ocidl.h>
#include <olectl.h>

#include "windows/fake_object.h"
#include "windows/server_under_test.h"

namespace rangewerks::tests {
namespace {

using com::Pointer;

TEST(ErrorListEvents, HaveAConnectionPointThatTakesASinkAndLetsItGo) {
  const Apartment apartment;
  const auto list = CreateFromServer<_clsErrorList>(__uuidof(::clsErrorList));
  ASSERT_TRUE(list);
  Pointer<IConnectionPoint> point;
  ASSERT_EQ(list.TryQuery<IConnectionPointContainer>()->FindConnectionPoint(
                __uuidof(__clsErrorList), point.Receive()),
            S_OK);
  const Pointer<FakeObject> sink = NewFake({}, {});
  DWORD cookie = 0;
  ASSERT_EQ(point->Advise(sink.Get(), &cookie), S_OK);
  EXPECT_NE(cookie, 0U);
  EXPECT_EQ(point->Unadvise(cookie), S_OK);
  EXPECT_EQ(point->Unadvise(cookie), CONNECT_E_NOCONNECTION);
}

}  // namespace
}  // namespace rangewerks::tests
