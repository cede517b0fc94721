#include "hosts/workbook/sheet_formats_reading.h"

#include "automation/text.h"
#include "hosts/workbook/file_words.h"

namespace rangewerks::hosts::workbook {
namespace {

// --- what entries are made of --------------------------------------------------------------------

Area AreaOf(const std::string& address, const JsonEntry& entry) {
  const auto area = ParseAddress(address);
  if (!area) {
    entry.Fail("found \"" + address + R"(", expected the address of cells, such as "B2:B9")");
  }
  return *area;
}

/// The cells of "at".
Area AreaAt(const JsonEntry& entry) {
  const JsonEntry at = entry.At("at");
  return AreaOf(at.Text(), at);
}

template <class Value, std::size_t Size>
Value ReadWord(const std::array<FileWord<Value>, Size>& words, const JsonEntry& entry) {
  const std::string text = entry.Text();
  std::string expected;
  for (const auto& each : words) {
    if (text == each.word) return each.value;
    if (!expected.empty()) expected += &each == &words.back() ? " or " : ", ";
    expected.append("\"").append(each.word).append("\"");
  }
  entry.FailExpecting(expected);
}

Color ReadColor(const JsonEntry& entry) {
  const std::string text = entry.Text();
  const bool hasForm = text.size() == 7 && text.front() == '#' &&
                       text.find_first_not_of("0123456789ABCDEFabcdef", 1) == std::string::npos;
  if (!hasForm) entry.FailExpecting("a colour such as \"#FF8000\": red, green, blue");
  const auto rgb = static_cast<Color>(std::stoul(text.substr(1), nullptr, 16));
  return (rgb & 0xFF) << 16 | (rgb & 0xFF00) | rgb >> 16;
}

// --- formats, lines, widths ----------------------------------------------------------------------

void ReadFormat(Sheet& sheet, const JsonEntry& entry) {
  entry.RequireKeys({"at", "number", "align", "wrap", "bold", "fill"});
  const Area area = AreaAt(entry);
  const auto change = [&](const char* key, auto read) {
    if (!entry.Has(key)) return;
    const JsonEntry value = entry.At(key);
    sheet.grid.Formats().Change(area, [&](CellFormat& format) { read(format, value); });
  };
  change("number", [](CellFormat& format, const JsonEntry& value) {
    format.number = value.Text();
    if (automation::EqualText(format.number, kGeneralFormat)) format.number.clear();
  });
  change("align", [](CellFormat& format, const JsonEntry& value) {
    format.alignment = ReadWord(kAlignmentWords, value);
  });
  change("wrap",
         [](CellFormat& format, const JsonEntry& value) { format.wraps = value.Boolean(); });
  change("bold",
         [](CellFormat& format, const JsonEntry& value) { format.isBold = value.Boolean(); });
  change("fill",
         [](CellFormat& format, const JsonEntry& value) { format.fill = ReadColor(value); });
}

void ReadLines(Sheet& sheet, const JsonEntry& entry) {
  entry.RequireKeys({"at", "left", "top", "right", "bottom"});
  const Area area = AreaAt(entry);
  const Area below{area.row + 1, area.column, area.rows, area.columns};
  const Area beside{area.row, area.column + 1, area.rows, area.columns};
  const auto draw = [&](const char* key, AreaValues<Line>& lines, const Area& cells) {
    if (entry.Has(key)) lines.Set(cells, ReadWord(kLineWords, entry.At(key)));
  };
  draw("left", sheet.lines.left, area);
  draw("top", sheet.lines.above, area);
  draw("right", sheet.lines.left, beside);
  draw("bottom", sheet.lines.above, below);
}

void ReadWidth(Sheet& sheet, const std::string& address, const JsonEntry& entry) {
  const Area area = AreaOf(address, entry);
  if (area.rows != kSheetRows) {
    entry.Fail("found \"" + address + R"(", expected whole columns, such as "B:B")");
  }
  const double width = entry.Number();
  if (width < 0 || width > kLargestWidth) entry.FailExpecting("a width from 0 to 255 characters");
  sheet.widths.Set(WidthsOf(area), width);
}

// --- validation, conditional formats -------------------------------------------------------------

void ReadValidation(Sheet& sheet, const JsonEntry& entry) {
  entry.RequireKeys({"at", "type", "alert", "operator", "formula", "ignore_blank", "error_title",
                     "error_message", "input_title", "input_message"});
  const Area area = AreaAt(entry);
  ValidationRule rule;
  rule.type = ReadWord(kValidationTypeWords, entry.At("type"));
  if (entry.Has("alert")) rule.alertStyle = ReadWord(kAlertStyleWords, entry.At("alert"));
  if (Compares(rule.type) || entry.Has("operator")) {
    rule.comparison = ReadWord(kOperatorWords, entry.At("operator"));
  }
  if (rule.type != excel::xlValidateInputOnly || entry.Has("formula")) {
    rule.formula = entry.At("formula").Text();
  }
  if (entry.Has("ignore_blank")) rule.ignoresBlank = entry.At("ignore_blank").Boolean();
  for (std::size_t i = 0; i < kRuleTexts.size(); ++i) {
    const char* const key = kRuleTextKeys.at(i);
    if (entry.Has(key)) rule.*kRuleTexts.at(i) = entry.At(key).Text();
  }
  entry.Do([&] { AddRule(sheet.validation, area, rule); });
}

void ReadConditionalFormat(Sheet& sheet, const JsonEntry& entry) {
  entry.RequireKeys({"at", "formula", "fill"});
  const JsonEntry at = entry.At("at");
  const JsonEntry formula = entry.At("formula");
  const std::string text = formula.Text();
  if (at.Value().is_array() && at.Elements().empty()) at.FailExpecting("at least one address");
  const auto format = formula.Do([&] { return sheet.conditionalFormats.Add(text); });
  if (at.Value().is_array()) {
    for (const JsonEntry& each : at.Elements()) format->cells.Set(AreaOf(each.Text(), each), true);
  } else {
    format->cells.Set(AreaAt(entry), true);
  }
  if (entry.Has("fill")) format->fill = ReadColor(entry.At("fill"));
}

template <class Read>
void ReadEach(Sheet& sheet, const JsonEntry& entry, const char* key, Read read) {
  if (!entry.Has(key)) return;
  for (const JsonEntry& each : entry.At(key).Elements()) read(sheet, each);
}

}  // namespace

void ReadSheetFormats(Sheet& sheet, const JsonEntry& entry) {
  ReadEach(sheet, entry, "formats", ReadFormat);
  ReadEach(sheet, entry, "lines", ReadLines);
  ReadEach(sheet, entry, "validation", ReadValidation);
  ReadEach(sheet, entry, "conditional_formats", ReadConditionalFormat);
  if (!entry.Has("widths")) return;
  for (const auto& [address, width] : entry.At("widths").Members()) {
    ReadWidth(sheet, address, width);
  }
}

}  // namespace rangewerks::hosts::workbook
