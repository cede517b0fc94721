// The content of the example journal: made up by rules, the same at every run.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "automation/variant.h"

namespace rangewerks::examples {

/// What stands in one cell: a value, or a formula that shows an error.
struct Content {
  automation::Variant value;
  std::string formula;  ///< "=1/0"; empty for a plain value
};

/// A declared range with its cells from the top, one for a header.
struct Column {
  std::string range;
  std::string heading;  ///< the words beside or above it on the sheet
  std::string format;   ///< number format; empty for the standard one
  std::vector<Content> cells;
};

struct JournalSheet {
  std::string name;
  std::string title;
  std::vector<Column> header;
  std::vector<Column> detail;
};

/// A quarter's journal of at least `lines` balanced lines. Its first sheet states the department
/// once, in the header; with `departmentByLine` each line has its own.
struct JournalPlan {
  std::string sheet;
  int quarter = 1;
  std::size_t lines = 170;
  bool departmentByLine = false;
  std::uint32_t seed = 1;
};
JournalSheet MakeJournal(const JournalPlan& plan);

/// Where a cell of a journal is spoilt, and with what.
struct Spoilt {
  std::string range;  ///< "amount" is debit or credit, whichever the line has
  std::size_t row;    ///< of the detail, from 1; 0 in the header
  Content content;
};
void Spoil(JournalSheet& sheet, const std::vector<Spoilt>& cells);

}  // namespace rangewerks::examples
