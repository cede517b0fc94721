// Trees, lists, grids and menus: what they hold and what they tell.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "automation/error.h"
#include "desktops/headless/headless_desktop.h"

namespace rangewerks {
namespace {

using automation::Error;
using automation::Variant;
using desktops::HeadlessDesktop;

/// Two columns of numbers and texts.
class SampleRows final : public forms::GridRows {
 public:
  std::size_t RowCount() const override { return rows_.size(); }
  Variant Cell(std::size_t row, std::size_t column) const override {
    return rows_.at(row).at(column);
  }
  void SetCell(std::size_t row, std::size_t column, const Variant& value) override {
    rows_.at(row).at(column) = value;
    TellChanged();
  }
  void Append(const Variant& first, const Variant& second) {
    rows_.push_back({first, second});
    TellChanged();
  }

 private:
  std::vector<std::vector<Variant>> rows_;
};

class frmLists final : public forms::Form {
 public:
  explicit frmLists(forms::Toolkit& toolkit)
      : Form(toolkit, "frmLists", {.border = forms::Border::Sizable}) {
    TreeView1.NodeClick = [this](forms::TreeNode& node) { clicked = node.get_Key(); };
    ListView1.ItemClick = [this](forms::ListItem& item) { clicked = item.get_Key(); };
    ListView1.ColumnClick = [this](std::int32_t index) { ListView1.let_SortKey(index - 1); };
    grdRows.Click = [this] { events.push_back("click"); };
    grdRows.RowColChange = [this] { events.push_back("row " + std::to_string(grdRows.get_Row())); };
    mnuCheck.Click = [this] { mnuCheck.let_Checked(!mnuCheck.get_Checked()); };
  }

  forms::TreeView TreeView1{*this, "TreeView1", {}};
  forms::ListView ListView1{*this, "ListView1", {}};
  forms::Grid grdRows{
      *this,
      "grdRows",
      {},
      {{.source = 0, .heading = "Number"},
       {.source = 1, .heading = "Text", .locked = false},
       {.source = 0, .picture = [](const Variant& /*value*/) { return forms::Picture::Warning; }}}};
  forms::MenuEntry mnuTools{*this, "mnuTools", "&Tools"};
  forms::MenuEntry mnuCheck{mnuTools, "mnuCheck", "Check"};
  forms::MenuEntry mnuLine{mnuTools, "mnuLine", "-"};
  std::string clicked;
  std::vector<std::string> events;
};

class Content : public testing::Test {
 protected:
  Content() { form.Show(); }
  HeadlessDesktop desktop;
  frmLists form{desktop};
};

TEST_F(Content, ATreeFindsItsNodesByKeyAndKnowsTheirPlace) {
  form.TreeView1.Add("H", "Header");
  forms::TreeNode& child = form.TreeView1.AddChild("H", "date", "Date");
  EXPECT_EQ(form.TreeView1.Roots().size(), 1U);
  EXPECT_EQ(form.TreeView1.Node("H").get_Children(), 1U);
  EXPECT_EQ(child.get_Parent(), &form.TreeView1.Node("H"));
  desktop.Click(child, form.TreeView1);
  EXPECT_EQ(form.clicked, "date");
  EXPECT_EQ(form.TreeView1.get_SelectedItem(), &child);
}

TEST_F(Content, ATreeRefusesAKeyTwiceAndAParentThatIsNotThere) {
  form.TreeView1.Add("H", "Header");
  const auto numberOf = [&](auto step) {
    try {
      step();
    } catch (const Error& error) {
      return error.Number();
    }
    return 0;
  };
  EXPECT_EQ(numberOf([&] { form.TreeView1.Add("H", "Again"); }), 35602);
  EXPECT_EQ(numberOf([&] { form.TreeView1.AddChild("X", "a", "A"); }), 35601);
  EXPECT_EQ(numberOf([&] { form.ListView1.Item("X"); }), 35601);
}

TEST_F(Content, ATreeThatIsClearedStaysAsVisibleAndAsLargeAsItWas) {
  form.TreeView1.Add("H", "Header");
  form.TreeView1.Move({100, 200, 3000, 4000});
  form.TreeView1.let_Visible(false);
  form.TreeView1.Clear();
  EXPECT_TRUE(form.TreeView1.Roots().empty());
  EXPECT_FALSE(form.TreeView1.get_Visible());
  EXPECT_EQ(form.TreeView1.Properties().place, (forms::Place{100, 200, 3000, 4000}));
  form.TreeView1.Add("H", "Header again");
}

TEST_F(Content, ASortedListShowsItsItemsByTheClickedColumnWithoutRegardToCase) {
  form.ListView1.AddColumn("Name", 1000);
  form.ListView1.AddColumn("Kind", 1000);
  form.ListView1.Add("1", "beta").AddSubItem("Z");
  form.ListView1.Add("2", "Alpha").AddSubItem("y");
  form.ListView1.let_Sorted(true);
  EXPECT_EQ(form.ListView1.Items().front()->get_Text(), "Alpha");
  form.ListView1.Item("1").SetSubItemColour(0, 255);
  desktop.ClickColumn(form.ListView1, 2);
  EXPECT_EQ(form.ListView1.get_SortKey(), 1);
  EXPECT_EQ(form.ListView1.Items().front()->get_Text(), "Alpha");
  EXPECT_EQ(form.ListView1.Item("1").SubItems().front().foreColor, 255);
}

TEST_F(Content, AGridShowsTheRowsThemselves) {
  const auto rows = std::make_shared<SampleRows>();
  rows->Append(1, "one");
  form.grdRows.set_Array(rows);
  rows->Append(2, "two");
  EXPECT_EQ(form.grdRows.CellText(1, 0), "2");
  EXPECT_EQ(form.grdRows.CellText(1, 1), "two");
  EXPECT_EQ(form.grdRows.CellText(1, 2), "");
  EXPECT_EQ(form.grdRows.CellPicture(1, 2), forms::Picture::Warning);
}

TEST_F(Content, AGridHasNoCurrentRowUntilOneIsPickedAndTellsTheClickFirst) {
  const auto rows = std::make_shared<SampleRows>();
  rows->Append(1, "one");
  form.grdRows.set_Array(rows);
  EXPECT_EQ(form.grdRows.get_Row(), -1);
  EXPECT_THROW(form.grdRows.get_ColumnValue(0), Error);
  desktop.Click(form.grdRows, 0);
  desktop.Click(form.grdRows, 0);
  EXPECT_EQ(form.events, (std::vector<std::string>{"click", "row 0", "click"}));
  EXPECT_EQ(form.grdRows.get_ColumnValue(1), Variant("one"));
}

TEST_F(Content, AGridWritesWhatIsTypedIntoAnUnlockedColumnAndNowhereElse) {
  const auto rows = std::make_shared<SampleRows>();
  rows->Append(1, "one");
  form.grdRows.set_Array(rows);
  desktop.Type(form.grdRows, 0, 1, "changed");
  desktop.Type(form.grdRows, 0, 0, "7");
  EXPECT_EQ(rows->Cell(0, 1), Variant("changed"));
  EXPECT_EQ(rows->Cell(0, 0), Variant(1));
}

TEST_F(Content, AGridLetsGoOfItsRowsWhenItsFormUnloads) {
  auto rows = std::make_shared<SampleRows>();
  form.grdRows.set_Array(rows);
  form.Unload();
  EXPECT_EQ(rows.use_count(), 1);
  rows->Append(1, "told to nobody");
  EXPECT_FALSE(form.IsLoaded());
}

TEST(AFormThatNobodyHolds, MayUnloadInTheClickOfItsGrid) {
  HeadlessDesktop desktop;
  auto form = std::make_shared<frmLists>(desktop);
  const std::weak_ptr<frmLists> watched = form;
  bool moved = false;
  form->grdRows.Click = [&shown = *form] { shown.Unload(); };
  form->grdRows.RowColChange = [&] { moved = true; };
  form->Show();
  forms::Grid& grid = form->grdRows;
  form.reset();
  desktop.Click(grid, 0);
  EXPECT_TRUE(watched.expired());
  EXPECT_FALSE(moved);
}

TEST_F(Content, AMenuEntryCanNotBeChosenInADisabledMenuNorOnAFormThatIsNotShown) {
  EXPECT_THROW(desktop.Click(form.mnuLine), std::logic_error);
  form.mnuTools.let_Enabled(false);
  EXPECT_TRUE(form.mnuCheck.get_Enabled());
  EXPECT_THROW(desktop.Click(form.mnuCheck), std::logic_error);
  form.mnuTools.let_Enabled(true);
  form.Hide();
  EXPECT_THROW(desktop.Click(form.mnuCheck), std::logic_error);
  form.Show();
  desktop.Click(form.mnuCheck);
  EXPECT_TRUE(form.mnuCheck.get_Checked());
}

TEST_F(Content, AMenuEntryKeepsItsCheckMarkUntilTheFormUnloads) {
  desktop.Click(form.mnuCheck);
  EXPECT_TRUE(form.mnuCheck.get_Checked());
  form.mnuCheck.let_Enabled(false);
  EXPECT_THROW(desktop.Click(form.mnuCheck), std::logic_error);
  form.Unload();
  EXPECT_FALSE(form.mnuCheck.get_Checked());
  EXPECT_TRUE(form.mnuCheck.get_Enabled());
}

}  // namespace
}  // namespace rangewerks
