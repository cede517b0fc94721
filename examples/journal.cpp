#include "journal.h"

#include <algorithm>
#include <array>
#include <optional>
#include <stdexcept>

#include "automation/conversions.h"

namespace rangewerks::examples {

namespace {

using automation::Date;
using automation::Variant;
using Pence = std::int64_t;

/// A small generator of its own, since those of the standard library may differ between systems.
class Dice {
 public:
  explicit Dice(std::uint32_t seed) : state_(seed) {}
  /// 0 to below `sides`.
  std::size_t Roll(std::size_t sides) {
    state_ = state_ * 1664525U + 1013904223U;
    return (state_ >> 8U) % sides;
  }
  Pence Between(Pence least, Pence most) {
    return least + static_cast<Pence>(Roll(static_cast<std::size_t>(most - least + 1)));
  }

 private:
  std::uint32_t state_;
};

enum class Vat { None, Output, Input };

/// A kind of journal entry: net amount from one account to the other.
struct Kind {
  const char* words;
  const char* debit;
  const char* credit;
  Vat vat;
  const char* vatCode;
  const char* prefix;
  Pence least;
  Pence most;
  bool counted;   // has a quantity
  bool reversed;  // is reversed in the next period
};

constexpr std::array<Kind, 9> kKinds = {{
    {"Sales invoice, workshop", "1100", "4000", Vat::Output, "T1", "SI", 8000, 940000, true, false},
    {"Sales invoice, spare parts", "1100", "4010", Vat::Output, "T1", "SI", 900, 88000, true,
     false},
    {"Purchase of materials", "5000", "2100", Vat::Input, "T1", "PI", 2500, 460000, true, false},
    {"Carriage inwards", "5100", "2100", Vat::Input, "T1", "PI", 850, 21000, false, false},
    {"Customer receipt", "1200", "1100", Vat::None, "T9", "BR", 5000, 800000, false, false},
    {"Supplier payment", "2100", "1200", Vat::None, "T9", "BP", 5000, 500000, false, false},
    {"Bank charges", "7901", "1200", Vat::None, "T2", "BC", 350, 4200, false, false},
    {"Accrued electricity", "7200", "2109", Vat::None, "T9", "JA", 12000, 64000, false, true},
    {"Prepaid insurance", "1103", "8204", Vat::None, "T9", "JP", 9000, 48000, false, true},
}};

/// One line of the journal.
struct Line {
  Date date;
  std::string nominal;
  std::string reference;
  Pence debit = 0;
  Pence credit = 0;
  std::string vatCode;
  std::optional<std::size_t> quantity;
  bool reversed = false;
  std::string details;
};

class JournalWriter {
 public:
  explicit JournalWriter(const JournalPlan& plan) : plan_(plan), dice_(plan.seed) {}

  std::vector<Line> Write() {
    while (lines_.size() < plan_.lines) AddEntry(kKinds[dice_.Roll(kKinds.size())]);
    std::ranges::stable_sort(lines_, {}, [](const Line& line) { return line.date.serial; });
    return std::move(lines_);
  }

 private:
  /// Two lines, or three with tax, that balance.
  void AddEntry(const Kind& kind) {
    const Pence net = dice_.Between(kind.least, kind.most);
    const Pence tax = kind.vat == Vat::None ? 0 : (net + 2) / 5;
    Line line;
    line.date = DayInQuarter();
    line.reference = kind.prefix + std::to_string(10000 + 100 * plan_.quarter + ++entries_);
    line.vatCode = kind.vatCode;
    line.reversed = kind.reversed;
    line.details = kind.words;
    const bool output = kind.vat == Vat::Output;
    Add(line, kind.debit, output ? net + tax : net, 0, kind.counted && !output);
    Add(line, kind.credit, 0, output ? net : net + tax, kind.counted && output);
    if (kind.vat == Vat::Output) Add(line, "2200", 0, tax, false);
    if (kind.vat == Vat::Input) Add(line, "2201", tax, 0, false);
  }

  void Add(Line line, const char* nominal, Pence debit, Pence credit, bool counted) {
    line.nominal = nominal;
    line.debit = debit;
    line.credit = credit;
    if (counted) line.quantity = 1 + dice_.Roll(48);
    lines_.push_back(std::move(line));
  }

  Date DayInQuarter() {
    const int month = 3 * (plan_.quarter - 1) + 1 + static_cast<int>(dice_.Roll(3));
    return automation::DateOf(2024, month, 1 + static_cast<int>(dice_.Roll(28)));
  }

  const JournalPlan& plan_;
  Dice dice_;
  std::vector<Line> lines_;
  int entries_ = 0;
};

/// Pounds, exact to the penny as far as a double can be.
Variant Pounds(Pence pence) { return static_cast<double>(pence) / 100; }

Variant AmountOrBlank(Pence pence) { return pence == 0 ? Variant() : Pounds(pence); }

/// Yes and no as people write them.
Variant YesNo(bool yes, std::size_t row) {
  constexpr std::array<const char*, 3> kYes = {"Y", "Yes", "y"};
  constexpr std::array<const char*, 4> kNo = {"N", "", "No", "n"};
  const char* word = yes ? kYes[row % kYes.size()] : kNo[row % kNo.size()];
  return *word == '\0' ? Variant() : Variant(word);
}

template <class ValueOf>
Column DetailColumn(const char* range, const char* heading, const char* format,
                    const std::vector<Line>& lines, const ValueOf& valueOf) {
  Column column{range, heading, format, {}};
  for (const Line& line : lines) {
    column.cells.push_back({valueOf(line, column.cells.size()), {}});
  }
  return column;
}

Column HeaderCell(const char* range, const char* heading, const char* format, Variant value) {
  return {range, heading, format, {{std::move(value), {}}}};
}

std::vector<Column> HeaderOf(const JournalPlan& plan, Pence total) {
  constexpr std::array<int, 4> kLastDays = {31, 30, 30, 31};
  const int month = 3 * plan.quarter;
  const int day = kLastDays.at(static_cast<std::size_t>(plan.quarter - 1));
  std::vector<Column> header = {
      HeaderCell("batch", "Batch", "@", "JNL-2024-Q" + std::to_string(plan.quarter)),
      HeaderCell("company", "Company", "@", "Harbour Engineering Ltd"),
      HeaderCell("posting_date", "Posting date", "dd/mm/yyyy",
                 automation::DateOf(2024, month, day)),
      HeaderCell("period", "Period", "0", static_cast<double>(month)),
      HeaderCell("control_total", "Control total", "#,##0.00", Pounds(total)),
      HeaderCell("auto_reverse", "Auto-reverse", "", "Yes"),
  };
  if (!plan.departmentByLine) {
    header.push_back(HeaderCell("department", "Department", "@", "100"));
  }
  // Filled in by whoever posts the journal, as is the status of each line.
  header.push_back(HeaderCell("posting_reference", "Posted as", "@", {}));
  return header;
}

std::vector<Column> DetailOf(const JournalPlan& plan, const std::vector<Line>& lines) {
  using Row = std::size_t;
  std::vector<Column> detail = {
      DetailColumn("entry_date", "Date", "dd/mm/yyyy", lines,
                   [](const Line& line, Row) -> Variant { return line.date; }),
      DetailColumn("nominal_code", "Nominal", "@", lines,
                   [](const Line& line, Row) -> Variant { return line.nominal; }),
      DetailColumn("reference", "Reference", "@", lines,
                   [](const Line& line, Row) -> Variant { return line.reference; }),
      DetailColumn("debit", "Debit", "#,##0.00", lines,
                   [](const Line& line, Row) { return AmountOrBlank(line.debit); }),
      DetailColumn("credit", "Credit", "#,##0.00", lines,
                   [](const Line& line, Row) { return AmountOrBlank(line.credit); }),
      DetailColumn("vat_code", "VAT", "@", lines,
                   [](const Line& line, Row) -> Variant { return line.vatCode; }),
      DetailColumn("quantity", "Quantity", "0", lines,
                   [](const Line& line, Row) {
                     return line.quantity ? Variant(static_cast<double>(*line.quantity))
                                          : Variant();
                   }),
      DetailColumn("reverse", "Reverse", "", lines,
                   [](const Line& line, Row row) { return YesNo(line.reversed, row); }),
  };
  if (plan.departmentByLine) {
    detail.push_back(DetailColumn("department", "Dept", "@", lines, [](const Line&, Row row) {
      return Variant(std::to_string(100 + 10 * (row % 4)));
    }));
  }
  detail.push_back(DetailColumn("details", "Details", "@", lines,
                                [](const Line& line, Row) -> Variant { return line.details; }));
  detail.push_back(
      DetailColumn("status", "Status", "@", lines, [](const Line&, Row) { return Variant(); }));
  return detail;
}

Content& CellAt(JournalSheet& sheet, const std::string& range, std::size_t row) {
  for (Column& column : row == 0 ? sheet.header : sheet.detail) {
    if (column.range == range) return column.cells.at(row == 0 ? 0 : row - 1);
  }
  throw std::out_of_range("no range " + range + " on sheet " + sheet.name);
}

}  // namespace

JournalSheet MakeJournal(const JournalPlan& plan) {
  const std::vector<Line> lines = JournalWriter(plan).Write();
  Pence total = 0;
  for (const Line& line : lines) total += line.debit;
  return {plan.sheet, "Journal, quarter " + std::to_string(plan.quarter) + " of 2024",
          HeaderOf(plan, total), DetailOf(plan, lines)};
}

void Spoil(JournalSheet& sheet, const std::vector<Spoilt>& cells) {
  for (const Spoilt& spoilt : cells) {
    std::string range = spoilt.range;
    if (range == "amount") {
      range = CellAt(sheet, "debit", spoilt.row).value.IsEmpty() ? "credit" : "debit";
    }
    CellAt(sheet, range, spoilt.row) = spoilt.content;
  }
}

}  // namespace rangewerks::examples
