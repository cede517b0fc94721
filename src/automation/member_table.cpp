#include "automation/member_table.h"

namespace rangewerks::automation {
namespace {

constexpr std::size_t kMostArguments = 16;

std::size_t Slot(CallKind kind) { return static_cast<std::size_t>(kind); }

std::size_t PositionOf(const MemberInfo& entry, Member name) {
  for (std::size_t i = 0; i < entry.arguments.size(); ++i) {
    if (entry.arguments[i].name == name) return i;
  }
  throw Error(ErrorNumber::NamedArgumentNotFound);
}

}  // namespace

void MemberTable::Append(MemberInfo entry) {
  const std::size_t place = entries_.size() + 1;
  byName_[entry.name].at(Slot(entry.kind)) = place;
  if (entry.id == kDefaultMemberId) byName_[Member::Default()].at(Slot(entry.kind)) = place;
  entries_.push_back(std::move(entry));
}

const MemberInfo& MemberTable::Find(const Invocation& call) const {
  const auto found = byName_.find(call.member);
  if (found == byName_.end()) throw Error(ErrorNumber::MemberNotFound);
  const auto& roles = found->second;
  std::size_t place = roles.at(Slot(call.kind));
  if (place == 0 && !Writes(call.kind)) {
    // Late-bound callers can't tell a property from a method that takes arguments.
    place = roles.at(Slot(call.kind == CallKind::Get ? CallKind::Call : CallKind::Get));
  }
  if (place == 0) throw Error(ErrorNumber::MemberNotFound);
  return entries_[place - 1];
}

const MemberInfo* MemberTable::TryFind(Member member, CallKind kind) const {
  const auto found = byName_.find(member);
  const std::size_t place = found == byName_.end() ? 0 : found->second.at(Slot(kind));
  return place == 0 ? nullptr : &entries_[place - 1];
}

Variant MemberTable::Invoke(Dispatch& self, const Invocation& call) const {
  return Invoke(self, Find(call), call.positional, call.named);
}

Variant MemberTable::Invoke(Dispatch& self, const MemberInfo& entry,
                            std::span<const Argument> positional,
                            std::span<const NamedArgument> namedArguments) {
  const std::size_t declared = entry.arguments.size();
  const std::size_t count = declared + (Writes(entry.kind) ? 1 : 0);
  if (positional.size() > count || count > kMostArguments) {
    throw Error(ErrorNumber::WrongNumberOfArguments);
  }

  std::array<const Argument*, kMostArguments> placed{};
  for (std::size_t i = 0; i < positional.size(); ++i) placed.at(i) = &positional[i];
  for (const NamedArgument& named : namedArguments) {
    const Argument*& place = placed.at(PositionOf(entry, named.name));
    if (place != nullptr) throw Error(ErrorNumber::WrongNumberOfArguments);
    place = &named.argument;
  }

  std::array<Argument, kMostArguments> defaults;
  for (std::size_t i = 0; i < count; ++i) {
    if (placed.at(i) != nullptr && !placed.at(i)->IsOmitted()) continue;
    if (i >= declared || !entry.arguments[i].defaultValue) {
      throw Error(ErrorNumber::ArgumentNotOptional);
    }
    defaults.at(i) = Argument(*entry.arguments[i].defaultValue);
    placed.at(i) = &defaults.at(i);
  }
  return entry.invoke(self, {placed.data(), count});
}

}  // namespace rangewerks::automation
