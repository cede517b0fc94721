#include "hosts/workbook/model_object.h"

namespace rangewerks::hosts::workbook {

Variant ModelObject::Invoke(const Invocation& call) {
  session_->calls.Note(type_, call);
  RequireAlive();
  return Carry(call);
}

std::unique_ptr<Enumerator> ModelObject::Enumerate() {
  session_->calls.NoteWalk(type_);
  RequireAlive();
  return Walk();
}

std::unique_ptr<Enumerator> ModelObject::Walk() {
  throw automation::Error(automation::ErrorNumber::NotACollection);
}

std::string TextArgument(const Variant& value) {
  return ToString(value, automation::Locale::Current());
}

std::int32_t LongArgument(const Variant& value) {
  return ToLong(value, automation::Locale::Current());
}

}  // namespace rangewerks::hosts::workbook
