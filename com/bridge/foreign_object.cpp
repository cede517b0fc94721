#include "com/bridge/foreign_object.h"

#include <string_view>

#include "automation/error.h"
#include "com/bridge/busy.h"
#include "com/bridge/enumerators.h"
#include "com/bridge/event_sink.h"
#include "com/bridge/failures.h"
#include "com/bridge/identity.h"
#include "com/bridge/outgoing_arguments.h"
#include "com/bridge/text.h"
#include "com/bridge/type_information.h"
#include "com/bridge/values.h"

namespace rangewerks::com {
namespace {

using automation::CallKind;
using automation::Error;
using automation::ErrorNumber;
using automation::Invocation;

WORD FlagsOf(CallKind kind) {
  switch (kind) {
    case CallKind::Let:
      return DISPATCH_PROPERTYPUT;
    case CallKind::Set:
      return DISPATCH_PROPERTYPUTREF;
    case CallKind::Get:
    case CallKind::Call:
      break;
  }
  // A caller that binds late can't tell a property from a method that takes arguments.
  return DISPATCH_METHOD | DISPATCH_PROPERTYGET;
}

}  // namespace

ForeignObject::~ForeignObject() { ForgetForeign(identity_.Get()); }

IDispatch& ForeignObject::Required() const {
  if (!dispatch_) throw Error(ErrorNumber::MemberNotFound);
  return *dispatch_.Get();
}

/// Carries one call out and raises what it fails with.
void ForeignObject::Carry(DISPID id, WORD flags, DISPPARAMS& parameters, VARIANT* result) const {
  EXCEPINFO exception{};
  const HRESULT answer = AskPatiently([&] {
    exception = EXCEPINFO{};
    UINT badArgument = 0;
    const HRESULT outcome = extended_
                                ? extended_->InvokeEx(id, LOCALE_USER_DEFAULT, flags, &parameters,
                                                      result, &exception, nullptr)
                                : dispatch_->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags,
                                                    &parameters, result, &exception, &badArgument);
    if (outcome != DISP_E_EXCEPTION || !IsBusy(exception.scode)) return outcome;
    SysFreeString(exception.bstrSource);
    SysFreeString(exception.bstrDescription);
    SysFreeString(exception.bstrHelpFile);
    return exception.scode;
  });
  if (FAILED(answer)) throw FailureOf(answer, exception);
}

std::string ForeignObject::TypeName() const {
  const auto information = TypeInformationOf(dispatch_.Get());
  const std::string name = information ? NameOf(*information.Get()) : "Object";
  return name.size() > 1 && name.front() == '_' ? name.substr(1) : name;
}

DISPID ForeignObject::IdentifierOf(Member member) {
  if (member == Member::Default()) return DISPID_VALUE;
  for (const auto& [name, id] : known_) {
    if (name == member) return id;
  }
  std::wstring name = ToWide(member.Name());
  LPOLESTR names = name.data();
  DISPID id = DISPID_UNKNOWN;
  const HRESULT answer = AskPatiently(
      [&] { return Required().GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &id); });
  Require(answer == E_NOTIMPL ? AskExtended(member, id) : answer);
  known_.emplace_back(member, id);
  return id;
}

HRESULT ForeignObject::AskExtended(Member member, DISPID& id) {
  if (!extended_) extended_ = dispatch_.TryQuery<IDispatchEx>();
  if (!extended_) return E_NOTIMPL;
  return extended_->GetDispID(Bstr(member.Name()).Get(), fdexNameCaseInsensitive, &id);
}

void ForeignObject::IdentifyNamed(const Invocation& call, std::vector<DISPID>& names) const {
  std::vector<std::wstring> texts{ToWide(call.member.Name())};
  for (const auto& each : call.named) texts.push_back(ToWide(each.name.Name()));
  std::vector<LPOLESTR> asked;
  asked.reserve(texts.size());
  for (std::wstring& text : texts) asked.push_back(text.data());
  std::vector<DISPID> ids(texts.size(), DISPID_UNKNOWN);
  const HRESULT answer = AskPatiently([&] {
    return Required().GetIDsOfNames(IID_NULL, asked.data(), static_cast<UINT>(asked.size()),
                                    LOCALE_USER_DEFAULT, ids.data());
  });
  if (answer == DISP_E_UNKNOWNNAME && ids.front() != DISPID_UNKNOWN) {
    throw Error(ErrorNumber::NamedArgumentNotFound);
  }
  Require(answer);
  names.assign(ids.begin() + 1, ids.end());
}

automation::Variant ForeignObject::Invoke(const Invocation& call) {
  Required();
  const DISPID id = IdentifierOf(call.member);
  std::vector<DISPID> names;
  if (!call.named.empty()) IdentifyNamed(call, names);
  OutgoingArguments arguments(call, names);
  OwnedVariant result;
  // The references are written back even if the call fails: a member may have assigned before.
  try {
    Carry(id, FlagsOf(call.kind), arguments.Parameters(), Writes(call.kind) ? nullptr : &result);
  } catch (...) {
    arguments.WriteBack();
    throw;
  }
  arguments.WriteBack();
  return FromVariant(*result);
}

std::unique_ptr<automation::Enumerator> ForeignObject::Enumerate() {
  if (!dispatch_) throw Error(ErrorNumber::NotACollection);
  DISPPARAMS none{};
  OwnedVariant result;
  try {
    Carry(DISPID_NEWENUM, DISPATCH_METHOD | DISPATCH_PROPERTYGET, none, &result);
  } catch (const Error& error) {
    if (error.Is(ErrorNumber::MemberNotFound)) throw Error(ErrorNumber::NotACollection);
    throw;
  }
  return WalkOver(*result);
}

automation::Connection ForeignObject::Connect(automation::EventHandler handler) {
  return ConnectSink(identity_, dispatch_, std::move(handler));
}

}  // namespace rangewerks::com
