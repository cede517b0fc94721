// The spreadsheet program that a command works with.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "automation/object.h"

namespace rangewerks::apps {

enum class HostKind {
  LibreOffice,  ///< LibreOffice Calc, for xlsx, xls, ods and all else that it opens
  Workbook,     ///< a workbook in memory, for JSON workbook files
};

/// The host for a file when the caller names none: by its extension, .json in any case for the
/// workbook in memory.
HostKind HostFor(const std::string& path);

/// A running program. Workbooks are gone when it is.
class Spreadsheet {
 public:
  virtual ~Spreadsheet() = default;

  /// Opens a file for reading and makes it the active workbook: no lock is left on it, and one that
  /// somebody else has open is opened all the same. Raises an automation::Error that says what is
  /// wrong with the file.
  virtual automation::Object Open(const std::string& path) = 0;
};

/// Starts the program. Raises Failure when this build has no such host, automation::Error when it
/// can't be started.
std::unique_ptr<Spreadsheet> StartSpreadsheet(HostKind kind);

}  // namespace rangewerks::apps
