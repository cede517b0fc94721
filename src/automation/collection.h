// An ordered collection whose entries can have a key.
//
//   Collection<std::shared_ptr<Thing>> things;
//   things.Add(thing, "key");
//   things.At("KEY") == things.At(1);
//   for (const auto& each : things.Items()) ...
#pragma once

#include <algorithm>
#include <cstdint>
#include <deque>
#include <memory>
#include <optional>
#include <ranges>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "automation/conversions.h"
#include "automation/error.h"
#include "automation/text.h"
#include "automation/variant.h"

namespace rangewerks::automation {

/// Entries in the order of their positions, counted from 1. Keys are unique and compared without
/// regard to case; an empty key is a key like any other. A failed operation changes nothing.
template <class Item>
class Collection {
 public:
  using Key = std::optional<std::string_view>;

  /// Adds at the end. Raises 457 when the key exists.
  void Add(Item item, Key key = std::nullopt) { Insert(Count(), std::move(item), key); }
  /// Adds before or behind a position. Raises 457 when the key exists, 9 when the position doesn't.
  void AddBefore(std::int32_t position, Item item, Key key = std::nullopt) {
    Insert(Checked(position), std::move(item), key);
  }
  void AddAfter(std::int32_t position, Item item, Key key = std::nullopt) {
    Insert(Checked(position) + 1, std::move(item), key);
  }

  /// The entry with that key, or null.
  const Item* TryAt(std::string_view key) const {
    const auto found = byKey_.find(key);
    return found == byKey_.end() ? nullptr : &found->second->item;
  }
  /// The entry at a position (a number) or with a key (a text). Raises 9 for a position out of
  /// range, 5 for an unknown key, 13 for a value that is neither.
  const Item& At(const Variant& indexKey) const {
    if (const auto* key = indexKey.TryGet<std::string>()) return Keyed(*key)->item;
    return entries_[static_cast<std::size_t>(Position(indexKey))]->item;
  }

  std::int32_t Count() const noexcept { return static_cast<std::int32_t>(entries_.size()); }

  /// Takes an entry out; fails as At does.
  void Remove(const Variant& indexKey) {
    if (const auto* key = indexKey.TryGet<std::string>()) {
      Erase(std::find(entries_.begin(), entries_.end(), Keyed(*key)));
    } else {
      Erase(entries_.begin() + Position(indexKey));
    }
  }

  /// The entries in their order, for a range-for that doesn't change the collection.
  auto Items() const {
    return entries_ | std::views::transform(
                          [](const EntryPointer& entry) -> const Item& { return entry->item; });
  }

 private:
  struct Entry {
    Item item;
    std::optional<std::string> key;
  };
  using EntryPointer = std::shared_ptr<Entry>;
  using Entries =
      std::deque<EntryPointer>;  // cheap to take from the front: lists are cleared there

  void Insert(std::int32_t index, Item item, Key key) {
    auto entry = std::make_shared<Entry>(Entry{std::move(item), std::nullopt});
    if (key) {
      entry->key = std::string(*key);
      if (!byKey_.try_emplace(*entry->key, entry).second) {
        throw Error(ErrorNumber::KeyAlreadyExists);
      }
    }
    entries_.insert(entries_.begin() + index, std::move(entry));
  }

  void Erase(typename Entries::iterator entry) {
    if ((*entry)->key) byKey_.erase(byKey_.find(*(*entry)->key));
    entries_.erase(entry);
  }

  const EntryPointer& Keyed(std::string_view key) const {
    const auto found = byKey_.find(key);
    if (found == byKey_.end()) throw Error(ErrorNumber::InvalidProcedureCall);
    return found->second;
  }

  std::int32_t Position(const Variant& index) const {
    return Checked(ToLong(index, Locale::Current()));
  }

  std::int32_t Checked(std::int32_t position) const {
    if (position < 1 || position > Count()) throw Error(ErrorNumber::SubscriptOutOfRange);
    return position - 1;
  }

  Entries entries_;
  std::unordered_map<std::string, EntryPointer, FoldedHash, FoldedEqual> byKey_;
};

}  // namespace rangewerks::automation
