#include "desktops/win32/report_window.h"

#include <algorithm>

#include "automation/text.h"
#include "desktops/win32/text.h"
#include "desktops/win32/units.h"

namespace rangewerks::desktops {

namespace {

/// What a heading has beside its text, at the standard resolution.
constexpr int kHeadingMargins = 14;

}  // namespace

ReportWindow::ReportWindow(Surroundings& around, forms::Control& control, HWND parent, int id,
                           DWORD furtherStyle)
    : ControlWindow(around, control, parent, id,
                    {.className = WC_LISTVIEWW,
                     .style = WS_TABSTOP | LVS_REPORT | LVS_OWNERDATA | LVS_SINGLESEL |
                              LVS_SHOWSELALWAYS | furtherStyle,
                     .extendedStyle = WS_EX_CLIENTEDGE}) {
  constexpr DWORD kStyle = LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER;
  SendMessageW(Handle(), LVM_SETEXTENDEDLISTVIEWSTYLE, kStyle, kStyle);
}

void ReportWindow::ApplyPlace() {
  ControlWindow::ApplyPlace();
  FitColumns();
}

void ReportWindow::ApplyContent() {
  ApplyColumns();
  ApplyCount();
  InvalidateRect(Handle(), nullptr, TRUE);
  ApplyValue();
}

void ReportWindow::ApplyCount() {
  SendMessageW(Handle(), LVM_SETITEMCOUNT, RowCount(), LVSICF_NOSCROLL);
  FitColumns();  // a scroll bar may have come or gone
}

// Columns that are as they were keep the widths that the person has given them.
void ReportWindow::ApplyColumns() {
  std::vector<Column> wanted = Columns();
  if (wanted == shown_) return;
  for (std::size_t i = shown_.size(); i > 0; --i) {
    SendMessageW(Handle(), LVM_DELETECOLUMN, i - 1, 0);
  }
  shown_ = std::move(wanted);
  for (std::size_t i = 0; i < shown_.size(); ++i) {
    std::wstring heading = Utf16Of(shown_[i].heading);
    LVCOLUMNW column{};
    column.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_SUBITEM;
    column.pszText = heading.data();
    column.cx = std::max(Pixels(shown_[i].width), HeadingWidth(heading));
    column.iSubItem = static_cast<int>(i);
    SendMessageW(Handle(), LVM_INSERTCOLUMNW, i, reinterpret_cast<LPARAM>(&column));
  }
  FitColumns();
}

// Lengths don't grow with the person's font, headings do.
int ReportWindow::HeadingWidth(const std::wstring& heading) const {
  const auto text =
      SendMessageW(Handle(), LVM_GETSTRINGWIDTHW, 0, reinterpret_cast<LPARAM>(heading.c_str()));
  return static_cast<int>(text) + MulDiv(kHeadingMargins, Around().dpi, kStandardDpi);
}

void ReportWindow::FitColumns() {
  RECT inside{};
  GetClientRect(Handle(), &inside);
  int left = WidthOf(inside);
  std::size_t flexible = shown_.size();
  for (std::size_t i = 0; i < shown_.size(); ++i) {
    if (shown_[i].width == 0) {
      flexible = i;
    } else {
      left -= static_cast<int>(SendMessageW(Handle(), LVM_GETCOLUMNWIDTH, i, 0));
    }
  }
  if (flexible < shown_.size() && left > 0) {
    SendMessageW(Handle(), LVM_SETCOLUMNWIDTH, flexible, left);
  }
}

std::int32_t ReportWindow::SelectedRow() const {
  return static_cast<std::int32_t>(
      SendMessageW(Handle(), LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED));
}

void ReportWindow::ApplyValue() {
  const std::int32_t chosen = ChosenRow();
  if (chosen == SelectedRow()) return;
  LVITEMW state{};
  state.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
  state.state = chosen >= 0 ? state.stateMask : 0;
  // Row -1 stands for all of them.
  SendMessageW(Handle(), LVM_SETITEMSTATE, static_cast<WPARAM>(chosen),
               reinterpret_cast<LPARAM>(&state));
  if (chosen >= 0) SendMessageW(Handle(), LVM_ENSUREVISIBLE, static_cast<WPARAM>(chosen), FALSE);
}

void ReportWindow::RedrawRow(std::int32_t row) {
  SendMessageW(Handle(), LVM_REDRAWITEMS, static_cast<WPARAM>(row), row);
}

std::optional<LRESULT> ReportWindow::Notified(NMHDR& notification) {
  switch (notification.code) {
    case static_cast<UINT>(LVN_GETDISPINFOW):
      TellText(reinterpret_cast<NMLVDISPINFOW&>(notification));
      return 0;
    case static_cast<UINT>(LVN_ODFINDITEMW):
      return FindRow(reinterpret_cast<const NMLVFINDITEMW&>(notification));
    case static_cast<UINT>(NM_CUSTOMDRAW):
      return Draw(reinterpret_cast<NMLVCUSTOMDRAW&>(notification));
    default:
      return std::nullopt;
  }
}

LRESULT ReportWindow::Draw(NMLVCUSTOMDRAW&) { return CDRF_DODEFAULT; }

void ReportWindow::TellText(NMLVDISPINFOW& asked) const {
  LVITEMW& item = asked.item;
  if ((item.mask & LVIF_TEXT) == 0 || item.cchTextMax <= 0) return;
  std::wstring text;
  const auto row = static_cast<std::size_t>(item.iItem);
  const auto column = static_cast<std::size_t>(item.iSubItem);
  if (row < RowCount() && column < shown_.size()) text = Utf16Of(TextAt(row, column));
  const std::size_t length = text.copy(item.pszText, static_cast<std::size_t>(item.cchTextMax) - 1);
  item.pszText[length] = L'\0';
}

// The person types the beginning of a row's first text.
LRESULT ReportWindow::FindRow(const NMLVFINDITEMW& wanted) const {
  constexpr LRESULT kNone = -1;
  const LVFINDINFOW& info = wanted.lvfi;
  const std::size_t count = RowCount();
  if ((info.flags & (LVFI_STRING | LVFI_PARTIAL)) == 0 || info.psz == nullptr || count == 0) {
    return kNone;
  }
  const std::string typed = Utf8Of(info.psz);
  const auto start = static_cast<std::size_t>(std::max(wanted.iStart, 0));
  for (std::size_t i = 0; i < count; ++i) {
    const std::size_t row = (start + i) % count;
    if (automation::CompareText(TextAt(row, 0).substr(0, typed.size()), typed) == 0) {
      return static_cast<LRESULT>(row);
    }
    if ((info.flags & LVFI_WRAP) == 0 && row + 1 == count) break;
  }
  return kNone;
}

}  // namespace rangewerks::desktops
