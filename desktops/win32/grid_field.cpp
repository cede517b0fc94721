// The field in which a cell of a grid is typed.
#include <utility>

#include "desktops/win32/grid_window.h"
#include "desktops/win32/text.h"
#include "desktops/win32/units.h"
#include "desktops/win32/visual_styles.h"
#include "desktops/win32/window_text.h"

namespace rangewerks::desktops {

bool GridWindow::CanType(std::size_t column) const {
  return column < grid_.ColumnCount() && !grid_.Column(column).locked &&
         !grid_.Column(column).picture;
}

std::size_t GridWindow::FirstOpenColumn() const {
  std::size_t column = 0;
  while (column < grid_.ColumnCount() && !CanType(column)) ++column;
  return column;
}

RECT GridWindow::CellBounds(std::size_t row, std::size_t column) const {
  RECT cell{};
  cell.left = LVIR_BOUNDS;
  cell.top = static_cast<LONG>(column);
  SendMessageW(Handle(), LVM_GETSUBITEMRECT, row, reinterpret_cast<LPARAM>(&cell));
  // What is told for the first column is the whole row.
  if (column == 0) {
    cell.right = cell.left + static_cast<LONG>(SendMessageW(Handle(), LVM_GETCOLUMNWIDTH, 0, 0));
  }
  return cell;
}

// The field stands beside the list, not in it: what it reports then comes to the form.
void GridWindow::MakeField() {
  field_ =
      CreateWindowExW(0, L"Edit", nullptr, WS_CHILD | WS_BORDER | WS_CLIPSIBLINGS | ES_AUTOHSCROLL,
                      0, 0, 0, 0, GetParent(Handle()), nullptr, ThisModule(), nullptr);
  if (field_ != nullptr) Around().owners[field_] = this;
}

void GridWindow::OpenField(std::size_t row, std::size_t column) {
  CloseField(true);
  if (!CanType(column) || row >= RowCount()) return;
  if (field_ == nullptr) MakeField();
  if (field_ == nullptr) return;
  fieldRow_ = row;
  fieldColumn_ = column;
  RECT cell = CellBounds(row, column);
  MapWindowPoints(Handle(), GetParent(Handle()), reinterpret_cast<POINT*>(&cell), 2);
  SendMessageW(field_, WM_SETFONT, static_cast<WPARAM>(SendMessageW(Handle(), WM_GETFONT, 0, 0)),
               FALSE);
  SetWindowTextW(field_, Utf16Of(TextAt(row, column)).c_str());
  SetWindowPos(field_, HWND_TOP, cell.left, cell.top, WidthOf(cell), HeightOf(cell),
               SWP_SHOWWINDOW);
  SendMessageW(field_, EM_SETSEL, 0, -1);
  SetFocus(field_);
  typing_ = true;
}

void GridWindow::CloseField(bool keep) {
  if (!std::exchange(typing_, false)) return;
  const std::string typed = Utf8Of(TextOf(field_));
  if (GetFocus() == field_) SetFocus(Handle());
  ShowWindow(field_, SW_HIDE);
  if (keep && fieldRow_ < RowCount() && typed != TextAt(fieldRow_, fieldColumn_)) {
    grid_.PersonTyped(fieldRow_, fieldColumn_, typed);
  }
}

// The list itself reports by notifications, so that this is from the field.
void GridWindow::Commanded(WORD code) {
  if (code == EN_KILLFOCUS) CloseField(true);
}

HBRUSH GridWindow::Paint(HDC) { return nullptr; }

bool GridWindow::TakeKey(const MSG& message) {
  if (!typing_ || message.hwnd != field_ || message.message != WM_KEYDOWN) return false;
  switch (message.wParam) {
    case VK_RETURN:
    case VK_ESCAPE:
      CloseField(message.wParam == VK_RETURN);
      return true;
    case VK_TAB:  // on from the grid, which the field is a part of
      SetFocus(GetNextDlgTabItem(Around().form, Handle(), GetKeyState(VK_SHIFT) < 0));
      return true;
    default:
      return false;
  }
}

}  // namespace rangewerks::desktops
