#include "errors/clsErrorList.h"

#include <limits>
#include <span>
#include <utility>

#include "automation/conversions.h"
#include "errors/procedure.h"

namespace rangewerks {

using automation::Argument;
using automation::Member;
using automation::MemberTable;
using automation::Object;
using automation::Variant;

namespace {

const Member kDescription{"Description"};
const Member kNumber{"Number"};
const Member kSource{"Source"};

}  // namespace

clsErrorList::clsErrorList(std::shared_ptr<forms::Toolkit> toolkit,
                           std::shared_ptr<ErrorMessageBox> box)
    : toolkit_(std::move(toolkit)),
      display_(std::make_shared<frmErrorListDisplay>(*toolkit_, std::move(box))),
      displayClosed_(display_->ConnectClosed([this](Member, std::span<const Argument>) {
        events_.Raise(Member("FormClosed"), {});
      })) {}

void clsErrorList::ClearList() {
  rows_->Clear();
  errorCount_ = 0;
  warningCount_ = 0;
}

void clsErrorList::ResetList() { ClearList(); }

Variant clsErrorList::SheetRow(std::int32_t sourceRow) const {
  if (sourceRow == 0) return "N/A";
  const std::int64_t row = std::int64_t{keyRange_.get_Row()} + sourceRow - 1;
  using Long = std::numeric_limits<std::int32_t>;
  if (row < Long::min() || row > Long::max()) {
    throw automation::Error(automation::ErrorNumber::Overflow);
  }
  return static_cast<std::int32_t>(row);
}

void clsErrorList::Add(std::int32_t SourceRow, const std::string& Description,
                       std::int32_t /*Number*/, const std::string& /*Source*/, bool bIsWarning) {
  Procedure("Add of Class Module clsErrorList Line#:", [&](Line& at) {
    at();
    if (!rows_->IsEmpty()) rows_->AppendRow();
    at();
    rows_->WriteLastRow(SheetRow(SourceRow), bIsWarning, Description, SourceRow);
    ++(bIsWarning ? warningCount_ : errorCount_);
  });
}

void clsErrorList::AddError(std::int32_t lLineNumber, const Object& Err, bool bIsWarning) {
  Procedure("AddError of Class Module clsErrorList Line#:", [&](Line& at) {
    const automation::Locale& locale = automation::Locale::Current();
    at();
    const std::string description = ToString(Err.Get(kDescription), locale);
    at();
    const std::int32_t number = ToLong(Err.Get(kNumber), locale);
    at();
    const std::string source = ToString(Err.Get(kSource), locale);
    at();
    Add(lLineNumber, description, number, source, bIsWarning);
  });
}

void clsErrorList::DisplayList() {
  Procedure("DisplayList of Class Module clsErrorList Line#:", [&](Line& at) {
    at();
    if (rows_->IsEmpty()) {
      MsgBox(*toolkit_, "No errors or warnings found");
      return;
    }
    display_->set_ErrorList(rows_);
    display_->set_KeyRange(keyRange_);
    at();
    display_->Show();
    at();
    display_->SetTopMost(true);
  });
}

const MemberTable& clsErrorList::Members() const {
  using C = clsErrorList;
  static const char* const kKeyRange =
      "The range whose first cell lies in row 1 of the caller's counting.";
  static const MemberTable table =
      MemberTable::For<C>("clsErrorList")
          .Get(1, "ErrorCount", &C::get_ErrorCount, "Number of entries added as errors.")
          .Get(2, "WarningCount", &C::get_WarningCount, "Number of entries added as warnings.")
          .Get(3, "KeyRange", &C::get_KeyRange, kKeyRange)
          .Set(3, "KeyRange", &C::set_KeyRange, kKeyRange)
          .Method(4, "ClearList", &C::ClearList, {}, "Takes all entries out.")
          .Method(5, "ResetList", &C::ResetList, {}, "Takes all entries out.")
          .Method(6, "AddError", &C::AddError, {{"lLineNumber"}, {"Err"}, {"bIsWarning", false}},
                  "Adds an entry with what an error object tells.")
          .Method(7, "DisplayList", &C::DisplayList, {},
                  "Shows the list beside the spreadsheet and returns at once.")
          .Method(8, "Add", &C::Add,
                  {{"SourceRow"}, {"Description"}, {"Number"}, {"Source"}, {"bIsWarning", false}},
                  "Adds an entry for a row counted from 1 at KeyRange, or for none (0).");
  return table;
}

}  // namespace rangewerks
