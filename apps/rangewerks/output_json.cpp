#include "apps/rangewerks/output.h"
#include "apps/rangewerks/output_parts.h"

namespace rangewerks::apps {

namespace {

Json JsonRead(const ReadValue& read) {
  return {{"found", read.found}, {"value", JsonValue(read.value)}};
}

/// `values` belong to those of the posting's ranges that stand at `places`.
Json JsonValues(const PostingRead& posting, const std::vector<std::size_t>& places,
                const std::vector<ReadValue>& values) {
  Json::object_t named;
  for (std::size_t index = 0; index < places.size(); ++index) {
    // Straight to the end: names are unique, and looking each up would take long on long lists.
    named.emplace_back(posting.ranges[places[index]].name, JsonRead(values[index]));
  }
  return named;
}

Json JsonRows(const PostingRead& posting) {
  Json rows = Json::array();
  for (const DetailRow& row : posting.rows) {
    rows.push_back(
        {{"row", row.row}, {"values", JsonValues(posting, posting.details, row.values)}});
  }
  return rows;
}

Json JsonErrors(const PostingRead& posting) {
  Json errors = Json::array();
  for (const BadCell& bad : posting.badCells) {
    errors.push_back({{"range", bad.range},
                      {"row", bad.row},
                      {"address", TextOrNull(bad.address)},
                      {"number", bad.number},
                      {"description", bad.description},
                      {"source", bad.source}});
  }
  return errors;
}

}  // namespace

std::string JsonOf(const std::string& book, const PostingRead& posting) {
  const Json document = {{"book", book},
                         {"sheet", posting.sheet},
                         {"ranges", JsonRanges(posting)},
                         {"header", JsonValues(posting, posting.headers, posting.header)},
                         {"rows", JsonRows(posting)},
                         {"errors", JsonErrors(posting)}};
  return JsonText(document);
}

}  // namespace rangewerks::apps
