#include "hosts/objects/collection.h"

namespace rangewerks::hosts::objects {

Variant AllOrOne(const std::shared_ptr<Collection>& all, const Variant& index) {
  return index.IsMissing() ? Variant(all) : all->GetItem(index);
}

Variant NamedCollection::GetItem(const Variant& index) const {
  if (const auto* name = index.TryGet<std::string>()) {
    const auto element = Find(*name);
    if (!element) RefuseMissing(BookName(), " \"" + *name + "\"");
    return Object(element);
  }
  const std::int32_t position = LongArgument(index);
  const Slot slot = At(position);
  if (!slot.element) {
    const std::string book = BookName();
    RefuseMissing(book, " number " + std::to_string(position) +
                            (book.empty() ? " among " : " among its ") +
                            std::to_string(slot.count));
  }
  return Object(slot.element);
}

void NamedCollection::RefuseMissing(const std::string& book, const std::string& which) const {
  const std::string lacking = book.empty() ? "There is no " : "Workbook \"" + book + "\" has no ";
  throw automation::Error(static_cast<std::int32_t>(Missing()), ErrorSource(),
                          lacking + element_ + which);
}

}  // namespace rangewerks::hosts::objects
