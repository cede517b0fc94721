// Reading the cells of declared ranges by type.
#include <cmath>

#include "automation/conversions.h"
#include "automation/text.h"
#include "rangelist/clsInterfaceRangeList.h"

namespace rangewerks {

using automation::EqualText;
using automation::Error;
using automation::ErrorNumber;
using automation::IsBlank;
using automation::Locale;

namespace {

std::string TrimmedText(const automation::Variant& value) {
  return std::string(automation::Trim(ToString(value, Locale::Current())));
}

}  // namespace

/// The frame of the typed reads: a failure leaves its range and line behind.
template <class Read>
bool clsInterfaceRangeList::TypedRead(const char* literal, const std::string& sRName,
                                      std::int32_t lIndex, const Read& read) {
  return Procedure(literal, [&](Line& at) {
    try {
      return read(at);
    } catch (const Error&) {
      Invalidate(sRName, lIndex);
      throw;
    }
  });
}

/// The part of a read in which a type mismatch means that the cell's content is bad.
template <class Convert>
void clsInterfaceRangeList::Converting(const std::string& sRName, const Convert& convert) const {
  try {
    convert();
  } catch (const Error& error) {
    if (!error.Is(ErrorNumber::TypeMismatch)) throw;
    throw Error(
        errRwkInvalidRangeValue, error.Source(),
        "Invalid data in range '" + currentRange_->get_Description() + "' (" + sRName + ")");
  }
}

void clsInterfaceRangeList::Invalidate(const std::string& sRName, std::int32_t lIndex) {
  invalidRange_ = sRName;
  invalidRow_ = lIndex;
}

excel::Range clsInterfaceRangeList::CellOf(const std::string& sRName, std::int32_t lIndex) const {
  const std::int32_t row = currentRange_->get_BecomeHeader() ? 1 : lIndex;
  return GetRange(sRName).get_Cells(row, 1);
}

bool clsInterfaceRangeList::CountsAsFound(const std::string& text) const {
  return !text.empty() || currentRange_->get_BlankValueIsFound() || blankRangeIsThere_;
}

bool clsInterfaceRangeList::GetValRange(const std::string& sRName, double& dVal,
                                        std::int32_t lIndex) {
  return TypedRead("GetValRange of Class Module clsInterfaceRangeList Line#:", sRName, lIndex,
                   [&](Line& at) {
                     at();
                     if (!RangeExists(sRName)) {
                       dVal = 0;
                       return false;
                     }
                     std::string text;
                     at();
                     Converting(sRName, [&] {
                       text = TrimmedText(CellOf(sRName, lIndex).get_Value());
                       dVal = text.empty() ? 0 : automation::ToDouble(text, Locale::Current());
                       CheckDecimalPlaces(dVal);
                     });
                     return CountsAsFound(text);
                   });
}

void clsInterfaceRangeList::CheckDecimalPlaces(double value) const {
  const int places = currentRange_->get_DecimalPlaces();
  if (places < 0 || !validateDecimalPlaces_) return;
  if (automation::RoundHalfEven(value, places) != value) {
    throw Error(errPLInvalidDecimalPlaces, {}, "More than 2 Decimal places are not allowed");
  }
}

bool clsInterfaceRangeList::GetIntRange(const std::string& sRName, std::int16_t& iInt,
                                        std::int32_t lIndex) {
  return TypedRead("GetIntRange of Class Module clsInterfaceRangeList Line#:", sRName, lIndex,
                   [&](Line& at) {
                     at();
                     if (!RangeExists(sRName)) {
                       iInt = 0;
                       return false;
                     }
                     std::string text;
                     at();
                     Converting(sRName, [&] {
                       text = TrimmedText(CellOf(sRName, lIndex).get_Value());
                       const double number = std::floor(automation::LeadingNumber(text));
                       iInt = automation::ToInteger(number, Locale::Current());
                     });
                     return CountsAsFound(text);
                   });
}

bool clsInterfaceRangeList::GetYNRange(const std::string& sRName, bool& bVal, std::int32_t lIndex) {
  return TypedRead(
      "GetYNRange of Class Module clsInterfaceRangeList Line#:", sRName, lIndex, [&](Line& at) {
        at();
        bVal = false;
        if (!RangeExists(sRName)) return false;
        std::string text;
        at();
        Converting(sRName, [&] {
          text = TrimmedText(CellOf(sRName, lIndex).get_Value());
          bVal = EqualText(text, "YES") || EqualText(text, "Y");
          if (!bVal && !text.empty() && !EqualText(text, "NO") && !EqualText(text, "N")) {
            throw Error(errRwkInvalidRangeValue, {}, "Invalid entry in Y/N range");
          }
        });
        return CountsAsFound(text);
      });
}

bool clsInterfaceRangeList::GetStrRange(const std::string& sRName, std::string& sVal,
                                        std::int32_t lIndex) {
  return TypedRead(
      "GetStrRange of Class Module clsInterfaceRangeList Line#:", sRName, lIndex, [&](Line& at) {
        at();
        if (!RangeExists(sRName)) {
          sVal.clear();
          return false;
        }
        at();
        const std::string text = TrimmedText(CellOf(sRName, lIndex).get_Default());
        const std::int16_t length = currentRange_->get_DataLength();
        sVal = length < 1 ? text : automation::Left(text, static_cast<std::size_t>(length));
        return CountsAsFound(text);
      });
}

std::string clsInterfaceRangeList::GetStrRangeBlk(const std::string& sRName, std::int32_t lIndex) {
  return Procedure("GetStrRangeBlk of Class Module clsInterfaceRangeList Line#:", [&](Line& at) {
    std::string text;
    at();
    GetStrRange(sRName, text, lIndex);
    return text;
  });
}

/// Unlike the other reads it leaves its range and line behind for an invalid date alone.
bool clsInterfaceRangeList::GetDateRange(const std::string& sRName, Date& datVal,
                                         std::int32_t lIndex) {
  return Procedure("GetDateRange of Class Module clsInterfaceRangeList Line#:", [&](Line& at) {
    at();
    if (!RangeExists(sRName)) {
      datVal = {};
      return false;
    }
    at();
    const std::string text = TrimmedText(CellOf(sRName, lIndex).get_Default());
    const bool found = CountsAsFound(text);
    if (IsBlank(text) || !found) {
      datVal = {};
      return found;
    }
    at();
    try {
      datVal = DateFromText(text);
    } catch (const Error& error) {
      Invalidate(sRName, lIndex);
      throw Error(errRwkInvalidRangeValue, error.Source(), "Invalid date in range " + sRName);
    }
    return found;
  });
}

/// Writing the text in the host's date order first takes the time of day off.
clsInterfaceRangeList::Date clsInterfaceRangeList::DateFromText(const std::string& text) const {
  const Locale& locale = Locale::Current();
  return ToDate(automation::FormatDateText(text, DateFormatForLocale(), locale), locale);
}

std::string clsInterfaceRangeList::DateFormatForLocale() const {
  const Variant order = actSheet_.get_Application().get_International(excel::xlDateOrder);
  switch (automation::ToLong(order, Locale::Current())) {
    case 0:
      return "mm/dd/yyyy";
    case 1:
      return "dd/mm/yyyy";
    case 2:
      return "yyyy/mm/dd";
    default:
      return {};
  }
}

std::int32_t clsInterfaceRangeList::get_InvalidRow() const {
  return get_InvalidRangeType() == hdiHeader ? 0 : invalidRow_;
}

eRangeHeadDetailInd clsInterfaceRangeList::get_InvalidRangeType() const {
  return Procedure("InvalidRangeType of Class Module clsInterfaceRangeList Line#:", [&](Line& at) {
    at();
    const Record record = ranges_->TryItem(invalidRange_);
    if (!record) throw Error(automation::kApplicationErrorBase, {}, "No invalid range set");
    return record->get_DetailIndicator();
  });
}

}  // namespace rangewerks
