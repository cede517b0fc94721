#include "desktops/win32/grid_window.h"

#include <algorithm>

#include "desktops/win32/units.h"

namespace rangewerks::desktops {

namespace {

constexpr int kPictureSide = 16;  // at the standard resolution

}  // namespace

GridWindow::GridWindow(Surroundings& around, forms::Grid& grid, HWND parent, int id)
    : ReportWindow(around, grid, parent, id, 0), grid_(grid) {
  constexpr DWORD kLines = LVS_EX_GRIDLINES;
  SendMessageW(Handle(), LVM_SETEXTENDEDLISTVIEWSTYLE, kLines, kLines);
}

std::vector<ReportWindow::Column> GridWindow::Columns() const {
  std::vector<Column> columns;
  columns.reserve(grid_.ColumnCount());
  for (std::size_t i = 0; i < grid_.ColumnCount(); ++i) {
    columns.push_back({grid_.Column(i).heading, grid_.Column(i).width});
  }
  return columns;
}

std::size_t GridWindow::RowCount() const {
  return grid_.Rows() != nullptr ? grid_.Rows()->RowCount() : 0;
}

std::string GridWindow::TextAt(std::size_t row, std::size_t column) const {
  return grid_.CellText(row, column);
}

void GridWindow::ApplyContent() {
  // The row under the field may be another one now, or none.
  if (typing_ && fieldRow_ >= RowCount()) CloseField(false);
  ReportWindow::ApplyContent();
}

void GridWindow::ApplyPlace() {
  CloseField(true);
  ReportWindow::ApplyPlace();
}

std::optional<LRESULT> GridWindow::Notified(NMHDR& notification) {
  switch (notification.code) {
    case static_cast<UINT>(LVN_ITEMCHANGED):
      return StateChanged(reinterpret_cast<const NMLISTVIEW&>(notification));
    case static_cast<UINT>(NM_CLICK):
      return Clicked(reinterpret_cast<const NMITEMACTIVATE&>(notification));
    case static_cast<UINT>(LVN_BEGINSCROLL):
      CloseField(true);
      return 0;
    case static_cast<UINT>(LVN_KEYDOWN):
      if (reinterpret_cast<const NMLVKEYDOWN&>(notification).wVKey == VK_F2 && SelectedRow() >= 0) {
        OpenField(static_cast<std::size_t>(SelectedRow()), FirstOpenColumn());
      }
      return 0;
    default:
      return ReportWindow::Notified(notification);
  }
}

// Keys move the selection and nothing more; with the mouse the click is told first.
LRESULT GridWindow::StateChanged(const NMLISTVIEW& change) {
  const bool selected =
      (change.uNewState & LVIS_SELECTED) != 0 && (change.uOldState & LVIS_SELECTED) == 0;
  const bool byMouse = GetKeyState(VK_LBUTTON) < 0 || GetKeyState(VK_RBUTTON) < 0;
  if (!IsApplying() && selected && !byMouse && change.iItem >= 0) {
    grid_.PersonMovedTo(change.iItem);
  }
  return 0;
}

LRESULT GridWindow::Clicked(const NMITEMACTIVATE& click) {
  if (click.iItem < 0) return 0;
  const HWND window = Handle();
  grid_.PersonClicked(click.iItem);
  // A handler may have closed the form.
  if (IsWindowVisible(window) != FALSE && click.iSubItem >= 0) {
    OpenField(static_cast<std::size_t>(click.iItem), static_cast<std::size_t>(click.iSubItem));
  }
  return 0;
}

LRESULT GridWindow::Draw(NMLVCUSTOMDRAW& drawing) {
  switch (drawing.nmcd.dwDrawStage) {
    case CDDS_PREPAINT:
      return CDRF_NOTIFYITEMDRAW;
    case CDDS_ITEMPREPAINT:
      return CDRF_NOTIFYSUBITEMDRAW;
    case CDDS_SUBITEM | CDDS_ITEMPREPAINT:
      return CDRF_NOTIFYPOSTPAINT;
    case CDDS_SUBITEM | CDDS_ITEMPOSTPAINT:
      DrawPicture(drawing);
      return CDRF_DODEFAULT;
    default:
      return CDRF_DODEFAULT;
  }
}

// Drawn over the finished cell: with a list of images the control would keep room for one in its
// first column too.
void GridWindow::DrawPicture(const NMLVCUSTOMDRAW& drawing) {
  const auto row = static_cast<std::size_t>(drawing.nmcd.dwItemSpec);
  const auto column = static_cast<std::size_t>(drawing.iSubItem);
  if (row >= RowCount() || column >= grid_.ColumnCount()) return;
  const forms::Picture picture = grid_.CellPicture(row, column);
  if (picture == forms::Picture::None) return;
  const RECT cell = CellBounds(row, column);
  const int side =
      std::min({MulDiv(kPictureSide, Around().dpi, kStandardDpi), WidthOf(cell), HeightOf(cell)});
  if (side <= 0) return;
  DrawIconEx(drawing.nmcd.hdc, cell.left + (WidthOf(cell) - side) / 2,
             cell.top + (HeightOf(cell) - side) / 2, IconFor(picture, side), side, side, 0, nullptr,
             DI_NORMAL);
}

HICON GridWindow::IconFor(forms::Picture picture, int side) {
  if (side != iconSide_) icons_.clear();
  iconSide_ = side;
  OwnedIcon& icon = icons_[picture];
  if (!icon) icon = MakeIcon(forms::Draw(picture, side));
  return icon.get();
}

}  // namespace rangewerks::desktops
