// What the interfaces of a control share. Private to this folder.
#pragma once

#include <oleidl.h>
#include <windows.h>

#include <utility>

#include "com/bridge/failures.h"
#include "com/bridge/owners.h"
#include "com/control/control.h"

namespace rangewerks::com {

/// One interface of the control; they share the whole object's reference count.
template <class Interface>
class Face : public Interface {
 public:
  Face(const Face&) = delete;
  Face& operator=(const Face&) = delete;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) noexcept override {
    return whole_.QueryInterface(iid, object);
  }
  ULONG STDMETHODCALLTYPE AddRef() noexcept override { return whole_.AddRef(); }
  ULONG STDMETHODCALLTYPE Release() noexcept override { return whole_.Release(); }

 protected:
  explicit Face(IUnknown& whole) : whole_(whole) {}
  ~Face() = default;

 private:
  IUnknown& whole_;
};

/// Carries out what may throw, and returns its result, or its failure with an error object.
template <class Action>
HRESULT Guarded(const Action& action) noexcept {
  try {
    return action();
  } catch (...) {
    return ReportCurrentException();
  }
}

/// Lengths of COM, in hundredths of a millimetre, and those of forms.
inline LONG HimetricOf(double twips) { return static_cast<LONG>(twips * 2540 / 1440 + 0.5); }
inline double TwipsOf(LONG himetric) { return himetric * 1440.0 / 2540; }

/// Who wants to know that the control looks different.
struct ViewListener {
  Pointer<IAdviseSink> sink{};
  DWORD aspects = 0;
  DWORD flags = 0;
};

struct ControlParts {
  ControlParts(IUnknown& wholeObject, const automation::Object& members, ControlForm& window,
               ControlDescription described)
      : whole(wholeObject), core(members), form(window), description(std::move(described)) {
    extent = {HimetricOf(form.Design().innerWidth), HimetricOf(form.Design().innerHeight)};
  }

  /// Tells the view's listener that the control looks different.
  void ViewChanged() {
    const Pointer<IAdviseSink> sink = view.sink;
    if (!sink || (view.aspects & DVASPECT_CONTENT) == 0) return;
    if ((view.flags & ADVF_ONLYONCE) != 0) view = {};
    sink->OnViewChange(DVASPECT_CONTENT, -1);
  }
  /// Gives the form the size of the control, which its container has set.
  void ApplyExtent() {
    form.Move({form.get_Left(), form.get_Top(), TwipsOf(extent.cx), TwipsOf(extent.cy)});
  }

  IUnknown& whole;
  const automation::Object& core;
  ControlForm& form;
  const ControlDescription description;
  SIZEL extent{};
  Pointer<IOleClientSite> site{};
  ViewListener view{};
};

}  // namespace rangewerks::com
