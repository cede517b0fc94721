// Whether the layout of a sheet's ranges is sound, and whether a selection can take a browse.
#include "automation/conversions.h"
#include "automation/text.h"
#include "errors/procedure.h"
#include "rangelist/ExcelFunctions.h"
#include "rangelist/clsInterfaceRangeList.h"

namespace rangewerks {

using automation::Error;
using automation::kApplicationErrorBase;
using automation::Locale;

namespace {

[[noreturn]] void Refuse(const std::string& words) {
  throw Error(kApplicationErrorBase, {}, words);
}

/// What one walk over the records gathers.
class Layout {
 public:
  explicit Layout(const clsInterfaceRangeList& list) : list_(list) {}

  void Look(const clsExInputRange& record) {
    CheckPresence(record);
    if (record.get_RangeExists()) CheckArea(record);
  }

  void Conclude() const {
    // A difference in rows is reported in the place of a missing nominal code.
    if (different_) {
      Refuse("Detail Ranges with different number of rows were found\r\n(First different found:" +
             differentName_ + ")" + rowsReport_);
    }
    if (nominalMissing_ && (!projectThere_ || !expenseThere_)) {
      Refuse("Must define either a nominal_code or project_code and expense_code");
    }
  }

 private:
  void CheckPresence(const clsExInputRange& record) {
    const std::string& name = record.get_RangeName();
    const bool missing = record.get_IsMandatory() && !record.get_RangeExists();
    if (name == "nominal_code") {
      if (missing) nominalMissing_ = true;
    } else if (name == "project_code") {
      if (record.get_RangeExists()) projectThere_ = true;
    } else if (name == "exp_rev_code") {
      if (record.get_RangeExists()) expenseThere_ = true;
    } else if (missing) {
      Refuse("Range '" + name + "' must be defined.");
    }
  }

  void CheckArea(const clsExInputRange& record) {
    const std::string& name = record.get_RangeName();
    const excel::Range area = list_.GetRange(name);
    if (area.get_Columns().get_Count() >= 2) {
      Refuse("Range " + name + " has more than one column");
    }
    switch (record.get_DetailIndicator()) {
      case hdiDetail:
        Compare(name, Reported(name, area));
        break;
      case hdiHeaderDetail: {
        const std::int32_t rows = Reported(name, area);
        if (rows >= 2) Compare(name, rows);
        break;
      }
      case hdiHeader:
        if (area.get_Rows().get_Count() > 1) {
          Refuse("Header range " + name + " has more than one row");
        }
        break;
      case hdiNone:
        break;
    }
  }

  std::int32_t Reported(const std::string& name, const excel::Range& area) {
    const std::int32_t rows = area.get_Rows().get_Count();
    rowsReport_ += "\r\nRange : " + name + " - No. of Rows: " + std::to_string(rows);
    return rows;
  }

  void Compare(const std::string& name, std::int32_t rows) {
    if (rowsSeen_ == 0) {
      rowsSeen_ = rows;
    } else if (rows != rowsSeen_) {
      different_ = true;
      differentName_ = name;  // each difference overwrites the one before
    }
  }

  const clsInterfaceRangeList& list_;
  bool nominalMissing_ = false;
  bool projectThere_ = false;
  bool expenseThere_ = false;
  bool different_ = false;
  std::string differentName_;
  std::int32_t rowsSeen_ = 0;
  std::string rowsReport_;
};

}  // namespace

bool ExcelFunctions::ValidateRanges(const std::shared_ptr<clsInterfaceRangeList>& irList,
                                    const excel::Worksheet& /*xlsCurrent*/) {
  return Procedure("ValidateRanges of Class Module ExcelFunctions Line#:", [&](Line& at) {
    at();
    if (!irList) throw Error(automation::ErrorNumber::ObjectVariableNotSet);
    Layout layout(*irList);
    at();
    for (std::int32_t i = 1; i <= irList->Count(); ++i) layout.Look(*irList->Item(i));
    at();
    layout.Conclude();
    return true;
  });
}

bool ExcelFunctions::ValidRangeForBrowse(const excel::Range& Rng) {
  constexpr const char* kSource = "ValidRangeForBrowse";
  if (Rng.get_Rows().get_Count() >= 2) {
    throw Error(errRowsInvalidRangeForBrowse, kSource,
                "Cannot browse - selected range has more than one row");
  }
  if (Rng.get_Columns().get_Count() >= 2) {
    throw Error(errColumnsInvalidRangeForBrowse, kSource,
                "Cannot browse - selected range has more than one column");
  }
  return true;
}

namespace {

std::string Middle(std::string_view text, std::size_t skip, std::size_t count) {
  text.remove_prefix(automation::Left(text, skip).size());
  return std::string(automation::Left(text, count));
}

/// A date typed without separators, such as 311299. Of eight digits the last two are lost and
/// the century stands for the year: 31122099 becomes 31/12/20.
std::string FromDigits(std::string digits) {
  const std::size_t length = automation::Length(digits);
  if (length < 6) digits.insert(0, 1, '0');
  const std::string century = length == 8 ? "" : "20";
  return Middle(digits, 0, 2) + "/" + Middle(digits, 2, 2) + "/" + century + Middle(digits, 4, 2);
}

}  // namespace

std::string ExcelFunctions::FormatDateRange(const excel::Range& rngTrg) {
  return Procedure("FormatDateRange of Class Module ExcelFunctions Line#:", [&](Line& at) {
    const Locale& locale = Locale::Current();
    at();
    if (ToString(rngTrg.get_Default(), locale).empty()) return std::string();
    at();
    const std::string text = ToString(rngTrg.get_Value(), locale);
    at();
    if (text.find('/') == std::string::npos) {
      rngTrg.let_Value(FromDigits(rngTrg.get_Formula()));
    } else if (automation::Length(text) == 8) {
      rngTrg.let_Value(Middle(text, 0, 6) + "20" + Middle(text, 6, 2));
    }
    return std::string();
  });
}

}  // namespace rangewerks
