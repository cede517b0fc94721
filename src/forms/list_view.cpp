#include "forms/list_view.h"

#include <algorithm>

#include "automation/text.h"
#include "forms/form.h"
#include "forms/keyed_error.h"

namespace rangewerks::forms {

void ListItem::let_Text(const std::string& value) {
  text_ = value;
  list_->ItemChanged(*this);
}

void ListItem::let_Bold(bool value) {
  bold_ = value;
  list_->ItemChanged(*this);
}

void ListItem::let_ForeColor(Colour value) {
  foreColor_ = value;
  list_->ItemChanged(*this);
}

void ListItem::AddSubItem(const std::string& text) {
  subItems_.push_back({text});
  list_->ItemChanged(*this);
}

void ListItem::SetSubItemColour(std::size_t index, Colour colour) {
  subItems_.at(index).foreColor = colour;
  list_->ItemChanged(*this);
}

ListView::ListView(Container& parent, std::string name, ControlProperties design)
    : Control(parent, ControlKind::ListView, std::move(name), std::move(design)) {}

ListView::~ListView() { OwningForm().DropWindow(); }

void ListView::AddColumn(const std::string& text, double width) {
  OwningForm().Load();
  columns_.push_back({text, width});
  Changed(Aspect::Content);
}

void ListView::ClearColumns() {
  OwningForm().Load();
  columns_.clear();
  Changed(Aspect::Content);
}

ListItem& ListView::Add(const std::string& key, const std::string& text) {
  OwningForm().Load();
  if (!key.empty() && byKey_.contains(key)) throw KeyNotUnique();
  items_.emplace_back(new ListItem(*this, key, text));
  ListItem& item = *items_.back();
  if (!key.empty()) byKey_.emplace(key, &item);
  shown_.push_back(&item);
  if (sorted_) {
    Sort();
    Changed(Aspect::Content);
  } else {
    ItemChanged(item);
  }
  return item;
}

ListItem& ListView::Item(const std::string& key) {
  OwningForm().Load();
  const auto found = byKey_.find(key);
  if (found == byKey_.end()) throw ElementNotFound();
  return *found->second;
}

void ListView::Clear() {
  OwningForm().Load();
  ClearItems();
  Changed(Aspect::Content);
}

ListItem* ListView::get_SelectedItem() {
  OwningForm().Load();
  return selected_;
}

void ListView::set_SelectedItem(ListItem* item) {
  OwningForm().Load();
  selected_ = item;
  Changed(Aspect::Value);
}

void ListView::let_Sorted(bool value) {
  OwningForm().Load();
  sorted_ = value;
  if (!sorted_) return;
  Sort();
  Changed(Aspect::Content);
}

void ListView::let_SortKey(std::int32_t value) {
  OwningForm().Load();
  sortKey_ = value;
  if (!sorted_) return;
  Sort();
  Changed(Aspect::Content);
}

const std::string& ListView::SortText(const ListItem& item) const {
  static const std::string none;
  if (sortKey_ <= 0) return item.text_;
  const auto index = static_cast<std::size_t>(sortKey_ - 1);
  return index < item.subItems_.size() ? item.subItems_[index].text : none;
}

void ListView::Sort() {
  std::stable_sort(shown_.begin(), shown_.end(), [&](const ListItem* left, const ListItem* right) {
    return automation::CompareText(SortText(*left), SortText(*right)) < 0;
  });
}

void ListView::ItemChanged(ListItem& item) {
  if (FormWindow* window = OwningForm().Window()) window->ItemChanged(*this, item);
}

void ListView::PersonSelected(ListItem& item) {
  selected_ = &item;
  OwningForm().Handle([&] {
    if (ItemClick) ItemClick(item);
  });
}

void ListView::PersonDoubleClicked() {
  OwningForm().Handle([&] {
    if (DblClick) DblClick();
  });
}

void ListView::PersonClickedColumn(std::int32_t index) {
  OwningForm().Handle([&] {
    if (ColumnClick) ColumnClick(index);
  });
}

void ListView::ClearItems() {
  selected_ = nullptr;
  shown_.clear();
  byKey_.clear();
  items_.clear();
}

void ListView::Reset() {
  Control::Reset();
  ClearItems();
  columns_.clear();
  sorted_ = false;
  sortKey_ = 0;
}

}  // namespace rangewerks::forms
