// The slots of what placing a range takes, in the order of their member tables.
#include <rangewerks.h>

#include "com/rangewerks/colour_pallet_control.h"
#include "com/rangewerks/interfaces.h"

namespace rangewerks::com {

DualInterface RangePropertiesInterface() {
  using I = ::_clsRangeProperties;
  return MakeDualInterface<
      I, &I::get_WrapHeaderText, &I::put_WrapHeaderText, &I::get_DoNotAddBoxLinesIfColoured,
      &I::put_DoNotAddBoxLinesIfColoured, &I::get_AddLineAtBottomOfRange,
      &I::put_AddLineAtBottomOfRange, &I::get_SetForceColumnWidth, &I::put_SetForceColumnWidth,
      &I::get_BoldRangeHeadings, &I::put_BoldRangeHeadings, &I::get_AddRangeBorder,
      &I::put_AddRangeBorder, &I::get_AddHeadingsBorder, &I::put_AddHeadingsBorder,
      &I::get_ExcelRange, &I::get_RangeArea, &I::putref_RangeArea, &I::get_HeadingColour,
      &I::put_HeadingColour, &I::get_RangeColour, &I::put_RangeColour, &I::get_AlternateRangeColour,
      &I::put_AlternateRangeColour, &I::get_RangeHeading, &I::put_RangeHeading, &I::get_RowsToAdd,
      &I::put_RowsToAdd, &I::get_AddColumnHeadings, &I::put_AddColumnHeadings, &I::get_AddToolTips,
      &I::put_AddToolTips, &I::get_AddValidation, &I::put_AddValidation, &I::get_AddFormat,
      &I::put_AddFormat, &I::get_RangeName, &I::put_RangeName, &I::SetStandardDetailFormat,
      &I::FormatRange>("clsRangeProperties");
}

DualInterface ColumnStyleInterface() {
  using I = ::_clsColumnStyle;
  return MakeDualInterface<I, &I::get_HeadingColour, &I::put_HeadingColour, &I::get_ColumnColour,
                           &I::put_ColumnColour, &I::get_EnableRangeColor, &I::put_EnableRangeColor,
                           &I::get_EnableAlternateRangeColor, &I::put_EnableAlternateRangeColor,
                           &I::get_KeyPath, &I::put_KeyPath>("clsColumnStyle");
}

DualInterface SaveSettingsInterface() {
  using I = ::_clsSaveSettings;
  return MakeDualInterface<
      I, &I::get_UpdateSheetForBrowse, &I::put_UpdateSheetForBrowse, &I::get_ColumnHeading,
      &I::put_ColumnHeading, &I::get_ColumnFormat, &I::put_ColumnFormat, &I::get_ToolTips,
      &I::put_ToolTips, &I::get_LengthValidation, &I::put_LengthValidation, &I::get_RangeWithColors,
      &I::put_RangeWithColors, &I::SaveSettings, &I::LoadSettings>("clsSaveSettings");
}

DualInterface ColourPalletInterface() {
  using I = ::_ctlColourPallet;
  DualInterface panel =
      MakeDualInterface<I, &I::get_HeadingColour, &I::put_HeadingColour, &I::get_ColumnColour,
                        &I::put_ColumnColour, &I::LoadColours, &I::NameOfTheFrame,
                        &I::EnableControl, &I::EnableTxtClmColour, &I::EnableTxtHeadColour,
                        &I::Framelength>("ctlColourPallet");
  panel.more = &ControlOfColourPallet;
  return panel;
}

}  // namespace rangewerks::com
