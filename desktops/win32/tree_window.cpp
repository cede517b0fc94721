#include "desktops/win32/tree_window.h"

#include <cstring>

#include "desktops/win32/text.h"
#include "desktops/win32/units.h"
#include "forms/form.h"

namespace rangewerks::desktops {

namespace {

forms::TreeNode* NodeOf(LPARAM data) { return reinterpret_cast<forms::TreeNode*>(data); }

LRESULT Draw(NMTVCUSTOMDRAW& drawing) {
  if (drawing.nmcd.dwDrawStage == CDDS_PREPAINT) return CDRF_NOTIFYITEMDRAW;
  const forms::TreeNode* node = NodeOf(drawing.nmcd.lItemlParam);
  // A selected node keeps the colours of a selection.
  if (drawing.nmcd.dwDrawStage == CDDS_ITEMPREPAINT && node != nullptr &&
      (drawing.nmcd.uItemState & CDIS_SELECTED) == 0) {
    drawing.clrText = ToColorRef(node->get_ForeColor());
  }
  return CDRF_DODEFAULT;
}

}  // namespace

TreeWindow::TreeWindow(Surroundings& around, forms::TreeView& tree, HWND parent, int id)
    : ControlWindow(around, tree, parent, id,
                    {.className = WC_TREEVIEWW,
                     .style = WS_TABSTOP | TVS_HASBUTTONS | TVS_HASLINES | TVS_LINESATROOT |
                              TVS_SHOWSELALWAYS | TVS_EDITLABELS,
                     .extendedStyle = WS_EX_CLIENTEDGE}),
      tree_(tree) {}

void TreeWindow::ApplyContent() {
  SendMessageW(Handle(), WM_SETREDRAW, FALSE, 0);
  SendMessageW(Handle(), TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(TVI_ROOT));
  items_.clear();
  for (forms::TreeNode* root : tree_.Roots()) Insert(*root);
  SendMessageW(Handle(), WM_SETREDRAW, TRUE, 0);
  ApplyValue();
}

void TreeWindow::Insert(forms::TreeNode& node) {
  std::wstring text = Utf16Of(node.get_Text());
  TVINSERTSTRUCTW insert{};
  insert.hParent = node.get_Parent() != nullptr ? items_[node.get_Parent()] : TVI_ROOT;
  insert.hInsertAfter = TVI_LAST;
  insert.item.mask = TVIF_TEXT | TVIF_PARAM;
  insert.item.pszText = text.data();
  insert.item.lParam = reinterpret_cast<LPARAM>(&node);
  items_[&node] = reinterpret_cast<HTREEITEM>(
      SendMessageW(Handle(), TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&insert)));
  for (forms::TreeNode* child : node.Nodes()) Insert(*child);
}

void TreeWindow::NodeChanged(forms::TreeNode& node) {
  const auto found = items_.find(&node);
  if (found == items_.end()) return Insert(node);
  std::wstring text = Utf16Of(node.get_Text());
  TVITEMW item{};
  item.mask = TVIF_HANDLE | TVIF_TEXT;
  item.hItem = found->second;
  item.pszText = text.data();
  // Paints the node anew as well, in the colour that it has now.
  SendMessageW(Handle(), TVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&item));
  RECT place{};
  // The handle stands in the rectangle's place when its bounds are asked for.
  std::memcpy(&place, &found->second, sizeof(HTREEITEM));
  if (SendMessageW(Handle(), TVM_GETITEMRECT, FALSE, reinterpret_cast<LPARAM>(&place)) != 0) {
    InvalidateRect(Handle(), &place, TRUE);
  }
}

void TreeWindow::ApplyValue() {
  const forms::TreeNode* selected = tree_.Selected();
  HTREEITEM item = nullptr;
  if (const auto found = items_.find(selected); found != items_.end()) item = found->second;
  if (item == SelectedItem()) return;
  SendMessageW(Handle(), TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(item));
}

HTREEITEM TreeWindow::SelectedItem() const {
  return reinterpret_cast<HTREEITEM>(SendMessageW(Handle(), TVM_GETNEXTITEM, TVGN_CARET, 0));
}

std::optional<LRESULT> TreeWindow::Notified(NMHDR& notification) {
  switch (notification.code) {
    case static_cast<UINT>(NM_CUSTOMDRAW):
      return Draw(reinterpret_cast<NMTVCUSTOMDRAW&>(notification));
    case static_cast<UINT>(TVN_SELCHANGINGW):
      // With the keyboard's arrival the control would select its first node by itself.
      return !IsApplying() &&
                     reinterpret_cast<const NMTREEVIEWW&>(notification).action == TVC_UNKNOWN
                 ? TRUE
                 : FALSE;
    case static_cast<UINT>(TVN_SELCHANGEDW): {
      const auto& change = reinterpret_cast<const NMTREEVIEWW&>(notification);
      if (IsApplying() || change.itemNew.lParam == 0) return 0;
      if (change.action == TVC_BYMOUSE) selectedAt_ = GetMessageTime();
      tree_.PersonSelected(*NodeOf(change.itemNew.lParam));
      return 0;
    }
    case static_cast<UINT>(NM_CLICK):
      return Clicked();
    case static_cast<UINT>(NM_DBLCLK):
      return DoubleClicked();
    case static_cast<UINT>(TVN_BEGINLABELEDITW):
      return BeginLabelEdit();
    case static_cast<UINT>(TVN_ENDLABELEDITW):
      return EndLabelEdit(reinterpret_cast<const NMTVDISPINFOW&>(notification).item);
    default:
      return std::nullopt;
  }
}

// A click on the node that is selected already is a click all the same; only a change of the
// selection is told by the control itself.
std::optional<LRESULT> TreeWindow::Clicked() {
  HTREEITEM item = ItemAtPointer();
  if (item == nullptr || item != SelectedItem() || selectedAt_ == GetMessageTime()) return 0;
  if (forms::TreeNode* selected = tree_.Selected()) tree_.PersonSelected(*selected);
  return 0;
}

LRESULT TreeWindow::DoubleClicked() {
  if (ItemAtPointer() != nullptr) tree_.PersonDoubleClicked();
  return 0;
}

LRESULT TreeWindow::BeginLabelEdit() {
  bool refused = true;
  tree_.OwningForm().Handle([&] {
    if (tree_.BeforeLabelEdit) refused = tree_.BeforeLabelEdit();
  });
  return refused ? TRUE : FALSE;
}

LRESULT TreeWindow::EndLabelEdit(const TVITEMW& item) {
  if (item.pszText == nullptr || item.lParam == 0) return FALSE;
  NodeOf(item.lParam)->let_Text(Utf8Of(item.pszText));
  return TRUE;
}

HTREEITEM TreeWindow::ItemAtPointer() const {
  const DWORD position = GetMessagePos();
  TVHITTESTINFO hit{};
  hit.pt = {static_cast<short>(LOWORD(position)), static_cast<short>(HIWORD(position))};
  ScreenToClient(Handle(), &hit.pt);
  SendMessageW(Handle(), TVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
  return (hit.flags & TVHT_ONITEM) != 0 ? hit.hItem : nullptr;
}

}  // namespace rangewerks::desktops
