// A reference to an object whose members are called by name at run time.
//
//   Object sheet = ...;
//   Object area = sheet.Get(kRange, {"A1:A3"}).AsObject();
//   area.Let(kValue, 12.5);
#pragma once

#include <concepts>
#include <functional>
#include <initializer_list>

#include <memory>
#include <span>
#include <string>

#include "automation/member.h"

namespace rangewerks::automation {

class Argument;
class Connection;
class Dispatch;
class Enumerator;
class Variant;
struct NamedArgument;

/// Receives the events of an object, once for each event, on the thread that raises it.
using EventHandler = std::function<void(Member event, std::span<const Argument> arguments)>;

/// A shared reference to a late-bound object, or to none. Two references are equal when they refer
/// to the same object. A call on a reference to none raises error 91; an unknown member raises 438.
class Object {
 public:
  Object() = default;
  Object(std::shared_ptr<Dispatch> target) : target_(std::move(target)) {}
  template <class T>
  requires std::derived_from<T, Dispatch> Object(std::shared_ptr<T> target)
      : target_(std::move(target)) {}

  explicit operator bool() const noexcept { return target_ != nullptr; }
  friend bool operator==(const Object& left, const Object& right) noexcept {
    return left.target_ == right.target_;
  }

  /// Reads a property.
  Variant Get(Member member) const;
  Variant Get(Member member, std::initializer_list<Argument> arguments) const;
  /// Writes a property's value; the index arguments of the property come first.
  void Let(Member member, const Variant& value) const;
  void Let(Member member, std::initializer_list<Argument> indexes, const Variant& value) const;
  /// Makes a property refer to an object.
  void Set(Member member, const Object& value) const;
  /// Calls a method.
  Variant Call(Member member) const;
  Variant Call(Member member, std::initializer_list<Argument> arguments) const;
  Variant Call(Member member, std::initializer_list<Argument> arguments,
               std::initializer_list<NamedArgument> named) const;

  /// The class name that the object reports, such as "Range"; "Nothing" for a reference to none.
  std::string TypeName() const;
  /// A walk over the elements of a collection object. Raises 451 when the object is none.
  std::unique_ptr<Enumerator> Enumerate() const;
  /// Connects a handler to the object's events until the connection is dropped. Raises 459 when the
  /// object has none.
  Connection Connect(EventHandler handler) const;

  Dispatch* Target() const noexcept { return target_.get(); }
  const std::shared_ptr<Dispatch>& Share() const noexcept { return target_; }

  /// The object as one of the library's own classes, or null when it is something else or none.
  template <class T>
  std::shared_ptr<T> As() const {
    return std::dynamic_pointer_cast<T>(target_);
  }

 private:
  Dispatch& Required() const;

  std::shared_ptr<Dispatch> target_;
};

}  // namespace rangewerks::automation
