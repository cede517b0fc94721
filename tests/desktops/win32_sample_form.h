// A form with every kind of control, which writes down what its handlers are told.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "forms/form.h"
#include "forms/grid.h"
#include "forms/list_view.h"
#include "forms/menu.h"
#include "forms/simple_controls.h"
#include "forms/tree_view.h"

namespace rangewerks::tests {

/// Rows of a grid: a number, whether it is a warning, a note and a text.
class SampleRows final : public forms::GridRows {
 public:
  std::size_t RowCount() const override { return rows_.size(); }
  automation::Variant Cell(std::size_t row, std::size_t column) const override;
  void SetCell(std::size_t row, std::size_t column, const automation::Variant& value) override;
  void Add(std::int32_t number, bool warning, const std::string& text);
  void Clear();

 private:
  std::vector<std::vector<automation::Variant>> rows_;
};

class SampleForm final : public forms::Form {
 public:
  explicit SampleForm(forms::Toolkit& toolkit, forms::Border border = forms::Border::Sizable);

  forms::MenuEntry mnuFile{*this, "mnuFile", "&File"};
  forms::MenuEntry mnuSave{mnuFile, "mnuSave", "&Save"};
  forms::MenuEntry mnuLine{mnuFile, "mnuLine", "-"};
  forms::MenuEntry mnuTick{mnuFile, "mnuTick", "&Tick"};
  forms::MenuEntry mnuHelp{*this, "mnuHelp", "&Help"};
  forms::MenuEntry mnuAbout{mnuHelp, "mnuAbout", "&About"};

  forms::PictureBox picIcon{
      *this, "picIcon", {.place = {120, 120, 480, 480}, .picture = forms::Picture::Product}};
  forms::Label lblHelp{*this,
                       "lblHelp",
                       {.place = {720, 120, 3480, 480},
                        .text = "A long text that has to be broken into two lines, R&D",
                        .useMnemonic = false}};
  forms::DividingLine lneTop{*this, "lneTop", {.place = {120, 660, 4080, 30}}};
  forms::Label lblName{*this, "lblName", {.place = {120, 780, 1200, 285}, .text = "&Name:"}};
  forms::TextBox txtName{*this, "txtName", {.place = {1440, 750, 2760, 315}, .toolTip = "A name"}};
  forms::Label lblNotes{*this, "lblNotes", {.place = {120, 1140, 1200, 285}, .text = "N&otes:"}};
  forms::TextBox txtNotes{*this, "txtNotes", {.place = {1440, 1110, 2760, 735}, .multiLine = true}};
  forms::TextBox txtLocked{
      *this, "txtLocked", {.place = {1440, 1890, 2760, 315}, .text = "Locked", .locked = true}};
  forms::Label lblRight{*this,
                        "lblRight",
                        {.place = {120, 1920, 1200, 285},
                         .text = "Right:",
                         .foreColor = 0xFF,
                         .alignment = forms::Alignment::Right}};
  forms::Frame frmChoice{*this, "frmChoice", {.place = {120, 2280, 4080, 1380}, .text = "Choice"}};
  forms::CheckBox chkOn{
      frmChoice, "chkOn", {.place = {180, 300, 1800, 285}, .text = "Switched o&n"}};
  forms::TextBox txtSwatch{
      frmChoice, "txtSwatch", {.place = {2100, 285, 900, 315}, .backColor = 0x80FF80}};
  forms::CommandButton cmdColour{
      frmChoice, "cmdColour", {.place = {3120, 270, 360, 345}, .picture = forms::Picture::Palette}};
  forms::Panel pnlInner{frmChoice, "pnlInner", {.place = {180, 720, 3720, 540}}};
  forms::CommandButton cmdInner{
      pnlInner, "cmdInner", {.place = {0, 60, 1500, 390}, .text = "&Inner"}};
  forms::Label lblInner{
      pnlInner, "lblInner", {.place = {1620, 120, 1500, 285}, .text = "Bold", .bold = true}};
  forms::Calendar calDay{*this, "calDay", {.place = {120, 3780, 4080, 2700}}};
  forms::TreeView tree{*this, "tree", {.place = {4440, 120, 4680, 1800}}};
  forms::ListView list{*this, "list", {.place = {4440, 2040, 4680, 1500}}};
  forms::Grid grid{*this,
                   "grid",
                   {.place = {4440, 3660, 4680, 2220}},
                   {{.source = 0, .heading = "Row", .width = 600},
                    {.source = 1,
                     .heading = "",
                     .width = 450,
                     .picture =
                         [](const automation::Variant& value) {
                           return *value.TryGet<bool>() ? forms::Picture::Warning
                                                        : forms::Picture::Error;
                         }},
                    {.source = 2, .heading = "Fixed?", .width = 900, .locked = false},
                    {.source = 3, .heading = "Error"}}};
  forms::CommandButton cmdOK{*this,
                             "cmdOK",
                             {.place = {6240, 6000, 1380, 450},
                              .text = "O&K",
                              .toolTip = "Close",
                              .picture = forms::Picture::Ok,
                              .isDefault = true}};
  forms::CommandButton cmdCancel{*this,
                                 "cmdCancel",
                                 {.place = {7740, 6000, 1380, 450},
                                  .text = "Cancel",
                                  .picture = forms::Picture::Cancel,
                                  .isCancel = true}};

  /// "cmdOK", "txtName Change abc", "Form_Resize", ...; each handler adds one.
  std::vector<std::string> told;
  /// Gives what was told since it was last asked.
  std::vector<std::string> TakeTold() { return std::exchange(told, {}); }
  std::shared_ptr<SampleRows> rows = std::make_shared<SampleRows>();

 protected:
  void Form_Load() override;
  void Form_QueryUnload() override { told.emplace_back("Form_QueryUnload"); }
  void Form_Unload() override { told.emplace_back("Form_Unload"); }
  void Form_Resize() override { told.emplace_back("Form_Resize"); }

 private:
  void Fill();
};

}  // namespace rangewerks::tests
