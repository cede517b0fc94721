// Listening to an object of somebody else's: the events of a spreadsheet's sheet come this way.
#include <gmock/gmock.h>
#include <ocidl.h>
#include <olectl.h>

#include "automation/dispatch.h"
#include "automation/error.h"
#include "com/bridge/objects.h"
#include "com/bridge/type_information.h"
#include "com/bridge/values.h"
#include "support/error_of.h"
#include "windows/server_under_test.h"

namespace rangewerks::tests {
namespace {

using automation::Argument;
using automation::Connection;
using automation::Member;
using automation::Object;
using automation::Variant;
using com::Pointer;

/// An object whose class, it says, is the range list's, with a connection point of its own making
/// that remembers the one listener it has.
class FakeSource final : public IProvideClassInfo,
                         public IConnectionPointContainer,
                         public IConnectionPoint {
 public:
  explicit FakeSource(Pointer<ITypeInfo> type) : type_(std::move(type)) {}

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) noexcept override {
    *object = nullptr;
    if (IsEqualIID(iid, IID_IUnknown) != 0 || IsEqualIID(iid, __uuidof(IProvideClassInfo)) != 0) {
      *object = static_cast<IProvideClassInfo*>(this);
    } else if (IsEqualIID(iid, __uuidof(IConnectionPointContainer)) != 0) {
      *object = static_cast<IConnectionPointContainer*>(this);
    }
    return *object == nullptr ? E_NOINTERFACE : S_OK;  // lives on the test's stack
  }
  ULONG STDMETHODCALLTYPE AddRef() noexcept override { return 1; }
  ULONG STDMETHODCALLTYPE Release() noexcept override { return 1; }
  HRESULT STDMETHODCALLTYPE GetClassInfo(ITypeInfo** type) noexcept override {
    *type = Pointer(type_).Detach();
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE
  EnumConnectionPoints(IEnumConnectionPoints** /*points*/) noexcept override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE FindConnectionPoint(REFIID iid,
                                                IConnectionPoint** point) noexcept override {
    const auto source = com::DefaultInterfaceOf(*type_.Get(), IMPLTYPEFLAG_FSOURCE);
    if (IsEqualIID(iid, com::IdentifierOf(*source.Get())) == 0) return CONNECT_E_NOCONNECTION;
    *point = this;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE GetConnectionInterface(IID* /*iid*/) noexcept override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE
  GetConnectionPointContainer(IConnectionPointContainer** /*c*/) noexcept override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE Advise(IUnknown* sink, DWORD* cookie) noexcept override {
    listener = Pointer(sink).TryQuery<IDispatch>();
    *cookie = 17;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE Unadvise(DWORD cookie) noexcept override {
    if (cookie == 17) listener = {};
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE EnumConnections(IEnumConnections** /*all*/) noexcept override {
    return E_NOTIMPL;
  }

  /// Fires an event by its dispatch identifier, with one argument by reference or none.
  HRESULT Fire(DISPID id, VARIANT* argument = nullptr) const {
    DISPPARAMS parameters{argument, nullptr, argument == nullptr ? 0U : 1U, 0};
    return listener->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters,
                            nullptr, nullptr, nullptr);
  }

  Pointer<IDispatch> listener;

 private:
  Pointer<ITypeInfo> type_;
};

struct Heard {
  std::string event;
  std::vector<Variant> arguments;
};

class EventSinkTest : public testing::Test {
 protected:
  Connection Listen() {
    return com::FromUnknown(static_cast<IProvideClassInfo*>(&source_))
        .Connect([this](Member event, std::span<const Argument> arguments) {
          Heard heard{event.Name(), {}};
          for (const Argument& each : arguments) {
            heard.arguments.push_back(each.Value());
            each.Assign(std::int16_t{7});
          }
          heard_.push_back(std::move(heard));
        });
  }

  FakeSource source_{RangeListClass()};
  std::vector<Heard> heard_;
};

TEST_F(EventSinkTest, EventsArriveUnderTheirNames) {
  const Connection connection = Listen();
  EXPECT_EQ(source_.Fire(1), S_OK);
  ASSERT_EQ(heard_.size(), 1U);
  EXPECT_EQ(heard_[0].event, "RangeAddValidationError");
  EXPECT_TRUE(heard_[0].arguments.empty());
}

TEST_F(EventSinkTest, AnArgumentByReferenceCanBeAssignedTo) {
  const Connection connection = Listen();
  SHORT stage = 1;
  VARIANT reference;
  VariantInit(&reference);
  V_VT(&reference) = VT_BYREF | VT_I2;
  V_I2REF(&reference) = &stage;
  EXPECT_EQ(source_.Fire(2, &reference), S_OK);
  ASSERT_EQ(heard_.size(), 1U);
  EXPECT_EQ(heard_[0].event, "RangeAddTooltipError");
  EXPECT_EQ(heard_[0].arguments, std::vector<Variant>{std::int16_t{1}});
  EXPECT_EQ(stage, 7);
}

TEST_F(EventSinkTest, ADroppedConnectionHearsNothingMore) {
  Connection connection = Listen();
  const Pointer<IDispatch> kept = source_.listener;  // a source may hold on to its listeners
  connection.Disconnect();
  EXPECT_FALSE(source_.listener);
  source_.listener = kept;
  EXPECT_EQ(source_.Fire(1), S_OK);
  EXPECT_TRUE(heard_.empty());
  source_.listener = {};
}

TEST_F(EventSinkTest, AnEventWithoutANameIsPassedOver) {
  const Connection connection = Listen();
  EXPECT_EQ(source_.Fire(4711), S_OK);
  EXPECT_TRUE(heard_.empty());
}

TEST_F(EventSinkTest, AListenerThatFailsIsAnExceptionToTheSource) {
  const Connection connection =
      com::FromUnknown(static_cast<IProvideClassInfo*>(&source_)).Connect([](auto, auto) {
        throw automation::Error(automation::ErrorNumber::TypeMismatch);
      });
  EXPECT_EQ(source_.Fire(1), DISP_E_EXCEPTION);
}

}  // namespace
}  // namespace rangewerks::tests
