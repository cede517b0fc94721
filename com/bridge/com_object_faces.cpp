#include "com/bridge/com_object_faces.h"

#include <olectl.h>

#include <span>
#include <vector>

#include "com/bridge/counted.h"
#include "com/bridge/failures.h"
#include "com/bridge/text.h"
#include "com/bridge/type_information.h"
#include "com/bridge/values.h"

namespace rangewerks::com {
namespace {

using automation::Argument;
using automation::Member;

/// The arguments of an event, as IDispatch wants them; those that the raiser refers to by
/// reference, so that a listener can assign to them.
class EventArguments {
 public:
  explicit EventArguments(std::span<const Argument> arguments)
      : arguments_(arguments), contents_(arguments.size()), values_(arguments.size()) {
    for (std::size_t i = 0; i < arguments.size(); ++i) {
      VariantInit(&contents_[i]);
      ToVariant(arguments[i].Value(), contents_[i]);
      VARIANT& value = values_[arguments.size() - 1 - i];
      value = contents_[i];
      if (!arguments[i].IsReference()) continue;
      // The argument of a handler has a type, and a reference to that type is what it takes.
      VARTYPE type = V_VT(&contents_[i]);
      void* place = &V_BYREF(&contents_[i]);
      if (type == VT_EMPTY || type == VT_NULL) {
        type = VT_VARIANT;
        place = &contents_[i];
      }
      V_VT(&value) = static_cast<VARTYPE>(VT_BYREF | type);
      V_BYREF(&value) = place;
    }
  }
  EventArguments(const EventArguments&) = delete;
  EventArguments& operator=(const EventArguments&) = delete;
  ~EventArguments() {
    for (VARIANT& content : contents_) VariantClear(&content);
  }

  DISPPARAMS Parameters() {
    return {values_.data(), nullptr, static_cast<UINT>(values_.size()), 0};
  }
  void WriteBack() const {
    for (std::size_t i = 0; i < contents_.size(); ++i) {
      if (arguments_[i].IsReference()) arguments_[i].Assign(FromVariant(contents_[i]));
    }
  }

 private:
  std::span<const Argument> arguments_;
  std::vector<VARIANT> contents_;
  std::vector<VARIANT> values_;
};

/// Tells one listener of one event. A listener that fails or doesn't know the event is no failure
/// of the object.
void Tell(IDispatch& listener, ITypeInfo& source, Member event,
          std::span<const Argument> arguments) {
  std::wstring name = ToWide(event.Name());
  LPOLESTR names = name.data();
  MEMBERID id = DISPID_UNKNOWN;
  if (FAILED(source.GetIDsOfNames(&names, 1, &id))) return;
  EventArguments given(arguments);
  DISPPARAMS parameters = given.Parameters();
  if (SUCCEEDED(listener.Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters,
                                nullptr, nullptr, nullptr))) {
    given.WriteBack();
  }
}

/// Enumerates the only connection point that there is.
class OnePoint final : public Counted<IEnumConnectionPoints> {
 public:
  OnePoint(Pointer<IConnectionPoint> point, bool passed)
      : point_(std::move(point)), passed_(passed) {}

  HRESULT STDMETHODCALLTYPE Next(ULONG count, IConnectionPoint** points,
                                 ULONG* fetched) noexcept override {
    if (points == nullptr || (fetched == nullptr && count > 1)) return E_POINTER;
    const ULONG given = passed_ || count == 0 ? 0 : 1;
    if (given == 1) points[0] = Pointer(point_).Detach();
    passed_ = passed_ || given == 1;
    if (fetched != nullptr) *fetched = given;
    return given == count ? S_OK : S_FALSE;
  }
  HRESULT STDMETHODCALLTYPE Skip(ULONG count) noexcept override {
    const ULONG left = passed_ ? 0 : 1;
    passed_ = passed_ || count > 0;
    return count <= left ? S_OK : S_FALSE;
  }
  HRESULT STDMETHODCALLTYPE Reset() noexcept override {
    passed_ = false;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE Clone(IEnumConnectionPoints** copy) noexcept override {
    if (copy == nullptr) return E_POINTER;
    *copy = new (std::nothrow) OnePoint(point_, passed_);
    return *copy == nullptr ? E_OUTOFMEMORY : S_OK;
  }

 private:
  Pointer<IConnectionPoint> point_;
  bool passed_;
};

}  // namespace

HRESULT ComObject::ErrorSupport::InterfaceSupportsErrorInfo(REFIID iid) noexcept {
  const bool dual = owner.published_ != nullptr && IsEqualIID(iid, owner.published_->iid) != 0;
  return dual || IsEqualIID(iid, __uuidof(IDispatch)) != 0 ? S_OK : S_FALSE;
}

HRESULT ComObject::ClassInformation::GetClassInfo(ITypeInfo** type) noexcept {
  if (type == nullptr) return E_POINTER;
  *type = Pointer(owner.published_->type).Detach();
  return S_OK;
}

HRESULT ComObject::ClassInformation::GetGUID(DWORD kind, GUID* guid) noexcept {
  if (guid == nullptr) return E_POINTER;
  *guid = GUID_NULL;
  if (kind != GUIDKIND_DEFAULT_SOURCE_DISP_IID) return E_INVALIDARG;
  if (!owner.published_->source) return E_UNEXPECTED;
  *guid = IdentifierOf(*owner.published_->source.Get());
  return S_OK;
}

HRESULT ComObject::ConnectionPoints::EnumConnectionPoints(IEnumConnectionPoints** points) noexcept {
  if (points == nullptr) return E_POINTER;
  *points = new (std::nothrow) OnePoint(Pointer<IConnectionPoint>(&point), false);
  return *points == nullptr ? E_OUTOFMEMORY : S_OK;
}

HRESULT ComObject::ConnectionPoints::FindConnectionPoint(REFIID iid,
                                                         IConnectionPoint** found) noexcept {
  if (found == nullptr) return E_POINTER;
  *found = nullptr;
  if (IsEqualIID(iid, IdentifierOf(*owner.published_->source.Get())) == 0) {
    return CONNECT_E_NOCONNECTION;
  }
  *found = Pointer<IConnectionPoint>(&point).Detach();
  return S_OK;
}

// The point is an object of its own: asked for its container's interfaces it has none.
HRESULT ComObject::ConnectionPoints::Point::QueryInterface(REFIID iid, void** object) noexcept {
  if (object == nullptr) return E_POINTER;
  const bool known =
      IsEqualIID(iid, IID_IUnknown) != 0 || IsEqualIID(iid, __uuidof(IConnectionPoint)) != 0;
  *object = known ? static_cast<IConnectionPoint*>(this) : nullptr;
  if (!known) return E_NOINTERFACE;
  AddRef();
  return S_OK;
}

HRESULT ComObject::ConnectionPoints::Point::GetConnectionInterface(IID* iid) noexcept {
  if (iid == nullptr) return E_POINTER;
  *iid = IdentifierOf(*owner.published_->source.Get());
  return S_OK;
}

HRESULT ComObject::ConnectionPoints::Point::GetConnectionPointContainer(
    IConnectionPointContainer** container) noexcept {
  return owner.Query(__uuidof(IConnectionPointContainer), reinterpret_cast<void**>(container));
}

HRESULT ComObject::ConnectionPoints::Point::Advise(IUnknown* sink, DWORD* cookie) noexcept {
  if (sink == nullptr || cookie == nullptr) return E_POINTER;
  *cookie = 0;
  const Pointer<ITypeInfo>& source = owner.published_->source;
  Pointer<IDispatch> listener = Pointer(sink).TryQuery<IDispatch>(IdentifierOf(*source.Get()));
  if (!listener) listener = Pointer(sink).TryQuery<IDispatch>();
  if (!listener) return CONNECT_E_CANNOTCONNECT;
  try {
    auto connection =
        owner.core_.Connect([listener, source](Member event, std::span<const Argument> arguments) {
          Tell(*listener.Get(), *source.Get(), event, arguments);
        });
    connections.emplace(++lastCookie, std::move(connection));
    *cookie = lastCookie;
    return S_OK;
  } catch (...) {
    return ReportCurrentException();
  }
}

HRESULT ComObject::ConnectionPoints::Point::Unadvise(DWORD cookie) noexcept {
  return connections.erase(cookie) == 1 ? S_OK : CONNECT_E_NOCONNECTION;
}

HRESULT ComObject::ConnectionPoints::Point::EnumConnections(
    IEnumConnections** connectionList) noexcept {
  if (connectionList != nullptr) *connectionList = nullptr;
  return E_NOTIMPL;  // allowed; nobody but the listeners has a use for it
}

}  // namespace rangewerks::com
