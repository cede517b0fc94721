// The order form for one range that is placed on a sheet: what to add to it and how it looks.
//
//   auto properties = std::make_shared<clsRangeProperties>(registry);
//   properties->SetStandardDetailFormat();           // the person's stored colours
//   properties->let_RangeName("Net_Amount");
//   list->AddRangeToSpreadsheet(selection, properties);
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "automation/member_table.h"
#include "errors/procedure.h"
#include "model/clsExInputRange.h"
#include "platform/excel.h"
#include "platform/registry.h"
#include "sheetbuild/clsAnalyserStyles.h"
#include "sheetbuild/clsSaveSettings.h"

namespace rangewerks {

/// Serves one range and is used up by it: placing changes AddValidation, AddToolTips,
/// AddColumnHeadings and RangeHeading. Colours are 0xBBGGRR, -1 for none.
class clsRangeProperties final : public automation::AutomationClass {
 public:
  explicit clsRangeProperties(std::shared_ptr<platform::Registry> registry)
      : registry_(std::move(registry)) {}

  const automation::MemberTable& Members() const override;

  bool get_WrapHeaderText() const { return wrapHeaderText_; }
  void let_WrapHeaderText(bool value) { wrapHeaderText_ = value; }
  /// Leaves out the thin lines that a coloured range gets.
  bool get_DoNotAddBoxLinesIfColoured() const { return doNotAddBoxLinesIfColoured_; }
  void let_DoNotAddBoxLinesIfColoured(bool value) { doNotAddBoxLinesIfColoured_ = value; }
  bool get_AddLineAtBottomOfRange() const { return addLineAtBottomOfRange_; }
  void let_AddLineAtBottomOfRange(bool value) { addLineAtBottomOfRange_ = value; }
  /// In characters of the standard font; -1 leaves the width as it is.
  std::int32_t get_SetForceColumnWidth() const { return setForceColumnWidth_; }
  void let_SetForceColumnWidth(std::int32_t value) { setForceColumnWidth_ = value; }
  bool get_BoldRangeHeadings() const { return boldRangeHeadings_; }
  void let_BoldRangeHeadings(bool value) { boldRangeHeadings_ = value; }
  /// Kept for callers that set it; it has no effect.
  bool get_AddRangeBorder() const { return addRangeBorder_; }
  void let_AddRangeBorder(bool value) { addRangeBorder_ = value; }
  bool get_AddHeadingsBorder() const { return addHeadingsBorder_; }
  void let_AddHeadingsBorder(bool value) { addHeadingsBorder_ = value; }
  /// The scratch definition that AddDetailRangeToSpreadsheet declares; it also holds RangeName.
  const std::shared_ptr<clsExInputRange>& get_ExcelRange() const { return excelRange_; }
  /// The cells being formatted.
  const excel::Range& get_RangeArea() const { return rangeArea_; }
  void set_RangeArea(const excel::Range& value) { rangeArea_ = value; }
  /// Fill of the heading cell; white is a colour here.
  std::int32_t get_HeadingColour() const { return headingColour_; }
  void let_HeadingColour(std::int32_t value) { headingColour_ = value; }
  /// Fill of the cells; white counts as none.
  std::int32_t get_RangeColour() const { return rangeColour_; }
  void let_RangeColour(std::int32_t value) { rangeColour_ = value; }
  /// Fill of the cells in the sheet's even rows, where it differs from RangeColour.
  std::int32_t get_AlternateRangeColour() const { return alternateRangeColour_; }
  void let_AlternateRangeColour(std::int32_t value) { alternateRangeColour_ = value; }
  const std::string& get_RangeHeading() const { return rangeHeading_; }
  void let_RangeHeading(const std::string& value) { rangeHeading_ = value; }
  /// Height in rows to give a range that isn't a header; below 1 the selection's stays.
  std::int32_t get_RowsToAdd() const { return rowsToAdd_; }
  void let_RowsToAdd(std::int32_t value) { rowsToAdd_ = value; }
  bool get_AddColumnHeadings() const { return addColumnHeadings_; }
  void let_AddColumnHeadings(bool value) { addColumnHeadings_ = value; }
  bool get_AddToolTips() const { return addToolTips_; }
  void let_AddToolTips(bool value) { addToolTips_ = value; }
  bool get_AddValidation() const { return addValidation_; }
  void let_AddValidation(bool value) { addValidation_ = value; }
  /// Applies number format and alignment.
  bool get_AddFormat() const { return addFormat_; }
  void let_AddFormat(bool value) { addFormat_ = value; }
  const std::string& get_RangeName() const { return excelRange_->get_RangeName(); }
  void let_RangeName(const std::string& value) { excelRange_->let_RangeName(value); }

  /// Takes the person's stored colours and the look of a detail column. Touches no cells.
  void SetStandardDetailFormat();
  /// Writes the heading above RangeArea and gives the cells their fill, lines, banding and width.
  /// A heading for which there is no row, and lines that can't be drawn, are left out; any other
  /// failure is raised with "Error setting format" ahead of its words, and leaves what is done.
  void FormatRange();

  // --- for the library only ----------------------------------------------------------------------

  /// What the host's locale puts between the arguments of a formula.
  void let_ListSeparator(const std::string& value) { listSeparator_ = value; }
  void let_DecimalSeparator(const std::string& value) { decimalSeparator_ = value; }

 private:
  void PlaceHeading(Line& at) const;
  void FillAndDrawLines() const;
  void AddBanding(Line& at) const;
  void SetHeaderRangeFormat(const excel::Range& rng) const;

  std::shared_ptr<platform::Registry> registry_;
  bool wrapHeaderText_ = false;
  bool doNotAddBoxLinesIfColoured_ = false;
  bool addLineAtBottomOfRange_ = false;
  std::int32_t setForceColumnWidth_ = -1;
  bool boldRangeHeadings_ = false;
  bool addRangeBorder_ = false;
  bool addHeadingsBorder_ = false;
  std::shared_ptr<clsExInputRange> excelRange_ = std::make_shared<clsExInputRange>();
  excel::Range rangeArea_;
  std::int32_t headingColour_ = -1;
  std::int32_t rangeColour_ = -1;
  std::int32_t alternateRangeColour_ = -1;
  std::string rangeHeading_;
  std::int32_t rowsToAdd_ = 0;
  bool addColumnHeadings_ = false;
  bool addToolTips_ = false;
  bool addValidation_ = false;
  bool addFormat_ = false;
  std::string listSeparator_ = ",";
  std::string decimalSeparator_ = ".";
  std::shared_ptr<clsAnalyserStyles> styles_;  // made when first used
  std::shared_ptr<clsSaveSettings> settings_;  // made when first used
};

}  // namespace rangewerks
