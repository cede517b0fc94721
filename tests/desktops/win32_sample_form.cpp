#include "desktops/win32_sample_form.h"

namespace rangewerks::tests {

automation::Variant SampleRows::Cell(std::size_t row, std::size_t column) const {
  return rows_.at(row).at(column);
}

void SampleRows::SetCell(std::size_t row, std::size_t column, const automation::Variant& value) {
  rows_.at(row).at(column) = value;
  TellChanged();
}

void SampleRows::Add(std::int32_t number, bool warning, const std::string& text) {
  rows_.push_back({automation::Variant(number), automation::Variant(warning), automation::Variant(),
                   automation::Variant(text)});
  TellChanged();
}

void SampleRows::Clear() {
  rows_.clear();
  TellChanged();
}

SampleForm::SampleForm(forms::Toolkit& toolkit, forms::Border border)
    : Form(toolkit, "SampleForm",
           {.caption = "Sample", .innerWidth = 9240, .innerHeight = 6600, .border = border}) {
  const auto tell = [this](std::string what) { return [this, what] { told.push_back(what); }; };
  mnuSave.Click = tell("mnuSave");
  mnuTick.Click = [this] {
    told.emplace_back("mnuTick");
    mnuTick.let_Checked(!mnuTick.get_Checked());
  };
  mnuAbout.Click = tell("mnuAbout");
  lblHelp.DblClick = tell("lblHelp DblClick");
  txtName.Change = [this] { told.push_back("txtName Change " + txtName.get_Text()); };
  txtNotes.Change = [this] { told.push_back("txtNotes Change " + txtNotes.get_Text()); };
  chkOn.Click = [this] { told.emplace_back(chkOn.get_Value() ? "chkOn on" : "chkOn off"); };
  cmdColour.Click = tell("cmdColour");
  cmdInner.Click = tell("cmdInner");
  calDay.DblClick = tell("calDay DblClick");
  tree.NodeClick = [this](forms::TreeNode& node) { told.push_back("node " + node.get_Text()); };
  tree.DblClick = tell("tree DblClick");
  list.ItemClick = [this](forms::ListItem& item) { told.push_back("item " + item.get_Text()); };
  list.DblClick = tell("list DblClick");
  list.ColumnClick = [this](std::int32_t index) {
    told.push_back("column " + std::to_string(index));
  };
  grid.Click = [this] { told.push_back("grid Click " + std::to_string(grid.get_Row())); };
  grid.RowColChange = [this] { told.push_back("grid row " + std::to_string(grid.get_Row())); };
  cmdOK.Click = tell("cmdOK");
  cmdCancel.Click = tell("cmdCancel");
}

void SampleForm::Form_Load() {
  told.emplace_back("Form_Load");
  Fill();
}

void SampleForm::Fill() {
  tree.Add("h", "Header ranges");
  tree.AddChild("h", "a", "Journal date").let_ForeColor(0xFF);
  tree.AddChild("h", "b", "Reference").let_ForeColor(0x8000);
  tree.Add("c", "Amount \xE2\x82\xAC").let_ForeColor(forms::SystemColour::kGrayText);
  list.AddColumn("Range Name", 1700);
  list.AddColumn("H/D", 600);
  list.AddColumn("Description", 2100);
  for (const char* name : {"nominal", "amount", "project"}) {
    forms::ListItem& item = list.Add(name, name);
    item.let_Bold(true);
    item.AddSubItem("Detail");
    item.AddSubItem(std::string("The ") + name);
  }
  list.Item("amount").let_ForeColor(0xFF);
  list.Item("amount").SetSubItemColour(0, 0xFF0000);
  calDay.let_Date({45000});  // 15 March 2023
  rows->Clear();
  rows->Add(12, false, "The amount isn't a number");
  rows->Add(13, true, "The project is closed");
  grid.set_Array(rows);
}

}  // namespace rangewerks::tests
