#include "hosts/libreoffice/conditions.h"

#include <algorithm>
#include <com/sun/star/beans/PropertyValue.hpp>
#include <com/sun/star/lang/XMultiServiceFactory.hpp>
#include <com/sun/star/sheet/ConditionEntryType.hpp>
#include <com/sun/star/sheet/ConditionOperator.hpp>
#include <com/sun/star/sheet/XConditionEntry.hpp>
#include <com/sun/star/sheet/XConditionalFormats.hpp>
#include <com/sun/star/sheet/XSheetCellRangeContainer.hpp>
#include <com/sun/star/sheet/XSheetCellRanges.hpp>
#include <com/sun/star/sheet/XSheetConditionalEntries.hpp>

#include "hosts/common/name_rules.h"
#include "hosts/common/palette.h"
#include "hosts/libreoffice/cell_properties.h"
#include "hosts/libreoffice/failure.h"

namespace rangewerks::hosts::libreoffice {
namespace {

using css::beans::PropertyValue;
using css::sheet::XConditionalFormat;
using css::sheet::XSheetCellRanges;
using css::sheet::XSheetConditionalEntries;
using Entries = Reference<XSheetConditionalEntries>;

constexpr const char* kConditions = "ConditionalFormat";

std::string Place(const CellBlock& cells) { return PlaceOf(cells.sheet->Name(), cells.area); }

std::vector<Area> AreasOf(const Reference<XConditionalFormat>& format) {
  const auto ranges =
      Property<Reference<XSheetCellRanges>>(As<css::beans::XPropertySet>(format), "Range");
  const auto addresses = ranges->getRangeAddresses();
  std::vector<Area> areas;
  for (const auto& each : Elements(addresses)) areas.push_back(AreaOf(each));
  return areas;
}

void PutAreas(const CellBlock& cells, const Reference<XConditionalFormat>& format,
              const std::vector<Area>& areas) {
  const auto ranges = As<css::lang::XMultiServiceFactory>(cells.book->Model())
                          ->createInstance(ToUno("com.sun.star.sheet.SheetCellRanges"));
  const auto list = As<css::sheet::XSheetCellRangeContainer>(ranges);
  const std::int16_t sheet = cells.sheet->Index();
  for (const Area& area : areas) {
    list->addRangeAddress(
        {sheet, area.column - 1, area.row - 1, area.LastColumn() - 1, area.LastRow() - 1}, false);
  }
  As<css::beans::XPropertySet>(format)->setPropertyValue(ToUno("Range"),
                                                         Any(As<XSheetCellRanges>(ranges)));
}

bool Overlap(const std::vector<Area>& areas, const Area& other) {
  return std::any_of(areas.begin(), areas.end(),
                     [&](const Area& each) { return CommonArea(each, other).has_value(); });
}

std::int32_t KindOf(const Condition::Part& part) {
  return As<css::sheet::XConditionEntry>(part.Entry())->getType();
}

bool IsSame(const Condition::Part& one, const Condition::Part& other) {
  const auto entry = one.Entry();
  const auto otherEntry = other.Entry();
  const auto isSame = [&](const char* name) {
    return Property<OUString>(entry, name) == Property<OUString>(otherEntry, name);
  };
  return isSame("Formula1") && isSame("StyleName");
}

/// Puts a part to the condition that it belongs to: the same one, from another format.
void Collect(std::vector<Condition>& conditions, Condition::Part part) {
  const std::int32_t kind = KindOf(part);
  if (kind == css::sheet::ConditionEntryType::CONDITION) {
    for (Condition& each : conditions) {
      if (each.kind != kind || each.parts.back().format == part.format) continue;
      if (!IsSame(each.parts.back(), part)) continue;
      each.parts.push_back(std::move(part));
      return;
    }
  }
  conditions.push_back({{std::move(part)}, kind});
}

/// Whether the formats are there yet, and are those of the same cells.
bool IsStillSo(const Condition& condition) {
  try {
    return std::ranges::all_of(condition.parts, [](const Condition::Part& part) {
      return part.format->getCount() > part.position && AreasOf(part.format) == part.areas;
    });
  } catch (const css::lang::DisposedException&) {
    throw;
  } catch (const css::uno::Exception&) {  // a format that is gone
    return false;
  }
}

/// What was added last is last in every format that it is in, however short.
std::int32_t LastPosition(const Condition& condition) {
  std::int32_t last = 0;
  for (const Condition::Part& part : condition.parts) last = std::max(last, part.position);
  return last;
}

PropertyValue Value(const char* name, const Any& value) {
  return {ToUno(name), -1, value, css::beans::PropertyState_DIRECT_VALUE};
}

template <class Change>
void ChangeEntries(const CellProperties& cells, const Change& change) {
  const auto entries = Property<Entries>(cells, kConditions);
  change(entries);
  cells->setPropertyValue(ToUno(kConditions), Any(entries));
}

/// Takes the cells from the areas of their formats. The office does so itself when they get other
/// conditions, but loses count where a format begins in the first row of the cells.
void Detach(const CellBlock& cells, const std::vector<Condition>& conditions) {
  for (const Condition& condition : conditions) {
    for (const Condition::Part& part : condition.parts) {
      if (part.position > 0) continue;  // the format has been seen to with its first condition
      std::vector<Area> left;
      for (const Area& area : part.areas) {
        for (const Area& each : AreaWithout(area, cells.area)) left.push_back(each);
      }
      // A format with nothing left goes when its cells get others.
      if (!left.empty()) PutAreas(cells, part.format, left);
    }
  }
}

/// The conditions of cells are written as the one format that the cells then have. That keeps what
/// there was only where each cell has one format already, made of plain conditions.
void RequireRewritable(const CellBlock& cells, const std::vector<Condition>& conditions) {
  const auto refuse = [&] {
    Fail(Place(cells) +
         " has conditional formats that LibreOffice can't change without losing some. Delete them "
         "first.");
  };
  std::vector<Area> seen;
  for (const Condition& condition : conditions) {
    if (condition.kind != css::sheet::ConditionEntryType::CONDITION) refuse();
    for (const Condition::Part& part : condition.parts) {
      if (part.position > 0) continue;  // the areas of this format have been seen
      for (const Area& area : part.areas) {
        const auto common = CommonArea(area, cells.area);
        if (!common) continue;
        if (Overlap(seen, *common)) refuse();
        seen.push_back(*common);
      }
    }
  }
}

}  // namespace

Reference<css::beans::XPropertySet> Condition::Part::Entry() const {
  return Extract<Reference<css::beans::XPropertySet>>(format->getByIndex(position));
}

std::vector<Condition> ConditionsOf(const CellBlock& cells) {
  const auto state = StateOf(PropertiesOf(*cells.sheet, cells.area), kConditions);
  if (state == css::beans::PropertyState_DEFAULT_VALUE) return {};
  const auto all = Property<Reference<css::sheet::XConditionalFormats>>(
                       As<css::beans::XPropertySet>(cells.sheet->Cells()), "ConditionalFormats")
                       ->getConditionalFormats();
  std::vector<Condition> conditions;
  for (const auto& format : Elements(all)) {
    const std::vector<Area> areas = AreasOf(format);
    if (!Overlap(areas, cells.area)) continue;
    const std::int32_t count = format->getCount();
    for (std::int32_t i = 0; i < count; ++i) Collect(conditions, {format, i, areas});
  }
  std::stable_sort(conditions.begin(), conditions.end(),
                   [](const Condition& left, const Condition& right) {
                     return LastPosition(left) < LastPosition(right);
                   });
  return conditions;
}

const Condition& FoundCondition::Get() {
  if (found_ && IsStillSo(*found_)) return *found_;
  std::vector<Condition> all = ConditionsOf(cells_);
  if (position_ < 1 || position_ > static_cast<std::int32_t>(all.size())) {
    FailElement(Place(cells_) + " has no conditional format number " + std::to_string(position_) +
                " among its " + std::to_string(all.size()));
  }
  found_ = std::move(all[static_cast<std::size_t>(position_) - 1]);
  return *found_;
}

const Condition& FoundCondition::GetPlain() {
  const Condition& condition = Get();
  if (condition.kind != css::sheet::ConditionEntryType::CONDITION) {
    Fail("This conditional format of " + Place(cells_) + " has no condition");
  }
  return condition;
}

std::int32_t AddCondition(const CellBlock& cells, const std::string& formula) {
  const std::vector<Condition> before = ConditionsOf(cells);
  RequireRewritable(cells, before);
  Detach(cells, before);
  const css::table::CellAddress first(cells.sheet->Index(), cells.area.column - 1,
                                      cells.area.row - 1);
  // A condition without a style would be saved with a reference to a look that isn't in the file.
  const Any style(ToUno(cells.book->Styles().WithFill("", kNoFill)));
  const std::vector<PropertyValue> condition{
      Value("StyleName", style), Value("Operator", Any(css::sheet::ConditionOperator_FORMULA)),
      Value("Formula1", Any(ToUno(formula))), Value("SourcePosition", Any(first))};
  for (const CellProperties& part : PartsByProperty(*cells.sheet, cells.area, kConditions)) {
    ChangeEntries(part, [&](const Entries& entries) { entries->addNew(ToSequence(condition)); });
  }
  return static_cast<std::int32_t>(before.size()) + 1;
}

void ClearConditions(const CellBlock& cells) {
  const std::vector<Condition> before = ConditionsOf(cells);
  if (before.empty()) return;
  Detach(cells, before);
  ChangeEntries(PropertiesOf(*cells.sheet, cells.area),
                [](const Entries& entries) { entries->clear(); });
}

void RemoveCondition(const CellBlock& cells, const Condition& condition) {
  const std::vector<Condition> before = ConditionsOf(cells);
  RequireRewritable(cells, before);
  Detach(cells, before);
  for (const Condition::Part& part : condition.parts) {
    for (const Area& area : part.areas) {
      const auto common = CommonArea(area, cells.area);
      if (!common) continue;
      ChangeEntries(PropertiesOf(*cells.sheet, *common),
                    [&](const Entries& entries) { entries->removeByIndex(part.position); });
    }
  }
}

}  // namespace rangewerks::hosts::libreoffice
