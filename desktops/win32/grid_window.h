// A report list over rows that belong to somebody else, with a field over a cell that is typed in.
// Private to this folder's sources.
#pragma once

#include <cstddef>
#include <map>

#include "desktops/win32/pictures.h"
#include "desktops/win32/report_window.h"
#include "forms/grid.h"

namespace rangewerks::desktops {

class GridWindow final : public ReportWindow {
 public:
  GridWindow(Surroundings& around, forms::Grid& grid, HWND parent, int id);
  std::optional<LRESULT> Notified(NMHDR& notification) override;
  void Commanded(WORD code) override;
  HBRUSH Paint(HDC target) override;
  bool TakeKey(const MSG& message) override;

 protected:
  std::vector<Column> Columns() const override;
  std::size_t RowCount() const override;
  std::string TextAt(std::size_t row, std::size_t column) const override;
  std::int32_t ChosenRow() const override { return grid_.CurrentRow(); }
  LRESULT Draw(NMLVCUSTOMDRAW& drawing) override;
  void ApplyContent() override;
  void ApplyPlace() override;

 private:
  LRESULT StateChanged(const NMLISTVIEW& change);
  LRESULT Clicked(const NMITEMACTIVATE& click);
  void DrawPicture(const NMLVCUSTOMDRAW& drawing);
  HICON IconFor(forms::Picture picture, int side);

  RECT CellBounds(std::size_t row, std::size_t column) const;
  bool CanType(std::size_t column) const;
  /// The first column that can be typed in; the number of columns when there is none.
  std::size_t FirstOpenColumn() const;
  void OpenField(std::size_t row, std::size_t column);
  void MakeField();
  /// Hides the field, and takes over what was typed when it is to be kept.
  void CloseField(bool keep);

  forms::Grid& grid_;
  std::map<forms::Picture, OwnedIcon> icons_;
  int iconSide_ = 0;
  HWND field_ = nullptr;  // made when it is first needed, and then kept for the next cell
  bool typing_ = false;
  std::size_t fieldRow_ = 0;
  std::size_t fieldColumn_ = 0;
};

}  // namespace rangewerks::desktops
