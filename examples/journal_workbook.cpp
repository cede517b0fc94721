#include "journal_workbook.h"

#include <fstream>
#include <nlohmann/json.hpp>
#include <stdexcept>

#include "automation/conversions.h"
#include "automation/dispatch.h"
#include "journal.h"
#include "office_sheet.h"
#include "platform/excel_format.h"
#include "rangelist/ExcelFunctions.h"

namespace rangewerks::examples {

namespace {

using automation::Member;
using automation::Variant;
using Json = nlohmann::ordered_json;

constexpr std::int32_t kHeaderRow = 3;     // the first header cell
constexpr std::int32_t kHeaderColumn = 3;  // with its words two columns to the left
constexpr std::int32_t kHeadingsRow = 11;  // above the detail columns

Content Text(const char* text) { return {Variant(text), {}}; }
Content Number(double number) { return {Variant(number), {}}; }
Content Formula(const char* formula) { return {{}, formula}; }

JournalSheet FirstQuarter() {
  JournalSheet sheet = MakeJournal({"2024 Q1", 1, 180, false, 20240331});
  Spoil(sheet, {{"entry_date", 9, Text("31/02/2024")},
                {"amount", 23, Text("1,2O4.50")},
                {"amount", 47, Number(45.125)},
                {"reverse", 61, Text("perhaps")},
                {"amount", 88, Formula("=12500/0")},
                {"quantity", 105, Number(40000)},
                {"nominal_code", 140, Formula("=NA()")}});
  return sheet;
}

JournalSheet SecondQuarter() {
  JournalSheet sheet = MakeJournal({"2024-Q2", 2, 160, true, 20240630});
  Spoil(sheet, {{"control_total", 0, Text("to follow")},
                {"amount", 31, Text("99.50 credit note")},
                {"entry_date", 55, Text("30/02/2024")},
                {"quantity", 70, Number(-32769)},
                {"reverse", 90, Text("x")},
                {"amount", 118, Formula("=NA()")},
                {"amount", 133, Number(0.001)}});
  return sheet;
}

JournalSheet SmallQuarter() {
  JournalSheet sheet = MakeJournal({"2024 Q1", 1, 12, false, 20240331});
  Spoil(sheet, {{"entry_date", 3, Text("31/02/2024")},
                {"amount", 4, Text("1,2O4.50")},
                {"amount", 5, Number(45.125)},
                {"reverse", 6, Text("perhaps")},
                {"amount", 7, Formula("=12500/0")},
                {"quantity", 8, Number(40000)}});
  return sheet;
}

std::string NameOf(const JournalSheet& sheet, const Column& column) {
  return ExcelFunctions::RangeNameMultiTab(sheet.name, column.range);
}

void Write(const JournalSheet& journal, const OfficeSheet& sheet) {
  sheet.Put(1, 1, {Variant(journal.title), {}});
  std::int32_t row = kHeaderRow;
  for (const Column& cell : journal.header) {
    sheet.Put(row, kHeaderColumn - 2, {Variant(cell.heading), {}});
    sheet.PutColumn(row++, kHeaderColumn, cell, {NameOf(journal, cell)});
  }
  std::int32_t column = 1;
  for (const Column& cells : journal.detail) {
    sheet.Put(kHeadingsRow, column, {Variant(cells.heading), {}});
    sheet.PutColumn(kHeadingsRow + 1, column++, cells, {NameOf(journal, cells)});
  }
}

Json JsonValue(const Variant& value) {
  if (const auto* text = value.TryGet<std::string>()) return *text;
  if (const auto* number = value.TryGet<double>()) return *number;
  if (const auto* date = value.TryGet<automation::Date>()) {
    return {{"date", automation::IsoDate(*date)}};
  }
  return nullptr;
}

Json JsonCell(const Content& content) {
  if (content.formula.empty()) return JsonValue(content.value);
  return {{"formula", content.formula}, {"shown", {{"error", "#DIV/0!"}}}};
}

std::string Reference(const JournalSheet& sheet, std::int32_t row, std::int32_t column,
                      std::size_t rows) {
  const std::string letter(1, static_cast<char>('A' + column - 1));
  std::string reference = "='" + sheet.name + "'!$" + letter + "$" + std::to_string(row);
  if (rows > 1) {
    reference += ":$" + letter + "$" + std::to_string(row + static_cast<std::int32_t>(rows) - 1);
  }
  return reference;
}

Json JsonWorkbook(const JournalSheet& journal) {
  Json cells = {{"A1", journal.title}};
  Json names = Json::object();
  std::int32_t row = kHeaderRow;
  for (const Column& cell : journal.header) {
    cells[AddressOf(row, kHeaderColumn - 2)] = cell.heading;
    cells[AddressOf(row, kHeaderColumn)] = JsonCell(cell.cells.front());
    names[NameOf(journal, cell)] = Reference(journal, row++, kHeaderColumn, 1);
  }
  const std::size_t lines = journal.detail.front().cells.size();
  Json rows(lines, Json::array());
  std::int32_t column = 1;
  for (const Column& content : journal.detail) {
    cells[AddressOf(kHeadingsRow, column)] = content.heading;
    for (std::size_t line = 0; line < lines; ++line) {
      rows[line].push_back(JsonCell(content.cells[line]));
    }
    names[NameOf(journal, content)] = Reference(journal, kHeadingsRow + 1, column++, lines);
  }
  const Json sheet = {{"name", journal.name},
                      {"cells", cells},
                      {"rows", {{"at", AddressOf(kHeadingsRow + 1, 1)}, {"values", rows}}}};
  return {{"international", {{"date_order", "day_first"}}},
          {"sheets", Json::array({sheet})},
          {"names", names},
          {"active_sheet", journal.name}};
}

}  // namespace

void WriteJournal(hosts::libreoffice::Office& office, const std::string& path) {
  const JournalSheet first = FirstQuarter();
  const JournalSheet second = SecondQuarter();
  const automation::Object book = office.NewWorkbook({first.name, second.name});
  for (const JournalSheet& journal : {first, second}) {
    const automation::Object sheet = book.Get(Member("Sheets"), {journal.name}).AsObject();
    Write(journal, OfficeSheet(excel::Worksheet(sheet)));
  }
  office.SaveCopyAs(book, path);
  office.Close(book);
}

void WriteSmallJournal(const std::string& path) {
  std::ofstream file(path);
  file << JsonWorkbook(SmallQuarter()).dump(1) << '\n';
  if (!file.flush()) throw std::runtime_error(path + " can't be written");
}

void WriteJournalForm(hosts::libreoffice::Office& office, const std::string& path) {
  const automation::Object book = office.NewWorkbook({"Journal"});
  const excel::Worksheet sheet(book.Get(Member("Sheets"), {"Journal"}).AsObject());
  const OfficeSheet form(sheet);
  form.Put(1, 1, Text("Journal"));
  sheet.get_Range("A1").get_Font().let_Bold(true);
  std::int32_t row = kHeaderRow;
  for (const Column& cell : FirstQuarter().header) {
    form.Put(row++, kHeaderColumn - 2, {Variant(cell.heading), {}});
  }
  office.SaveCopyAs(book, path);
  office.Close(book);
}

}  // namespace rangewerks::examples
