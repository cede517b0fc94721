#include "hosts/objects/host_object.h"

namespace rangewerks::hosts::objects {

using automation::Error;
using automation::ErrorNumber;

Variant HostObject::Invoke(const Invocation& call) {
  try {
    Note(call);
    RequireAlive();
    return Carry(call);
  } catch (...) {
    RaiseAsError(&call);
    throw;
  }
}

std::unique_ptr<Enumerator> HostObject::Enumerate() {
  try {
    NoteWalk();
    RequireAlive();
    return Walk();
  } catch (...) {
    RaiseAsError(nullptr);
    throw;
  }
}

std::unique_ptr<Enumerator> HostObject::Walk() { throw Error(ErrorNumber::NotACollection); }

void HostObject::Refuse(const std::string& description) const {
  throw Error(static_cast<std::int32_t>(ErrorNumber::ApplicationDefined), ErrorSource(),
              description);
}

void HostObject::RefuseElement(const std::string& description) const {
  throw Error(static_cast<std::int32_t>(ErrorNumber::SubscriptOutOfRange), ErrorSource(),
              description);
}

std::string TextArgument(const Variant& value) {
  return ToString(value, automation::Locale::Current());
}

std::int32_t LongArgument(const Variant& value) {
  return ToLong(value, automation::Locale::Current());
}

}  // namespace rangewerks::hosts::objects
