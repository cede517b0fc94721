#include "sheetbuild/colour_pallet_object.h"

namespace rangewerks {

const automation::MemberTable& ColourPalletObject::Members() const {
  using C = ColourPalletObject;
  static const char* const kHeading = "Colour of the heading, as 0xBBGGRR.";
  static const char* const kColumn = "Colour of the cells, as 0xBBGGRR.";
  static const automation::MemberTable table =
      automation::MemberTable::For<C>("ctlColourPallet")
          .Get(1, "HeadingColour", &C::get_HeadingColour, kHeading)
          .Let(1, "HeadingColour", &C::let_HeadingColour, kHeading)
          .Get(2, "ColumnColour", &C::get_ColumnColour, kColumn)
          .Let(2, "ColumnColour", &C::let_ColumnColour, kColumn)
          .Method(3, "LoadColours", &C::LoadColours, {}, "Shows the two colours.")
          .Method(4, "NameOfTheFrame", &C::NameOfTheFrame, {{"text"}}, "The caption of the frame.")
          .Method(5, "EnableControl", &C::EnableControl, {{"flag"}},
                  "Switches the panel on, or off with white swatches.")
          .Method(6, "EnableTxtClmColour", &C::EnableTxtClmColour, {{"flag"}},
                  "Switches the swatch of the cells' colour on or off.")
          .Method(7, "EnableTxtHeadColour", &C::EnableTxtHeadColour, {{"flag"}},
                  "Switches the swatch and the button of the heading's colour on or off.")
          .Method(8, "Framelength", &C::Framelength, {{"length"}},
                  "The height of the frame, in twips.");
  return table;
}

}  // namespace rangewerks
