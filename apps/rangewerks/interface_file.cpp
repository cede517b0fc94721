#include "apps/rangewerks/interface_file.h"

#include <array>
#include <unordered_map>

#include "apps/rangewerks/failure.h"
#include "apps/rangewerks/field_reader.h"
#include "apps/rangewerks/text_file.h"
#include "automation/text.h"

namespace rangewerks::apps {

namespace {

using FirstUses =
    std::unordered_map<std::string, std::string, automation::FoldedHash, automation::FoldedEqual>;

constexpr auto kIndicators = std::to_array<Word<eRangeHeadDetailInd>>({
    {"hdiHeader", hdiHeader},
    {"hdiDetail", hdiDetail},
    {"hdiHeaderDetail", hdiHeaderDetail},
    {"hdiNone", hdiNone},
    {"H", hdiHeader},
    {"D", hdiDetail},
    {"H/D", hdiHeaderDetail},
});

constexpr auto kDataTypes = std::to_array<Word<eRangeDataType>>({
    {"rdtString", rdtString},
    {"rdtDouble", rdtDouble},
    {"rdtDate", rdtDate},
    {"rdtInteger", rdtInteger},
    {"rdtYesNo", rdtYesNo},
});

/// Refuses what is a key of its list already; `firstUses` holds each key's place.
void RequireNew(const FieldReader& fields, std::string_view field, const std::string& key,
                FirstUses& firstUses) {
  const auto [use, isNew] = firstUses.try_emplace(key, fields.PointerTo(field));
  if (isNew) return;
  fields.Refuse(field, "\"" + key + "\" stands already at " + use->second +
                           (key == use->first ? "" : " as \"" + use->first + "\"") +
                           "; a name may be used once, whatever the case of its letters");
}

/// What a record holds that only a sheet can tell.
void RefuseFindings(FieldReader& fields) {
  for (const char* field : {"RangeExists", "BecomeHeader", "IsValueFound", "Value"}) {
    fields.RefuseField(field, "this is found out on the sheet and can't be declared; leave it out");
  }
}

void ReadRange(FieldReader& fields, FirstUses& firstUses, clsInterfaceRangeList& list) {
  const std::string name = fields.RequiredText("RangeName");
  fields.Call("range " + name);
  RequireNew(fields, "RangeName", name, firstUses);
  RefuseFindings(fields);

  const auto indicator = fields.RequiredWord("DetailIndicator", kIndicators);
  const auto type = fields.RequiredWord("RangeDataType", kDataTypes);
  std::string key;
  const auto record =
      list.Add(name, indicator, type, fields.Boolean("IsMandatory").value_or(false), false,
               fields.Text("Description").value_or(""), fields.Integer("DataLength").value_or(0),
               std::int16_t{0}, key, fields.Boolean("IsBrowseable").value_or(false),
               fields.Text("BrowseColumn").value_or(""), fields.Text("Group").value_or(""));

  if (const auto text = fields.Text("RangeHeading")) record->let_RangeHeading(*text);
  if (const auto text = fields.Text("GroupRange")) record->let_GroupRange(*text);
  if (const auto text = fields.Text("Tag")) record->let_Tag(*text);
  if (const auto number = fields.Integer("DecimalPlaces")) record->let_DecimalPlaces(*number);
  if (const auto number = fields.Integer("Offset")) record->let_Offset(*number);
  if (const auto yes = fields.Boolean("IsDownload")) record->let_IsDownload(*yes);
  if (const auto yes = fields.Boolean("IsSageCompany")) record->let_IsSageCompany(*yes);
  if (const auto yes = fields.Boolean("CanBeHeader")) record->let_CanBeHeader(*yes);
  if (const auto yes = fields.Boolean("BlankValueIsFound")) record->let_BlankValueIsFound(*yes);
  fields.RefuseOthers();
}

void ReadHeading(FieldReader& fields, FirstUses& firstUses, colGroupHeadings& headings) {
  const std::string key = fields.RequiredText("HeadingKey");
  RequireNew(fields, "HeadingKey", key, firstUses);
  headings.Add(fields.Text("HeadingText").value_or(""), key,
               fields.Text("ParentGroup").value_or(""));
  fields.RefuseOthers();
}

void ReadSwitches(FieldReader& fields, clsInterfaceRangeList& list) {
  list.let_SheetRangeNames(fields.Boolean("SheetRangeNames").value_or(false));
  list.let_RangePrefix(fields.Text("RangePrefix").value_or(""));
  list.let_BlankRangeIsThere(fields.Boolean("BlankRangeIsThere").value_or(false));
  list.let_ValidateDecimalPlaces(fields.Boolean("ValidateDecimalPlaces").value_or(false));
  list.let_StripSpacesOnDownload(fields.Boolean("StripSpacesOnDownload").value_or(false));
  list.let_LeaveBlankOnPopulate(fields.Boolean("LeaveBlankOnPopulate").value_or(false));
  list.let_LeaveFormulaOnPopulate(fields.Boolean("LeaveFormulaOnPopulate").value_or(false));
  list.let_DoNotCheckIsFormula(fields.Boolean("DoNotCheckIsFormula").value_or(false));
  list.let_AddNumberValidation(fields.Boolean("AddNumberValidation").value_or(false));
  list.let_DefaultTag(fields.Text("DefaultTag").value_or(""));
}

/// Reads each element of a list with a reader of its own.
template <class Read>
void ForEachObject(const Json& elements, const std::string& pointer, const Read& read) {
  std::size_t index = 0;
  for (const Json& element : elements) {
    FieldReader fields(element, pointer + '/' + std::to_string(index++));
    read(fields);
  }
}

}  // namespace

std::shared_ptr<clsInterfaceRangeList> ParseInterface(const std::string& text) {
  const Json document = ParseJson(text);
  FieldReader fields(document, "");
  auto list = std::make_shared<clsInterfaceRangeList>();
  ReadSwitches(fields, *list);  // first, since each range takes DefaultTag
  FirstUses headingKeys;
  if (const Json* headings = fields.List("GroupHeadings")) {
    ForEachObject(*headings, fields.PointerTo("GroupHeadings"), [&](FieldReader& heading) {
      ReadHeading(heading, headingKeys, *list->get_GroupHeadings());
    });
  }
  FirstUses rangeNames;
  fields.List("ranges");
  fields.RefuseOthers();  // first: what is missing may be there under a misspelt name
  const Json& ranges = fields.RequiredList("ranges");
  if (ranges.empty()) fields.Refuse("ranges", "the list is empty; declare at least one range");
  ForEachObject(ranges, fields.PointerTo("ranges"),
                [&](FieldReader& range) { ReadRange(range, rangeNames, *list); });
  return list;
}

std::shared_ptr<clsInterfaceRangeList> ReadInterfaceFile(const std::string& path) {
  const std::string text = ReadTextFile(path, "interface file");
  try {
    return ParseInterface(text);
  } catch (const Failure& failure) {
    throw Failure(path + ": " + failure.what());
  }
}

}  // namespace rangewerks::apps
