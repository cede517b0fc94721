// The base of the late-bound objects of a workbook in memory.
#pragma once

#include <memory>

#include "automation/member_table.h"
#include "hosts/workbook/model.h"

namespace rangewerks::hosts::workbook {

using automation::Enumerator;
using automation::Invocation;
using automation::MemberTable;
using automation::Object;

/// Passes every call through the call log before it is carried out, and refuses calls on what has
/// been deleted. Keeps the whole model alive.
class ModelObject : public automation::AutomationClass {
 public:
  Variant Invoke(const Invocation& call) override;
  std::unique_ptr<Enumerator> Enumerate() final;

 protected:
  ModelObject(SessionPointer session, automation::Member type)
      : session_(std::move(session)), type_(type) {}

  /// The call itself: by the member table, unless overridden.
  virtual Variant Carry(const Invocation& call) { return Members().Invoke(*this, call); }
  /// The walk itself. Raises 451 unless overridden.
  virtual std::unique_ptr<Enumerator> Walk();
  /// Raises 1004 when what the object stands for has been deleted.
  virtual void RequireAlive() const {}

  const SessionPointer& Shared() const noexcept { return session_; }

 private:
  SessionPointer session_;
  automation::Member type_;
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

}  // namespace rangewerks::hosts::workbook
