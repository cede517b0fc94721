// What comes out of each operation, and what stays as it was, when any one of its host calls fails.
#include "rangelist/fault_sweep.h"

#include "rangelist/ExcelFunctions.h"

namespace rangewerks::tests::faults {
namespace {

using automation::Date;
using automation::kApplicationErrorBase;
using Scene = FaultScene;

// --- what is prepared ----------------------------------------------------------------------------

void NotLocated(Scene& /*scene*/) {}

/// With every switch on that makes a write look at the cell first.
void CarefulWrites(Scene& scene) {
  scene.list->SetIfRangesExist();
  scene.list->let_LeaveBlankOnPopulate(true);
  scene.list->let_LeaveFormulaOnPopulate(true);
}

void ValuesToPut(Scene& scene) {
  CarefulWrites(scene);
  scene.list->Item("day")->let_Value(automation::DateOf(2024, 2, 29));
  scene.list->Item("amount")->let_Value(99.5);
  scene.list->Item("qty")->let_Value(std::int16_t{-3});
  scene.list->Item("paid")->let_Value(true);
  scene.list->Item("code")->let_Value("5000");
}

void Tagged(Scene& scene) {
  scene.list->SetIfRangesExist();
  for (const char* name : {"amount", "code", "total"}) scene.list->Item(name)->let_Tag("T");
}

void Grouped(Scene& scene) {
  scene.list->SetIfRangesExist();
  for (const char* name : {"qty", "paid"}) scene.list->Item(name)->let_GroupRange("amount");
}

void WrongSheetParts(Scene& scene) {
  scene.Define("Old__amount", "=Sheet1!$C$2:$C$4");
  scene.Define("x_qty", "=Sheet1!$D$2:$D$4");
}

// --- the rules that only some operations have ----------------------------------------------------

/// A write asks the decision first.
Rules Writing(const std::string& procedure) {
  return Rules{At({"Range.Value get", "Range.HasFormula"},
                  Passed(Levels({"AllowPopulate", procedure})))} +
         Reaching(Levels({procedure}));
}

/// A clearing member first asks for formulas, then clears.
Rules Clearing(const Chain& outer) {
  const std::string either = "(" + Level("IsFormula") + "|" + kClearRange + ")";
  return Rules{At({"Range.ClearContents"}, Passed(Chain{kClearRange} + outer)),
               At({"Range.HasFormula", "Range.Rows", "Range.Count", "Range.Item"},
                  Passed(Levels({"IsFormula"}) + outer))} +
         Reaching(Chain{either} + outer);
}

Rules ReadingADate(const Chain& outer) {
  const std::string words = "Invalid date in range day";
  return {At({"Worksheet.Application", "Application.International"},
             Replaced(errRwkInvalidRangeValue, words, Levels({"GetDateRange"}) + outer))};
}

/// Not to find a range is an answer; to lose the row of one that was found isn't.
Rules FindingTheLine(const std::string& procedure) {
  return Rules{UpToLast("Application.Intersect", Anywhere(Forgiven())),
               At({"Range.Address"}, Passed(Levels({"CellRow", procedure})))} +
         Reaching(Levels({procedure}));
}

Rules CheckingAGroup() {
  const std::string words = "Range amount is missing";
  const auto missing = [&](const Chain& chain) {
    return Replaced(kApplicationErrorBase, words, chain);
  };
  return {At({"Worksheet.Name"}, missing(Levels({"FullRangeName", "GetRange", "CheckGroupSizes"}))),
          At({"Worksheet.Parent", "Workbook.Names", "Name.RefersToRange"},
             missing(Levels({"GetRange", "CheckGroupSizes"}))),
          Anywhere(missing(Levels({"CheckGroupSizes"})))};
}

Rules CorrectingNames() {
  return {UpToLast("Names enumerate", Anywhere(Passed(Levels({"CorrectRangeNames"})))),
          At({"Name.RefersToRange", "Range.Address"}, Forgiven()),
          RightAfter("Worksheet.Range",
                     At({"Worksheet.Name"}, Passed(Levels({"RenameRangeForSheet"})))),
          At({"Name.Name", "Range.Parent", "Worksheet.Name"}, Passed({})),
          Anywhere(Passed(Levels({"RenameRangeForSheet"})))};
}

const std::string kOfExcelFunctions = " of Class Module ExcelFunctions";

// --- the operations ------------------------------------------------------------------------------

template <class T, class Read>
std::function<Variant(Scene&)> Reads(const char* name, Read read) {
  return [=](Scene& scene) {
    T value{};
    ((*scene.list).*read)(name, value, 2);
    return Variant(value);
  };
}

/// An operation without a result.
template <class Action>
std::function<Variant(Scene&)> Does(Action action) {
  return [=](Scene& scene) {
    action(scene);
    return Variant();
  };
}

std::vector<Operation> Operations() {
  using C = clsInterfaceRangeList;
  return {
      // naming
      {"FullRangeName",
       [](Scene& s) { return Variant(s.list->FullRangeName("amount")); },
       {Anywhere(Passed(Levels({"FullRangeName"})))}},
      {"CorrectRangeNames", Does([](Scene& s) { s.list->CorrectRangeNames(); }), CorrectingNames(),
       WrongSheetParts},
      {"RenameNamesForNewSheet",
       Does([](Scene& s) { s.list->RenameNamesForNewSheet("New"); }),
       {Anywhere(Forgiven())}},
      // locating
      {"SetIfRangesExist", Does([](Scene& s) { s.list->SetIfRangesExist(); }), Locating({}),
       NotLocated},
      {"GetRange", Does([](Scene& s) { s.list->GetRange("amount"); }), Reaching({})},
      {"InRange",
       [](Scene& s) { return Variant(s.list->InRange("code", s.target)); },
       {Anywhere(Forgiven())},
       Operation{}.prepare,
       false},
      {"InAnyRange",
       [](Scene& s) {
         std::int32_t line = 0;
         const auto record = s.list->InAnyRange(s.target, line);
         return Variant((record ? record->get_RangeName() : "none") + std::to_string(line));
       },
       FindingTheLine("InAnyRange"), Operation{}.prepare, "none-1"},
      {"BrowseColumn",
       [](Scene& s) { return Variant(s.list->BrowseColumn(s.target)); },
       {Anywhere(Forgiven())},
       Operation{}.prepare,
       ""},
      {"CellOffsetInRange",
       [](Scene& s) { return Variant(s.list->CellOffsetInRange(s.target, "code")); },
       FindingTheLine("CellOffsetInRange"), Operation{}.prepare, -1},
      // typed reads
      {"GetValRange", Reads<double>("amount", &C::GetValRange), Reaching(Levels({"GetValRange"}))},
      {"GetIntRange", Reads<std::int16_t>("qty", &C::GetIntRange),
       Reaching(Levels({"GetIntRange"}))},
      {"GetYNRange", Reads<bool>("paid", &C::GetYNRange), Reaching(Levels({"GetYNRange"}))},
      {"GetStrRange", Reads<std::string>("code", &C::GetStrRange),
       Reaching(Levels({"GetStrRange"}))},
      {"GetStrRangeBlk", [](Scene& s) { return Variant(s.list->GetStrRangeBlk("code", 2)); },
       Reaching(Levels({"GetStrRange", "GetStrRangeBlk"}))},
      {"GetDateRange", Reads<Date>("day", &C::GetDateRange),
       ReadingADate({}) + Reaching(Levels({"GetDateRange"}))},
      // writes
      {"PopulateDoubleRange", Does([](Scene& s) { s.list->PopulateDoubleRange("amount", 1.5, 3); }),
       Writing("PopulateRange"), CarefulWrites},
      {"PopulateYNRange", Does([](Scene& s) { s.list->PopulateYNRange("paid", true, 3); }),
       Writing("PopulateYNRange"), CarefulWrites},
      {"PopulateRange", Does([](Scene& s) { s.list->PopulateRange("code", "5000", 3); }),
       Writing("PopulateRange"), CarefulWrites},
      {"PopulateDateRange",
       Does([](Scene& s) { s.list->PopulateDateRange("day", Date{45000}, 3); }),
       Writing("PopulateRange"), CarefulWrites},
      {"PopulateRangeRs",
       Does([](Scene& s) { s.list->PopulateRangeRs(s.row, "code", "field", 3); }),
       Writing("PopulateRangeRs"), CarefulWrites},
      // clearing
      {"ClearRange", Does([](Scene& s) { s.list->ClearRange("amount"); }), Reaching({kClearRange})},
      {"IsFormula", [](Scene& s) { return Variant(s.list->IsFormula("total")); },
       Reaching(Levels({"IsFormula"}))},
      {"ClearAllRanges", Does([](Scene& s) { s.list->ClearAllRanges(); }),
       Locating(Levels({"ClearAllRanges"})) + Clearing(Levels({"ClearAllRanges"})), NotLocated},
      {"ClearDetailRanges", Does([](Scene& s) { s.list->ClearDetailRanges(); }),
       Locating(Levels({"ClearDetailRanges"})) + Clearing(Levels({"ClearDetailRanges"})),
       NotLocated},
      {"ClearRangesForTag", Does([](Scene& s) { s.list->ClearRangesForTag("T"); }),
       Clearing(Levels({"ClearGroupRanges"})), Tagged},
      // bulk values and size checks
      {"GetValues", Does([](Scene& s) { s.list->GetValues(2, hdiDetail); }),
       ReadingADate(Levels({"GetValues"})) +
           Reaching(Levels({"Get(Str|Val|Date|Int|YN)Range", "GetValues"}))},
      {"PutValues", Does([](Scene& s) { s.list->PutValues(3, hdiDetail); }),
       Writing("Populate(|YN)Range"), ValuesToPut},
      {"CheckRangeSize",
       [](Scene& s) {
         std::int32_t rows = 0;
         return Variant(s.list->CheckRangeSize("amount", 7, rows));
       },
       Reaching(Levels({"CheckRangeSize"}))},
      {"CheckGroupSizes", Does([](Scene& s) { s.list->CheckGroupSizes("amount"); }),
       CheckingAGroup(), Grouped},
      // sheet validation
      {"ValidateRanges", [](Scene& s) { return Variant(s.list->ValidateRanges()); },
       Reaching(Levels({"ValidateRanges" + kOfExcelFunctions, "ValidateRanges"}))},
      {"ValidRangeForBrowse",
       [](Scene& s) { return Variant(ExcelFunctions::ValidRangeForBrowse(s.target)); },
       {Anywhere(Passed({}))}},
      {"FormatDateRangeOfAShortYear",
       [](Scene& s) { return Variant(ExcelFunctions::FormatDateRange(s.target)); },
       {Anywhere(Passed(Levels({"FormatDateRange" + kOfExcelFunctions})))},
       [](Scene& s) { s.target.let_Value("'31/12/99"); }},
      {"FormatDateRangeOfDigits",
       [](Scene& s) { return Variant(ExcelFunctions::FormatDateRange(s.target)); },
       {Anywhere(Passed(Levels({"FormatDateRange" + kOfExcelFunctions})))},
       [](Scene& s) { s.target.let_Value(311299); }},
      // user mapping
      {"GetSageUserName", [](Scene& s) { return Variant(s.list->GetSageUserName()); },
       WithSource("GetSageUserName", Reaching({}))},
  };
}

class FaultSweep : public ::testing::TestWithParam<std::tuple<Operation, bool>> {};

TEST_P(FaultSweep, AFailureOfEachHostCallComesOutAsPromisedAndChangesNothingBehindIt) {
  const auto& [operation, sheetScheme] = GetParam();
  Sweep(operation, sheetScheme);
}

INSTANTIATE_TEST_SUITE_P(Operations, FaultSweep,
                         ::testing::Combine(::testing::ValuesIn(Operations()), ::testing::Bool()),
                         [](const auto& row) {
                           return std::get<0>(row.param).name +
                                  (std::get<1>(row.param) ? "OnSheetNames" : "OnPlainNames");
                         });

}  // namespace
}  // namespace rangewerks::tests::faults
