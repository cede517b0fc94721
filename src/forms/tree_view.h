// A tree of labelled nodes.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "forms/control.h"

namespace rangewerks::forms {

class TreeView;

class TreeNode {
 public:
  const std::string& get_Key() const { return key_; }
  const std::string& get_Text() const { return text_; }
  void let_Text(const std::string& value);
  /// Kept for the form's code; shown nowhere.
  const std::string& get_Tag() const { return tag_; }
  void let_Tag(const std::string& value) { tag_ = value; }
  Colour get_ForeColor() const { return foreColor_; }
  void let_ForeColor(Colour value);
  /// Null for a root node.
  TreeNode* get_Parent() const { return parent_; }
  std::size_t get_Children() const { return children_.size(); }
  const std::vector<TreeNode*>& Nodes() const { return children_; }

 private:
  friend class TreeView;
  TreeNode(TreeView& tree, TreeNode* parent, std::string key, std::string text)
      : tree_(&tree), parent_(parent), key_(std::move(key)), text_(std::move(text)) {}

  TreeView* tree_;
  TreeNode* parent_;
  std::string key_;
  std::string text_;
  std::string tag_;
  Colour foreColor_ = SystemColour::kWindowText;
  std::vector<TreeNode*> children_;
};

class TreeView final : public Control {
 public:
  TreeView(Container& parent, std::string name, ControlProperties design);
  ~TreeView() override;

  /// Adds a root node, the last. Raises 35602 for a key that is there already.
  TreeNode& Add(const std::string& key, const std::string& text);
  /// Adds a child, the last of the node with that key. Raises 35601 when there is no such node.
  TreeNode& AddChild(const std::string& parentKey, const std::string& key, const std::string& text);
  /// The node with a key. Raises 35601 when there is none.
  TreeNode& Node(const std::string& key);
  const std::vector<TreeNode*>& Roots() const { return roots_; }
  void Clear();
  /// Null when none is selected.
  TreeNode* get_SelectedItem();
  void set_SelectedItem(TreeNode* node);
  /// The same, for the window that shows it.
  TreeNode* Selected() const { return selected_; }

  std::function<void(TreeNode& node)> NodeClick;
  std::function<void()> DblClick;
  /// The person begins to edit a label; true refuses it. Without a handler it is refused.
  std::function<bool()> BeforeLabelEdit;

  /// The person has selected the node by a click or by keys.
  void PersonSelected(TreeNode& node);
  void PersonDoubleClicked();

 protected:
  void Reset() override;

 private:
  friend class TreeNode;
  TreeNode& Append(TreeNode* parent, const std::string& key, const std::string& text);
  void NodeChanged(TreeNode& node);
  void ClearNodes();

  std::vector<std::unique_ptr<TreeNode>> nodes_;
  std::vector<TreeNode*> roots_;
  std::unordered_map<std::string, TreeNode*> byKey_;
  TreeNode* selected_ = nullptr;
};

}  // namespace rangewerks::forms
