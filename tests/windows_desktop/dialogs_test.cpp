// The other dialogs that COM callers can have shown: the calendar, the about box, the dialog before
// a posted sheet is saved.
#include <windows.h>
// The common controls need what comes before.
#include <commctrl.h>

#include <filesystem>

#include "com/bridge/objects.h"
#include "com/bridge/text.h"
#include "filesave/clsExcelFileSave.h"
#include "systems/windows/windows_system.h"
#include "windows_desktop/host_window.h"

namespace rangewerks::tests {
namespace {

using automation::Date;
using com::Bstr;
using ::testing::ElementsAre;

class Calendar : public FormsOfTheServer {
 protected:
  Calendar() { Let(Range("B2"), "Value", Variant(Date{45000})); }  // 15 March 2023

  void Browse(const std::function<void(HWND form)>& act) {
    const auto browse = CreateFromServer<_clsBrowseDate>(__uuidof(::clsBrowseDate));
    browse->putref_ActiveCell(com::ToDispatch(Range("B2")).Get());
    Meanwhile([&] { act(WaitForForm(L"Select Date")); },
              [&] { EXPECT_EQ(browse->BrowseDate(), S_OK); });
  }
  Variant Cell() const { return Get(Range("B2"), "Value"); }

  static POINT PointOfDay(HWND calendar, int day) {
    RECT area{};
    GetClientRect(calendar, &area);
    for (LONG y = 0; y < area.bottom; y += 3) {
      for (LONG x = 0; x < area.right; x += 3) {
        MCHITTESTINFO hit{};
        hit.cbSize = MCHITTESTINFO_V1_SIZE;
        hit.pt = {x, y};
        SendMessageW(calendar, MCM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
        if (hit.uHit == MCHT_CALENDARDATE && hit.st.wDay == day && hit.st.wMonth == 3) {
          return {x + 3, y + 3};
        }
      }
    }
    return {0, 0};
  }
  static int DayOf(HWND form) {
    SYSTEMTIME day{};
    SendMessageW(PartOf(form, L"SysMonthCal32", 1), MCM_GETCURSEL, 0,
                 reinterpret_cast<LPARAM>(&day));
    return day.wYear * 10000 + day.wMonth * 100 + day.wDay;
  }
};

TEST_F(Calendar, OpensOnTheDateOfTheCellAndTabGoesToTheButtons) {
  Browse([](HWND form) {
    EXPECT_EQ(DayOf(form), 20230315);
    EXPECT_THAT(TextsOf(form, L"Button"), ElementsAre(L"OK", L"Cancel"));
    EXPECT_THAT(TabThrough(form, 3),
                ElementsAre(L"SysMonthCal32 1", L"OK", L"Cancel", L"SysMonthCal32 1"));
    PressKeys(form, {VK_ESCAPE});
  });
  EXPECT_EQ(Cell(), Variant(Date{45000}));
}

TEST_F(Calendar, ArrowKeysAndEnterPickADay) {
  Browse([](HWND form) {
    PressKeys(form, {VK_RIGHT});
    EXPECT_TRUE(WaitUntil([&] { return DayOf(form) == 20230316; }));
    PressKeys(form, {VK_DOWN});
    EXPECT_TRUE(WaitUntil([&] { return DayOf(form) == 20230323; }));
    PressKeys(form, {VK_RETURN});
  });
  EXPECT_EQ(Cell(), Variant(Date{45008}));
}

TEST_F(Calendar, ADoubleClickPicksADay) {
  Browse([](HWND form) {
    const HWND calendar = PartOf(form, L"SysMonthCal32", 1);
    DoubleClick(calendar, PointOfDay(calendar, 21));
    EXPECT_TRUE(WaitUntilGone(form));
  });
  EXPECT_EQ(Cell(), Variant(Date{45006}));
}

TEST_F(Calendar, AClickAndOkPickADay) {
  Browse([](HWND form) {
    const HWND calendar = PartOf(form, L"SysMonthCal32", 1);
    Click(calendar, PointOfDay(calendar, 3));
    EXPECT_TRUE(WaitUntil([&] { return DayOf(form) == 20230303; }));
    Click(ButtonOf(form, L"OK"));
  });
  EXPECT_EQ(Cell(), Variant(Date{44988}));
}

TEST_F(Calendar, CancelLeavesTheCellAsItWas) {
  Let(Range("B2"), "Value", "abc");
  Browse([](HWND form) {
    PressKeys(form, {VK_RIGHT});
    Click(ButtonOf(form, L"Cancel"));
  });
  EXPECT_EQ(Cell(), Variant("abc"));
}

class About : public FormsOfTheServer {};

TEST_F(About, ShowsTheTextsOfTheInterfaceAndThatSystemInformationIsUnavailable) {
  const auto about = CreateFromServer<_clsExcelAbout>(__uuidof(::clsExcelAbout));
  about->put_ProductName(Bstr("Journals & more").Get());
  about->put_Version(Bstr("2.1").Get());
  about->put_Description(Bstr("Posts journals").Get());
  about->put_Disclaimer(Bstr("Use at your own risk").Get());
  about->put_Copyright(Bstr("not shown").Get());
  Meanwhile(
      [] {
        const HWND box = WaitForForm(L"About Journals & more");
        EXPECT_THAT(TextsOf(box, L"Edit"), ElementsAre(L"2.1"));
        EXPECT_THAT(TextsOf(box, L"Static"),
                    ::testing::IsSupersetOf(
                        {L"Journals & more", L"Posts journals", L"Use at your own risk"}));
        EXPECT_THAT(TabThrough(box, 3),
                    ElementsAre(L"Edit 1", L"OK", L"&System Info...", L"Edit 1"));
        PressKeys(box, {VK_MENU, 'S'});
        const HWND message = WaitForDialog(box);
        EXPECT_EQ(TextOf(message, 0xFFFF), L"System Information Is Unavailable At This Time");
        Press(message, IDOK);
        EXPECT_TRUE(WaitUntil([&] { return IsWindowEnabled(box) != FALSE; }));
        PressKeys(box, {VK_ESCAPE});
      },
      [&] { EXPECT_EQ(about->Show(), S_OK); });
}

/// A section of its own among the person's settings, and a folder to save to.
class SavingASheet : public FormsOfTheServer {
 protected:
  SavingASheet() {
    std::filesystem::create_directories(folder_);
    clsExcelFileSave settings(std::make_shared<systems::WindowsSystem>());
    settings.let_RegSection("Rangewerks desktop tests");
    settings.let_FilePath(folder_.string());
    settings.let_Filename("journal %i");
    settings.let_DoSaveFile(true);
    settings.let_PromptOnSave(true);
    settings.SaveSettingsToRegistry();
  }
  ~SavingASheet() override {
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
  }

  void Save(const std::function<void(HWND form)>& act) {
    const auto functions = CreateFromServer<_ExcelFunctions>(__uuidof(::ExcelFunctions));
    Meanwhile([&] { act(WaitForForm(L" Save File")); },
              [&] {
                EXPECT_EQ(
                    functions->CallSaveSheet(com::ToDispatch(sheet_).Get(), Bstr("JNL0042").Get(),
                                             Bstr("Rangewerks desktop tests").Get()),
                    S_OK);
              });
  }

  const std::filesystem::path folder_ =
      std::filesystem::temp_directory_path() /
      ("rangewerks saving " + std::to_string(GetCurrentProcessId()));
};

TEST_F(SavingASheet, AsksForTheNameAndTellsWhatWasSaved) {
  Save([&](HWND form) {
    EXPECT_THAT(TextsOf(form, L"Edit"), ElementsAre(L"journal JNL0042", folder_.wstring()));
    EXPECT_THAT(TabThrough(form, 5),
                ElementsAre(L"Edit 1", L"Edit 2", L"...", L"&OK", L"&Cancel", L"Edit 1"));
    Type(form, "july");  // over the name, which Tab has selected
    PressKeys(form, {VK_MENU, 'O'});
    const HWND saved = WaitForDialog();
    EXPECT_EQ(TextOf(saved, 0xFFFF), L"File " + (folder_ / "july.xls").wstring() + L" saved");
    Press(saved, IDOK);
  });
  EXPECT_TRUE(std::filesystem::exists(folder_ / "july.xls"));
}

TEST_F(SavingASheet, RefusesAFolderThatIsNotThereAndStaysOpen) {
  Save([&](HWND form) {
    PressKeys(form, {VK_TAB});
    EXPECT_TRUE(WaitUntil([&] { return Focused(form) == L"Edit 2"; }));
    Type(form, "nowhere");
    PressKeys(form, {VK_RETURN});
    const HWND refused = WaitForDialog(form);
    EXPECT_EQ(TextOf(refused, 0xFFFF), L"File path not found or access denied");
    Press(refused, IDOK);
    EXPECT_TRUE(WaitUntil([&] { return IsWindowEnabled(form) != FALSE; }));
    EXPECT_THAT(TextsOf(form, L"Edit"), ElementsAre(L"journal JNL0042", L"nowhere"));
    PressKeys(form, {VK_MENU, 'C'});
  });
  EXPECT_TRUE(std::filesystem::is_empty(folder_));
}

TEST_F(SavingASheet, EscapeSavesNothingAndSaysNothing) {
  Save([](HWND form) { PressKeys(form, {VK_ESCAPE}); });
  EXPECT_TRUE(std::filesystem::is_empty(folder_));
}

}  // namespace
}  // namespace rangewerks::tests
