// A list of items in report form. Private to this folder's sources.
#pragma once

#include "desktops/win32/report_window.h"
#include "forms/list_view.h"

namespace rangewerks::desktops {

class ListWindow final : public ReportWindow {
 public:
  ListWindow(Surroundings& around, forms::ListView& list, HWND parent, int id);
  /// An item has been added, or what it shows has changed.
  void ItemChanged(const forms::ListItem& item);
  std::optional<LRESULT> Notified(NMHDR& notification) override;

 protected:
  std::vector<Column> Columns() const override;
  std::size_t RowCount() const override { return list_.Items().size(); }
  std::string TextAt(std::size_t row, std::size_t column) const override;
  std::int32_t ChosenRow() const override;
  LRESULT Draw(NMLVCUSTOMDRAW& drawing) override;

 private:
  std::int32_t RowOf(const forms::ListItem* item) const;
  LRESULT StateChanged(const NMLISTVIEW& change);
  LRESULT Clicked(const NMITEMACTIVATE& click);
  LRESULT BeginLabelEdit();
  LRESULT EndLabelEdit(const LVITEMW& item);

  forms::ListView& list_;
  bool pressSelected_ = false;  // the press of the mouse that isn't let go yet has selected an item
};

}  // namespace rangewerks::desktops
