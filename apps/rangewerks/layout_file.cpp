// Layout files.
#include "apps/rangewerks/failure.h"
#include "apps/rangewerks/field_reader.h"
#include "apps/rangewerks/place_order.h"
#include "apps/rangewerks/text_file.h"

namespace rangewerks::apps {

namespace {

constexpr std::int32_t kWidestColumn = 255;  // characters

std::optional<std::int32_t> RowsToAdd(FieldReader& fields) {
  return fields.WholeNumber("RowsToAdd", 0, kMostRows);
}

void ReadOrder(FieldReader& fields, std::int32_t rowsToAdd, PlaceOrders& orders) {
  const std::string name = fields.RequiredText("RangeName");
  fields.Call("range " + name);
  const std::string called = " (range " + name + ")";
  PlaceOrder order;
  order.place = fields.PointerTo("At") + called;
  const std::string address = fields.RequiredText("At");
  order.rowsToAdd = RowsToAdd(fields).value_or(rowsToAdd);
  order.heading = fields.Text("RangeHeading").value_or("");
  order.columnWidth = fields.WholeNumber("SetForceColumnWidth", -1, kWidestColumn).value_or(-1);
  fields.RefuseOthers();
  orders.Add(name, fields.PointerTo("RangeName") + called, address, std::move(order));
}

}  // namespace

std::vector<PlaceOrder> ParseLayout(const std::string& text, const clsInterfaceRangeList& list) {
  const Json document = ParseJson(text);
  FieldReader fields(document, "");
  const std::int32_t rowsToAdd = RowsToAdd(fields).value_or(0);
  fields.List("ranges");
  fields.RefuseOthers();  // first: what is missing may be there under a misspelt name
  const Json& ranges = fields.RequiredList("ranges");
  if (ranges.empty()) fields.Refuse("ranges", "the list is empty; name at least one range");
  PlaceOrders orders(list);
  std::size_t index = 0;
  for (const Json& element : ranges) {
    FieldReader range(element, fields.PointerTo("ranges") + '/' + std::to_string(index++));
    ReadOrder(range, rowsToAdd, orders);
  }
  return orders.Take();
}

std::vector<PlaceOrder> ReadLayoutFile(const std::string& path, const clsInterfaceRangeList& list) {
  const std::string text = ReadTextFile(path, "layout file");
  try {
    return ParseLayout(text, list);
  } catch (const Failure& failure) {
    throw Failure(path + ": " + failure.what());
  }
}

}  // namespace rangewerks::apps
