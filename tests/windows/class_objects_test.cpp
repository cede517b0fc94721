#include <gtest/gtest.h>
#include <rangewerks.h>
#include <unknwn.h>

#include "com/bridge/owners.h"
#include "windows/server_under_test.h"

namespace rangewerks::tests {
namespace {

using com::Pointer;

template <class Function>
Function EntryPoint(const char* name) {
  return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(ServerModule(), name)));
}
HRESULT GetClassObject(REFCLSID id, REFIID iid, void** result) {
  using GetObject = HRESULT(STDAPICALLTYPE*)(REFCLSID, REFIID, void**);
  return EntryPoint<GetObject>("DllGetClassObject")(id, iid, result);
}
HRESULT CanUnloadNow() { return EntryPoint<HRESULT(STDAPICALLTYPE*)()>("DllCanUnloadNow")(); }

class ClassObject : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_EQ(
        GetClassObject(__uuidof(::clsInterfaceRangeList), IID_IClassFactory, factory_.ReceiveAny()),
        S_OK);
  }

  Apartment apartment_;
  Pointer<IClassFactory> factory_;
};

TEST_F(ClassObject, IsThereForEachCreatableClass) {
  for (const GUID& id :
       {__uuidof(::clsInterfaceRangeList), __uuidof(::clsExInputRange),
        __uuidof(::colExInputRangeList), __uuidof(::clsRangeProperties), __uuidof(::clsColumnStyle),
        __uuidof(::clsSaveSettings), __uuidof(::clsExcelVB), __uuidof(::clsAddBrowse),
        __uuidof(::clsExcelBrowse), __uuidof(::ExcelFunctions), __uuidof(::ErrorMessageBox),
        __uuidof(::errL100Jrn), __uuidof(::clsErrorList), __uuidof(::clsBrowseDate),
        __uuidof(::clsExcelAbout), __uuidof(::clsRangewerksVer), __uuidof(::ctlColourPallet)}) {
    Pointer<IClassFactory> factory;
    ASSERT_EQ(GetClassObject(id, IID_IClassFactory, factory.ReceiveAny()), S_OK);
    Pointer<IDispatch> object;
    EXPECT_EQ(factory->CreateInstance(nullptr, IID_IDispatch, object.ReceiveAny()), S_OK);
    EXPECT_TRUE(object);
  }
}

TEST_F(ClassObject, IsMissingForOtherClasses) {
  for (const GUID& id : {__uuidof(::colGroupHeadings), __uuidof(::clsRangeGroupHeading),
                         __uuidof(::_clsExInputRange), GUID{}}) {
    void* nothing = this;
    EXPECT_EQ(GetClassObject(id, IID_IClassFactory, &nothing), CLASS_E_CLASSNOTAVAILABLE);
    EXPECT_EQ(nothing, nullptr);
  }
}

TEST_F(ClassObject, MakesANewObjectEachTime) {
  Pointer<IUnknown> one;
  Pointer<IUnknown> another;
  ASSERT_EQ(factory_->CreateInstance(nullptr, IID_IUnknown, one.ReceiveAny()), S_OK);
  ASSERT_EQ(factory_->CreateInstance(nullptr, IID_IUnknown, another.ReceiveAny()), S_OK);
  EXPECT_NE(one.Get(), another.Get());
}

TEST_F(ClassObject, GivesTheInterfaceAskedForOrNone) {
  Pointer<_clsInterfaceRangeList> list;
  EXPECT_EQ(factory_->CreateInstance(nullptr, __uuidof(_clsInterfaceRangeList), list.ReceiveAny()),
            S_OK);
  EXPECT_TRUE(list);
  void* nothing = this;
  EXPECT_EQ(factory_->CreateInstance(nullptr, __uuidof(_clsExInputRange), &nothing), E_NOINTERFACE);
  EXPECT_EQ(nothing, nullptr);
  EXPECT_EQ(factory_->CreateInstance(nullptr, IID_IUnknown, nullptr), E_POINTER);
}

TEST_F(ClassObject, RefusesToMakeAPartOfAnotherObject) {
  void* nothing = this;
  EXPECT_EQ(factory_->CreateInstance(factory_.Get(), IID_IUnknown, &nothing),
            CLASS_E_NOAGGREGATION);
  EXPECT_EQ(nothing, nullptr);
}

TEST_F(ClassObject, HasNoInterfaceButItsOwn) {
  void* nothing = this;
  EXPECT_EQ(factory_->QueryInterface(IID_IDispatch, &nothing), E_NOINTERFACE);
  EXPECT_EQ(nothing, nullptr);
  EXPECT_EQ(GetClassObject(__uuidof(::ExcelFunctions), IID_IDispatch, &nothing), E_NOINTERFACE);
  EXPECT_EQ(GetClassObject(__uuidof(::ExcelFunctions), IID_IClassFactory, nullptr), E_POINTER);
}

TEST(TheModule, StaysWhileAClassObjectAnObjectOrALockIsHeld) {
  const Apartment apartment;
  ASSERT_EQ(CanUnloadNow(), S_OK);
  Pointer<IClassFactory> factory;
  ASSERT_EQ(GetClassObject(__uuidof(::clsExInputRange), IID_IClassFactory, factory.ReceiveAny()),
            S_OK);
  EXPECT_EQ(CanUnloadNow(), S_FALSE);

  Pointer<IUnknown> object;
  ASSERT_EQ(factory->CreateInstance(nullptr, IID_IUnknown, object.ReceiveAny()), S_OK);
  EXPECT_EQ(factory->LockServer(TRUE), S_OK);
  EXPECT_EQ(factory->LockServer(TRUE), S_OK);
  object = {};
  EXPECT_EQ(CanUnloadNow(), S_FALSE);

  EXPECT_EQ(factory->LockServer(FALSE), S_OK);
  EXPECT_EQ(factory->LockServer(FALSE), S_OK);
  EXPECT_EQ(CanUnloadNow(), S_FALSE);
  factory = {};
  EXPECT_EQ(CanUnloadNow(), S_OK);
}

}  // namespace
}  // namespace rangewerks::tests
