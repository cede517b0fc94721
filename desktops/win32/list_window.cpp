#include "desktops/win32/list_window.h"

#include <algorithm>

#include "desktops/win32/text.h"
#include "forms/form.h"

namespace rangewerks::desktops {

ListWindow::ListWindow(Surroundings& around, forms::ListView& list, HWND parent, int id)
    : ReportWindow(around, list, parent, id, LVS_EDITLABELS), list_(list) {}

std::vector<ReportWindow::Column> ListWindow::Columns() const {
  std::vector<Column> columns;
  columns.reserve(list_.Columns().size());
  for (const forms::ColumnHeader& header : list_.Columns()) {
    columns.push_back({header.text, header.width});
  }
  return columns;
}

std::string ListWindow::TextAt(std::size_t row, std::size_t column) const {
  const forms::ListItem& item = *list_.Items()[row];
  if (column == 0) return item.get_Text();
  return column <= item.SubItems().size() ? item.SubItems()[column - 1].text : std::string();
}

std::int32_t ListWindow::RowOf(const forms::ListItem* item) const {
  if (item == nullptr) return -1;
  const auto& items = list_.Items();
  const auto found = std::ranges::find(items, item);
  return found == items.end() ? -1 : static_cast<std::int32_t>(found - items.begin());
}

std::int32_t ListWindow::ChosenRow() const { return RowOf(list_.Selected()); }

void ListWindow::ItemChanged(const forms::ListItem& item) {
  if (static_cast<std::size_t>(SendMessageW(Handle(), LVM_GETITEMCOUNT, 0, 0)) != RowCount()) {
    ApplyCount();
  }
  if (IsWindowVisible(Handle()) != FALSE) RedrawRow(RowOf(&item));
}

std::optional<LRESULT> ListWindow::Notified(NMHDR& notification) {
  switch (notification.code) {
    case static_cast<UINT>(LVN_ITEMCHANGED):
      return StateChanged(reinterpret_cast<const NMLISTVIEW&>(notification));
    case static_cast<UINT>(NM_CLICK):
      return Clicked(reinterpret_cast<const NMITEMACTIVATE&>(notification));
    case static_cast<UINT>(NM_DBLCLK):
      if (reinterpret_cast<const NMITEMACTIVATE&>(notification).iItem >= 0) {
        list_.PersonDoubleClicked();
      }
      return 0;
    case static_cast<UINT>(LVN_COLUMNCLICK):
      list_.PersonClickedColumn(reinterpret_cast<const NMLISTVIEW&>(notification).iSubItem + 1);
      return 0;
    case static_cast<UINT>(LVN_BEGINLABELEDITW):
      return BeginLabelEdit();
    case static_cast<UINT>(LVN_ENDLABELEDITW):
      return EndLabelEdit(reinterpret_cast<const NMLVDISPINFOW&>(notification).item);
    default:
      return ReportWindow::Notified(notification);
  }
}

LRESULT ListWindow::StateChanged(const NMLISTVIEW& change) {
  const bool selected =
      (change.uNewState & LVIS_SELECTED) != 0 && (change.uOldState & LVIS_SELECTED) == 0;
  const auto row = static_cast<std::size_t>(change.iItem);
  if (IsApplying() || !selected || change.iItem < 0 || row >= RowCount()) return 0;
  pressSelected_ = GetKeyState(VK_LBUTTON) < 0;
  list_.PersonSelected(*list_.Items()[row]);
  return 0;
}

// A click on the item that is selected already is a click all the same; only a change of the
// selection is told by the control itself.
LRESULT ListWindow::Clicked(const NMITEMACTIVATE& click) {
  const bool told = std::exchange(pressSelected_, false);
  const auto row = static_cast<std::size_t>(click.iItem);
  if (told || click.iItem < 0 || row >= RowCount()) return 0;
  list_.PersonSelected(*list_.Items()[row]);
  return 0;
}

LRESULT ListWindow::BeginLabelEdit() {
  bool refused = true;
  list_.OwningForm().Handle([&] {
    if (list_.BeforeLabelEdit) refused = list_.BeforeLabelEdit();
  });
  return refused ? TRUE : FALSE;
}

LRESULT ListWindow::EndLabelEdit(const LVITEMW& item) {
  const auto row = static_cast<std::size_t>(item.iItem);
  if (item.pszText == nullptr || row >= RowCount()) return FALSE;
  list_.Items()[row]->let_Text(Utf8Of(item.pszText));
  return TRUE;
}

LRESULT ListWindow::Draw(NMLVCUSTOMDRAW& drawing) {
  constexpr DWORD kSubItem = CDDS_SUBITEM | CDDS_ITEMPREPAINT;
  if (drawing.nmcd.dwDrawStage == CDDS_PREPAINT) return CDRF_NOTIFYITEMDRAW;
  if (drawing.nmcd.dwDrawStage == CDDS_ITEMPREPAINT) return CDRF_NOTIFYSUBITEMDRAW;
  const auto row = static_cast<std::size_t>(drawing.nmcd.dwItemSpec);
  if (drawing.nmcd.dwDrawStage != kSubItem || row >= RowCount()) return CDRF_DODEFAULT;

  const forms::ListItem& item = *list_.Items()[row];
  const auto column = static_cast<std::size_t>(drawing.iSubItem);
  forms::Colour colour = forms::SystemColour::kWindowText;
  if (column == 0) {
    colour = item.get_ForeColor();
  } else if (column <= item.SubItems().size()) {
    colour = item.SubItems()[column - 1].foreColor;
  }
  drawing.clrText = ToColorRef(colour);
  const bool bold = column == 0 && item.get_Bold();
  const forms::ControlProperties& now = list_.Properties();
  SelectObject(drawing.nmcd.hdc, Around().fonts->Get(now.fontSize, bold || now.bold));
  return CDRF_NEWFONT;
}

}  // namespace rangewerks::desktops
