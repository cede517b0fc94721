// A tree of labelled nodes. Private to this folder's sources.
#pragma once

#include <unordered_map>

#include "desktops/win32/control_window.h"
#include "forms/tree_view.h"

namespace rangewerks::desktops {

class TreeWindow final : public ControlWindow {
 public:
  TreeWindow(Surroundings& around, forms::TreeView& tree, HWND parent, int id);
  /// A node has been added, or what it shows has changed.
  void NodeChanged(forms::TreeNode& node);
  std::optional<LRESULT> Notified(NMHDR& notification) override;

 protected:
  void ApplyContent() override;
  void ApplyValue() override;

 private:
  void Insert(forms::TreeNode& node);
  std::optional<LRESULT> Clicked();
  LRESULT DoubleClicked();
  LRESULT BeginLabelEdit();
  LRESULT EndLabelEdit(const TVITEMW& item);
  /// The item under the mouse, by its picture or text; null elsewhere.
  HTREEITEM ItemAtPointer() const;
  HTREEITEM SelectedItem() const;

  forms::TreeView& tree_;
  std::unordered_map<const forms::TreeNode*, HTREEITEM> items_;
  LONG selectedAt_ = -1;  // when the mouse has last selected a node, as messages tell it
};

}  // namespace rangewerks::desktops
