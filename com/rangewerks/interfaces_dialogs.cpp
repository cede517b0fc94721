// The slots of the classes that show a dialog of their own, and of the version, in the order of
// their member tables.
#include <rangewerks.h>

#include "com/rangewerks/interfaces.h"

namespace rangewerks::com {

DualInterface BrowseDateInterface() {
  using I = ::_clsBrowseDate;
  return MakeDualInterface<I, &I::get_ActiveCell, &I::putref_ActiveCell, &I::BrowseDate>(
      "clsBrowseDate");
}

DualInterface ExcelAboutInterface() {
  using I = ::_clsExcelAbout;
  return MakeDualInterface<I, &I::get_Description, &I::put_Description, &I::get_Disclaimer,
                           &I::put_Disclaimer, &I::get_Copyright, &I::put_Copyright,
                           &I::get_ProductName, &I::put_ProductName, &I::get_Version,
                           &I::put_Version, &I::Show>("clsExcelAbout");
}

DualInterface RangewerksVerInterface() {
  using I = ::_clsRangewerksVer;
  return MakeDualInterface<I, &I::get_RangewerksVer>("clsRangewerksVer");
}

}  // namespace rangewerks::com
