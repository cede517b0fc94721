#include "automation/object.h"

#include <vector>

#include "automation/dispatch.h"
#include "automation/error.h"

namespace rangewerks::automation {
namespace {

std::span<const Argument> View(std::initializer_list<Argument> arguments) {
  return {arguments.begin(), arguments.size()};
}

}  // namespace

Dispatch& Object::Required() const {
  if (!target_) throw Error(ErrorNumber::ObjectVariableNotSet);
  return *target_;
}

Variant Object::Get(Member member) const {
  return Required().Invoke({member, CallKind::Get, {}, {}});
}

Variant Object::Get(Member member, std::initializer_list<Argument> arguments) const {
  return Required().Invoke({member, CallKind::Get, View(arguments), {}});
}

void Object::Let(Member member, const Variant& value) const {
  const Argument argument(value);
  Required().Invoke({member, CallKind::Let, {&argument, 1}, {}});
}

void Object::Let(Member member, std::initializer_list<Argument> indexes,
                 const Variant& value) const {
  std::vector<Argument> arguments(indexes);
  arguments.emplace_back(value);
  Required().Invoke({member, CallKind::Let, arguments, {}});
}

void Object::Set(Member member, const Object& value) const {
  const Argument argument(value);
  Required().Invoke({member, CallKind::Set, {&argument, 1}, {}});
}

Variant Object::Call(Member member) const {
  return Required().Invoke({member, CallKind::Call, {}, {}});
}

Variant Object::Call(Member member, std::initializer_list<Argument> arguments) const {
  return Required().Invoke({member, CallKind::Call, View(arguments), {}});
}

Variant Object::Call(Member member, std::initializer_list<Argument> arguments,
                     std::initializer_list<NamedArgument> named) const {
  return Required().Invoke(
      {member, CallKind::Call, View(arguments), {named.begin(), named.size()}});
}

std::string Object::TypeName() const { return target_ ? target_->TypeName() : "Nothing"; }

std::unique_ptr<Enumerator> Object::Enumerate() const { return Required().Enumerate(); }

Connection Object::Connect(EventHandler handler) const {
  return Required().Connect(std::move(handler));
}

}  // namespace rangewerks::automation
