#include "com/bridge/com_object.h"

#include <gmock/gmock.h>

#include "automation/error.h"
#include "automation/member_table.h"
#include "automation/value_list.h"
#include "com/bridge/objects.h"
#include "com/bridge/type_information.h"
#include "com/bridge/values.h"
#include "com/module/module.h"

namespace rangewerks::tests {
namespace {

using automation::AutomationClass;
using automation::Error;
using automation::MemberTable;
using automation::Object;
using automation::ValueList;
using automation::Variant;
using com::OwnedVariant;
using com::Pointer;
using com::ToDispatch;

/// A class with a member of each sort, that no type library describes.
class Sample final : public AutomationClass {
 public:
  const MemberTable& Members() const override {
    static const MemberTable table =
        MemberTable::For<Sample>("Sample")
            .Get(1, "Size", &Sample::get_Size, "A number.")
            .Let(1, "Size", &Sample::let_Size, "A number.")
            .Get(2, "Other", &Sample::get_Other, "An object.")
            .Set(2, "Other", &Sample::set_Other, "An object.")
            .Method(3, "Join", &Sample::Join, {{"left"}, {"right", "-"}, {"third", "."}},
                    "Joins texts.")
            .Method(4, "Halve", &Sample::Halve, {{"value"}}, "Halves a variable, or fails at 0.")
            .Method(0, "Item", &Sample::Item, {{"index"}}, "An element.")
            .Enumerator("_NewEnum");
    return table;
  }
  std::unique_ptr<automation::Enumerator> Enumerate() override {
    return std::make_unique<automation::SnapshotEnumerator>(std::vector<Variant>{"one", 2.0, true});
  }

  std::int32_t get_Size() const { return size_; }
  void let_Size(std::int32_t value) { size_ = value; }
  const Object& get_Other() const { return other_; }
  void set_Other(const Object& value) { other_ = value; }
  std::string Join(const std::string& left, const std::string& right, const std::string& third) {
    return left + right + third;
  }
  void Halve(double& value) {
    if (value == 0) throw Error(1004, "Sample", "Nothing to halve");
    value /= 2;
  }
  std::string Item(const Variant& index) { return "item " + index.TypeName(); }

 private:
  std::int32_t size_ = 5;
  Object other_;
};

/// A late-bound client without any help of ours.
class Client {
 public:
  explicit Client(Pointer<IDispatch> object) : object_(std::move(object)) {}

  DISPID IdOf(const wchar_t* name) const {
    auto* text = const_cast<wchar_t*>(name);
    DISPID id = DISPID_UNKNOWN;
    answer_ = object_->GetIDsOfNames(IID_NULL, &text, 1, LOCALE_USER_DEFAULT, &id);
    return id;
  }
  /// Arguments in the order of their positions.
  Variant Invoke(DISPID id, WORD flags, const std::vector<VARIANT>& arguments = {}) {
    std::vector<VARIANT> reversed(arguments.rbegin(), arguments.rend());
    DISPPARAMS parameters{reversed.data(), nullptr, static_cast<UINT>(reversed.size()), 0};
    DISPID put = DISPID_PROPERTYPUT;
    if ((flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0) {
      parameters.cNamedArgs = 1;
      parameters.rgdispidNamedArgs = &put;
    }
    OwnedVariant result;
    exception_ = EXCEPINFO{};
    answer_ = object_->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &parameters, &result,
                              &exception_, nullptr);
    return com::FromVariant(*result);
  }
  HRESULT Answer() const { return answer_; }
  EXCEPINFO& Exception() { return exception_; }
  IDispatch* operator->() const { return object_.Get(); }

 private:
  Pointer<IDispatch> object_;
  mutable HRESULT answer_ = S_OK;
  EXCEPINFO exception_{};
};

VARIANT Number(double value) {
  VARIANT result;
  VariantInit(&result);
  V_VT(&result) = VT_R8;
  V_R8(&result) = value;
  return result;
}

VARIANT ReferenceTo(VARIANT& variable) {
  VARIANT result;
  VariantInit(&result);
  V_VT(&result) = VT_BYREF | VT_VARIANT;
  V_VARIANTREF(&result) = &variable;
  return result;
}

class ComObjectTest : public testing::Test {
 protected:
  std::shared_ptr<Sample> sample_ = std::make_shared<Sample>();
  Client client_{ToDispatch(Object(sample_))};
};

TEST_F(ComObjectTest, ReadsAndWritesAProperty) {
  const DISPID id = client_.IdOf(L"sIZE");
  EXPECT_EQ(client_.Invoke(id, DISPATCH_PROPERTYGET), Variant(std::int32_t{5}));
  client_.Invoke(id, DISPATCH_PROPERTYPUT, {Number(7.0)});
  EXPECT_EQ(client_.Answer(), S_OK);
  EXPECT_EQ(sample_->get_Size(), 7);
}

TEST_F(ComObjectTest, AnObjectIsReferredToWhetherTheCallerSaysSoOrLeavesItOpen) {
  const auto other = std::make_shared<Sample>();
  VARIANT value;
  VariantInit(&value);
  const auto dispatch = ToDispatch(Object(other));
  V_VT(&value) = VT_DISPATCH;
  V_DISPATCH(&value) = dispatch.Get();
  client_.Invoke(client_.IdOf(L"Other"), DISPATCH_PROPERTYPUTREF, {value});
  EXPECT_EQ(sample_->get_Other(), Object(other));
  sample_->set_Other({});
  client_.Invoke(client_.IdOf(L"Other"), DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF, {value});
  EXPECT_EQ(sample_->get_Other(), Object(other));
}

TEST_F(ComObjectTest, MethodsAnswerToEitherFlag) {
  const DISPID id = client_.IdOf(L"Item");
  EXPECT_EQ(client_.Invoke(id, DISPATCH_METHOD, {Number(1)}), Variant("item Double"));
  EXPECT_EQ(client_.Invoke(id, DISPATCH_METHOD | DISPATCH_PROPERTYGET, {Number(1)}),
            Variant("item Double"));
  EXPECT_EQ(client_.Invoke(DISPID_VALUE, DISPATCH_METHOD | DISPATCH_PROPERTYGET, {Number(1)}),
            Variant("item Double"));
}

TEST_F(ComObjectTest, NamedAndOmittedArgumentsFindTheirPlaces) {
  std::array<wchar_t*, 2> names{const_cast<wchar_t*>(L"Join"), const_cast<wchar_t*>(L"THIRD")};
  std::array<DISPID, 2> ids{};
  ASSERT_EQ(client_->GetIDsOfNames(IID_NULL, names.data(), 2, LOCALE_USER_DEFAULT, ids.data()),
            S_OK);
  OwnedVariant left;
  OwnedVariant third;
  com::ToVariant("a", *left);
  com::ToVariant("c", *third);
  std::array<VARIANT, 2> arguments{*third, *left};
  DISPPARAMS parameters{arguments.data(), &ids[1], 2, 1};
  OwnedVariant result;
  ASSERT_EQ(client_->Invoke(ids[0], IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters,
                            &result, nullptr, nullptr),
            S_OK);
  EXPECT_EQ(com::FromVariant(*result), Variant("a-c"));
}

TEST_F(ComObjectTest, AnUnknownNameOfMemberOrArgumentIsRefused) {
  EXPECT_EQ(client_.IdOf(L"Nope"), DISPID_UNKNOWN);
  EXPECT_EQ(client_.Answer(), DISP_E_UNKNOWNNAME);
  std::array<wchar_t*, 2> names{const_cast<wchar_t*>(L"Join"), const_cast<wchar_t*>(L"never seen")};
  std::array<DISPID, 2> ids{};
  EXPECT_EQ(client_->GetIDsOfNames(IID_NULL, names.data(), 2, LOCALE_USER_DEFAULT, ids.data()),
            DISP_E_UNKNOWNNAME);
  EXPECT_NE(ids[0], DISPID_UNKNOWN);
  EXPECT_EQ(ids[1], DISPID_UNKNOWN);
  client_.Invoke(4711, DISPATCH_METHOD);
  EXPECT_EQ(client_.Answer(), DISP_E_MEMBERNOTFOUND);
}

TEST_F(ComObjectTest, AVariableBehindOneOrTwoReferencesIsWrittenBack) {
  const DISPID id = client_.IdOf(L"Halve");
  VARIANT variable = Number(5);
  client_.Invoke(id, DISPATCH_METHOD, {ReferenceTo(variable)});
  EXPECT_EQ(com::FromVariant(variable), Variant(2.5));
  double number = 8;
  VARIANT inner;
  VariantInit(&inner);
  V_VT(&inner) = VT_BYREF | VT_R8;
  V_R8REF(&inner) = &number;
  client_.Invoke(id, DISPATCH_METHOD, {ReferenceTo(inner)});
  EXPECT_EQ(number, 4);
}

TEST_F(ComObjectTest, AVariableThatIsntAssignedToKeepsItsKind) {
  VARIANT money;
  VariantInit(&money);
  V_VT(&money) = VT_CY;
  V_CY(&money).int64 = 10000;
  EXPECT_EQ(client_.Invoke(client_.IdOf(L"Item"), DISPATCH_METHOD, {ReferenceTo(money)}),
            Variant("item Double"));
  EXPECT_EQ(V_VT(&money), VT_CY);
}

TEST_F(ComObjectTest, AFailureTellsNumberSourceAndDescription) {
  client_.Invoke(client_.IdOf(L"Halve"), DISPATCH_METHOD, {Number(0)});
  EXPECT_EQ(client_.Answer(), DISP_E_EXCEPTION);
  EXPECT_EQ(client_.Exception().scode, static_cast<HRESULT>(0x800A03ECU));
  EXPECT_EQ(com::FromBstr(client_.Exception().bstrSource), "Sample");
  EXPECT_EQ(com::FromBstr(client_.Exception().bstrDescription), "Nothing to halve");
  SysFreeString(client_.Exception().bstrSource);
  SysFreeString(client_.Exception().bstrDescription);
}

TEST_F(ComObjectTest, TellsItsTypeName) {
  Pointer<ITypeInfo> type;
  ASSERT_EQ(client_->GetTypeInfo(0, LOCALE_USER_DEFAULT, type.Receive()), S_OK);
  EXPECT_EQ(com::NameOf(*type.Get()), "Sample");
}

TEST_F(ComObjectTest, IsEnumeratedResetAndSkipped) {
  DISPPARAMS none{};
  OwnedVariant result;
  ASSERT_EQ(
      client_->Invoke(DISPID_NEWENUM, IID_NULL, LOCALE_USER_DEFAULT,
                      DISPATCH_METHOD | DISPATCH_PROPERTYGET, &none, &result, nullptr, nullptr),
      S_OK);
  ASSERT_EQ(V_VT(&result), VT_UNKNOWN);
  const auto walk = Pointer(V_UNKNOWN(&result)).TryQuery<IEnumVARIANT>();
  ASSERT_TRUE(walk);
  std::array<VARIANT, 4> elements{};
  ULONG fetched = 0;
  EXPECT_EQ(walk->Next(4, elements.data(), &fetched), S_FALSE);
  EXPECT_EQ(fetched, 3U);
  EXPECT_EQ(com::FromVariant(elements[0]), Variant("one"));
  for (VARIANT& element : elements) VariantClear(&element);
  EXPECT_EQ(walk->Reset(), S_OK);
  EXPECT_EQ(walk->Skip(2), S_OK);
  EXPECT_EQ(walk->Next(1, elements.data(), nullptr), S_OK);
  EXPECT_EQ(com::FromVariant(elements[0]), Variant(true));
  EXPECT_EQ(walk->Skip(1), S_FALSE);
}

TEST_F(ComObjectTest, IsTheSameForAsLongAsItIsHeldAndComesBackAsItself) {
  const Object object(sample_);
  const auto first = ToDispatch(object);
  EXPECT_EQ(ToDispatch(object).Get(), first.Get());
  EXPECT_EQ(first.TryQuery<IUnknown>(IID_IUnknown).Get(), static_cast<IUnknown*>(first.Get()));
  EXPECT_EQ(com::FromUnknown(first.Get()), object);
}

TEST_F(ComObjectTest, KeepsItsObjectAndItsModule) {
  std::weak_ptr<Sample> watched = sample_;
  sample_.reset();
  EXPECT_FALSE(watched.expired());
  EXPECT_TRUE(com::ModuleInUse());
  client_ = Client({});
  EXPECT_TRUE(watched.expired());
  EXPECT_FALSE(com::ModuleInUse());
}

TEST_F(ComObjectTest, HasNoInterfacesThatItDoesntImplement) {
  void* other = &other;
  EXPECT_EQ(client_->QueryInterface(__uuidof(IPersist), &other), E_NOINTERFACE);
  EXPECT_EQ(other, nullptr);
  EXPECT_EQ(client_->QueryInterface(IID_IUnknown, nullptr), E_POINTER);
}

TEST(ComObjectWithoutATable, IsAskedForAnyName) {
  Client client(ToDispatch(std::make_shared<ValueList>(std::vector<Variant>{1.0})));
  const DISPID id = client.IdOf(L"AnythingAtAll");
  EXPECT_EQ(client.Answer(), S_OK);
  client.Invoke(id, DISPATCH_METHOD);
  EXPECT_EQ(client.Exception().scode, static_cast<HRESULT>(0x800A01B6U));  // 438
}

}  // namespace
}  // namespace rangewerks::tests
