// The base of the late-bound objects of this host.
#pragma once

#include <memory>
#include <string>

#include "automation/member_table.h"
#include "hosts/libreoffice/book.h"

namespace rangewerks::hosts::libreoffice {

using automation::Enumerator;
using automation::Invocation;
using automation::MemberTable;
using automation::Object;
using automation::Variant;

/// Carries calls out by the member table, refuses them on what has been closed or deleted, and
/// turns the office's exceptions into errors that say which member of which object failed.
class HostObject : public automation::AutomationClass {
 public:
  Variant Invoke(const Invocation& call) final;
  std::unique_ptr<Enumerator> Enumerate() final;

 protected:
  explicit HostObject(SessionPointer session) : session_(std::move(session)) {}

  /// The call itself: by the member table, unless overridden.
  virtual Variant Carry(const Invocation& call) { return Members().Invoke(*this, call); }
  /// The walk itself. Raises 451 unless overridden.
  virtual std::unique_ptr<Enumerator> Walk();
  /// Raises 1004 when what the object stands for is there no more.
  virtual void RequireAlive() const {}

  const SessionPointer& Office() const noexcept { return session_; }

 private:
  SessionPointer session_;
};

/// Raises 1004 when the workbook has been closed, or the sheet deleted.
void RequireOpen(const Book& book);
void RequireThere(const Sheet& sheet);

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

}  // namespace rangewerks::hosts::libreoffice
