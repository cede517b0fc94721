// A panel with two colours: of a range's cells and of its heading. Each is shown as a swatch, with
// a button that opens the colour dialog.
//
//   ctlColourPallet ctlColourPallet1{*this, "ctlColourPallet1", {.place = {360, 600, 5895, 1935}}};
//   ctlColourPallet1.let_ColumnColour(0x00FF80);
//   ctlColourPallet1.LoadColours();
#pragma once

#include <cstdint>
#include <string>

#include "forms/simple_controls.h"

namespace rangewerks {

/// Colours are numbers of the form 0xBBGGRR, and 0 whenever the form has been loaded anew.
class ctlColourPallet final : public forms::Panel {
 public:
  ctlColourPallet(forms::Container& parent, std::string name, forms::ControlProperties design);

  std::int32_t get_HeadingColour() const { return headingColour_; }
  void let_HeadingColour(std::int32_t value) { headingColour_ = value; }
  std::int32_t get_ColumnColour() const { return columnColour_; }
  void let_ColumnColour(std::int32_t value) { columnColour_ = value; }

  /// Shows the two colours on the swatches.
  void LoadColours();
  /// The caption of the frame.
  void NameOfTheFrame(const std::string& text);
  /// Switched off, both swatches are white; the colours stay. Switching on doesn't show them again.
  void EnableControl(bool flag);
  void EnableTxtClmColour(bool flag);
  /// The button of the heading's colour too.
  void EnableTxtHeadColour(bool flag);
  /// The height of the frame in twips; what stands below its edge isn't seen.
  void Framelength(std::int16_t length);

  forms::Frame frmControl{*this, "frmControl", {.place = {120, 180, 5535, 1575}}};
  forms::Label lblClmcolour{
      frmControl, "lblClmcolour", {.place = {240, 375, 1815, 225}, .text = "Column Colour"}};
  forms::TextBox txtClmColour{frmControl, "txtClmColour", Swatch(345)};
  forms::CommandButton cmdClmColour{frmControl, "cmdClmColour", Chooser(300)};
  forms::Label lblHeadColour{
      frmControl, "lblHeadColour", {.place = {240, 1065, 1815, 225}, .text = "Heading Colour"}};
  forms::TextBox txtHeadColour{frmControl, "txtHeadColour", Swatch(1035)};
  forms::CommandButton cmdHeadColour{frmControl, "cmdHeadColour", Chooser(990)};

 protected:
  void Reset() override;

 private:
  static forms::ControlProperties Swatch(double top);
  static forms::ControlProperties Chooser(double top);
  forms::Colour ChooseColour(forms::Colour fallback);
  void Choose(forms::TextBox& swatch, std::int32_t& colour);

  std::int32_t headingColour_ = 0;
  std::int32_t columnColour_ = 0;
};

}  // namespace rangewerks
