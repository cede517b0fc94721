#include "hosts/workbook/workbook_file.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <utility>

#include "automation/error.h"
#include "hosts/workbook/failure.h"
#include "hosts/workbook/file_cell.h"
#include "hosts/workbook/file_locale.h"
#include "hosts/workbook/file_macros.h"
#include "hosts/workbook/file_properties.h"
#include "hosts/workbook/json_entry.h"
#include "hosts/workbook/name.h"
#include "hosts/workbook/sheet_formats_reading.h"
#include "platform/excel_constants.h"

namespace rangewerks::hosts::workbook {
namespace {

using InternationalFacts = std::vector<std::pair<std::int32_t, Variant>>;

std::string TextOfFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  std::ostringstream text;
  file.peek();  // an empty file ends here, a folder fails
  if (!file.fail() && !file.eof()) text << file.rdbuf();
  if (file.fail() || !text) {
    throw automation::Error(static_cast<std::int32_t>(automation::ErrorNumber::FileNotFound),
                            kSource,
                            path + ": the file can't be read; check the path and its rights");
  }
  return text.str();
}

// --- international -------------------------------------------------------------------------------

std::int32_t DateOrderOf(const JsonEntry& entry) {
  const std::string order = entry.Text();
  const auto word = std::ranges::find(kDateOrderWords, order);
  if (word != kDateOrderWords.end()) {
    return static_cast<std::int32_t>(word - kDateOrderWords.begin());
  }
  entry.FailExpecting(R"("month_first", "day_first" or "year_first")");
}

InternationalFacts ReadInternational(const JsonEntry& entry) {
  entry.RequireKeys({"date_order", "decimal_separator", "thousands_separator", "list_separator",
                     "date_separator", "time_separator", "currency_symbol"});
  InternationalFacts facts;
  for (const auto& [key, index] : kSeparatorKeys) {
    if (!entry.Has(key)) continue;
    const JsonEntry text = entry.At(key);
    if (text.Text().empty()) text.FailExpecting("a text of at least one character");
    facts.emplace_back(index, text.Text());
  }
  if (entry.Has("date_order")) {
    facts.emplace_back(excel::xlDateOrder, DateOrderOf(entry.At("date_order")));
  }
  return facts;
}

// --- sheets --------------------------------------------------------------------------------------

void PutCell(Sheet& sheet, Position position, const JsonEntry& entry) {
  if (!sheet.grid.At(position).IsEmpty()) {
    entry.Fail("cell " + AddressOf({position.row, position.column}) + " is given twice");
  }
  sheet.grid.Update(position, [&](Cell& cell) { ReadFileCell(entry, cell); });
}

Position PlaceOf(const std::string& address, const JsonEntry& entry) {
  const auto area = ParseAddress(address);
  if (!area || !area->IsOneCell()) {
    entry.Fail("found \"" + address + R"(", expected the address of one cell, such as "B2")");
  }
  return {area->row, area->column};
}

void ReadBlock(Sheet& sheet, const JsonEntry& block) {
  block.RequireKeys({"at", "values"});
  const JsonEntry at = block.At("at");
  const Position start = PlaceOf(at.Text(), at);
  std::int32_t row = start.row;
  for (const JsonEntry& values : block.At("values").Elements()) {
    std::int32_t column = start.column;
    for (const JsonEntry& value : values.Elements()) {
      if (!AreaOnSheet(row, column, 1, 1)) value.Fail("this cell isn't on the sheet");
      PutCell(sheet, {row, column++}, value);
    }
    ++row;
  }
}

void ReadSheet(Book& book, const JsonEntry& entry) {
  entry.RequireKeys(
      {"name", "cells", "rows", "formats", "lines", "widths", "validation", "conditional_formats"});
  const JsonEntry name = entry.At("name");
  const std::string text = name.Text();
  const SheetPointer sheet = name.Do([&] { return book.AddSheet(text); });
  ReadSheetFormats(*sheet, entry);  // ahead of the cells: a date keeps the format that is there
  if (entry.Has("cells")) {
    for (const auto& [address, cell] : entry.At("cells").Members()) {
      PutCell(*sheet, PlaceOf(address, cell), cell);
    }
  }
  if (!entry.Has("rows")) return;
  const JsonEntry rows = entry.At("rows");
  if (rows.Value().is_object()) return ReadBlock(*sheet, rows);
  for (const JsonEntry& block : rows.Elements()) ReadBlock(*sheet, block);
}

// --- the whole file ------------------------------------------------------------------------------

void ReadNames(Book& book, const JsonEntry& entry) {
  for (const auto& [name, content] : entry.Members()) {
    if (!content.Text().starts_with('=')) {
      content.FailExpecting(R"(a text that begins with "=", such as "=Sheet1!$A$1:$A$3")");
    }
    const std::string text = content.Text();
    content.Do(
        [&, &key = name] { return DefineName(book, key, nullptr, ParseContent(book, text)); });
  }
}

void ReadActiveSheet(Book& book, const JsonEntry& entry) {
  book.active = book.FindSheet(entry.Text());
  if (!book.active) entry.FailExpecting("the name of one of the file's sheets");
}

}  // namespace

Book& ReadWorkbookFile(Session& session, const std::string& path) {
  const JsonEntry::File file(path, TextOfFile(path));
  const JsonEntry root = file.Root();
  root.RequireKeys({"international", "sheets", "names", "active_sheet", "modules", "properties"});

  auto book = std::make_unique<Book>();
  book->name = std::filesystem::path(path).filename().string();
  book->path = path;
  const JsonEntry sheets = root.At("sheets");
  for (const JsonEntry& sheet : sheets.Elements()) ReadSheet(*book, sheet);
  if (book->sheets.empty()) sheets.FailExpecting("at least one sheet");
  book->active = book->sheets.front();
  if (root.Has("active_sheet")) ReadActiveSheet(*book, root.At("active_sheet"));
  if (root.Has("names")) ReadNames(*book, root.At("names"));
  if (root.Has("modules")) ReadFileModules(*book, root.At("modules"));
  if (root.Has("properties")) book->properties = ReadFileProperties(root.At("properties"));
  InternationalFacts facts;
  if (root.Has("international")) facts = ReadInternational(root.At("international"));

  Book& added = session.AddBook(std::move(book));
  for (const auto& [index, value] : facts) session.international.Set(index, value);
  return added;
}

}  // namespace rangewerks::hosts::workbook
