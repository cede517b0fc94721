// Which Sage user the person at the machine is.
#include <cstdint>
#include <limits>

#include "automation/conversions.h"
#include "automation/text.h"
#include "rangelist/clsInterfaceRangeList.h"

namespace rangewerks {

using automation::Error;
using automation::ErrorNumber;
using automation::kApplicationErrorBase;
using automation::Locale;

namespace {

const std::string kWindowsUsers = "windows_users";
const std::string kSageUsers = "sage_users";

std::string CellText(const excel::Range& cell) {
  return ToString(cell.get_Default(), Locale::Current());
}

std::string TrimmedCell(const excel::Range& column, std::int16_t row) {
  return std::string(automation::Trim(CellText(column.get_Item(row))));
}

std::int16_t RowsOf(const excel::Range& column) {
  const std::int32_t rows = column.get_Rows().get_Count();
  if (rows > std::numeric_limits<std::int16_t>::max()) throw Error(ErrorNumber::Overflow);
  return static_cast<std::int16_t>(rows);
}

}  // namespace

void clsInterfaceRangeList::AddUserRangesToList() {
  ranges_->Add(kWindowsUsers, hdiNone, rdtString, false, "Windows User for mapping to Sage User");
  ranges_->Add(kSageUsers, hdiNone, rdtString, false, "Sage User for mapping from Sage");
}

bool clsInterfaceRangeList::ValidateUserRanges(bool bMissingIsAllowed) {
  if (bMissingIsAllowed && !RangeExists(kSageUsers) && !RangeExists(kWindowsUsers)) return true;
  if (RangeExists(kSageUsers)) {
    if (GetRange(kSageUsers).get_Rows().get_Count() == 1) return true;
    if (RangeExists(kWindowsUsers)) return true;
  }
  throw Error(kApplicationErrorBase, "ValidateUserRanges",
              "For user name functionality, define either: \rA " + kSageUsers +
                  " range for a single cell OR \rBoth " + kSageUsers + " and " + kWindowsUsers +
                  " ranges of equal sizes for mapping");
}

std::string clsInterfaceRangeList::GetSageUserName() {
  try {
    ValidateUserRanges(false);
    const excel::Range sageUsers = GetRange(kSageUsers);
    if (sageUsers.get_Rows().get_Count() == 1) return CellText(sageUsers);
    return MappedSageUser(sageUsers);
  } catch (const Error& error) {
    // This member names itself alone, without its line or the places below.
    throw Error(error.Number(), "GetSageUserName", error.Description());
  }
}

std::string clsInterfaceRangeList::MappedSageUser(const excel::Range& sageUsers) const {
  const std::string user = GetWindowsUserName();
  const excel::Range windowsUsers = GetRange(kWindowsUsers);
  const std::int16_t rows = RowsOf(windowsUsers);
  std::int32_t row = 1;
  std::string sageUser;
  for (; row <= rows; ++row) {
    const auto line = static_cast<std::int16_t>(row);
    if (TrimmedCell(windowsUsers, line) != user) continue;
    sageUser = TrimmedCell(sageUsers, line);
    break;
  }
  // The walk ends the same way on its last row as beyond it, so that row never counts. Nothing has
  // failed at this point, hence no number.
  if (row >= rows) throw Error(0, {}, "User name " + user + " not found in list");
  return sageUser;
}

std::string clsInterfaceRangeList::GetWindowsUserName() const {
  const auto user = system_ ? system_->LoggedOnUser() : std::nullopt;
  if (!user) {
    throw Error(kApplicationErrorBase, {}, "Could not get windows user name from operating system");
  }
  return *user;
}

}  // namespace rangewerks
