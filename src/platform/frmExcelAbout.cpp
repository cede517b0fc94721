#include "platform/frmExcelAbout.h"

#include <cstddef>
#include <utility>

#include "automation/conversions.h"
#include "automation/error.h"

namespace rangewerks {

using automation::Locale;
using platform::Registry;

namespace {

const std::string kProgramKey = R"(SOFTWARE\Microsoft\Shared Tools\MSINFO)";
const std::string kProgramValue = "PATH";
const std::string kFolderKey = R"(SOFTWARE\Microsoft\Shared Tools Location)";
const std::string kFolderValue = "MSINFO";
const std::string kProgramInFolder = R"(\MSINFO32.EXE)";
constexpr std::size_t kLongestValue = 1024;

/// The number whose bytes these are, from the lowest, as decimal text. Each byte is written with as
/// few digits as it needs, so a byte below 16 that isn't the highest loses its zero.
std::string NumberText(std::string_view bytes) {
  static constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string digits = "&h";
  for (const char byte : std::string(bytes.rbegin(), bytes.rend())) {
    const auto value = static_cast<unsigned char>(byte);
    if (value >= kDigits.size()) digits += kDigits[value / kDigits.size()];
    digits += kDigits[value % kDigits.size()];
  }
  return ToString(ToDouble(digits, Locale::Current()), Locale::Current());
}

}  // namespace

frmExcelAbout::frmExcelAbout(forms::Toolkit& toolkit,
                             std::shared_ptr<const platform::System> system)
    : Form(toolkit, "frmExcelAbout", {.caption = "About", .innerWidth = 5760, .innerHeight = 3960}),
      system_(std::move(system)) {
  cmdOK.Click = [this] { Unload(); };
  cmdSysInfo.Click = [this] { StartSysInfo(); };
}

void frmExcelAbout::StartSysInfo() {
  try {
    StartSystemProgram();
  } catch (const automation::Error&) {
    Desktop().ShowMessage({.text = "System Information Is Unavailable At This Time"}, this);
  }
}

/// Raises 53 when there is no such program here.
void frmExcelAbout::StartSystemProgram() const {
  std::string program;
  if (!GetKeyValue(Registry::kLocalMachine, kProgramKey, kProgramValue, program)) {
    const bool hasFolder = GetKeyValue(Registry::kLocalMachine, kFolderKey, kFolderValue, program);
    program += kProgramInFolder;
    if (!hasFolder || !system_->FileExists(program)) {
      throw automation::Error(automation::ErrorNumber::FileNotFound);
    }
  }
  system_->StartProgram(program);
}

bool frmExcelAbout::GetKeyValue(std::int32_t hRoot, const std::string& sKey,
                                const std::string& sValueName, std::string& sValue) const {
  const Registry::RawReading reading =
      system_->OpenRegistry()->ReadWithFullAccess(hRoot, sKey, sValueName, kLongestValue);
  if (reading.status != Registry::kSuccess) {
    sValue.clear();
    return false;
  }
  std::string_view bytes = reading.bytes;
  if (bytes.ends_with('\0')) bytes.remove_suffix(1);
  if (reading.type == Registry::kTypeText) sValue = bytes;
  if (reading.type == Registry::kTypeNumber) sValue = NumberText(bytes);
  return true;
}

}  // namespace rangewerks
