// The dual interfaces of the public classes. Each lists its methods in the order of the slots,
// which is the order of the entries in the class's member table.
#pragma once

#include "com/bridge/dual_interface.h"

namespace rangewerks::com {

DualInterface InputRangeInterface();
DualInterface InputRangeListInterface();
DualInterface GroupHeadingInterface();
DualInterface GroupHeadingsInterface();
DualInterface RangeListInterface();
DualInterface ExcelFunctionsInterface();
DualInterface RangePropertiesInterface();
DualInterface ColumnStyleInterface();
DualInterface SaveSettingsInterface();
DualInterface ExcelVBInterface();
DualInterface AddBrowseInterface();
DualInterface ExcelBrowseInterface();
DualInterface ErrorMessageBoxInterface();
DualInterface ErrL100JrnInterface();
DualInterface ErrorListInterface();
DualInterface BrowseDateInterface();
DualInterface ExcelAboutInterface();
DualInterface RangewerksVerInterface();
DualInterface ColourPalletInterface();

}  // namespace rangewerks::com
