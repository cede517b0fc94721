#include "office_sheet.h"

#include "automation/dispatch.h"

namespace rangewerks::examples {

using automation::Member;

std::string AddressOf(std::int32_t row, std::int32_t column) {
  return static_cast<char>('A' + column - 1) + std::to_string(row);
}

void OfficeSheet::Put(std::int32_t row, std::int32_t column, const Content& content) const {
  const excel::Range cell = sheet_.get_Range(AddressOf(row, column));
  if (content.formula.empty()) {
    cell.let_Value(content.value);
    return;
  }
  cell.Let(Member("NumberFormat"), "General");  // under "@" a formula would stay a text
  cell.Let(Member("Formula"), content.formula);
}

void OfficeSheet::PutColumn(std::int32_t row, std::int32_t column, const Column& content,
                            const std::vector<std::string>& names) const {
  const auto last = row + static_cast<std::int32_t>(content.cells.size()) - 1;
  const excel::Range area =
      sheet_.get_Range(AddressOf(row, column) + ":" + AddressOf(last, column));
  if (!content.format.empty()) area.Let(Member("NumberFormat"), content.format);
  for (const Content& cell : content.cells) Put(row++, column, cell);
  for (const std::string& name : names) area.let_Name(name);
}

}  // namespace rangewerks::examples
