#include "filesave/clsExcelFileSave.h"

#include <filesystem>
#include <system_error>

#include "automation/conversions.h"
#include "automation/error.h"
#include "automation/text.h"
#include "errors/attempt.h"
#include "errors/procedure.h"
#include "platform/basRegistry.h"

namespace rangewerks {

using automation::Error;
using automation::ErrorNumber;
using automation::kApplicationErrorBase;
using automation::Locale;
using automation::Variant;
using platform::Registry;

namespace {

constexpr const char* kFilePath = "File";
constexpr const char* kFilename = "Identifier";
constexpr const char* kDoSaveFile = "DoSaveFile";
constexpr const char* kPromptOnSave = "PromptOnSave";

/// `length` characters from the 1-based position `start`, as far as there are any. Raises 5 for a
/// negative length.
std::string Mid(std::string_view text, std::size_t start, std::ptrdiff_t length) {
  if (length < 0) throw Error(ErrorNumber::InvalidProcedureCall);
  text.remove_prefix(automation::Left(text, start - 1).size());
  return std::string(automation::Left(text, static_cast<std::size_t>(length)));
}

/// The 1-based position of the first "%" behind the position `after`, or 0.
std::size_t NextPercent(std::string_view text, std::size_t after) {
  const std::size_t found = text.find('%', automation::Left(text, after).size());
  return found == std::string_view::npos ? 0 : automation::Length(text.substr(0, found)) + 1;
}

bool IsFolder(const std::string& path) {
  std::error_code failure;
  return std::filesystem::is_directory(std::u8string(path.begin(), path.end()), failure);
}

}  // namespace

std::string clsExcelFileSave::ConvertIdentifier(const std::string& sCode,
                                                const std::string& sIdentifier) const {
  return Procedure("ConvertIdentifier of Class Module clsExcelFileSave Line#:", [&](Line& at) {
    const auto today = [&](std::string_view pattern) {
      return FormatDate(system_->Now(), pattern, Locale::Current());
    };
    at();
    if (sCode == "%i") return sIdentifier;
    if (sCode == "%d") return today("dd");
    if (sCode == "%m") return today("mm");
    if (sCode == "%y") return today("yy");
    if (sCode == "%u") return system_->AccountName();
    return sCode;
  });
}

std::string clsExcelFileSave::BreakIdentifiers(const std::string& sPattern,
                                               const std::string& sIdentifier) const {
  return Procedure("BreakIdentifiers of Class Module clsExcelFileSave Line#:", [&](Line& at) {
    const auto expansion = [&](const std::string& text) {
      return ConvertIdentifier(text, sIdentifier);
    };
    const auto expansionOfCode = [&](const std::string& piece) {
      return expansion(Mid(piece, 1, 2));
    };
    at();
    std::size_t position = NextPercent(sPattern, 0);
    if (position == 0) return sPattern;
    bool firstCodeIsDone = position == 1;
    std::string result =
        expansion(firstCodeIsDone ? Mid(sPattern, 1, 2)
                                  : Mid(sPattern, 1, static_cast<std::ptrdiff_t>(position) - 1));
    const auto whole = static_cast<std::ptrdiff_t>(automation::Length(sPattern));
    while (position != 0) {
      at();
      const std::size_t next = NextPercent(sPattern, position);
      auto length = static_cast<std::ptrdiff_t>(next) - static_cast<std::ptrdiff_t>(position);
      if (next == 0) {
        length = whole;
        // A code that is the first and the last has been expanded already; this is how it's told.
        const std::string last = expansionOfCode(Mid(sPattern, position, length));
        if (!last.empty() && last != result) result += last;
        position += 2;
      }
      if (firstCodeIsDone) {
        position = 3;
        length -= 2;
        firstCodeIsDone = false;
      }
      at();
      const std::string piece = Mid(sPattern, position, length);
      if (piece.starts_with('%')) {
        result += expansionOfCode(piece) + expansion(Mid(piece, 3, whole));
      } else {
        result += expansion(piece);
      }
      position = next;
    }
    return result;
  });
}

void clsExcelFileSave::ExpandFileName() {
  Procedure("ExpandFileName of Class Module clsExcelFileSave Line#:", [&](Line& at) {
    at();
    expandedName_ = BreakIdentifiers(filename_, identifier_);
  });
}

std::string clsExcelFileSave::FullPath() const {
  return filePath_ + (filePath_.ends_with('\\') ? "" : "\\") + expandedName_;
}

std::string clsExcelFileSave::Key() const {
  return basRegistry::kProductKey + "\\" + regSection_ + "\\File Save Settings";
}

Variant clsExcelFileSave::ReadSetting(const std::string& name, const Variant& whenAbsent) const {
  const Variant value =
      basRegistry::ReadRegistryValue(*system_->OpenRegistry(), Registry::kCurrentUser, Key(), name);
  return value == Variant("") ? whenAbsent : value;
}

void clsExcelFileSave::WriteSetting(const std::string& name, const Variant& value) const {
  basRegistry::WriteRegistryValue(*system_->OpenRegistry(), Registry::kCurrentUser, Key(), name,
                                  value, false);
}

void clsExcelFileSave::GetSettingsFromRegistry() {
  const Locale& locale = Locale::Current();
  Attempt([&] { filePath_ = ToString(ReadSetting(kFilePath, "c:\\"), locale); });
  Attempt([&] { filename_ = ToString(ReadSetting(kFilename, "%i"), locale); });
  Attempt([&] { doSaveFile_ = ToBoolean(ReadSetting(kDoSaveFile, false), locale); });
  Attempt([&] { promptOnSave_ = ToBoolean(ReadSetting(kPromptOnSave, false), locale); });
}

void clsExcelFileSave::SaveSettingsToRegistry() {
  Attempt([&] { WriteSetting(kFilePath, filePath_); });
  Attempt([&] { WriteSetting(kFilename, filename_); });
  Attempt([&] { WriteSetting(kDoSaveFile, doSaveFile_); });
  Attempt([&] { WriteSetting(kPromptOnSave, promptOnSave_); });
}

void clsExcelFileSave::Validate() const {
  if (!doSaveFile_) return;
  if (filename_.empty() || filePath_.empty()) {
    throw Error(kApplicationErrorBase, "clsExcelFileSave", "File name or file path missing");
  }
  if (!IsFolder(filePath_)) {
    throw Error(kApplicationErrorBase, "clsExcelFileSave", "File path not found or access denied");
  }
}

void clsExcelFileSave::CopyFrom(const clsExcelFileSave& other) {
  filename_ = other.filename_;
  filePath_ = other.filePath_;
  promptOnSave_ = other.promptOnSave_;
  doSaveFile_ = other.doSaveFile_;
  expandedName_ = other.expandedName_;
}

}  // namespace rangewerks
