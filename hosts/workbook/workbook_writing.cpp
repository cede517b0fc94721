#include "hosts/workbook/workbook_writing.h"

#include <fstream>
#include <nlohmann/json.hpp>

#include "automation/conversions.h"
#include "hosts/common/cell_errors.h"
#include "hosts/workbook/failure.h"
#include "hosts/workbook/file_locale.h"
#include "hosts/workbook/file_macros.h"
#include "hosts/workbook/file_properties.h"
#include "hosts/workbook/sheet_formats_writing.h"

namespace rangewerks::hosts::workbook {
namespace {

using Json = nlohmann::ordered_json;

Json JsonOfInternational(const International& international) {
  Json facts = Json::object();
  const auto& given = international.Given();
  if (const auto order = given.find(excel::xlDateOrder); order != given.end()) {
    const std::int32_t place = ToLong(order->second, automation::Locale());
    if (place < 0 || place > 2) Refuse("A file can't hold the date order " + std::to_string(place));
    facts["date_order"] = kDateOrderWords.at(static_cast<std::size_t>(place));
  }
  for (const auto& [key, index] : kSeparatorKeys) {
    const auto fact = given.find(index);
    if (fact != given.end()) facts[key] = ToString(fact->second, automation::Locale());
  }
  return facts;
}

/// A number under a date format as a day where that says all, which is easier to read.
Json JsonOfDate(double serial) {
  if (serial < 0 || serial != static_cast<double>(static_cast<std::int64_t>(serial))) {
    return {{"value", serial}};
  }
  return {{"date", automation::IsoDate({serial})}};
}

Json JsonOfValue(const Cell& cell) {
  const Variant& value = cell.value;
  if (const auto* yes = value.TryGet<bool>()) return *yes;
  if (const auto* text = value.TryGet<std::string>()) return *text;
  if (const auto* error = value.TryGet<automation::ErrorValue>()) {
    return {{"error", CellErrorText(*error)}};
  }
  const auto* number = value.TryGet<double>();
  if (number == nullptr) return nullptr;
  return IsDateFormat(cell.format) ? JsonOfDate(*number) : Json(*number);
}

Json JsonOfCell(const Cell& cell) {
  Json value = JsonOfValue(cell);
  if (!cell.IsFormula()) return value;
  Json entry = {{"formula", cell.formula}};
  if (!cell.value.IsEmpty()) entry["shown"] = std::move(value);
  return entry;
}

Json JsonOfSheet(const Sheet& sheet) {
  Json::object_t cells;  // filled at its end: no address stands twice
  for (const Position position : sheet.grid.InOrder()) {
    cells.emplace_back(PlainAddressOf({position.row, position.column}),
                       JsonOfCell(sheet.grid.At(position)));
  }
  Json entry = {{"name", sheet.name}};
  if (!cells.empty()) entry["cells"] = std::move(cells);
  AddSheetFormats(entry, sheet);
  return entry;
}

Json JsonOfNames(const DefinedNames& names) {
  Json entries = Json::object();
  for (const NamePointer& name : names.All()) {
    const std::string content = ContentText(name->content);
    if (!content.starts_with('=')) {
      Refuse("A file can't hold the name " + name->FullName() + ": its content, " + content +
             ", doesn't begin with \"=\"");
    }
    entries[name->FullName()] = content;
  }
  return entries;
}

Json JsonOfBook(const Session& session, const Book& book) {
  Json document = Json::object();
  if (Json facts = JsonOfInternational(session.international); !facts.empty()) {
    document["international"] = std::move(facts);
  }
  document["sheets"] = Json::array();
  for (const SheetPointer& sheet : book.sheets) document["sheets"].push_back(JsonOfSheet(*sheet));
  if (book.names.Count() > 0) document["names"] = JsonOfNames(book.names);
  if (book.active) document["active_sheet"] = book.active->name;
  if (Json modules = JsonOfModules(book); !modules.empty()) {
    document["modules"] = std::move(modules);
  }
  if (!book.properties.empty()) document["properties"] = JsonOfProperties(book.properties);
  return document;
}

}  // namespace

void WriteWorkbookFile(const Session& session, const Book& book, const std::string& path) {
  const std::string text = JsonOfBook(session, book).dump(1);
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  file << text << '\n';
  file.close();
  if (!file) Refuse(path + ": the file can't be written; check the path and its rights");
}

}  // namespace rangewerks::hosts::workbook
