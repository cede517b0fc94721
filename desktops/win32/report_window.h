// What lists and grids have in common: columns with headings, and rows that are asked for when they
// are painted. No text is copied. Private to this folder's sources.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "desktops/win32/control_window.h"

namespace rangewerks::desktops {

class ReportWindow : public ControlWindow {
 public:
  std::optional<LRESULT> Notified(NMHDR& notification) override;

 protected:
  struct Column {
    std::string heading{};
    double width = 0;  ///< twips; 0 takes what the others leave
    friend bool operator==(const Column&, const Column&) = default;
  };

  ReportWindow(Surroundings& around, forms::Control& control, HWND parent, int id,
               DWORD furtherStyle);

  virtual std::vector<Column> Columns() const = 0;
  virtual std::size_t RowCount() const = 0;
  virtual std::string TextAt(std::size_t row, std::size_t column) const = 0;
  /// The row that the control has as the chosen one, -1 for none.
  virtual std::int32_t ChosenRow() const = 0;
  virtual LRESULT Draw(NMLVCUSTOMDRAW& drawing);

  void ApplyPlace() override;
  void ApplyContent() override;
  void ApplyValue() override;
  /// The row that the window shows as chosen, -1 for none.
  std::int32_t SelectedRow() const;
  void RedrawRow(std::int32_t row);
  /// Takes over a changed number of rows.
  void ApplyCount();

 private:
  void ApplyColumns();
  int HeadingWidth(const std::wstring& heading) const;
  void FitColumns();
  void TellText(NMLVDISPINFOW& asked) const;
  LRESULT FindRow(const NMLVFINDITEMW& wanted) const;

  std::vector<Column> shown_;
};

}  // namespace rangewerks::desktops
