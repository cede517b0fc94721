#include "com/bridge/dual_slots.h"

#include "com/bridge/com_object.h"
#include "com/bridge/failures.h"

namespace rangewerks::com {
namespace {

// The functions of IUnknown and IDispatch, the same for every object.

HRESULT STDMETHODCALLTYPE QueryInterface(DispatchFace* self, REFIID iid, void** object) noexcept {
  return self->owner->Query(iid, object);
}

ULONG STDMETHODCALLTYPE AddRef(DispatchFace* self) noexcept { return self->owner->AddReference(); }

ULONG STDMETHODCALLTYPE Release(DispatchFace* self) noexcept { return self->owner->Release(); }

HRESULT STDMETHODCALLTYPE GetTypeInfoCount(DispatchFace* /*self*/, UINT* count) noexcept {
  if (count == nullptr) return E_POINTER;
  *count = 1;
  return S_OK;
}

HRESULT STDMETHODCALLTYPE GetTypeInfo(DispatchFace* self, UINT index, LCID /*locale*/,
                                      ITypeInfo** information) noexcept {
  return self->owner->TypeInformation(index, information);
}

HRESULT STDMETHODCALLTYPE GetIDsOfNames(DispatchFace* self, REFIID /*reserved*/, LPOLESTR* names,
                                        UINT count, LCID /*locale*/, DISPID* ids) noexcept {
  return self->owner->Identify(names, count, ids);
}

HRESULT STDMETHODCALLTYPE Invoke(DispatchFace* self, DISPID id, REFIID /*reserved*/,
                                 LCID /*locale*/, WORD flags, DISPPARAMS* parameters,
                                 VARIANT* result, EXCEPINFO* exception,
                                 UINT* /*badArgument*/) noexcept {
  return self->owner->Invoke(id, flags, parameters, result, exception);
}

template <class Function>
const void* Address(Function* function) {
  return reinterpret_cast<const void*>(function);
}

}  // namespace

std::vector<const void*> DispatchSlots() {
  return {Address(&QueryInterface), Address(&AddRef),
          Address(&Release),        Address(&GetTypeInfoCount),
          Address(&GetTypeInfo),    Address(&GetIDsOfNames),
          Address(&Invoke)};
}

namespace detail {

const MemberInfo& EntryOf(const DispatchFace& face, std::size_t slot) {
  return face.owner->Table()->Entries().at(slot);
}

Variant Carry(const DispatchFace& face, const MemberInfo& entry,
              std::span<const Argument> arguments) {
  return automation::MemberTable::Invoke(*face.owner->Core().Target(), entry, arguments, {});
}

HRESULT ReportFailure() noexcept { return ReportCurrentException(); }

}  // namespace detail
}  // namespace rangewerks::com
