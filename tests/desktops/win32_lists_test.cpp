// Trees, lists, grids and menus as windows.
#include "desktops/win32_form_test.h"
#include "desktops/win32_person.h"
// The common controls need what comes before.
#include <commctrl.h>

#include <array>
#include <cstring>
#include <string>
#include <vector>

namespace rangewerks::tests {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Win32Lists : public Win32FormTest {
 protected:
  HTREEITEM Root() const {
    return reinterpret_cast<HTREEITEM>(
        SendMessageW(WindowOf(form->tree), TVM_GETNEXTITEM, TVGN_ROOT, 0));
  }
  HTREEITEM Next(HTREEITEM item, UINT which) const {
    return reinterpret_cast<HTREEITEM>(
        SendMessageW(WindowOf(form->tree), TVM_GETNEXTITEM, which, reinterpret_cast<LPARAM>(item)));
  }
  std::wstring TextOfNode(HTREEITEM node) const {
    std::array<wchar_t, 64> text{};
    TVITEMW item{};
    item.mask = TVIF_TEXT;
    item.hItem = node;
    item.pszText = text.data();
    item.cchTextMax = static_cast<int>(text.size());
    SendMessageW(WindowOf(form->tree), TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
    return text.data();
  }
  POINT PointOfNode(HTREEITEM node) const {
    RECT place{};
    std::memcpy(&place, &node, sizeof node);
    SendMessageW(WindowOf(form->tree), TVM_GETITEMRECT, TRUE, reinterpret_cast<LPARAM>(&place));
    return MiddleOf(place);
  }
  static std::wstring CellText(HWND list, int row, int column) {
    std::array<wchar_t, 64> text{};
    LVITEMW item{};
    item.iSubItem = column;
    item.pszText = text.data();
    item.cchTextMax = static_cast<int>(text.size());
    SendMessageW(list, LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
    return text.data();
  }
  static POINT PointOfCell(HWND list, int row, int column) {
    RECT place{};
    place.left = LVIR_LABEL;
    place.top = column;
    SendMessageW(list, LVM_GETSUBITEMRECT, static_cast<WPARAM>(row),
                 reinterpret_cast<LPARAM>(&place));
    return {place.left + 6, (place.top + place.bottom) / 2};
  }
  static LRESULT Selected(HWND list) {
    return SendMessageW(list, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED);
  }
  /// The field over a cell that is typed in; null when none is open.
  HWND Field() const {
    const HWND focus = GetFocus();
    return ClassOf(focus) == L"Edit" && Focused(*form).empty() ? focus : nullptr;
  }
  HWND list() const { return WindowOf(form->list); }
  HWND grid() const { return WindowOf(form->grid); }
};

TEST_F(Win32Lists, ATreeShowsItsNodesUnderTheirParents) {
  Show();
  EXPECT_EQ(TextOfNode(Root()), L"Header ranges");
  EXPECT_EQ(TextOfNode(Next(Root(), TVGN_CHILD)), L"Journal date");
  EXPECT_EQ(TextOfNode(Next(Root(), TVGN_NEXT)), L"Amount \u20ac");
  form->tree.Node("a").let_Text("Date");
  EXPECT_EQ(TextOfNode(Next(Root(), TVGN_CHILD)), L"Date");
  form->tree.Clear();
  EXPECT_EQ(Root(), nullptr);
  form->tree.Add("x", "Again");
  EXPECT_EQ(TextOfNode(Root()), L"Again");
}

TEST_F(Win32Lists, ATreeShowsTheColoursOfItsNodes) {
  Show();
  const HWND tree = WindowOf(form->tree);
  EXPECT_FALSE(ShowsColour(tree, RGB(255, 0, 0)));
  SendMessageW(tree, TVM_EXPAND, TVE_EXPAND, reinterpret_cast<LPARAM>(Root()));
  EXPECT_TRUE(ShowsColour(tree, RGB(255, 0, 0)));
  form->tree.Node("a").let_ForeColor(0xFF0000);
  EXPECT_FALSE(ShowsColour(tree, RGB(255, 0, 0)));
  EXPECT_TRUE(ShowsColour(tree, RGB(0, 0, 255)));
}

TEST_F(Win32Lists, ATreeTellsOfClicksAlsoOnTheSelectedNodeAndOfKeys) {
  Show();
  const HWND tree = WindowOf(form->tree);
  const HTREEITEM amount = Next(Root(), TVGN_NEXT);
  Click(tree, PointOfNode(amount));
  EXPECT_THAT(form->TakeTold(), ElementsAre("node Amount \xE2\x82\xAC"));
  EXPECT_EQ(form->tree.Selected(), &form->tree.Node("c"));
  Sleep(GetDoubleClickTime() + 50);
  Click(tree, PointOfNode(amount));
  EXPECT_THAT(form->TakeTold(), ElementsAre("node Amount \xE2\x82\xAC"));
  PressKey(VK_UP);
  EXPECT_THAT(form->TakeTold(), ElementsAre("node Header ranges"));
}

TEST_F(Win32Lists, ATreeTellsOfADoubleClickAfterTheClick) {
  Show();
  DoubleClick(WindowOf(form->tree), PointOfNode(Next(Root(), TVGN_NEXT)));
  const auto told = form->TakeTold();
  ASSERT_FALSE(told.empty());
  EXPECT_EQ(told.front(), "node Amount \xE2\x82\xAC");
  EXPECT_EQ(told.back(), "tree DblClick");
}

TEST_F(Win32Lists, SelectingANodeByCodeTellsNothingAndNoNodeIsSelectedByItself) {
  Show();
  form->tree.SetFocus();
  Settle();
  EXPECT_EQ(Next(nullptr, TVGN_CARET), nullptr);
  form->tree.set_SelectedItem(&form->tree.Node("c"));
  EXPECT_EQ(Next(nullptr, TVGN_CARET), Next(Root(), TVGN_NEXT));
  form->tree.set_SelectedItem(nullptr);
  EXPECT_EQ(Next(nullptr, TVGN_CARET), nullptr);
  EXPECT_THAT(form->TakeTold(), IsEmpty());
}

TEST_F(Win32Lists, AHandlerMayDeselectTheNodeThatWasClickedAndIsToldOfTheNextClickOnIt) {
  Show();
  std::vector<std::string> told;
  form->tree.NodeClick = [&](forms::TreeNode& node) {
    told.push_back(node.get_Key());
    form->tree.set_SelectedItem(nullptr);
  };
  const HWND tree = WindowOf(form->tree);
  const HTREEITEM amount = Next(Root(), TVGN_NEXT);
  for (int clicks = 1; clicks <= 2; ++clicks) {
    Click(tree, PointOfNode(amount));
    EXPECT_EQ(told, std::vector<std::string>(static_cast<std::size_t>(clicks), "c"));
    EXPECT_EQ(Next(nullptr, TVGN_CARET), nullptr);
    EXPECT_EQ(form->tree.Selected(), nullptr);
    Sleep(GetDoubleClickTime() + 50);
  }
}

TEST_F(Win32Lists, LabelsOfATreeAreEditedOnlyWhenTheFormAllowsIt) {
  Show();
  const HWND tree = WindowOf(form->tree);
  form->tree.SetFocus();
  const auto edit = [&] {
    return SendMessageW(tree, TVM_EDITLABELW, 0, reinterpret_cast<LPARAM>(Root()));
  };
  EXPECT_EQ(edit(), 0);
  form->tree.BeforeLabelEdit = [] { return true; };
  EXPECT_EQ(edit(), 0);
  form->tree.BeforeLabelEdit = [] { return false; };
  EXPECT_NE(edit(), 0);
  SendMessageW(tree, TVM_ENDEDITLABELNOW, TRUE, 0);
}

TEST_F(Win32Lists, AListShowsItsColumnsAndItemsAndFollowsThem) {
  Show();
  EXPECT_EQ(SendMessageW(list(), LVM_GETITEMCOUNT, 0, 0), 3);
  EXPECT_EQ(CellText(list(), 1, 0), L"amount");
  EXPECT_EQ(CellText(list(), 1, 2), L"The amount");
  const auto header = reinterpret_cast<HWND>(SendMessageW(list(), LVM_GETHEADER, 0, 0));
  EXPECT_EQ(SendMessageW(header, HDM_GETITEMCOUNT, 0, 0), 3);
  form->list.Add("z", "z");
  form->list.Item("nominal").let_Text("changed");
  EXPECT_EQ(SendMessageW(list(), LVM_GETITEMCOUNT, 0, 0), 4);
  EXPECT_EQ(CellText(list(), 0, 0), L"changed");
  form->list.Clear();
  form->list.ClearColumns();
  EXPECT_EQ(SendMessageW(list(), LVM_GETITEMCOUNT, 0, 0), 0);
  EXPECT_EQ(SendMessageW(header, HDM_GETITEMCOUNT, 0, 0), 0);
}

TEST_F(Win32Lists, AListStandsInTheOrderOfItsSortKeyAndKeepsTheSelectedItem) {
  Show();
  form->list.set_SelectedItem(&form->list.Item("nominal"));
  EXPECT_EQ(Selected(list()), 0);
  form->list.let_SortKey(0);
  form->list.let_Sorted(true);
  EXPECT_EQ(CellText(list(), 0, 0), L"amount");
  EXPECT_EQ(CellText(list(), 1, 0), L"nominal");
  EXPECT_EQ(Selected(list()), 1);
  EXPECT_THAT(form->TakeTold(), IsEmpty());
}

TEST_F(Win32Lists, AListHasTheColoursOfItsItemsAndOfTheirColumns) {
  Show();
  EXPECT_TRUE(ShowsColour(list(), RGB(255, 0, 0)));
  EXPECT_TRUE(ShowsColour(list(), RGB(0, 0, 255)));
  form->list.Item("amount").let_ForeColor(0x8000);
  EXPECT_FALSE(ShowsColour(list(), RGB(255, 0, 0)));
  EXPECT_TRUE(ShowsColour(list(), RGB(0, 0x80, 0)));
}

TEST_F(Win32Lists, AListTellsOfClicksKeysDoubleClicksAndHeadings) {
  Show();
  Click(list(), PointOfCell(list(), 1, 0));
  EXPECT_THAT(form->TakeTold(), ElementsAre("item amount"));
  Sleep(GetDoubleClickTime() + 50);
  Click(list(), PointOfCell(list(), 1, 0));
  EXPECT_THAT(form->TakeTold(), ElementsAre("item amount"));
  PressKey(VK_DOWN);
  EXPECT_THAT(form->TakeTold(), ElementsAre("item project"));
  DoubleClick(list(), PointOfCell(list(), 0, 0));
  EXPECT_EQ(form->TakeTold().back(), "list DblClick");
  Click(reinterpret_cast<HWND>(SendMessageW(list(), LVM_GETHEADER, 0, 0)), {10, 8});
  EXPECT_THAT(form->TakeTold(), ElementsAre("column 1"));
}

TEST_F(Win32Lists, AGridAsksForItsTextsAndFollowsItsRows) {
  Show();
  EXPECT_EQ(SendMessageW(grid(), LVM_GETITEMCOUNT, 0, 0), 2);
  EXPECT_EQ(CellText(grid(), 0, 0), L"12");
  EXPECT_EQ(CellText(grid(), 0, 1), L"");
  EXPECT_EQ(CellText(grid(), 1, 3), L"The project is closed");
  form->rows->Add(14, true, "One more");
  EXPECT_EQ(SendMessageW(grid(), LVM_GETITEMCOUNT, 0, 0), 3);
  EXPECT_EQ(CellText(grid(), 2, 3), L"One more");
  form->rows->Clear();
  EXPECT_EQ(SendMessageW(grid(), LVM_GETITEMCOUNT, 0, 0), 0);
}

TEST_F(Win32Lists, TheColumnWithoutAWidthTakesWhatTheOthersLeave) {
  Show();
  const auto width = [&](WPARAM column) {
    return SendMessageW(grid(), LVM_GETCOLUMNWIDTH, column, 0);
  };
  const auto sum = [&] { return width(0) + width(1) + width(2) + width(3); };
  EXPECT_EQ(sum(), InnerArea(grid()).right);
  form->grid.let_Width(6000);
  EXPECT_EQ(sum(), InnerArea(grid()).right);
  const LRESULT before = width(3);
  form->grid.let_ColumnWidth(0, 1200);
  EXPECT_LT(width(3), before);
  EXPECT_EQ(sum(), InnerArea(grid()).right);
}

TEST_F(Win32Lists, AColumnIsAsWideAsItsHeadingAtLeast) {
  Show();
  form->grid.let_ColumnWidth(0, 60);
  EXPECT_GT(SendMessageW(grid(), LVM_GETCOLUMNWIDTH, 0, 0),
            SendMessageW(grid(), LVM_GETSTRINGWIDTHW, 0, reinterpret_cast<LPARAM>(L"Row")));
}

TEST_F(Win32Lists, AGridTellsTheClickBeforeTheRowAndKeysTellTheRowAlone) {
  Show();
  EXPECT_EQ(form->grid.get_Row(), -1);
  Click(grid(), PointOfCell(grid(), 1, 3));
  EXPECT_THAT(form->TakeTold(), ElementsAre("grid Click -1", "grid row 1"));
  PressKey(VK_UP);
  EXPECT_THAT(form->TakeTold(), ElementsAre("grid row 0"));
}

TEST_F(Win32Lists, AClickOpensAFieldOverACellThatIsNotLockedAndEnterKeepsWhatIsTyped) {
  Show();
  Click(grid(), PointOfCell(grid(), 1, 3));
  EXPECT_EQ(Field(), nullptr);
  Click(grid(), PointOfCell(grid(), 1, 2));
  ASSERT_NE(Field(), nullptr);
  form->TakeTold();
  PressKey('Y');
  PressKey(VK_RETURN);
  EXPECT_EQ(Field(), nullptr);
  EXPECT_EQ(Focused(*form), "grid");
  EXPECT_EQ(CellText(grid(), 1, 2), L"y");
  EXPECT_EQ(form->rows->Cell(1, 2), automation::Variant("y"));
  EXPECT_THAT(form->TakeTold(), IsEmpty());  // the default button wasn't pressed
}

TEST_F(Win32Lists, EscapeLeavesTheCellAsItWasAndTheFormOpen) {
  Show();
  Click(grid(), PointOfCell(grid(), 0, 2));
  form->TakeTold();
  PressKey('Y');
  PressKey(VK_ESCAPE);
  EXPECT_EQ(Field(), nullptr);
  EXPECT_EQ(CellText(grid(), 0, 2), L"");
  EXPECT_THAT(form->TakeTold(), IsEmpty());
}

TEST_F(Win32Lists, TheFieldKeepsWhatIsTypedWhenTheKeyboardGoesElsewhere) {
  Show();
  Click(grid(), PointOfCell(grid(), 0, 2));
  PressKey('N');
  PressKey(VK_TAB);
  EXPECT_EQ(Focused(*form), "cmdOK");
  EXPECT_EQ(CellText(grid(), 0, 2), L"n");
}

TEST_F(Win32Lists, F2OpensTheFieldOfTheCurrentRow) {
  Show();
  Click(grid(), PointOfCell(grid(), 1, 3));
  PressKey(VK_F2);
  ASSERT_NE(Field(), nullptr);
  PressKey('Q');
  PressKey(VK_RETURN);
  EXPECT_EQ(CellText(grid(), 1, 2), L"q");
}

TEST_F(Win32Lists, RowsThatGoTakeTheFieldWithThem) {
  Show();
  Click(grid(), PointOfCell(grid(), 1, 2));
  ASSERT_NE(Field(), nullptr);
  form->rows->Clear();
  EXPECT_EQ(Field(), nullptr);
}

TEST_F(Win32Lists, AMenuShowsCaptionsMarksAndStates) {
  Show();
  const HMENU bar = GetMenu(WindowOf(*form));
  const HMENU file = GetSubMenu(bar, 0);
  EXPECT_EQ(GetMenuItemCount(bar), 2);
  EXPECT_EQ(GetMenuItemCount(file), 3);
  EXPECT_NE(GetMenuState(file, 1, MF_BYPOSITION) & MF_SEPARATOR, 0U);
  form->mnuTick.let_Checked(true);
  form->mnuSave.let_Enabled(false);
  form->mnuSave.let_Caption("&Keep");
  EXPECT_NE(GetMenuState(file, 2, MF_BYPOSITION) & MF_CHECKED, 0U);
  EXPECT_NE(GetMenuState(file, 0, MF_BYPOSITION) & MF_GRAYED, 0U);
  std::array<wchar_t, 32> text{};
  GetMenuStringW(file, 0, text.data(), static_cast<int>(text.size()), MF_BYPOSITION);
  EXPECT_EQ(std::wstring(text.data()), L"&Keep");
}

TEST_F(Win32Lists, AMenuTellsWhatIsChosenAndFollowsTheHandler) {
  Show();
  const HMENU file = GetSubMenu(GetMenu(WindowOf(*form)), 0);
  SendMessageW(WindowOf(*form), WM_COMMAND, GetMenuItemID(file, 2), 0);
  EXPECT_THAT(form->TakeTold(), ElementsAre("mnuTick"));
  EXPECT_NE(GetMenuState(file, 2, MF_BYPOSITION) & MF_CHECKED, 0U);
}

}  // namespace
}  // namespace rangewerks::tests
