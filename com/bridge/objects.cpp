#include "com/bridge/objects.h"

#include <memory>
#include <mutex>
#include <unordered_map>

#include "automation/dispatch.h"
#include "automation/member_table.h"
#include "com/bridge/com_object.h"
#include "com/bridge/enumerators.h"
#include "com/bridge/foreign_object.h"
#include "com/bridge/identity.h"

namespace rangewerks::com {
namespace {

struct KnownObjects {
  std::mutex mutex;
  std::unordered_map<IUnknown*, std::weak_ptr<ForeignObject>> byIdentity;
};

KnownObjects& Known() {
  static auto* const known = new KnownObjects;  // outlives every object, those in statics too
  return *known;
}

std::shared_ptr<ForeignObject> Foreign(IUnknown* object) {
  auto identity = Pointer(object).TryQuery<IUnknown>(IID_IUnknown);
  if (!identity) identity = Pointer(object);
  KnownObjects& known = Known();
  {
    const std::lock_guard lock(known.mutex);
    const auto found = known.byIdentity.find(identity.Get());
    if (found != known.byIdentity.end()) {
      if (auto alive = found->second.lock()) return alive;
    }
  }
  auto made = std::make_shared<ForeignObject>(identity, identity.TryQuery<IDispatch>());
  const std::lock_guard lock(known.mutex);
  known.byIdentity.insert_or_assign(identity.Get(), made);
  return made;
}

}  // namespace

void ForgetForeign(IUnknown* identity) {
  KnownObjects& known = Known();
  const std::lock_guard lock(known.mutex);
  const auto found = known.byIdentity.find(identity);
  // An object of the same identity may have taken the place already.
  if (found != known.byIdentity.end() && found->second.expired()) known.byIdentity.erase(found);
}

Object FromUnknown(IUnknown* object) {
  if (object == nullptr) return {};
  if (const ComObject* own = ComObject::TryFrom(object)) return own->Core();
  return Foreign(object);
}

Pointer<IDispatch> ToDispatch(const Object& object) {
  if (!object) return {};
  if (const auto foreign = object.As<ForeignObject>()) return foreign->Interface();
  return ComObject::For(object);
}

Pointer<IUnknown> ToUnknown(const Object& object) {
  if (!object) return {};
  if (const auto foreign = object.As<ForeignObject>()) return foreign->Identity();
  if (object.As<automation::EnumeratorObject>()) return NewEnumerator(object);
  return Pointer<IUnknown>(ComObject::For(object).Get());
}

}  // namespace rangewerks::com
