#include "orders_workbook.h"

#include <array>
#include <vector>

#include "automation/conversions.h"
#include "automation/dispatch.h"
#include "office_sheet.h"

namespace rangewerks::examples {

namespace {

using automation::Member;
using automation::Variant;

constexpr const char* kSheet = "Order form";
constexpr const char* kPrefix = "SO_";

struct Product {
  const char* code;
  const char* words;
  double price;
};

constexpr std::array<Product, 8> kProducts = {{
    {"BRG-6204", "Ball bearing 6204", 4.1250},
    {"BLT-M08", "Hexagon bolt M8 x 40", 0.0865},
    {"BLT-M10", "Hexagon bolt M10 x 60", 0.1420},
    {"OIL-5L", "Gear oil, 5 litres", 21.9000},
    {"BELT-A42", "V-belt A42", 6.3500},
    {"SEAL-35", "Shaft seal 35 x 52 x 7", 2.0475},
    {"PUMP-12", "Coolant pump, 12 V", 148.0000},
    {"HOSE-19", "Suction hose 19 mm, metre", 3.7725},
}};
constexpr std::size_t kLines = 24;

/// The cells of one column, the line counted from 0.
template <class ValueOf>
Column Lines(const char* range, const char* heading, const char* format, const ValueOf& valueOf) {
  Column column{range, heading, format, {}};
  for (std::size_t line = 0; line < kLines; ++line) column.cells.push_back({valueOf(line), {}});
  return column;
}

const Product& ProductOf(std::size_t line) { return kProducts[line * 3 % kProducts.size()]; }

std::vector<Column> Header() {
  return {{"customer", "Customer", "@", {{Variant("MORTON01"), {}}}},
          {"order_date", "Order date", "dd/mm/yyyy", {{automation::DateOf(2024, 5, 17), {}}}},
          {"carriage", "Carriage", "#,##0.00", {{Variant(18.5), {}}}},
          {"tax_included", "Tax included", "", {{Variant("No"), {}}}}};
}

std::vector<Column> Detail() {
  std::vector<Column> detail = {
      Lines("stock_code", "Stock code", "@",
            [](std::size_t line) -> Variant { return ProductOf(line).code; }),
      Lines("quantity", "Quantity", "0",
            [](std::size_t line) -> Variant { return static_cast<double>(1 + line * 7 % 40); }),
      Lines("unit_price", "Unit price", "#,##0.0000",
            [](std::size_t line) -> Variant { return ProductOf(line).price; }),
      Lines("due_date", "Due", "dd/mm/yyyy",
            [](std::size_t line) -> Variant {
              return automation::DateOf(2024, 6, 1 + static_cast<int>(line));
            }),
      Lines("description", "Description", "@",
            [](std::size_t line) -> Variant { return ProductOf(line).words; }),
  };
  detail[1].cells[6] = {Variant(60000.0), {}};
  detail[2].cells[10] = {Variant(0.08655), {}};
  detail[3].cells[15] = {Variant("31/06/2024"), {}};
  return detail;
}

/// With the prefix a range counts as there; by the name without it its cells are fetched.
std::vector<std::string> NamesOf(const Column& column) {
  return {kPrefix + column.range, column.range};
}

}  // namespace

void WriteOrders(hosts::libreoffice::Office& office, const std::string& path) {
  const automation::Object book = office.NewWorkbook({kSheet});
  const OfficeSheet sheet(excel::Worksheet(book.Get(Member("Sheets"), {kSheet}).AsObject()));
  sheet.Put(1, 1, {Variant("Sales order"), {}});
  std::int32_t row = 3;
  for (const Column& cell : Header()) {
    sheet.Put(row, 1, {Variant(cell.heading), {}});
    sheet.PutColumn(row++, 3, cell, NamesOf(cell));
  }
  std::int32_t column = 1;
  for (const Column& cells : Detail()) {
    sheet.Put(8, column, {Variant(cells.heading), {}});
    sheet.PutColumn(9, column++, cells, NamesOf(cells));
  }
  // Without the prefix alone, a name isn't seen: the range "remarks" isn't on this sheet.
  sheet.Put(7, 1, {Variant("Remarks"), {}});
  sheet.PutColumn(7, 3, {"remarks", "", "@", {{Variant("Deliver to the back gate"), {}}}},
                  {"remarks"});
  office.SaveCopyAs(book, path);
  office.Close(book);
}

}  // namespace rangewerks::examples
