#include "hosts/workbook/sheet_formats_writing.h"

#include <algorithm>

#include "hosts/workbook/file_words.h"

namespace rangewerks::hosts::workbook {
namespace {

using Json = nlohmann::ordered_json;

void AddUnlessEmpty(Json& entry, const char* key, Json value) {
  if (!value.empty()) entry[key] = std::move(value);
}

// --- formats, lines, widths ----------------------------------------------------------------------

Json JsonOfFormats(const AreaValues<CellFormat>& formats) {
  Json entries = Json::array();
  for (const auto& [area, format] : formats.Blocks()) {
    Json entry = {{"at", PlainAddressOf(area)}};
    if (!format.number.empty()) entry["number"] = format.number;
    if (format.alignment != excel::xlGeneral) {
      entry["align"] = WordOf(kAlignmentWords, format.alignment);
    }
    if (format.wraps) entry["wrap"] = true;
    if (format.isBold) entry["bold"] = true;
    if (format.fill != kNoFill) entry["fill"] = ColorText(format.fill);
    entries.push_back(std::move(entry));
  }
  return entries;
}

Json JsonOfLine(const Area& area, const char* side, Line line) {
  return {{"at", PlainAddressOf(area)}, {side, WordOf(kLineWords, line)}};
}

/// Lines at the far ends of the sheet, which cells beyond it would have, are those of the last
/// ones.
Json JsonOfLines(const Lines& lines) {
  Json entries = Json::array();
  for (auto [area, line] : lines.above.Blocks()) {
    if (area.LastRow() > kSheetRows) {
      entries.push_back(JsonOfLine({kSheetRows, area.column, 1, area.columns}, "bottom", line));
      --area.rows;
    }
    if (area.rows > 0) entries.push_back(JsonOfLine(area, "top", line));
  }
  for (auto [area, line] : lines.left.Blocks()) {
    if (area.LastColumn() > kSheetColumns) {
      entries.push_back(JsonOfLine({area.row, kSheetColumns, area.rows, 1}, "right", line));
      --area.columns;
    }
    if (area.columns > 0) entries.push_back(JsonOfLine(area, "left", line));
  }
  return entries;
}

Json JsonOfWidths(const AreaValues<ColumnWidth>& widths) {
  Json entries = Json::object();
  for (const auto& [area, width] : widths.Blocks()) {
    entries[PlainAddressOf({1, area.column, kSheetRows, area.columns})] = *width;
  }
  return entries;
}

// --- validation, conditional formats -------------------------------------------------------------

Json JsonOfRule(const Area& area, const ValidationRule& rule) {
  Json entry = {{"at", PlainAddressOf(area)}, {"type", WordOf(kValidationTypeWords, rule.type)}};
  if (rule.alertStyle != excel::xlValidAlertStop) {
    entry["alert"] = WordOf(kAlertStyleWords, rule.alertStyle);
  }
  if (Compares(rule.type)) entry["operator"] = WordOf(kOperatorWords, rule.comparison);
  if (!rule.formula.empty()) entry["formula"] = rule.formula;
  if (!rule.ignoresBlank) entry["ignore_blank"] = false;
  for (std::size_t i = 0; i < kRuleTexts.size(); ++i) {
    const std::string& text = rule.*kRuleTexts.at(i);
    if (!text.empty()) entry[kRuleTextKeys.at(i)] = text;
  }
  return entry;
}

Json JsonOfValidation(const ValidationRules& rules) {
  Json entries = Json::array();
  for (const auto& [area, rule] : rules.Blocks()) entries.push_back(JsonOfRule(area, *rule));
  return entries;
}

Json JsonOfConditionalFormats(const ConditionalFormatList& formats) {
  Json entries = Json::array();
  for (const auto& format : formats.All()) {
    Json areas = Json::array();
    for (const auto& [area, has] : format->cells.Blocks()) areas.push_back(PlainAddressOf(area));
    Json entry = {{"at", areas.size() == 1 ? areas.front() : areas}, {"formula", format->formula}};
    if (format->fill != kNoFill) entry["fill"] = ColorText(format->fill);
    entries.push_back(std::move(entry));
  }
  return entries;
}

}  // namespace

std::string PlainAddressOf(const Area& area) {
  std::string address = AddressOf(area);
  std::erase(address, '$');
  return address;
}

void AddSheetFormats(Json& entry, const Sheet& sheet) {
  AddUnlessEmpty(entry, "formats", JsonOfFormats(sheet.grid.Formats()));
  AddUnlessEmpty(entry, "lines", JsonOfLines(sheet.lines));
  AddUnlessEmpty(entry, "widths", JsonOfWidths(sheet.widths));
  AddUnlessEmpty(entry, "validation", JsonOfValidation(sheet.validation));
  AddUnlessEmpty(entry, "conditional_formats", JsonOfConditionalFormats(sheet.conditionalFormats));
}

}  // namespace rangewerks::hosts::workbook
