#include "com/bridge/member_identifiers.h"

#include "automation/error.h"

namespace rangewerks::com {
namespace {

using automation::CallKind;
using automation::Error;
using automation::ErrorNumber;
using automation::MemberInfo;

constexpr DISPID kFirstName = 0x10000;  // keeps clear of the identifiers with a fixed meaning

DISPID IdOfName(automation::Member name) { return kFirstName + static_cast<DISPID>(name.Id()); }

}  // namespace

bool MemberIdentifiers::Has(Member member) const {
  if (table_ == nullptr) return true;
  for (const auto kind : {CallKind::Get, CallKind::Let, CallKind::Set, CallKind::Call}) {
    if (table_->TryFind(member, kind) != nullptr) return true;
  }
  return false;
}

std::optional<DISPID> MemberIdentifiers::OfMember(const std::string& name) const {
  static const Member kNewEnum{"_NewEnum"};
  const auto known = table_ == nullptr ? Member(name) : Member::TryFind(name);
  if (!known) return std::nullopt;
  if (*known == kNewEnum) return DISPID_NEWENUM;
  if (published_) {
    for (const MemberInfo& entry : table_->Entries()) {
      if (entry.name == *known) return entry.id;
    }
    return std::nullopt;
  }
  if (*known == Member::Default()) return DISPID_VALUE;
  if (!Has(*known)) return std::nullopt;
  return IdOfName(*known);
}

std::optional<DISPID> MemberIdentifiers::OfArgument(DISPID member, const std::string& name) const {
  const auto known = table_ == nullptr ? Member(name) : Member::TryFind(name);
  if (!known) return std::nullopt;
  if (!published_) return IdOfName(*known);
  for (const MemberInfo& entry : table_->Entries()) {
    if (entry.id != member) continue;
    for (std::size_t i = 0; i < entry.arguments.size(); ++i) {
      if (entry.arguments[i].name == *known) return static_cast<DISPID>(i);
    }
  }
  return std::nullopt;
}

std::optional<automation::Member> MemberIdentifiers::MemberOf(DISPID id) const {
  if (id == DISPID_VALUE) return Member::Default();
  if (published_) {
    for (const MemberInfo& entry : table_->Entries()) {
      if (entry.id == id) return entry.name;
    }
    return std::nullopt;
  }
  if (id < kFirstName) return std::nullopt;
  const auto member = Member::TryFromId(static_cast<std::uint32_t>(id - kFirstName));
  return member && Has(*member) ? member : std::nullopt;
}

automation::Member MemberIdentifiers::ArgumentOf(DISPID member, DISPID argument) const {
  if (!published_) {
    const auto name = argument < kFirstName
                          ? std::nullopt
                          : Member::TryFromId(static_cast<std::uint32_t>(argument - kFirstName));
    if (!name) throw Error(ErrorNumber::NamedArgumentNotFound);
    return *name;
  }
  for (const MemberInfo& entry : table_->Entries()) {
    if (entry.id == member && argument >= 0 &&
        static_cast<std::size_t>(argument) < entry.arguments.size()) {
      return entry.arguments[static_cast<std::size_t>(argument)].name;
    }
  }
  throw Error(ErrorNumber::NamedArgumentNotFound);
}

}  // namespace rangewerks::com
