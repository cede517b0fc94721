// A list of items in report form: columns with headings, an item in each row.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "forms/control.h"

namespace rangewerks::forms {

class ListView;

struct ColumnHeader {
  std::string text;
  double width = 0;  ///< twips
};

class ListItem {
 public:
  /// What stands in a column behind the first.
  struct SubItem {
    std::string text;
    Colour foreColor = SystemColour::kWindowText;
  };

  const std::string& get_Key() const { return key_; }
  const std::string& get_Text() const { return text_; }
  void let_Text(const std::string& value);
  bool get_Bold() const { return bold_; }
  void let_Bold(bool value);
  /// The colour of the first column.
  Colour get_ForeColor() const { return foreColor_; }
  void let_ForeColor(Colour value);
  /// From the second column on.
  const std::vector<SubItem>& SubItems() const { return subItems_; }
  void AddSubItem(const std::string& text);
  void SetSubItemColour(std::size_t index, Colour colour);

 private:
  friend class ListView;
  ListItem(ListView& list, std::string key, std::string text)
      : list_(&list), key_(std::move(key)), text_(std::move(text)) {}

  ListView* list_;
  std::string key_;
  std::string text_;
  bool bold_ = false;
  Colour foreColor_ = SystemColour::kWindowText;
  std::vector<SubItem> subItems_;
};

class ListView final : public Control {
 public:
  ListView(Container& parent, std::string name, ControlProperties design);
  ~ListView() override;

  void AddColumn(const std::string& text, double width);
  void ClearColumns();
  const std::vector<ColumnHeader>& Columns() const { return columns_; }

  /// Adds an item, the last. Raises 35602 for a key that is there already.
  ListItem& Add(const std::string& key, const std::string& text);
  /// The item with a key. Raises 35601 when there is none.
  ListItem& Item(const std::string& key);
  /// In the order shown.
  const std::vector<ListItem*>& Items() const { return shown_; }
  void Clear();
  /// Null when none is selected.
  ListItem* get_SelectedItem();
  void set_SelectedItem(ListItem* item);
  ListItem* Selected() const { return selected_; }

  /// Sorted, the items stand in the order of the text of one column, without regard to case; items
  /// added then take their place.
  bool get_Sorted() const { return sorted_; }
  void let_Sorted(bool value);
  /// 0 is the items' own text, n the n-th sub-item's.
  std::int32_t get_SortKey() const { return sortKey_; }
  void let_SortKey(std::int32_t value);

  std::function<void(ListItem& item)> ItemClick;
  std::function<void()> DblClick;
  /// A column heading was clicked; the first is 1.
  std::function<void(std::int32_t index)> ColumnClick;
  /// As in TreeView.
  std::function<bool()> BeforeLabelEdit;

  void PersonSelected(ListItem& item);
  void PersonDoubleClicked();
  void PersonClickedColumn(std::int32_t index);

 protected:
  void Reset() override;

 private:
  friend class ListItem;
  void ItemChanged(ListItem& item);
  void Sort();
  const std::string& SortText(const ListItem& item) const;
  void ClearItems();

  std::vector<ColumnHeader> columns_;
  std::vector<std::unique_ptr<ListItem>> items_;
  std::vector<ListItem*> shown_;
  std::unordered_map<std::string, ListItem*> byKey_;
  ListItem* selected_ = nullptr;
  bool sorted_ = false;
  std::int32_t sortKey_ = 0;
};

}  // namespace rangewerks::forms
