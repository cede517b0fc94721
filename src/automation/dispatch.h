// The other side of an Object: what answers to members by name.
#pragma once

#include <functional>
#include <memory>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "automation/member.h"
#include "automation/object.h"
#include "automation/variant.h"

namespace rangewerks::automation {

/// What is done to a member.
enum class CallKind {
  Get,   ///< read a property
  Let,   ///< write a property's value
  Set,   ///< make a property refer to an object
  Call,  ///< call a method
};

/// Whether the call's last positional argument is what is written.
constexpr bool Writes(CallKind kind) { return kind == CallKind::Let || kind == CallKind::Set; }

/// "get", "let", "set" or "call".
const char* KindName(CallKind kind);

/// One argument of a call: a value, or a reference to a variable of the caller's that the callee
/// may assign to. A reference must not outlive the call.
class Argument {
 public:
  Argument() : value_(Variant::Missing()) {}
  template <class T>
  requires std::constructible_from<Variant, T> Argument(T&& value)
      : value_(std::forward<T>(value)) {}

  /// An argument that the callee reads from and writes to `variable`.
  static Argument Reference(Variant& variable);
  /// An argument left out.
  static Argument Omitted() { return {}; }

  const Variant& Value() const noexcept { return target_ != nullptr ? *target_ : value_; }
  bool IsReference() const noexcept { return target_ != nullptr; }
  bool IsOmitted() const noexcept { return Value().IsMissing(); }
  /// Writes to the caller's variable; without effect for an argument that was passed by value.
  void Assign(Variant value) const;

 private:
  Variant value_;
  Variant* target_ = nullptr;
};

/// An argument given by the name of its parameter.
struct NamedArgument {
  Member name;
  Argument argument;
};

/// One call by name. For Let and Set the last positional argument is what is written.
struct Invocation {
  Member member;
  CallKind kind;
  std::span<const Argument> positional;
  std::span<const NamedArgument> named;
};

/// A walk over the elements of a collection, in its order. What is removed during the walk doesn't
/// disturb it.
class Enumerator {
 public:
  virtual ~Enumerator() = default;
  /// Moves to the next element. False, with `element` untouched, at the end.
  virtual bool Next(Variant& element) = 0;
};

/// A walk over values collected beforehand.
class SnapshotEnumerator final : public Enumerator {
 public:
  explicit SnapshotEnumerator(std::vector<Variant> elements) : elements_(std::move(elements)) {}
  bool Next(Variant& element) override;

 private:
  std::vector<Variant> elements_;
  std::size_t position_ = 0;
};

/// Anything that answers to members by name at run time. Lives as long as an Object refers to it,
/// so it is always made with std::make_shared.
class Dispatch : public std::enable_shared_from_this<Dispatch> {
 public:
  Dispatch() = default;
  Dispatch(const Dispatch&) = delete;
  Dispatch& operator=(const Dispatch&) = delete;
  virtual ~Dispatch() = default;

  /// The class name reported to callers.
  virtual std::string TypeName() const = 0;
  /// Carries out one call and returns its result, empty when it has none. Raises 438 for a member
  /// that the object lacks.
  virtual Variant Invoke(const Invocation& call) = 0;
  /// Starts a walk over the elements. Raises 451 unless overridden.
  virtual std::unique_ptr<Enumerator> Enumerate();
  /// Connects a handler to the events. Raises 459 unless overridden.
  virtual Connection Connect(EventHandler handler);

  /// A reference to this object.
  Object Self() { return {shared_from_this()}; }
};

/// The handlers connected to one object.
class EventSource {
 public:
  Connection Connect(EventHandler handler);
  /// Calls each connected handler once, in the order of connecting. A handler may disconnect.
  void Raise(Member event, std::span<const Argument> arguments) const;

 private:
  friend class Connection;
  struct Handlers;
  std::shared_ptr<Handlers> handlers_;
};

/// Keeps a handler connected for as long as it lives. It may outlive the source.
class Connection {
 public:
  Connection() = default;
  explicit Connection(std::function<void()> disconnect) : disconnect_(std::move(disconnect)) {}
  Connection(Connection&& other) noexcept : disconnect_(std::exchange(other.disconnect_, {})) {}
  Connection& operator=(Connection&& other) noexcept;
  ~Connection() { Disconnect(); }
  void Disconnect();

 private:
  std::function<void()> disconnect_;
};

}  // namespace rangewerks::automation
