// The dispatch identifiers under which COM callers know the members of one class.
#pragma once

#include <oaidl.h>
#include <windows.h>

#include <optional>
#include <string>

#include "automation/member_table.h"

namespace rangewerks::com {

/// A class of a type library goes by the identifiers of its member table, and by the positions of
/// its arguments. Others go by the numbers of their interned names; of an object without a table
/// any name is one that it might have.
class MemberIdentifiers {
 public:
  using Member = automation::Member;

  /// `table` may be null and must outlive this; `published` needs one.
  MemberIdentifiers(const automation::MemberTable* table, bool published)
      : table_(table), published_(published) {}

  std::optional<DISPID> OfMember(const std::string& name) const;
  std::optional<DISPID> OfArgument(DISPID member, const std::string& name) const;
  /// The member behind an identifier that OfMember has given, or nothing.
  std::optional<Member> MemberOf(DISPID id) const;
  /// The name of an argument. Raises 448 when the member has no such argument.
  Member ArgumentOf(DISPID member, DISPID argument) const;

 private:
  bool Has(Member member) const;

  const automation::MemberTable* table_;
  bool published_;
};

}  // namespace rangewerks::com
