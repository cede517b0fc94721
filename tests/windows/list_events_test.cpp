// The events of a range list, as a caller hears them: a range is placed in SheetHost, which refuses
// what is to be added.
#include <gmock/gmock.h>
#include <ocidl.h>

#include "com/bridge/objects.h"
#include "com/bridge/text.h"
#include "com/bridge/values.h"
#include "hosts/late_calls.h"
#include "windows/fake_object.h"
#include "windows/server_under_test.h"
#include "windows/sheet_host_under_test.h"

namespace rangewerks::tests {
namespace {

using com::Bstr;
using com::OwnedVariant;
using com::Pointer;
using ::testing::ElementsAre;

class ListEvents : public testing::Test {
 protected:
  ListEvents() {
    Call(GetObject(host_, "Workbooks"), "Add");
    const Object sheet = GetObject(host_, "ActiveSheet");
    list_->putref_ActSheet(com::ToDispatch(sheet).Get());
    area_ = GetObject(sheet, "Range", {"A5:A9"});
    properties_->put_RangeName(Bstr("code").Get());
    properties_->put_AddValidation(VARIANT_TRUE);
    properties_->put_AddToolTips(VARIANT_TRUE);
    OwnedVariant value;
    Pointer<_clsExInputRange> record;
    list_->Add(Bstr("code").Get(), hdiDetail, rdtString, VARIANT_FALSE, VARIANT_FALSE,
               Bstr("Nominal code").Get(), 8, *value, nullptr, VARIANT_FALSE, Bstr("").Get(),
               Bstr("").Get(), record.Receive());
    list_.TryQuery<IConnectionPointContainer>()->FindConnectionPoint(
        __uuidof(__clsInterfaceRangeList), point_.Receive());
    point_->Advise(sink_.Get(), &cookie_);
  }
  ~ListEvents() override { point_->Unadvise(cookie_); }

  HRESULT Place() {
    Pointer<IDispatch> area = com::ToDispatch(area_);
    IDispatch* placed = area.Detach();
    Pointer<_clsExInputRange> record;
    const HRESULT answer =
        list_->AddRangeToSpreadsheet(&placed, properties_.Get(), record.Receive());
    if (placed != nullptr) placed->Release();
    return answer;
  }
  /// Writes an event down as "id: its arguments with their types".
  HRESULT Hear(DISPID id, WORD flags, const DISPPARAMS& parameters) {
    std::string heard = std::to_string(id) + ":";
    for (UINT i = 0; i < parameters.cArgs; ++i) {
      const VARIANT& argument = parameters.rgvarg[i];
      if (V_VT(&argument) == (VT_BYREF | VT_I2)) heard += " " + std::to_string(*V_I2REF(&argument));
    }
    EXPECT_EQ(flags, DISPATCH_METHOD);
    heard_.push_back(heard);
    return S_OK;
  }

  Apartment apartment_;
  const Object host_ = NewSheetHost();
  const Object testing_ = GetObject(host_, "Testing");
  Object area_;
  Pointer<_clsInterfaceRangeList> list_ =
      CreateFromServer<_clsInterfaceRangeList>(__uuidof(::clsInterfaceRangeList));
  Pointer<_clsRangeProperties> properties_ =
      CreateFromServer<_clsRangeProperties>(__uuidof(::clsRangeProperties));
  Pointer<IConnectionPoint> point_;
  DWORD cookie_ = 0;
  std::vector<std::string> heard_;
  const Pointer<FakeObject> sink_ =
      NewFake({}, [this](DISPID id, WORD flags, DISPPARAMS& parameters, VARIANT* /*result*/,
                         EXCEPINFO* /*exception*/) { return Hear(id, flags, parameters); });
};

TEST_F(ListEvents, NothingIsToldWhereAllCanBeAdded) {
  EXPECT_EQ(Place(), S_OK);
  EXPECT_THAT(heard_, ElementsAre());
}

TEST_F(ListEvents, ARefusedRuleIsToldAndTheRangeIsPlacedWithoutIt) {
  Call(testing_, "FailMember", {"Validation.Add", 1004, "refused"});
  EXPECT_EQ(Place(), S_OK);
  EXPECT_THAT(heard_, ElementsAre("1:"));
  VARIANT_BOOL stillWanted = VARIANT_TRUE;
  properties_->get_AddValidation(&stillWanted);
  EXPECT_EQ(stillWanted, VARIANT_FALSE);
}

TEST_F(ListEvents, ARefusedMessageIsToldWithItsStageByReference) {
  properties_->put_AddValidation(VARIANT_FALSE);
  Call(testing_, "FailMember", {"Validation.Add", 1004, "refused"});
  EXPECT_EQ(Place(), S_OK);
  EXPECT_THAT(heard_, ElementsAre("2: 0"));
  Call(testing_, "ClearFailures");
  Call(testing_, "FailMember", {"Validation.InputTitle", 1004, "refused"});
  properties_->put_AddToolTips(VARIANT_TRUE);
  EXPECT_EQ(Place(), S_OK);
  EXPECT_THAT(heard_, ElementsAre("2: 0", "2: 1"));
}

TEST_F(ListEvents, WhoHasStoppedListeningHearsNothing) {
  EXPECT_EQ(point_->Unadvise(cookie_), S_OK);
  Call(testing_, "FailMember", {"Validation.Add", 1004, "refused"});
  EXPECT_EQ(Place(), S_OK);
  EXPECT_THAT(heard_, ElementsAre());
}

}  // namespace
}  // namespace rangewerks::tests
