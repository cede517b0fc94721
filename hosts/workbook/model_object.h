// The base of the late-bound objects of a workbook in memory.
#pragma once

#include <memory>
#include <string>
#include <utility>

#include "hosts/objects/host_object.h"
#include "hosts/workbook/failure.h"
#include "hosts/workbook/model.h"

namespace rangewerks::hosts::workbook {

using automation::Enumerator;
using automation::Invocation;
using automation::MemberTable;
using automation::Object;
using objects::FaceOf;
using objects::LongArgument;
using objects::Optional;
using objects::TextArgument;

/// An object of that class of the object model, as this host has it: every call passes through the
/// call log. Keeps the whole model alive.
template <class Face = objects::HostObject>
class ModelObject : public Face {
 protected:
  template <class... Arguments>
  explicit ModelObject(SessionPointer session, Arguments&&... arguments)
      : Face(std::forward<Arguments>(arguments)...), session_(std::move(session)) {}

  void Note(const Invocation& call) override { session_->calls.Note(this->Members().Type(), call); }
  void NoteWalk() final { session_->calls.NoteWalk(this->Members().Type()); }
  const char* ErrorSource() const noexcept final { return kSource; }

  const SessionPointer& Shared() const noexcept { return session_; }

 private:
  SessionPointer session_;
};

/// Raises 1004 when the sheet that cells are on has been deleted.
inline void RequireSheetOfRange(const Sheet& sheet) {
  if (sheet.deleted) Refuse("The sheet of this range has been deleted");
}

}  // namespace rangewerks::hosts::workbook
