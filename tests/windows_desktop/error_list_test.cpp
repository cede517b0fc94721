// The error list beside a workbook: it stays open while the person and the caller go on.
#include <ocidl.h>
// The common controls need what comes before.
#include <commctrl.h>

#include "com/bridge/objects.h"
#include "com/bridge/text.h"
#include "windows/fake_object.h"
#include "windows_desktop/host_window.h"

namespace rangewerks::tests {
namespace {

using com::Bstr;
using com::Pointer;

std::wstring CellText(HWND grid, int row, int column) {
  std::wstring text(64, L'\0');
  LVITEMW item{};
  item.iSubItem = column;
  item.pszText = text.data();
  item.cchTextMax = static_cast<int>(text.size());
  const auto length = SendMessageW(grid, LVM_GETITEMTEXTW, static_cast<WPARAM>(row),
                                   reinterpret_cast<LPARAM>(&item));
  return text.substr(0, static_cast<std::size_t>(length));
}

void ClickCell(HWND grid, int row, int column) {
  RECT cell{};
  cell.left = LVIR_BOUNDS;
  cell.top = column;
  SendMessageW(grid, LVM_GETSUBITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&cell));
  Click(grid, {cell.left + 8, (cell.top + cell.bottom) / 2});
}

bool CanUnload() {
  const auto canUnload = reinterpret_cast<HRESULT(STDAPICALLTYPE*)()>(
      reinterpret_cast<void*>(GetProcAddress(ServerModule(), "DllCanUnloadNow")));
  return canUnload() == S_OK;
}

class ErrorList : public FormsOfTheServer {
 protected:
  ErrorList() {
    list_->putref_KeyRange(com::ToDispatch(Range("B5:B9")).Get());
    Add(2, "No such nominal code");
    Add(4, "The period is closed", true);
  }
  ~ErrorList() override {
    if (const HWND form = FindWindowW(nullptr, L"Error List")) {
      SendMessageW(form, WM_SYSCOMMAND, SC_CLOSE, 0);
    }
  }

  void Add(long row, const char* text, bool isWarning = false) {
    EXPECT_EQ(list_->Add(row, Bstr(text).Get(), 0, Bstr("").Get(),
                         isWarning ? VARIANT_TRUE : VARIANT_FALSE),
              S_OK);
  }
  /// Shows the list; the form's window.
  HWND Display() {
    EXPECT_EQ(list_->DisplayList(), S_OK);
    HWND form = nullptr;
    WhilePumping([&] { form = WaitForForm(L"Error List"); });
    return form;
  }
  static HWND GridOf(HWND form) { return PartOf(form, L"SysListView32", 1); }
  std::string Selected() const { return GetText(GetObject(application_, "Selection"), "Address"); }

  Pointer<_clsErrorList> list_ = CreateFromServer<_clsErrorList>(__uuidof(::clsErrorList));
};

TEST_F(ErrorList, StandsAboveAllAtTheRightAndTheCallGoesOn) {
  const HWND form = Display();
  EXPECT_TRUE(IsWindowEnabled(window_));
  EXPECT_NE(GetWindowLongPtrW(form, GWL_EXSTYLE) & WS_EX_TOPMOST, 0);
  RECT place{};
  GetWindowRect(form, &place);
  RECT screen{};
  SystemParametersInfoW(SPI_GETWORKAREA, 0, &screen, 0);
  EXPECT_NEAR(place.right, screen.right, 1);
  EXPECT_THAT(TextsOf(form, L"Static"),
              ::testing::ElementsAre(
                  L"List of Errors below.  Select one to highlight the line on the spreadsheet"));
  EXPECT_EQ(CellText(GridOf(form), 0, 0), L"6");
  EXPECT_EQ(CellText(GridOf(form), 0, 3), L"No such nominal code");
  EXPECT_EQ(CellText(GridOf(form), 1, 0), L"8");
}

TEST_F(ErrorList, AClickOnALineSelectsItsRowOnTheSheetWhileTheCallerAddsMore) {
  const HWND grid = GridOf(Display());
  Call(Range("A1"), "Select");
  WhilePumping([&] { ClickCell(grid, 1, 3); });
  EXPECT_EQ(Selected(), "$8:$8");
  Add(3, "Not a date");
  Add(0, "The sheet isn't balanced");
  HandOutMessages();
  EXPECT_EQ(SendMessageW(grid, LVM_GETITEMCOUNT, 0, 0), 4);
  EXPECT_EQ(CellText(grid, 3, 0), L"N/A");
  WhilePumping([&] { ClickCell(grid, 2, 0); });
  EXPECT_EQ(Selected(), "$7:$7");
  WhilePumping([&] { ClickCell(grid, 3, 0); });
  EXPECT_EQ(Selected(), "$7:$7");
}

TEST_F(ErrorList, ArrowKeysMoveTheSheetOnceALineWasClicked) {
  const HWND form = Display();
  WhilePumping([&] {
    ClickCell(GridOf(form), 1, 3);
    EXPECT_TRUE(WaitUntil([&] { return Focused(form) == L"SysListView32 1"; }));
    PressKeys(form, {VK_UP});
  });
  EXPECT_EQ(Selected(), "$6:$6");
}

TEST_F(ErrorList, FixedIsTypedIntoAndNothingElse) {
  const HWND form = Display();
  const HWND grid = GridOf(form);
  WhilePumping([&] {
    ClickCell(grid, 1, 2);
    EXPECT_TRUE(WaitUntil([&] { return Focused(form) != L"SysListView32 1"; }));
    Type(form, "yes");
    PressKeys(form, {VK_RETURN});
    EXPECT_TRUE(WaitUntil([&] { return CellText(grid, 1, 2) == L"yes"; }));
    ClickCell(grid, 0, 3);
    Type(form, "x");
  });
  EXPECT_EQ(CellText(grid, 0, 3), L"No such nominal code");
  EXPECT_EQ(CellText(grid, 0, 2), L"");
  EXPECT_TRUE(IsWindow(form));
}

TEST_F(ErrorList, ClosingItIsToldToTheCallerOnce) {
  const HWND form = Display();
  std::vector<DISPID> heard;
  const Pointer<FakeObject> sink = NewFake({}, [&](DISPID id, WORD flags, DISPPARAMS& parameters,
                                                   VARIANT* /*result*/, EXCEPINFO* /*exception*/) {
    EXPECT_EQ(flags, DISPATCH_METHOD);
    EXPECT_EQ(parameters.cArgs, 0U);
    heard.push_back(id);
    return S_OK;
  });
  Pointer<IConnectionPoint> point;
  list_.TryQuery<IConnectionPointContainer>()->FindConnectionPoint(__uuidof(__clsErrorList),
                                                                   point.Receive());
  DWORD cookie = 0;
  ASSERT_EQ(point->Advise(sink.Get(), &cookie), S_OK);
  WhilePumping([&] {
    PressKeys(form, {VK_MENU, VK_F4});
    EXPECT_TRUE(WaitUntilGone(form));
  });
  EXPECT_THAT(heard, ::testing::ElementsAre(1));
  point->Unadvise(cookie);
}

TEST_F(ErrorList, KeepsTheLibraryInMemoryAsLongAsItIsOpen) {
  const HWND form = Display();
  list_ = {};
  EXPECT_FALSE(CanUnload());
  EXPECT_TRUE(IsWindowVisible(form));
  WhilePumping([&] {
    PressKeys(form, {VK_MENU, VK_F4});
    EXPECT_TRUE(WaitUntilGone(form));
  });
  EXPECT_TRUE(CanUnload());
}

TEST_F(ErrorList, AnEmptyOneIsToldInAMessage) {
  list_->ClearList();
  Meanwhile(
      [] {
        const HWND message = WaitForDialog();
        EXPECT_EQ(TextOf(message, 0xFFFF), L"No errors or warnings found");
        PressKeys(message, {VK_RETURN});
      },
      [&] { EXPECT_EQ(list_->DisplayList(), S_OK); });
  EXPECT_EQ(FindWindowW(nullptr, L"Error List"), nullptr);
}

}  // namespace
}  // namespace rangewerks::tests
