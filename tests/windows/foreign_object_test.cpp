#include <gmock/gmock.h>

#include "automation/dispatch.h"
#include "automation/error.h"
#include "com/bridge/busy.h"
#include "com/bridge/failures.h"
#include "com/bridge/objects.h"
#include "com/bridge/type_information.h"
#include "com/bridge/values.h"
#include "support/error_of.h"
#include "windows/fake_object.h"

namespace rangewerks::tests {
namespace {

using automation::Argument;
using automation::Member;
using automation::NamedArgument;
using automation::Object;
using automation::Variant;
using com::FromUnknown;
using com::OwnedVariant;

const Member kRange{"Range"};
const Member kValue{"Value"};
const Member kAdd{"Add"};

/// What one call on a fake looked like.
struct Seen {
  DISPID id = 0;
  WORD flags = 0;
  std::vector<Variant> arguments;  // as laid out: last first
  std::vector<DISPID> names;
};

struct Recorder {
  std::vector<Seen> calls;

  FakeObject::Answer Answering(Variant result) {
    return [this, result](DISPID id, WORD flags, DISPPARAMS& parameters, VARIANT* place,
                          EXCEPINFO* /*exception*/) -> HRESULT {
      Seen seen{id, flags, {}, {}};
      for (UINT i = 0; i < parameters.cArgs; ++i) {
        seen.arguments.push_back(com::FromVariant(parameters.rgvarg[i]));
      }
      seen.names.assign(parameters.rgdispidNamedArgs,
                        parameters.rgdispidNamedArgs + parameters.cNamedArgs);
      calls.push_back(std::move(seen));
      if (place != nullptr) com::ToVariant(result, *place);
      return S_OK;
    };
  }
};

TEST(ForeignObject, AsksForAMembersIdentifierOnce) {
  Recorder recorder;
  const auto fake = NewFake({{L"Value", 7}}, recorder.Answering(12.5));
  const Object object = FromUnknown(fake.Get());
  EXPECT_EQ(object.Get(kValue), Variant(12.5));
  EXPECT_EQ(object.Get(kValue), Variant(12.5));
  object.Let(kValue, 3.0);
  EXPECT_EQ(fake->namesAsked, 1);
  ASSERT_EQ(recorder.calls.size(), 3U);
  EXPECT_EQ(recorder.calls[0].id, 7);
}

TEST(ForeignObject, ReadsAsPropertyOrMethodSinceALateCallerCantTell) {
  Recorder recorder;
  const auto fake = NewFake({{L"Range", 1}}, recorder.Answering("x"));
  FromUnknown(fake.Get()).Get(kRange, {"A1", 2.0});
  ASSERT_EQ(recorder.calls.size(), 1U);
  EXPECT_EQ(recorder.calls[0].flags, DISPATCH_METHOD | DISPATCH_PROPERTYGET);
  EXPECT_EQ(recorder.calls[0].arguments, (std::vector<Variant>{2.0, "A1"}));
}

TEST(ForeignObject, LetsWithPutAndSetsWithPutByReference) {
  Recorder recorder;
  const auto fake = NewFake({{L"Value", 7}}, recorder.Answering({}));
  const auto other = NewFake({}, {});
  const Object object = FromUnknown(fake.Get());
  object.Let(kValue, {Argument(1.0)}, "x");
  object.Set(kValue, FromUnknown(other.Get()));
  ASSERT_EQ(recorder.calls.size(), 2U);
  EXPECT_EQ(recorder.calls[0].flags, DISPATCH_PROPERTYPUT);
  EXPECT_EQ(recorder.calls[0].names, std::vector<DISPID>{DISPID_PROPERTYPUT});
  EXPECT_EQ(recorder.calls[0].arguments, (std::vector<Variant>{"x", 1.0}));
  EXPECT_EQ(recorder.calls[1].flags, DISPATCH_PROPERTYPUTREF);
  EXPECT_EQ(recorder.calls[1].arguments, std::vector<Variant>{Variant(FromUnknown(other.Get()))});
}

TEST(ForeignObject, PassesNamedAndOmittedArguments) {
  Recorder recorder;
  const auto fake =
      NewFake({{L"Add", 3}, {L"Formula1", 11}, {L"Type", 12}}, recorder.Answering({}));
  FromUnknown(fake.Get())
      .Call(kAdd, {Argument::Omitted(), 5.0},
            {NamedArgument{Member("Formula1"), "=1"}, NamedArgument{Member("Type"), 2.0}});
  ASSERT_EQ(recorder.calls.size(), 1U);
  EXPECT_EQ(recorder.calls[0].names, (std::vector<DISPID>{11, 12}));
  EXPECT_EQ(recorder.calls[0].arguments,
            (std::vector<Variant>{"=1", 2.0, 5.0, Variant::Missing()}));
}

TEST(ForeignObject, AnswersAnUnknownArgumentNameWith448) {
  Recorder recorder;
  const auto fake = NewFake({{L"Add", 3}}, recorder.Answering({}));
  const Object object = FromUnknown(fake.Get());
  EXPECT_EQ(ErrorOf([&] {
              object.Call(kAdd, {}, {NamedArgument{Member("Nope"), 1.0}});
            }).Number(),
            448);
  EXPECT_TRUE(recorder.calls.empty());
}

TEST(ForeignObject, WritesBackWhatTheCalleeAssignsToAReference) {
  const auto fake = NewFake(
      {{L"Add", 3}}, [](DISPID, WORD, DISPPARAMS& parameters, VARIANT*, EXCEPINFO*) -> HRESULT {
        if (V_VT(&parameters.rgvarg[0]) != (VT_BYREF | VT_VARIANT)) return DISP_E_TYPEMISMATCH;
        com::AssignThrough(parameters.rgvarg[0], "given");
        return S_OK;
      });
  Variant variable = 1.0;
  FromUnknown(fake.Get()).Call(kAdd, {Argument::Reference(variable)});
  EXPECT_EQ(variable, Variant("given"));
}

TEST(ForeignObject, AReferenceToALongIsOneForMembersThatAreDeclaredSo) {
  const auto fake = NewFake(
      {{L"Add", 3}}, [](DISPID, WORD, DISPPARAMS& parameters, VARIANT*, EXCEPINFO*) -> HRESULT {
        if (V_VT(&parameters.rgvarg[0]) != (VT_BYREF | VT_I4)) return DISP_E_TYPEMISMATCH;
        *V_I4REF(&parameters.rgvarg[0]) += 1;
        return S_OK;
      });
  Variant variable = std::int32_t{7};
  FromUnknown(fake.Get()).Call(kAdd, {Argument::Reference(variable)});
  EXPECT_EQ(variable, Variant(std::int32_t{8}));
}

TEST(ForeignObject, AnUnknownMemberIs438) {
  const auto fake = NewFake({}, {});
  const auto error = ErrorOf([&] { FromUnknown(fake.Get()).Get(kValue); });
  EXPECT_EQ(error.Number(), 438);
  EXPECT_EQ(error.Description(), "Object doesn't support this property or method");
}

TEST(ForeignObject, AnExceptionKeepsItsNumberSourceAndDescription) {
  const auto fake = NewFake(
      {{L"Value", 7}}, [](DISPID, WORD, DISPPARAMS&, VARIANT*, EXCEPINFO* exception) -> HRESULT {
        exception->scode = static_cast<HRESULT>(0x80040200U);
        exception->bstrSource = com::ToBstr("Somebody");
        exception->bstrDescription = com::ToBstr("It didn't work: ü€");
        return DISP_E_EXCEPTION;
      });
  const auto error = ErrorOf([&] { FromUnknown(fake.Get()).Get(kValue); });
  EXPECT_EQ(error.Number(), static_cast<std::int32_t>(0x80040200U));
  EXPECT_EQ(error.Source(), "Somebody");
  EXPECT_EQ(error.Description(), "It didn't work: ü€");
}

TEST(ForeignObject, ReadsExceptionsGivenByCodeOrFilledInLater) {
  const auto byCode = NewFake(
      {{L"Value", 7}}, [](DISPID, WORD, DISPPARAMS&, VARIANT*, EXCEPINFO* exception) -> HRESULT {
        exception->wCode = 1004;
        return DISP_E_EXCEPTION;
      });
  EXPECT_EQ(ErrorOf([&] { FromUnknown(byCode.Get()).Get(kValue); }).Number(), 1004);
  const auto later = NewFake(
      {{L"Value", 7}}, [](DISPID, WORD, DISPPARAMS&, VARIANT*, EXCEPINFO* exception) -> HRESULT {
        exception->pfnDeferredFillIn = [](EXCEPINFO* info) -> HRESULT {
          info->scode = static_cast<HRESULT>(0x800A03ECU);
          info->bstrDescription = SysAllocString(L"Filled in");
          return S_OK;
        };
        return DISP_E_EXCEPTION;
      });
  const auto error = ErrorOf([&] { FromUnknown(later.Get()).Get(kValue); });
  EXPECT_EQ(error.Number(), 1004);
  EXPECT_EQ(error.Description(), "Filled in");
}

TEST(ForeignObject, WithoutTypeInformationItsTypeIsObject) {
  const auto fake = NewFake({}, {});
  EXPECT_EQ(FromUnknown(fake.Get()).TypeName(), "Object");
}

TEST(ForeignObject, ReportsTheNameOfItsTypeWithoutTheUnderscore) {
  const auto fake = NewFake({}, {});
  fake->type = com::NamedType("_Worksheet");
  EXPECT_EQ(FromUnknown(fake.Get()).TypeName(), "Worksheet");
}

TEST(ForeignObject, IsOneObjectForAsLongAsItIsHeld) {
  const auto fake = NewFake({}, {});
  const auto other = NewFake({}, {});
  {
    const Object first = FromUnknown(fake.Get());
    EXPECT_EQ(FromUnknown(fake.Get()), first);
    EXPECT_NE(FromUnknown(other.Get()), first);
    EXPECT_EQ(com::ToDispatch(first).Get(), fake.Get());
  }
  EXPECT_EQ(fake->references, 1U);  // nobody but this test holds it any more
  EXPECT_TRUE(FromUnknown(fake.Get()));
}

TEST(ForeignObject, NoObjectIsNothing) {
  EXPECT_FALSE(FromUnknown(nullptr));
  EXPECT_FALSE(com::ToDispatch({}));
}

TEST(ForeignObject, AnObjectWithoutAnEnumeratorIsNoCollection) {
  const auto fake = NewFake({}, [](DISPID, WORD, DISPPARAMS&, VARIANT*, EXCEPINFO*) -> HRESULT {
    return DISP_E_MEMBERNOTFOUND;
  });
  EXPECT_EQ(ErrorOf([&] { FromUnknown(fake.Get()).Enumerate(); }).Number(), 451);
}

TEST(ForeignObject, WithoutClassInformationThereAreNoEvents) {
  const auto fake = NewFake({}, {});
  EXPECT_EQ(ErrorOf([&] { FromUnknown(fake.Get()).Connect([](auto, auto) {}); }).Number(), 459);
}

// --- a busy server ------------------------------------------------------------------------------

/// Answers with `failures` in turn and then with 1.
FakeObject::Answer BusyAtFirst(std::vector<HRESULT> failures, int& asked) {
  return [failures = std::move(failures), &asked](DISPID, WORD, DISPPARAMS&, VARIANT* result,
                                                  EXCEPINFO* exception) -> HRESULT {
    const auto turn = static_cast<std::size_t>(asked++);
    if (turn < failures.size()) {
      if (turn % 2 == 0) return failures[turn];
      exception->scode = failures[turn];  // some servers wrap it up
      return DISP_E_EXCEPTION;
    }
    V_VT(result) = VT_I4;
    V_I4(result) = 1;
    return S_OK;
  };
}

class Patience {
 public:
  explicit Patience(const wchar_t* seconds) {
    HKEY key = nullptr;
    RegCreateKeyExW(HKEY_CURRENT_USER, kKey, 0, nullptr, 0, KEY_WRITE, nullptr, &key, nullptr);
    RegSetValueExW(key, L"HostBusySeconds", 0, REG_SZ, reinterpret_cast<const BYTE*>(seconds),
                   static_cast<DWORD>((wcslen(seconds) + 1) * sizeof(wchar_t)));
    RegCloseKey(key);
  }
  Patience(const Patience&) = delete;
  Patience& operator=(const Patience&) = delete;
  ~Patience() { RegDeleteKeyValueW(HKEY_CURRENT_USER, kKey, L"HostBusySeconds"); }

 private:
  static constexpr auto kKey = L"Software\\Ostrel\\SheetConnectors\\Settings";
};

TEST(BusyServer, IsAskedAgainUntilItAnswers) {
  int asked = 0;
  const auto fake = NewFake({{L"Value", 7}}, BusyAtFirst({static_cast<HRESULT>(0x80010001U),
                                                          static_cast<HRESULT>(0x800AC472U),
                                                          static_cast<HRESULT>(0x8001010AU)},
                                                         asked));
  EXPECT_EQ(FromUnknown(fake.Get()).Get(kValue), Variant(std::int32_t{1}));
  EXPECT_EQ(asked, 4);
}

TEST(BusyServer, IsGivenUpWhenThePatienceIsOver) {
  const Patience patience(L"0.05");
  int asked = 0;
  const auto fake =
      NewFake({{L"Value", 7}},
              BusyAtFirst(std::vector<HRESULT>(1000, static_cast<HRESULT>(0x80010001U)), asked));
  EXPECT_EQ(ErrorOf([&] { FromUnknown(fake.Get()).Get(kValue); }).Number(),
            static_cast<std::int32_t>(0x80010001U));
  EXPECT_GE(asked, 3);
  EXPECT_LE(asked, 8);  // the pauses grow: 10, 20, and what is left of 50 milliseconds
}

TEST(BusyServer, IsAskedOnceWithoutPatience) {
  const Patience patience(L"0");
  int asked = 0;
  const auto fake =
      NewFake({{L"Value", 7}}, BusyAtFirst({static_cast<HRESULT>(0x800AC472U)}, asked));
  EXPECT_EQ(ErrorOf([&] { FromUnknown(fake.Get()).Get(kValue); }).Number(),
            50290);  // 0x800AC472 as callers know it
  EXPECT_EQ(asked, 1);
}

TEST(BusyServer, ExcelsGeneralErrorIsNeverAskedAgain) {
  int asked = 0;
  const auto fake =
      NewFake({{L"Value", 7}}, BusyAtFirst({static_cast<HRESULT>(0x800A03ECU)}, asked));
  EXPECT_EQ(ErrorOf([&] { FromUnknown(fake.Get()).Get(kValue); }).Number(), 1004);
  EXPECT_EQ(asked, 1);
}

TEST(BusyServer, PatienceIsThirtySecondsUnlessSetAndAtMostTenMinutes) {
  EXPECT_EQ(com::PatienceInSeconds(), 30);
  const Patience patience(L"9999");
  EXPECT_EQ(com::PatienceInSeconds(), 600);
}

}  // namespace
}  // namespace rangewerks::tests
