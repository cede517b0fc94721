#include "sheetbuild/clsRangeProperties.h"

#include "errors/procedure.h"
#include "rangelist/clsInterfaceRangeList.h"

namespace rangewerks {
namespace {

constexpr std::int32_t kWhite = 0xFFFFFF;

}  // namespace

void clsRangeProperties::SetStandardDetailFormat() {
  Procedure("SetStandardDetailFormat of Class Module clsRangeProperties Line#:", [&](Line& at) {
    at();
    if (!styles_) styles_ = std::make_shared<clsAnalyserStyles>(registry_);
    clsAnalyserStyles& styles = *styles_;
    styles.get_AdjustmentColumn()->let_KeyPath(clsAnalyserStyles::kRangeKey);
    styles.get_AlternateAdjustmentColumn()->let_KeyPath(clsAnalyserStyles::kAlternateKey);
    at();
    // The first load completes the keys, the second reads what the person has stored under them.
    styles.LoadSettingsFromRegistry();
    styles.LoadSettingsFromRegistry();
    at();
    const auto range = styles.get_AdjustmentColumn();
    const auto alternate = styles.get_AlternateAdjustmentColumn();
    const bool isColoured = range->get_EnableRangeColor();
    headingColour_ = isColoured ? range->get_HeadingColour() : kWhite;
    rangeColour_ = isColoured ? range->get_ColumnColour() : kWhite;
    at();
    alternateRangeColour_ =
        alternate->get_EnableAlternateRangeColor() ? alternate->get_ColumnColour() : rangeColour_;
    at();
    // Not loaded, and so never true: the caller decides about headings.
    if (!settings_) settings_ = std::make_shared<clsSaveSettings>(registry_);
    if (settings_->get_ColumnHeading()) addColumnHeadings_ = true;
    addHeadingsBorder_ = true;
    addRangeBorder_ = true;
    boldRangeHeadings_ = true;
    addFormat_ = true;
    if (isColoured) addLineAtBottomOfRange_ = true;
  });
}

const automation::MemberTable& clsRangeProperties::Members() const {
  using C = clsRangeProperties;
  static const automation::MemberTable table =
      automation::MemberTable::For<C>("clsRangeProperties")
          .Get(1, "WrapHeaderText", &C::get_WrapHeaderText, "Wraps the text of the heading.")
          .Let(1, "WrapHeaderText", &C::let_WrapHeaderText, "Wraps the text of the heading.")
          .Get(2, "DoNotAddBoxLinesIfColoured", &C::get_DoNotAddBoxLinesIfColoured,
               "Leaves out the thin lines that a coloured range gets.")
          .Let(2, "DoNotAddBoxLinesIfColoured", &C::let_DoNotAddBoxLinesIfColoured,
               "Leaves out the thin lines that a coloured range gets.")
          .Get(3, "AddLineAtBottomOfRange", &C::get_AddLineAtBottomOfRange,
               "Draws a thin line under the last row.")
          .Let(3, "AddLineAtBottomOfRange", &C::let_AddLineAtBottomOfRange,
               "Draws a thin line under the last row.")
          .Get(4, "SetForceColumnWidth", &C::get_SetForceColumnWidth,
               "Width of the column in characters; -1 leaves it.")
          .Let(4, "SetForceColumnWidth", &C::let_SetForceColumnWidth,
               "Width of the column in characters; -1 leaves it.")
          .Get(5, "BoldRangeHeadings", &C::get_BoldRangeHeadings, "Heading in bold.")
          .Let(5, "BoldRangeHeadings", &C::let_BoldRangeHeadings, "Heading in bold.")
          .Get(6, "AddRangeBorder", &C::get_AddRangeBorder, "Kept for older callers; no effect.")
          .Let(6, "AddRangeBorder", &C::let_AddRangeBorder, "Kept for older callers; no effect.")
          .Get(7, "AddHeadingsBorder", &C::get_AddHeadingsBorder, "Heading with border lines.")
          .Let(7, "AddHeadingsBorder", &C::let_AddHeadingsBorder, "Heading with border lines.")
          .Get(8, "ExcelRange", &C::get_ExcelRange,
               "The scratch definition of the range, with its name.")
          .Get(9, "RangeArea", &C::get_RangeArea, "The cells being formatted.")
          .Set(9, "RangeArea", &C::set_RangeArea, "The cells being formatted.")
          .Get(10, "HeadingColour", &C::get_HeadingColour,
               "Fill of the heading as 0xBBGGRR; -1 for none.")
          .Let(10, "HeadingColour", &C::let_HeadingColour,
               "Fill of the heading as 0xBBGGRR; -1 for none.")
          .Get(11, "RangeColour", &C::get_RangeColour,
               "Fill of the cells as 0xBBGGRR; -1 or white for none.")
          .Let(11, "RangeColour", &C::let_RangeColour,
               "Fill of the cells as 0xBBGGRR; -1 or white for none.")
          .Get(12, "AlternateRangeColour", &C::get_AlternateRangeColour,
               "Fill of the cells in even rows of the sheet.")
          .Let(12, "AlternateRangeColour", &C::let_AlternateRangeColour,
               "Fill of the cells in even rows of the sheet.")
          .Get(13, "RangeHeading", &C::get_RangeHeading, "Text of the heading.")
          .Let(13, "RangeHeading", &C::let_RangeHeading, "Text of the heading.")
          .Get(14, "RowsToAdd", &C::get_RowsToAdd,
               "Height in rows of a range that isn't a header; below 1 the selection's.")
          .Let(14, "RowsToAdd", &C::let_RowsToAdd,
               "Height in rows of a range that isn't a header; below 1 the selection's.")
          .Get(15, "AddColumnHeadings", &C::get_AddColumnHeadings,
               "Writes a heading into the cell above.")
          .Let(15, "AddColumnHeadings", &C::let_AddColumnHeadings,
               "Writes a heading into the cell above.")
          .Get(16, "AddToolTips", &C::get_AddToolTips, "Adds an input message.")
          .Let(16, "AddToolTips", &C::let_AddToolTips, "Adds an input message.")
          .Get(17, "AddValidation", &C::get_AddValidation, "Adds data validation.")
          .Let(17, "AddValidation", &C::let_AddValidation, "Adds data validation.")
          .Get(18, "AddFormat", &C::get_AddFormat, "Applies number format and alignment.")
          .Let(18, "AddFormat", &C::let_AddFormat, "Applies number format and alignment.")
          .Get(19, "RangeName", &C::get_RangeName, "The declared name; that of ExcelRange.")
          .Let(19, "RangeName", &C::let_RangeName, "The declared name; that of ExcelRange.")
          .Method(20, "SetStandardDetailFormat", &C::SetStandardDetailFormat, {},
                  "Takes the person's stored colours and the look of a detail column.")
          .Method(21, "FormatRange", &C::FormatRange, {},
                  "Writes the heading and formats the cells.");
  return table;
}

}  // namespace rangewerks

namespace rangewerks::automation {

std::shared_ptr<clsRangeProperties> VariantCast<std::shared_ptr<clsRangeProperties>>::From(
    const Variant& value) {
  return InstanceIn<clsRangeProperties>(value);
}

}  // namespace rangewerks::automation
