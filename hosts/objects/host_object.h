// The base of the late-bound objects of every host.
#pragma once

#include <memory>
#include <string>

#include "automation/member_table.h"

namespace rangewerks::hosts::objects {

using automation::Enumerator;
using automation::Invocation;
using automation::MemberTable;
using automation::Object;
using automation::Variant;

/// Carries every call out by the member table, once its host has seen the call and what it is made
/// on is still there. The classes of this folder declare the members; a host derives from each and
/// does what is left to it.
class HostObject : public automation::AutomationClass {
 public:
  Variant Invoke(const Invocation& call) final;
  std::unique_ptr<Enumerator> Enumerate() final;

 protected:
  /// The call itself: by the member table, unless overridden.
  virtual Variant Carry(const Invocation& call) { return Members().Invoke(*this, call); }
  /// The walk itself. Raises 451 unless overridden.
  virtual std::unique_ptr<Enumerator> Walk();
  /// Raises 1004 when what the object stands for is there no more.
  virtual void RequireAlive() const {}

  // --- what a host does with all calls -----------------------------------------------------------

  /// Sees a call, or a walk, before anything else is done about it.
  virtual void Note(const Invocation& /*call*/) {}
  virtual void NoteWalk() {}
  /// Called from a catch block: raises what a call, or without one a walk, has raised as the error
  /// that it stands for. Does nothing about what is an error already.
  virtual void RaiseAsError(const Invocation* /*call*/) const {}
  /// The source of the errors that are raised here.
  virtual const char* ErrorSource() const noexcept = 0;

  /// Raises 1004 with those words: what was asked for and where, and what stands in its way.
  [[noreturn]] void Refuse(const std::string& description) const;
  /// Raises 9, for an element that a collection lacks.
  [[noreturn]] void RefuseElement(const std::string& description) const;
};

/// The object that stands for an entry of the model: the one that `face` still knows, or a new one
/// made by `make()`.
template <class T, class Make>
std::shared_ptr<T> FaceOf(std::weak_ptr<automation::Dispatch>& face, Make make) {
  if (const auto known = face.lock()) return std::static_pointer_cast<T>(known);
  std::shared_ptr<T> made = make();
  face = made;
  return made;
}

/// An optional argument's value in a member table.
inline automation::Parameter Optional(std::string_view name) { return {name, Variant::Missing()}; }

/// A text or a number given as an argument, converted as every automation call converts it.
std::string TextArgument(const Variant& value);
std::int32_t LongArgument(const Variant& value);

}  // namespace rangewerks::hosts::objects
