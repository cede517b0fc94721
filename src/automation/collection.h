// An ordered collection whose entries can have a key.
//
//   Collection<std::shared_ptr<Thing>> things;
//   things.Add(thing, "key");
//   things.At("KEY") == things.At(1);
//   for (const auto& each : things.Items()) ...
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "automation/conversions.h"
#include "automation/error.h"
#include "automation/text.h"
#include "automation/variant.h"

namespace rangewerks::automation {

/// References in the order of their positions, counted from 1. Keys are unique and compared without
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
    return found == byKey_.end() ? nullptr : &found->second;
  }
  /// The entry at a position (a number) or with a key (a text). Raises 9 for a position out of
  /// range, 5 for an unknown key, and as ToLong does for a value that is neither.
  const Item& At(const Variant& indexKey) const {
    if (const auto* key = indexKey.TryGet<std::string>()) {
      const Item* item = TryAt(*key);
      if (item == nullptr) throw Error(ErrorNumber::InvalidProcedureCall);
      return *item;
    }
    return items_[static_cast<std::size_t>(Position(indexKey))];
  }

  std::int32_t Count() const noexcept { return static_cast<std::int32_t>(items_.size()); }

  /// Takes an entry out; fails as At does.
  void Remove(const Variant& indexKey) {
    const auto* key = indexKey.TryGet<std::string>();
    const std::ptrdiff_t index = key != nullptr ? PositionOfKey(*key) : Position(indexKey);
    const auto place = keys_.begin() + index;
    if (*place) byKey_.erase(**place);
    keys_.erase(place);
    items_.erase(items_.begin() + index);
  }

  /// The entries in their order, for a loop that doesn't change the collection.
  const std::deque<Item>& Items() const noexcept { return items_; }

 private:
  void Insert(std::ptrdiff_t index, Item item, Key key) {
    std::optional<std::string> ownKey;
    if (key) {
      ownKey = std::string(*key);
      if (!byKey_.try_emplace(*ownKey, item).second) throw Error(ErrorNumber::KeyAlreadyExists);
    }
    items_.insert(items_.begin() + index, std::move(item));
    keys_.insert(keys_.begin() + index, std::move(ownKey));
  }

  std::ptrdiff_t PositionOfKey(std::string_view key) const {
    const auto place = std::find_if(keys_.begin(), keys_.end(), [key](const auto& own) {
      return own && FoldedEqual()(*own, key);
    });
    if (place == keys_.end()) throw Error(ErrorNumber::InvalidProcedureCall);
    return place - keys_.begin();
  }

  std::ptrdiff_t Position(const Variant& index) const {
    return Checked(ToLong(index, Locale::Current()));
  }

  std::ptrdiff_t Checked(std::int32_t position) const {
    if (position < 1 || position > Count()) throw Error(ErrorNumber::SubscriptOutOfRange);
    return position - 1;
  }

  // Lists are cleared from the front, which is cheap in a deque.
  std::deque<Item> items_;
  std::deque<std::optional<std::string>> keys_;
  std::unordered_map<std::string, Item, FoldedHash, FoldedEqual> byKey_;
};

}  // namespace rangewerks::automation
