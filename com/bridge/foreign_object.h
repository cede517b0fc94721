// An object of another program or language, called through its IDispatch: a spreadsheet program's
// sheet, the interface's own caller object.
#pragma once

#include <dispex.h>
#include <oaidl.h>
#include <windows.h>

#include <string>
#include <utility>
#include <vector>

#include "automation/dispatch.h"
#include "com/bridge/owners.h"

namespace rangewerks::com {

/// Made by FromUnknown only, so that one object has one of these at a time.
class ForeignObject final : public automation::Dispatch {
 public:
  using Member = automation::Member;

  /// `dispatch` may be none; then the object has no members.
  ForeignObject(Pointer<IUnknown> identity, Pointer<IDispatch> dispatch)
      : identity_(std::move(identity)), dispatch_(std::move(dispatch)) {}
  ~ForeignObject() override;

  /// The name in its type information without the underscore in front; "Object" without one.
  std::string TypeName() const override;
  /// One call; one more when a member is asked for the first time, to learn its dispatch
  /// identifier. A busy server is asked again.
  automation::Variant Invoke(const automation::Invocation& call) override;
  std::unique_ptr<automation::Enumerator> Enumerate() override;
  /// Connects to the default source interface of the object's class.
  automation::Connection Connect(automation::EventHandler handler) override;

  const Pointer<IUnknown>& Identity() const noexcept { return identity_; }
  const Pointer<IDispatch>& Interface() const noexcept { return dispatch_; }

 private:
  IDispatch& Required() const;
  DISPID IdentifierOf(Member member);
  HRESULT AskExtended(Member member, DISPID& id);
  void Carry(DISPID id, WORD flags, DISPPARAMS& parameters, VARIANT* result) const;
  void IdentifyNamed(const automation::Invocation& call, std::vector<DISPID>& names) const;

  Pointer<IUnknown> identity_;
  Pointer<IDispatch> dispatch_;
  Pointer<IDispatchEx> extended_;  // only where IDispatch knows no names: a class of a script
  std::vector<std::pair<Member, DISPID>> known_;  // few: a walk is quicker than a hash
};

}  // namespace rangewerks::com
