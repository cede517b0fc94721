#include "hosts/workbook/menus.h"

#include "hosts/common/captions.h"
#include "hosts/workbook/failure.h"
#include "hosts/workbook/model_object.h"

namespace rangewerks::hosts::workbook {
namespace {

using automation::Variant;

MenuBarPointer BarOf(std::string name, std::initializer_list<const char*> captions) {
  auto bar = std::make_shared<MenuBar>();
  bar->name = std::move(name);
  for (const char* caption : captions) AddEntry(*bar, caption, Variant::Missing());
  return bar;
}

}  // namespace

Menus::Menus()
    : bars{BarOf("Worksheet Menu Bar", {"&File", "&Edit", "&Tools"}),
           BarOf("Cell", {"Cu&t", "&Copy", "&Paste", "&Insert...", "&Delete...", "Clear Co&ntents",
                          "&Format Cells..."}),
           BarOf("Row", {"Cu&t", "&Copy", "&Paste", "&Insert", "&Delete"}),
           BarOf("Column", {"Cu&t", "&Copy", "&Paste", "&Insert", "&Delete"}),
           BarOf("Cell", {"Cu&t", "&Copy", "&Paste", "Insert P&age Break"})},
      ofCells(bars[1]) {}

std::size_t PlaceOfEntry(const MenuBar& bar, const Variant& index) {
  const auto& entries = bar.entries;
  if (const auto* caption = index.TryGet<std::string>()) {
    std::vector<std::string> captions;
    captions.reserve(entries.size());
    for (const MenuEntryPointer& entry : entries) captions.push_back(entry->caption);
    const auto place = FindCaption(captions, *caption);
    if (!place) RefuseElement("Menu \"" + bar.name + "\" has no entry \"" + *caption + "\"");
    return *place;
  }
  const std::int32_t position = LongArgument(index);
  if (position < 1 || static_cast<std::size_t>(position) > entries.size()) {
    RefuseElement("Menu \"" + bar.name + "\" has no entry number " + std::to_string(position) +
                  " among its " + std::to_string(entries.size()));
  }
  return static_cast<std::size_t>(position) - 1;
}

MenuEntryPointer AddEntry(MenuBar& bar, const std::string& caption, const Variant& before) {
  const std::size_t place = before.IsMissing() ? bar.entries.size() : PlaceOfEntry(bar, before);
  auto entry = std::make_shared<MenuEntry>();
  entry->caption = caption;
  bar.entries.insert(bar.entries.begin() + static_cast<std::ptrdiff_t>(place), entry);
  return entry;
}

void RemoveEntry(MenuBar& bar, const MenuEntryPointer& entry) {
  std::erase(bar.entries, entry);
  entry->deleted = true;
}

}  // namespace rangewerks::hosts::workbook
