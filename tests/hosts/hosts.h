// The spreadsheet programs that the contract suite runs against.
#pragma once

#include <vector>

#include "hosts/host_under_test.h"

namespace rangewerks::tests {

/// All that this build has: the workbook in memory, and LibreOffice when it was built.
std::vector<HostFactory> Hosts();

HostFactory WorkbookHost();
#ifdef RANGEWERKS_LIBREOFFICE
HostFactory LibreOfficeHost();
#endif

}  // namespace rangewerks::tests
