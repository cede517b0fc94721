// A posting run of 1,000 rows by 20 ranges: the calls on the spreadsheet for each cell, and the
// time beside the same late-bound calls and conversions made by hand.
//
//   build/release/bench/posting_run
#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "automation/conversions.h"
#include "automation/text.h"
#include "best_times.h"
#include "hosts/workbook/host.h"
#include "platform/excel.h"
#include "rangelist/clsInterfaceRangeList.h"

namespace rangewerks::bench {
namespace {

using automation::Locale;
using automation::Member;
using automation::Object;
using automation::Variant;

constexpr std::int32_t kRows = 1000;
constexpr int kRanges = 20;

/// What a caller without the library keeps of one column.
struct Column {
  std::string name;
  eRangeDataType type;
  Variant value;
};

/// Twenty detail columns, four of each type, every cell filled.
class PostingRun {
 public:
  explicit PostingRun(bool sheetScheme)
      : sheetScheme_(sheetScheme), workbook_(host_.AddWorkbook("Run", {"Data"})) {
    sheet_ = excel::Worksheet(workbook_.Get(Member("Sheets"), {"Data"}).AsObject());
    list_->set_ActSheet(sheet_);
    list_->let_SheetRangeNames(sheetScheme);
    for (int i = 0; i < kRanges; ++i) {
      const auto type = static_cast<eRangeDataType>(i % 5);
      const std::string name = "range_" + std::to_string(i);
      const Object first = sheet_.Get(Member("Cells"), {1, i + 1}).AsObject();
      const excel::Range area(first.Get(Member("Resize"), {kRows}).AsObject());
      area.let_Name((sheetScheme ? "Data__" : "") + name);
      area.let_Value(ContentOf(type));
      list_->Add(name, hdiDetail, type);
      columns_.push_back({name, type, {}});
    }
    list_->SetIfRangesExist();
    ReadByList();
    ReadByHand();
  }

  void ReadByList() {
    for (std::int32_t row = 1; row <= kRows; ++row) list_->GetValues(row, hdiDetail);
  }
  void WriteByList() {
    for (std::int32_t row = 1; row <= kRows; ++row) list_->PutValues(row, hdiDetail);
  }
  void ReadByHand() {
    for (std::int32_t row = 1; row <= kRows; ++row) {
      for (Column& column : columns_) column.value = Read(column, row);
    }
  }
  void WriteByHand() {
    for (std::int32_t row = 1; row <= kRows; ++row) {
      for (const Column& column : columns_) AreaOf(column).get_Item(row).let_Value(ToWrite(column));
    }
  }

  double CallsPerCell(void (PostingRun::*run)()) {
    host_.Calls().Reset();
    (this->*run)();
    return static_cast<double>(host_.Calls().Count()) / (kRows * kRanges);
  }

 private:
  static Variant ContentOf(eRangeDataType type) {
    switch (type) {
      case rdtDouble:
        return 1234.56;
      case rdtDate:
        return automation::DateOf(2024, 1, 31);
      case rdtInteger:
        return 12.0;
      case rdtYesNo:
        return "Y";
      default:
        return "text";
    }
  }

  excel::Range AreaOf(const Column& column) const {
    const std::string name = sheetScheme_ ? sheet_.get_Name() + "__" + column.name : column.name;
    return sheet_.get_Parent().get_Names(name).get_RefersToRange();
  }

  Variant Read(const Column& column, std::int32_t row) const {
    const Locale& locale = Locale::Current();
    const excel::Range cell = AreaOf(column).get_Cells(row, 1);
    const std::string text(automation::Trim(ToString(cell.get_Value(), locale)));
    switch (column.type) {
      case rdtDouble:
        return automation::ToDouble(text, locale);
      case rdtDate:
        // Asked for, as the list does, to write the text in the host's order.
        benchmark::DoNotOptimize(sheet_.get_Application().get_International(excel::xlDateOrder));
        return ToDate(automation::FormatDateText(text, "mm/dd/yyyy", locale), locale);
      case rdtInteger:
        return automation::ToInteger(std::floor(automation::LeadingNumber(text)), locale);
      case rdtYesNo:
        return automation::EqualText(text, "Y");
      default:
        return text;
    }
  }

  static Variant ToWrite(const Column& column) {
    const Locale& locale = Locale::Current();
    if (column.type == rdtInteger) return " " + ToString(column.value, locale);
    if (column.type == rdtYesNo) return ToBoolean(column.value, locale) ? "Y" : "N";
    return column.value;
  }

  bool sheetScheme_;
  hosts::workbook::Host host_;
  Object workbook_;
  excel::Worksheet sheet_;
  std::shared_ptr<clsInterfaceRangeList> list_ = std::make_shared<clsInterfaceRangeList>();
  std::vector<Column> columns_;
};

template <void (PostingRun::*Function)()>
void Time(benchmark::State& state) {
  PostingRun run(true);
  for (auto _ : state) (run.*Function)();
}
BENCHMARK(Time<&PostingRun::ReadByList>)->Name("GetValues");
BENCHMARK(Time<&PostingRun::ReadByHand>)->Name("reads by hand");
BENCHMARK(Time<&PostingRun::WriteByList>)->Name("PutValues");
BENCHMARK(Time<&PostingRun::WriteByHand>)->Name("writes by hand");

}  // namespace
}  // namespace rangewerks::bench

int main(int argc, char** argv) {
  using rangewerks::bench::BestTimes;
  using rangewerks::bench::PostingRun;
  using rangewerks::bench::PrintFigure;
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;

  for (const bool sheetScheme : {false, true}) {
    PostingRun run(sheetScheme);
    std::printf("host calls for each cell, %s\n", sheetScheme ? "sheet names" : "plain names");
    PrintFigure("  GetValues", run.CallsPerCell(&PostingRun::ReadByList));
    PrintFigure("  the same by hand", run.CallsPerCell(&PostingRun::ReadByHand));
    PrintFigure("  PutValues", run.CallsPerCell(&PostingRun::WriteByList));
    PrintFigure("  the same by hand", run.CallsPerCell(&PostingRun::WriteByHand));
  }

  const BestTimes times = BestTimes::Measure();
  PrintFigure("GetValues on sheet names : the same late-bound calls by hand",
              times.Of("GetValues") / times.Of("reads by hand"));
  PrintFigure("PutValues on sheet names : the same late-bound calls by hand",
              times.Of("PutValues") / times.Of("writes by hand"));
}
