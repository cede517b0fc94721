// Reads a workbook from a plain JSON file (docs/workbook-file.md).
#pragma once

#include <string>

#include "hosts/workbook/model.h"

namespace rangewerks::hosts::workbook {

/// Reads the file into a new workbook of the session, named after the file, which becomes the
/// active one. Raises 53 when the file can't be read; 1004 with path, place (line and column of a
/// syntax error, else the pointer to the entry), what was found and what was expected. The session
/// is unchanged then.
Book& ReadWorkbookFile(Session& session, const std::string& path);

}  // namespace rangewerks::hosts::workbook
