// The example journal as a workbook of a spreadsheet program, and a small one as a JSON workbook.
#pragma once

#include <string>

#include "hosts/libreoffice/office.h"

namespace rangewerks::examples {

/// Two sheets under the sheet scheme, with bad cells of every kind.
void WriteJournal(hosts::libreoffice::Office& office, const std::string& path);

/// The beginning of the first of them, for the workbook in memory.
void WriteSmallJournal(const std::string& path);

/// A sheet with the words of the header and no ranges yet, for these to be placed on.
void WriteJournalForm(hosts::libreoffice::Office& office, const std::string& path);

}  // namespace rangewerks::examples
