#include "automation/member.h"

#include <deque>
#include <mutex>
#include <unordered_map>

namespace rangewerks::automation {
namespace {

char LowerAscii(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

struct NameTable {
  std::mutex mutex;  // names can be interned from a host's event thread
  std::unordered_map<std::string, std::uint32_t> ids;
  std::deque<std::string> names;  // never moves its elements: Name() hands out references
};

NameTable& Names() {
  static auto* const table = new NameTable;  // outlives every static Member
  return *table;
}

std::string Folded(std::string_view name) {
  std::string folded(name);
  for (char& c : folded) c = LowerAscii(c);
  return folded;
}

std::uint32_t Intern(std::string_view name) {
  std::string folded = Folded(name);
  NameTable& table = Names();
  const std::lock_guard lock(table.mutex);
  const auto [entry, added] =
      table.ids.try_emplace(std::move(folded), static_cast<std::uint32_t>(table.names.size()));
  if (added) table.names.emplace_back(name);
  return entry->second;
}

}  // namespace

Member::Member(std::string_view name) : id_(Intern(name)) {}

std::optional<Member> Member::TryFind(std::string_view name) {
  const std::string folded = Folded(name);
  NameTable& table = Names();
  const std::lock_guard lock(table.mutex);
  const auto found = table.ids.find(folded);
  if (found == table.ids.end()) return std::nullopt;
  return Member(found->second);
}

std::optional<Member> Member::TryFromId(std::uint32_t id) {
  NameTable& table = Names();
  const std::lock_guard lock(table.mutex);
  if (id >= table.names.size()) return std::nullopt;
  return Member(id);
}

Member Member::Default() {
  static const Member member("_Default");
  return member;
}

const std::string& Member::Name() const {
  NameTable& table = Names();
  const std::lock_guard lock(table.mutex);
  return table.names[id_];
}

}  // namespace rangewerks::automation
