// How COM sees an object of the library, or of one of our hosts.
#pragma once

#include <oaidl.h>
#include <ocidl.h>
#include <windows.h>

#include <atomic>
#include <memory>

#include "automation/member_table.h"
#include "automation/object.h"
#include "com/bridge/dual_interface.h"
#include "com/bridge/member_identifiers.h"
#include "com/bridge/owners.h"
#include "com/module/module.h"

namespace rangewerks::com {

class ConnectionPoint;

/// One for each object that COM holds; lives as long as COM holds a reference, and keeps the object
/// alive. Answers to IUnknown, IDispatch and the dual interface of a published class through one
/// pointer, to ISupportErrorInfo, IProvideClassInfo2 and IConnectionPointContainer, and to what its
/// class has beside these.
class ComObject {
 public:
  /// The one of that object, which COM may hold already. `object` isn't none and not foreign.
  static Pointer<IDispatch> For(const Object& object);
  /// The one behind an interface pointer to IUnknown or IDispatch, or null when it is of another
  /// making.
  static const ComObject* TryFrom(IUnknown* object);

  ComObject(const ComObject&) = delete;
  ComObject& operator=(const ComObject&) = delete;

  const Object& Core() const noexcept { return core_; }
  const DualInterface* Published() const noexcept { return published_; }
  /// The member table; null for an object without one.
  const automation::MemberTable* Table() const noexcept { return table_; }

  HRESULT Query(REFIID iid, void** object) noexcept;
  ULONG AddReference() noexcept { return ++references_; }
  ULONG Release() noexcept;

  HRESULT TypeInformation(UINT index, ITypeInfo** information) const noexcept;
  HRESULT Identify(LPOLESTR* names, UINT count, DISPID* ids) const noexcept;
  HRESULT Invoke(DISPID id, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                 EXCEPINFO* exception) const noexcept;

 private:
  explicit ComObject(Object core);
  ~ComObject();

  IDispatch* Dispatch() noexcept { return reinterpret_cast<IDispatch*>(&face_); }
  bool TryAddReference() noexcept;
  /// One of the class's own interfaces beside the dual one.
  IUnknown* TryFindMore(REFIID iid) noexcept;
  automation::CallKind KindOf(automation::Member member, WORD flags,
                              const DISPPARAMS& parameters) const;

  /// One of the interfaces beside the dispatch face; they share the object's reference count.
  template <class Interface>
  struct Beside;
  struct ErrorSupport;
  struct ClassInformation;
  struct ConnectionPoints;

  ModuleLock lock_;
  DispatchFace face_;
  std::atomic<ULONG> references_ = 1;
  Object core_;
  const automation::MemberTable* table_;
  const DualInterface* published_;
  MemberIdentifiers identifiers_;
  std::unique_ptr<ErrorSupport> errorSupport_;
  std::unique_ptr<ClassInformation> classInformation_;
  std::unique_ptr<ConnectionPoints> connectionPoints_;
  std::unique_ptr<MoreInterfaces> more_;
};

}  // namespace rangewerks::com
