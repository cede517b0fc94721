// An interned member name. Names are made once, at start-up; from then on a call by name compares
// numbers.
//
//   const Member kRefersToRange{"RefersToRange"};
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace rangewerks::automation {

/// The name of a property, method, event or named argument. Names that differ only in the case of
/// their letters are the same member, as in every automation language.
///
/// Cheap to copy and compare. The names live as long as the process.
class Member {
 public:
  /// Interns a name. The spelling that was interned first is the one that Name() returns.
  explicit Member(std::string_view name);

  /// The member of that name, if the name has been interned: looking names up interns none.
  static std::optional<Member> TryFind(std::string_view name);

  /// The member of that Id(), if there is one.
  static std::optional<Member> TryFromId(std::uint32_t id);

  /// The member that stands for the object itself: the default property or method.
  static Member Default();

  const std::string& Name() const;
  std::uint32_t Id() const noexcept { return id_; }

  friend bool operator==(Member left, Member right) noexcept { return left.id_ == right.id_; }

 private:
  explicit Member(std::uint32_t id) noexcept : id_(id) {}

  std::uint32_t id_;
};

}  // namespace rangewerks::automation

template <>
struct std::hash<rangewerks::automation::Member> {
  std::size_t operator()(rangewerks::automation::Member member) const noexcept {
    return member.Id();
  }
};
