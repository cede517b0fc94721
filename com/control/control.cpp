#include "com/control/control.h"

#include <utility>

#include "com/control/in_place.h"
#include "com/control/in_place_object.h"
#include "com/control/ole_object.h"
#include "com/control/stored_properties.h"
#include "com/control/view_object.h"

namespace rangewerks::com {

namespace {

class Control final : public MoreInterfaces {
 public:
  Control(IUnknown& whole, const automation::Object& core, ControlForm& form,
          ControlDescription description)
      : parts_(whole, core, form, std::move(description)) {
    active_.Serve(inPlace_);
  }

  IUnknown* TryFind(REFIID iid) noexcept override {
    const auto is = [&](REFIID other) { return IsEqualIID(iid, other) != 0; };
    if (is(__uuidof(IOleObject))) return &oleObject_;
    if (is(__uuidof(IOleInPlaceObject)) || is(__uuidof(IOleWindow))) return &inPlaceObject_;
    if (is(__uuidof(IOleInPlaceActiveObject))) return &active_;
    if (is(__uuidof(IOleControl))) return &oleControl_;
    if (is(__uuidof(IViewObject2)) || is(__uuidof(IViewObject))) return &view_;
    if (is(__uuidof(IPersistStreamInit))) return &stream_;
    if (is(__uuidof(IPersistPropertyBag)) || is(__uuidof(IPersist))) return &bag_;
    return nullptr;
  }

 private:
  ControlParts parts_;
  ActiveObject active_{parts_};
  InPlace inPlace_{parts_, active_};
  StoredProperties stored_{parts_};
  OleObject oleObject_{parts_, inPlace_, stored_};
  InPlaceObject inPlaceObject_{parts_, inPlace_};
  OleControl oleControl_{parts_};
  ViewObject view_{parts_};
  PersistStream stream_{parts_, stored_};
  PersistBag bag_{parts_, stored_};
};

}  // namespace

std::unique_ptr<MoreInterfaces> MakeControl(IUnknown& whole, const automation::Object& core,
                                            ControlForm& form, ControlDescription description) {
  return std::make_unique<Control>(whole, core, form, std::move(description));
}

}  // namespace rangewerks::com
