// The bases of collections: of any, and of those whose elements have names.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "hosts/objects/host_object.h"

namespace rangewerks::hosts::objects {

class Collection : public HostObject {
 public:
  /// One element. Raises when there is none.
  virtual Variant GetItem(const Variant& index) const = 0;

 protected:
  virtual Variant GetCount() const = 0;
};

/// A collection itself, or with an index one of its elements: what Workbook.Names and its like are.
Variant AllOrOne(const std::shared_ptr<Collection>& all, const Variant& index);

/// What stands at a position: no element beyond the last one.
struct Slot {
  std::shared_ptr<automation::Dispatch> element;
  std::size_t count = 0;
};

/// The entry at a position from 1, as the object that `make(entry)` makes of it.
template <class Entries, class Make>
Slot SlotIn(const Entries& entries, std::int32_t position, Make make) {
  const bool isThere = position >= 1 && static_cast<std::size_t>(position) <= entries.size();
  if (!isThere) return {nullptr, entries.size()};
  return {make(entries[static_cast<std::size_t>(position) - 1]), entries.size()};
}

/// A walk through all entries as they are now, as the objects that `make(entry)` makes of them.
template <class Entries, class Make>
std::unique_ptr<Enumerator> WalkThrough(const Entries& entries, Make make) {
  std::vector<Variant> elements;
  elements.reserve(entries.size());
  for (const auto& entry : entries) elements.emplace_back(make(entry));
  return std::make_unique<automation::SnapshotEnumerator>(std::move(elements));
}

/// Elements are found by name or by position.
class NamedCollection : public Collection {
 public:
  Variant GetItem(const Variant& index) const final;

 protected:
  /// `element` is what messages call one of them: "sheet".
  explicit NamedCollection(const char* element) : element_(element) {}

  /// The workbook that the elements belong to; empty for those of the program itself.
  virtual std::string BookName() const { return {}; }
  /// Null when there is none.
  virtual std::shared_ptr<automation::Dispatch> Find(const std::string& name) const = 0;
  virtual Slot At(std::int32_t position) const = 0;
  /// What a missing element raises.
  virtual automation::ErrorNumber Missing() const {
    return automation::ErrorNumber::SubscriptOutOfRange;
  }

 private:
  [[noreturn]] void RefuseMissing(const std::string& book, const std::string& which) const;

  const char* element_;
};

}  // namespace rangewerks::hosts::objects
