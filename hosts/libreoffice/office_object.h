// The base of the late-bound objects of this host.
#pragma once

#include <memory>
#include <string>
#include <utility>

#include "hosts/libreoffice/book.h"
#include "hosts/libreoffice/failure.h"
#include "hosts/objects/host_object.h"

namespace rangewerks::hosts::libreoffice {

using automation::Enumerator;
using automation::Invocation;
using automation::MemberTable;
using automation::Object;
using automation::Variant;
using objects::FaceOf;
using objects::LongArgument;
using objects::Optional;
using objects::TextArgument;

/// An object of that class of the object model, as this host has it: the office's exceptions become
/// errors that say which member of which object failed.
template <class Face = objects::HostObject>
class OfficeObject : public Face {
 protected:
  template <class... Arguments>
  explicit OfficeObject(SessionPointer session, Arguments&&... arguments)
      : Face(std::forward<Arguments>(arguments)...), session_(std::move(session)) {}

  void RaiseAsError(const Invocation* call) const final {
    libreoffice::RaiseAsError(call != nullptr ? this->TypeName() + "." + call->member.Name()
                                              : "Walking through " + this->TypeName());
  }
  const char* ErrorSource() const noexcept final { return kErrorSource; }

  const SessionPointer& Office() const noexcept { return session_; }

 private:
  SessionPointer session_;
};

/// Raises 1004 when the workbook has been closed, or the sheet deleted.
void RequireOpen(const Book& book);
void RequireThere(const Sheet& sheet);

}  // namespace rangewerks::hosts::libreoffice
