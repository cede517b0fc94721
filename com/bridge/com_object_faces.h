// The interfaces that a ComObject has beside its dispatch face. Private to this folder.
#pragma once

#include <map>
#include <utility>

#include "com/bridge/com_object.h"

namespace rangewerks::com {

template <class Interface>
struct ComObject::Beside : Interface {
  explicit Beside(ComObject& object) : owner(object) {}
  Beside(const Beside&) = delete;
  Beside& operator=(const Beside&) = delete;
  virtual ~Beside() = default;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) noexcept override {
    return owner.Query(iid, object);
  }
  ULONG STDMETHODCALLTYPE AddRef() noexcept override { return owner.AddReference(); }
  ULONG STDMETHODCALLTYPE Release() noexcept override { return owner.Release(); }

  ComObject& owner;
};

struct ComObject::ErrorSupport final : Beside<ISupportErrorInfo> {
  using Beside::Beside;
  HRESULT STDMETHODCALLTYPE InterfaceSupportsErrorInfo(REFIID iid) noexcept override;
};

struct ComObject::ClassInformation final : Beside<IProvideClassInfo2> {
  using Beside::Beside;
  HRESULT STDMETHODCALLTYPE GetClassInfo(ITypeInfo** type) noexcept override;
  HRESULT STDMETHODCALLTYPE GetGUID(DWORD kind, GUID* guid) noexcept override;
};

/// The container and its one connection point, that of the default source interface.
struct ComObject::ConnectionPoints final : Beside<IConnectionPointContainer> {
  explicit ConnectionPoints(ComObject& object) : Beside(object), point(object) {}
  HRESULT STDMETHODCALLTYPE EnumConnectionPoints(IEnumConnectionPoints** points) noexcept override;
  HRESULT STDMETHODCALLTYPE FindConnectionPoint(REFIID iid,
                                                IConnectionPoint** found) noexcept override;

  struct Point final : IConnectionPoint {
    explicit Point(ComObject& object) : owner(object) {}
    Point(const Point&) = delete;
    Point& operator=(const Point&) = delete;
    virtual ~Point() = default;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) noexcept override;
    ULONG STDMETHODCALLTYPE AddRef() noexcept override { return owner.AddReference(); }
    ULONG STDMETHODCALLTYPE Release() noexcept override { return owner.Release(); }
    HRESULT STDMETHODCALLTYPE GetConnectionInterface(IID* iid) noexcept override;
    HRESULT STDMETHODCALLTYPE
    GetConnectionPointContainer(IConnectionPointContainer** container) noexcept override;
    HRESULT STDMETHODCALLTYPE Advise(IUnknown* sink, DWORD* cookie) noexcept override;
    HRESULT STDMETHODCALLTYPE Unadvise(DWORD cookie) noexcept override;
    HRESULT STDMETHODCALLTYPE EnumConnections(IEnumConnections** connections) noexcept override;

    ComObject& owner;
    std::map<DWORD, automation::Connection> connections;
    DWORD lastCookie = 0;
  } point;
};

}  // namespace rangewerks::com
