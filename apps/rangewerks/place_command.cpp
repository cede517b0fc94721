#include "apps/rangewerks/place_command.h"

#include "apps/rangewerks/interface_file.h"
#include "apps/rangewerks/sheet_session.h"

namespace rangewerks::apps {

namespace {

std::vector<PlaceOrder> OrdersOf(const PlaceOptions& options, const clsInterfaceRangeList& list) {
  if (options.layout) {
    std::vector<PlaceOrder> orders = ReadLayoutFile(*options.layout, list);
    for (PlaceOrder& order : orders) order.place = *options.layout + ": " + order.place;
    return orders;
  }
  if (!options.range) {
    throw Failure(
        "say what to place: --layout FILE for several ranges, or --range NAME --at ADDRESS for "
        "one");
  }
  PlaceOrder order;
  order.rowsToAdd = options.rows;
  order.place = "--at";
  PlaceOrders orders(list);
  orders.Add(*options.range, "--range", options.at, std::move(order));
  return orders.Take();
}

std::string TextOf(OutputForm form, const PlaceOutput& output, const PlaceReport& report) {
  switch (form) {
    case OutputForm::Json:
      return JsonOf(output, report);
    case OutputForm::Csv:
      return CsvOf(output, report);
    case OutputForm::Table:
      break;
  }
  return TableOf(output, report);
}

}  // namespace

ExitStatus RunPlace(const PlaceOptions& options,
                    const std::shared_ptr<platform::Registry>& registry, Console console) {
  const auto list = ReadInterfaceFile(options.sheet.interfaceFile);
  const std::vector<PlaceOrder> orders = OrdersOf(options, *list);
  RequireFile(options.sheet.book);
  const SaveTarget target(options.save, options.sheet);
  SheetSession session(options.sheet, Access::Write);
  const PlaceReport report = WithHost(options.sheet.book + ": placing stopped", [&] {
    Progress progress(console.messages, console.messagesOnTerminal);
    PlaceReport placed =
        Place(*list, session.Sheet(), orders, options.features, registry, progress);
    progress.Say("saving to " + target.Path());
    target.Write([&](const std::string& path) { session.SaveCopyAs(path); });
    return placed;
  });

  const PlaceOutput output{options.sheet.book, target.Path(), options.layout.has_value()};
  WriteResult(console, TextOf(options.sheet.output, output, report),
              "; the workbook has been saved to " + target.Path() + " all the same");
  const bool isUnsound = output.wholeInterface && report.check.fault;
  if (isUnsound && options.sheet.output == OutputForm::Csv) {
    console.messages << FaultLinesOf(report.check, "");
  }
  return report.AnyFailure() || isUnsound ? kFindings : kAllWell;
}

}  // namespace rangewerks::apps
