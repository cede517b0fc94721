#include "hosts/libreoffice/host_object.h"

#include "hosts/libreoffice/failure.h"

namespace rangewerks::hosts::libreoffice {

Variant HostObject::Invoke(const Invocation& call) {
  try {
    RequireAlive();
    return Carry(call);
  } catch (...) {
    RaiseAsError(TypeName() + "." + call.member.Name());
  }
}

std::unique_ptr<Enumerator> HostObject::Enumerate() {
  try {
    RequireAlive();
    return Walk();
  } catch (...) {
    RaiseAsError("Walking through " + TypeName());
  }
}

std::unique_ptr<Enumerator> HostObject::Walk() {
  throw automation::Error(automation::ErrorNumber::NotACollection);
}

void RequireOpen(const Book& book) {
  if (book.closed) Fail("The workbook has been closed");
}

void RequireThere(const Sheet& sheet) {
  RequireOpen(sheet.OfBook());
  if (sheet.deleted) Fail("The sheet has been deleted");
}

std::string TextArgument(const Variant& value) {
  return ToString(value, automation::Locale::Current());
}

std::int32_t LongArgument(const Variant& value) {
  return ToLong(value, automation::Locale::Current());
}

}  // namespace rangewerks::hosts::libreoffice
