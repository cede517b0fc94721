// A C++ caller that was compiled against the type library: every call goes through the virtual
// table.
#include <gmock/gmock.h>
#include <ocidl.h>
#include <olectl.h>
#include <psapi.h>

#include "com/bridge/failures.h"
#include "com/bridge/text.h"
#include "com/bridge/values.h"
#include "support/error_of.h"
#include "windows/fake_object.h"
#include "windows/server_under_test.h"

namespace rangewerks::tests {
namespace {

using automation::Variant;
using com::Bstr;
using com::OwnedVariant;
using com::Pointer;

VARIANT Key(LONG position) {
  VARIANT key;
  VariantInit(&key);
  V_VT(&key) = VT_I4;
  V_I4(&key) = position;
  return key;
}

VARIANT Omitted() {
  VARIANT value;
  VariantInit(&value);
  V_VT(&value) = VT_ERROR;
  V_ERROR(&value) = DISP_E_PARAMNOTFOUND;
  return value;
}

class EarlyBoundClient : public testing::Test {
 protected:
  Pointer<_clsExInputRange> Add(std::string_view name, BSTR* key = nullptr) {
    Pointer<_clsExInputRange> record;
    answer_ = list_->Add(Bstr(name).Get(), hdiDetail, rdtDouble, VARIANT_TRUE, VARIANT_FALSE,
                         Bstr("Net amount").Get(), 12, Omitted(), key, VARIANT_FALSE,
                         Bstr("").Get(), Bstr("").Get(), record.Receive());
    return record;
  }

  Apartment apartment_;
  Pointer<_clsInterfaceRangeList> list_ =
      CreateFromServer<_clsInterfaceRangeList>(__uuidof(::clsInterfaceRangeList));
  HRESULT answer_ = S_OK;
};

TEST_F(EarlyBoundClient, DeclaresARangeAndReadsItsRecord) {
  const auto record = Add("Net");
  ASSERT_EQ(answer_, S_OK);
  Bstr name;
  Bstr description;
  short length = 0;
  eRangeDataType type = rdtString;
  VARIANT_BOOL mandatory = VARIANT_FALSE;
  ASSERT_EQ(record->get_RangeName(name.Receive()), S_OK);
  ASSERT_EQ(record->get_Description(description.Receive()), S_OK);
  ASSERT_EQ(record->get_DataLength(&length), S_OK);
  ASSERT_EQ(record->get_RangeDataType(&type), S_OK);
  ASSERT_EQ(record->get_IsMandatory(&mandatory), S_OK);
  EXPECT_EQ(name.Text(), "Net");
  EXPECT_EQ(description.Text(), "Net amount");
  EXPECT_EQ(length, 12);
  EXPECT_EQ(type, rdtDouble);
  EXPECT_EQ(mandatory, VARIANT_TRUE);
}

TEST_F(EarlyBoundClient, AnInAndOutTextComesBackFilled) {
  BSTR key = nullptr;
  Add("Net", &key);
  EXPECT_EQ(com::FromBstr(key), "Net");
  SysFreeString(key);
}

TEST_F(EarlyBoundClient, EveryKindOfValueCrosses) {
  const auto record = Add("Net");
  OwnedVariant given;
  com::ToVariant(automation::Date{45000.5}, *given);
  ASSERT_EQ(record->put_Value(*given), S_OK);
  OwnedVariant read;
  ASSERT_EQ(record->get_Value(&read), S_OK);
  EXPECT_EQ(com::FromVariant(*read), Variant(automation::Date{45000.5}));
}

TEST_F(EarlyBoundClient, AFailureReturnsItsCodeAndLeavesAnErrorObject) {
  Pointer<_clsExInputRange> record;
  EXPECT_EQ(list_->get_Item(Key(1), record.Receive()), static_cast<HRESULT>(0x800A0009U));
  EXPECT_FALSE(record);
  VARIANT_BOOL exists = VARIANT_FALSE;
  ASSERT_EQ(list_->RangeExists(Bstr("Nope").Get(), &exists), static_cast<HRESULT>(0x80040000U));
  Pointer<IErrorInfo> info;
  ASSERT_EQ(GetErrorInfo(0, info.Receive()), S_OK);
  Bstr source;
  Bstr description;
  info->GetSource(source.Receive());
  info->GetDescription(description.Receive());
  EXPECT_EQ(source.Text(), "RangeExists");
  EXPECT_FALSE(description.Text().empty());
  const auto support = list_.TryQuery<ISupportErrorInfo>();
  ASSERT_TRUE(support);
  EXPECT_EQ(support->InterfaceSupportsErrorInfo(__uuidof(_clsInterfaceRangeList)), S_OK);
  EXPECT_EQ(support->InterfaceSupportsErrorInfo(__uuidof(IPersist)), S_FALSE);
}

TEST_F(EarlyBoundClient, AResultNeedsAPlace) { EXPECT_EQ(list_->get_Count(nullptr), E_POINTER); }

TEST_F(EarlyBoundClient, WalksTheListInItsOrder) {
  Add("One");
  Add("Two");
  Pointer<IUnknown> unknown;
  ASSERT_EQ(list_->get_NewEnum(unknown.Receive()), S_OK);
  const auto walk = unknown.TryQuery<IEnumVARIANT>();
  ASSERT_TRUE(walk);
  std::vector<std::string> names;
  for (OwnedVariant element; walk->Next(1, &element, nullptr) == S_OK; VariantClear(&element)) {
    const auto record = Pointer(V_UNKNOWN(&element)).TryQuery<_clsExInputRange>();
    Bstr name;
    record->get_RangeName(name.Receive());
    names.push_back(name.Text());
  }
  EXPECT_EQ(names, (std::vector<std::string>{"One", "Two"}));
}

TEST_F(EarlyBoundClient, OneObjectHasOneIdentity) {
  const auto added = Add("Net");
  Pointer<_clsExInputRange> byPosition;
  ASSERT_EQ(list_->get_Item(Key(1), byPosition.Receive()), S_OK);
  EXPECT_EQ(byPosition.Get(), added.Get());
  const auto unknown = added.TryQuery<IUnknown>(IID_IUnknown);
  const auto dispatch = added.TryQuery<IDispatch>();
  EXPECT_EQ(dispatch.TryQuery<IUnknown>(IID_IUnknown).Get(), unknown.Get());
  EXPECT_EQ(static_cast<void*>(dispatch.Get()), static_cast<void*>(added.Get()));
}

TEST_F(EarlyBoundClient, ARecordOnTwoListsIsOneObject) {
  const auto record = Add("Net");
  const auto first = CreateFromServer<_colExInputRangeList>(__uuidof(::colExInputRangeList));
  const auto second = CreateFromServer<_colExInputRangeList>(__uuidof(::colExInputRangeList));
  Pointer<_clsExInputRange> made;
  ASSERT_EQ(first->Add(Bstr("Net").Get(), hdiDetail, rdtDouble, VARIANT_FALSE, VARIANT_FALSE,
                       Bstr("").Get(), 0, Omitted(), nullptr, VARIANT_FALSE, Bstr("").Get(),
                       Bstr("").Get(), made.Receive()),
            S_OK);
  ASSERT_EQ(second->Append(first.Get(), VARIANT_FALSE), S_OK);
  Pointer<_clsExInputRange> shared;
  ASSERT_EQ(second->get_Item(Key(1), shared.Receive()), S_OK);
  EXPECT_EQ(shared.Get(), made.Get());
  EXPECT_NE(shared.Get(), record.Get());
}

TEST_F(EarlyBoundClient, TheCallersObjectTravelsInAndOutAsItselfAndIsLetGo) {
  const auto fake = NewFake({}, {});
  ASSERT_EQ(list_->putref_CallerObject(fake.Get()), S_OK);
  {
    Pointer<IDispatch> back;
    ASSERT_EQ(list_->get_CallerObject(back.Receive()), S_OK);
    EXPECT_EQ(back.Get(), fake.Get());
  }
  EXPECT_GT(fake->references, 1U);
  ASSERT_EQ(list_->putref_CallerObject(nullptr), S_OK);
  EXPECT_EQ(fake->references, 1U);
}

TEST_F(EarlyBoundClient, AnObjectOfAnotherClassIsATypeMismatch) {
  const auto fake = NewFake({}, {});
  Pointer<_clsExInputRange> record;
  EXPECT_EQ(list_->AddCls(reinterpret_cast<_clsExInputRange*>(fake.Get()), record.Receive()),
            static_cast<HRESULT>(0x800A000DU));
}

TEST_F(EarlyBoundClient, TheClassIsToldWithItsSource) {
  const auto teller = list_.TryQuery<IProvideClassInfo2>();
  ASSERT_TRUE(teller);
  GUID source = GUID_NULL;
  ASSERT_EQ(teller->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &source), S_OK);
  EXPECT_NE(IsEqualGUID(source, __uuidof(__clsInterfaceRangeList)), 0);
  Pointer<ITypeInfo> type;
  ASSERT_EQ(teller->GetClassInfo(type.Receive()), S_OK);
  Bstr name;
  type->GetDocumentation(MEMBERID_NIL, name.Receive(), nullptr, nullptr, nullptr);
  EXPECT_EQ(name.Text(), "clsInterfaceRangeList");
}

TEST_F(EarlyBoundClient, AListenerIsHeldWhileItIsConnected) {
  const auto container = list_.TryQuery<IConnectionPointContainer>();
  ASSERT_TRUE(container);
  Pointer<IConnectionPoint> point;
  EXPECT_EQ(container->FindConnectionPoint(__uuidof(IPersist), point.Receive()),
            CONNECT_E_NOCONNECTION);
  ASSERT_EQ(container->FindConnectionPoint(__uuidof(__clsInterfaceRangeList), point.Receive()),
            S_OK);
  const auto listener = NewFake({}, {});
  DWORD cookie = 0;
  ASSERT_EQ(point->Advise(listener.Get(), &cookie), S_OK);
  EXPECT_GT(listener->references, 1U);
  EXPECT_EQ(point->Unadvise(cookie), S_OK);
  EXPECT_EQ(listener->references, 1U);
  EXPECT_EQ(point->Unadvise(cookie), CONNECT_E_NOCONNECTION);
  const auto deaf = list_.TryQuery<IUnknown>(IID_IUnknown);
  EXPECT_EQ(point->Advise(nullptr, &cookie), E_POINTER);
}

TEST_F(EarlyBoundClient, TheOnlyConnectionPointIsEnumerated) {
  const auto container = list_.TryQuery<IConnectionPointContainer>();
  Pointer<IEnumConnectionPoints> points;
  ASSERT_EQ(container->EnumConnectionPoints(points.Receive()), S_OK);
  Pointer<IConnectionPoint> point;
  ASSERT_EQ(points->Next(1, point.Receive(), nullptr), S_OK);
  IID source = GUID_NULL;
  EXPECT_EQ(point->GetConnectionInterface(&source), S_OK);
  EXPECT_NE(IsEqualGUID(source, __uuidof(__clsInterfaceRangeList)), 0);
  EXPECT_EQ(points->Next(1, point.Receive(), nullptr), S_FALSE);
}

SIZE_T PrivateBytes() {
  PROCESS_MEMORY_COUNTERS_EX counters{};
  counters.cb = sizeof(counters);
  GetProcessMemoryInfo(GetCurrentProcess(), reinterpret_cast<PROCESS_MEMORY_COUNTERS*>(&counters),
                       sizeof(counters));
  return counters.PrivateUsage;
}

TEST_F(EarlyBoundClient, AHundredThousandRoundsLeaveMemoryWhereItWas) {
  const auto round = [] {
    const auto list = CreateFromServer<_clsInterfaceRangeList>(__uuidof(::clsInterfaceRangeList));
    Pointer<_clsExInputRange> record;
    list->Add(Bstr("Net").Get(), hdiDetail, rdtDouble, VARIANT_FALSE, VARIANT_FALSE,
              Bstr("words").Get(), 0, Omitted(), nullptr, VARIANT_FALSE, Bstr("").Get(),
              Bstr("").Get(), record.Receive());
    VARIANT_BOOL exists = VARIANT_FALSE;
    list->RangeExists(Bstr("Nope").Get(), &exists);  // a failure leaves nothing behind either
  };
  for (int i = 0; i < 10000; ++i) round();
  const SIZE_T before = PrivateBytes();
  for (int i = 0; i < 100000; ++i) round();
  const SIZE_T after = PrivateBytes();
  EXPECT_LE(after, before + 256 * 1024);  // 100,000 lost bytes would show
}

TEST(Unloading, TheModuleMayGoWhenNobodyHoldsAnythingOfIt) {
  using CanUnload = HRESULT(STDAPICALLTYPE*)();
  const auto canUnload = reinterpret_cast<CanUnload>(
      reinterpret_cast<void*>(GetProcAddress(ServerModule(), "DllCanUnloadNow")));
  const Apartment apartment;
  SetErrorInfo(0, nullptr);
  {
    const auto list = CreateFromServer<_clsInterfaceRangeList>(__uuidof(::clsInterfaceRangeList));
    EXPECT_EQ(canUnload(), S_FALSE);
    const auto container = list.TryQuery<IConnectionPointContainer>();
    EXPECT_EQ(canUnload(), S_FALSE);
  }
  EXPECT_EQ(canUnload(), S_OK);
}

}  // namespace
}  // namespace rangewerks::tests
