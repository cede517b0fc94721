#include "forms/tree_view.h"

#include "forms/form.h"
#include "forms/keyed_error.h"

namespace rangewerks::forms {

void TreeNode::let_Text(const std::string& value) {
  text_ = value;
  tree_->NodeChanged(*this);
}

void TreeNode::let_ForeColor(Colour value) {
  if (foreColor_ == value) return;
  foreColor_ = value;
  tree_->NodeChanged(*this);
}

TreeView::TreeView(Container& parent, std::string name, ControlProperties design)
    : Control(parent, ControlKind::TreeView, std::move(name), std::move(design)) {}

TreeView::~TreeView() { OwningForm().DropWindow(); }

TreeNode& TreeView::Append(TreeNode* parent, const std::string& key, const std::string& text) {
  if (!key.empty() && byKey_.contains(key)) throw KeyNotUnique();
  nodes_.emplace_back(new TreeNode(*this, parent, key, text));
  TreeNode& node = *nodes_.back();
  if (!key.empty()) byKey_.emplace(key, &node);
  (parent != nullptr ? parent->children_ : roots_).push_back(&node);
  NodeChanged(node);
  return node;
}

TreeNode& TreeView::Add(const std::string& key, const std::string& text) {
  OwningForm().Load();
  return Append(nullptr, key, text);
}

TreeNode& TreeView::AddChild(const std::string& parentKey, const std::string& key,
                             const std::string& text) {
  return Append(&Node(parentKey), key, text);
}

TreeNode& TreeView::Node(const std::string& key) {
  OwningForm().Load();
  const auto found = byKey_.find(key);
  if (found == byKey_.end()) throw ElementNotFound();
  return *found->second;
}

void TreeView::Clear() {
  OwningForm().Load();
  ClearNodes();
  Changed(Aspect::Content);
}

TreeNode* TreeView::get_SelectedItem() {
  OwningForm().Load();
  return selected_;
}

void TreeView::set_SelectedItem(TreeNode* node) {
  OwningForm().Load();
  selected_ = node;
  Changed(Aspect::Value);
}

void TreeView::NodeChanged(TreeNode& node) {
  if (FormWindow* window = OwningForm().Window()) window->NodeChanged(*this, node);
}

void TreeView::PersonSelected(TreeNode& node) {
  selected_ = &node;
  OwningForm().Handle([&] {
    if (NodeClick) NodeClick(node);
  });
}

void TreeView::PersonDoubleClicked() {
  OwningForm().Handle([&] {
    if (DblClick) DblClick();
  });
}

void TreeView::ClearNodes() {
  selected_ = nullptr;
  roots_.clear();
  byKey_.clear();
  nodes_.clear();
}

void TreeView::Reset() {
  Control::Reset();
  ClearNodes();
}

}  // namespace rangewerks::forms
