// The spreadsheet program that a command works with.
#pragma once

#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "automation/object.h"

namespace rangewerks::apps {

enum class HostKind {
  LibreOffice,  ///< LibreOffice Calc, for xlsx, xls, ods and all else that it opens
  Workbook,     ///< a workbook in memory, for JSON workbook files
};

/// The host for a file when the caller names none: by its extension, .json in any case for the
/// workbook in memory.
HostKind HostFor(const std::string& path);

/// A file that somebody else has open is refused in both cases.
enum class Access {
  Read,   ///< leaves no lock on the file; the program may pass over changes without a word
  Write,  ///< cells can be changed; the file is locked meanwhile
};

/// The extensions of the files that a host writes, such as ".ods".
std::span<const std::string_view> WrittenBy(HostKind kind);

/// A running program. Workbooks are gone when it is.
class Spreadsheet {
 public:
  virtual ~Spreadsheet() = default;

  /// Opens a file and makes it the active workbook. The file itself is never changed. Raises an
  /// automation::Error that says what is wrong with it.
  virtual automation::Object Open(const std::string& path, Access access) = 0;
  /// Writes a workbook to another file, in the format that its extension tells. Raises an
  /// automation::Error when it can't.
  virtual void SaveCopyAs(const automation::Object& workbook, const std::string& path) = 0;
};

/// Starts the program. Raises Failure when this build has no such host, automation::Error when it
/// can't be started.
std::unique_ptr<Spreadsheet> StartSpreadsheet(HostKind kind);

}  // namespace rangewerks::apps
