#include "apps/rangewerks/placing.h"

#include <algorithm>

#include "apps/rangewerks/failure.h"
#include "automation/conversions.h"
#include "sheetbuild/clsRangeProperties.h"

namespace rangewerks::apps {

namespace {

using automation::Argument;
using automation::Error;
using automation::Member;

/// Cells that are taken, and by what, for a message.
struct Taken {
  CellBlock cells;
  std::string by;
};

std::vector<Taken> TakenOnSheet(const SheetRanges& onSheet, const std::vector<PlaceOrder>& orders) {
  std::vector<Taken> taken;
  for (const FoundRange& range : onSheet.ranges) {
    if (std::ranges::find(orders, range.name, &PlaceOrder::Name) != orders.end()) continue;
    // An address on another sheet, with that sheet in front, is no address here.
    if (const auto cells = ReadAddress(range.address)) {
      taken.push_back({*cells, "range " + range.name + " (" + range.address +
                                   "), which is on the sheet already"});
    }
  }
  return taken;
}

void RequireFree(const PlaceOrder& order, const std::string& what, const CellBlock& cells,
                 const std::vector<Taken>& taken) {
  for (const Taken& other : taken) {
    if (!Overlap(cells, other.cells)) continue;
    throw Failure(order.place + ": " + what + " (" + Shown(cells) + ") lies on " + other.by);
  }
}

CellBlock HeadingOf(const PlaceOrder& order) { return {order.at.column, order.at.row - 1, 1, 1}; }

/// The words of an event for a person who isn't there to answer.
std::string WordsOf(const Member& event, std::span<const Argument> arguments) {
  if (event == Member("RangeAddValidationError")) {
    return "Error adding validation. Perhaps the range already has some validation.";
  }
  const auto stage = ToInteger(arguments.front().Value(), automation::Locale::Current());
  return std::string("Error adding tooltips ") +
         (stage == 0 ? "(during adding validation)." : "(setting text)");
}

/// Places the ranges of one call.
class Placing {
 public:
  Placing(clsInterfaceRangeList& list, const PlaceFeatures& features,
          std::shared_ptr<platform::Registry> registry)
      : list_(list), features_(features), registry_(std::move(registry)) {}

  PlacedRange Place(const PlaceOrder& order, const FoundRange& before) const {
    PlacedRange placed;
    placed.name = order.Name();
    placed.workbookName = list_.FullRangeName(placed.name);
    placed.address = Shown(order.Covered());
    if (before.address != placed.address) placed.movedFrom = before.address;
    const auto heard = list_.Connect([&](Member event, std::span<const Argument> arguments) {
      const std::string words = WordsOf(event, arguments);
      // Two steps of one rule may fail, each with an event.
      if (std::ranges::find(placed.failures, words) == placed.failures.end()) {
        placed.failures.push_back(words);
      }
    });
    try {
      excel::Range cells = list_.get_ActSheet().get_Range(Shown(order.at));
      list_.AddRangeToSpreadsheet(cells, PropertiesFor(order));
      // Under the plain scheme a range counts as there by the name with the prefix, and its cells
      // are fetched by the one without it.
      if (before.lookedForAs != placed.workbookName) cells.let_Name(before.lookedForAs);
    } catch (const Error& error) {
      throw Error(error.Number(), error.Source(),
                  "range " + placed.name + " at " + placed.address + ": " + error.Description());
    }
    return placed;
  }

 private:
  std::shared_ptr<clsRangeProperties> PropertiesFor(const PlaceOrder& order) const {
    auto properties = std::make_shared<clsRangeProperties>(registry_);
    properties->SetStandardDetailFormat();  // first: it switches the number format on
    properties->let_RangeName(order.Name());
    properties->let_RowsToAdd(order.rowsToAdd);
    properties->let_RangeHeading(order.heading);
    properties->let_SetForceColumnWidth(order.columnWidth);
    properties->let_AddFormat(features_.format);
    properties->let_AddValidation(features_.validation);
    properties->let_AddToolTips(features_.tooltips);
    properties->let_AddColumnHeadings(features_.headings);
    return properties;
  }

  clsInterfaceRangeList& list_;
  PlaceFeatures features_;
  std::shared_ptr<platform::Registry> registry_;
};

const FoundRange& FoundAs(const std::string& name, const SheetRanges& found) {
  return *std::ranges::find(found.ranges, name, &FoundRange::name);
}

/// A spreadsheet program may pass over a change without a word.
void RequirePlaced(const PlacedRange& placed, const SheetRanges& found) {
  const FoundRange& range = FoundAs(placed.name, found);
  if (range.exists && range.address == placed.address) return;
  throw Failure("range " + placed.name + " can't be found at " + placed.address +
                " after it was placed there; is the workbook protected?");
}

}  // namespace

bool PlaceReport::AnyFailure() const {
  return !std::ranges::all_of(ranges, &std::vector<std::string>::empty, &PlacedRange::failures);
}

void RequireApart(const std::vector<PlaceOrder>& orders, const SheetRanges& onSheet,
                  bool headings) {
  std::vector<Taken> taken = TakenOnSheet(onSheet, orders);
  for (const PlaceOrder& order : orders) {
    RequireFree(order, "range " + order.Name(), order.Covered(), taken);
    taken.push_back({order.Covered(), "range " + order.Name() + " (" + Shown(order.Covered()) +
                                          "), see " + order.place});
  }
  if (!headings) return;
  for (const PlaceOrder& order : orders) {
    if (!order.TakesHeading()) continue;
    RequireFree(order, "the heading of range " + order.Name(), HeadingOf(order), taken);
  }
}

PlaceReport Place(clsInterfaceRangeList& list, const excel::Worksheet& sheet,
                  const std::vector<PlaceOrder>& orders, const PlaceFeatures& features,
                  const std::shared_ptr<platform::Registry>& registry, Progress& progress) {
  progress.Say("looking for the ranges");
  const SheetRanges before = LocateRanges(list, sheet);
  RequireApart(orders, before, features.headings);
  const Placing placing(list, features, registry);
  PlaceReport report;
  const auto count = static_cast<std::int32_t>(orders.size());
  for (const PlaceOrder& order : orders) {
    progress.Show(static_cast<std::int32_t>(report.ranges.size()) + 1, count, "placing range");
    report.ranges.push_back(placing.Place(order, FoundAs(order.Name(), before)));
  }
  report.check = CheckLayout(list, sheet, progress);
  for (const PlacedRange& placed : report.ranges) RequirePlaced(placed, report.check.found);
  return report;
}

}  // namespace rangewerks::apps
