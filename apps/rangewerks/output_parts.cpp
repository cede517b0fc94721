#include "apps/rangewerks/output_parts.h"

#include "apps/rangewerks/text_table.h"
#include "automation/conversions.h"

namespace rangewerks::apps {

std::string TitleOf(const std::string& book, const SheetRanges& found) {
  TextTable title({{}, {}});
  title.Add({"Workbook", OneLine(book, kWidestWords)});
  title.Add({"Sheet", OneLine(found.sheet, kWidestWords)});
  title.Add({"Names", OneLine(found.namesBeginWith, kWidestWords) + "<range>" +
                          (found.usingSheetRangeNames ? "  (sheet scheme)" : "  (plain scheme)")});
  return title.Render("");
}

std::string MissingOf(const SheetRanges& found) {
  TextTable table({{}, {}, {}});
  for (const FoundRange& range : found.ranges) {
    if (range.exists) continue;
    table.Add({range.name, "looked for as " + range.lookedForAs,
               range.isMandatory ? "(declared as mandatory)" : ""});
  }
  return table.IsEmpty() ? "" : "\nDeclared, but not on this sheet\n" + table.Render("  ");
}

std::string Counted(std::size_t count, const char* one, const char* many) {
  return std::to_string(count) + " " + (count == 1 ? one : many);
}

Json JsonRanges(const SheetRanges& found) {
  Json ranges = Json::object();
  for (const FoundRange& range : found.ranges) {
    ranges[range.name] = {{"exists", range.exists},
                          {"address", TextOrNull(range.address)},
                          {"rows", range.rows},
                          {"acts_as_header", range.actsAsHeader}};
  }
  return ranges;
}

Json TextOrNull(const std::string& text) { return text.empty() ? Json() : Json(text); }

Json JsonValue(const automation::Variant& value) {
  if (const auto* number = value.TryGet<double>()) return *number;
  if (const auto* number = value.TryGet<std::int16_t>()) return *number;
  if (const auto* yes = value.TryGet<bool>()) return *yes;
  if (const auto* date = value.TryGet<automation::Date>()) return automation::IsoDate(*date);
  if (const auto* text = value.TryGet<std::string>()) return *text;
  return nullptr;
}

std::string JsonText(const Json& document) {
  return document.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

}  // namespace rangewerks::apps
