#include <gtest/gtest.h>
#include <shlobj.h>
#include <windows.h>

#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <system_error>
#include <vector>

#include "desktops/win32/dialogs.h"
#include "desktops/win32_person.h"

namespace rangewerks::tests {
namespace {

using desktops::ShowFileDialog;
using desktops::ShowFolderDialog;

// The dialog's own numbers of its controls.
constexpr int kName = 0x47C;
constexpr int kFilters = 0x470;

/// A folder of its own with one file, "liste.def".
class Win32FileDialog : public testing::Test {
 protected:
  Win32FileDialog() : folder_(NewFolder()) { std::ofstream(folder_ / "liste.def") << "x"; }
  ~Win32FileDialog() override {
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
  }

  std::wstring Path(const std::wstring& name) const { return (folder_ / name).wstring(); }
  static std::string Utf8(const std::wstring& path) {
    const std::u8string text = std::filesystem::path(path).u8string();
    return {text.begin(), text.end()};
  }
  const std::filesystem::path& Folder() const { return folder_; }

 private:
  /// Other programs that run now share the disk, and may have the same process number.
  static std::filesystem::path NewFolder() {
    for (int number = 1;; ++number) {
      const auto folder =
          std::filesystem::temp_directory_path() / (L"Prüfung € " + std::to_wstring(number));
      if (std::filesystem::create_directory(folder)) return folder;
    }
  }

  std::filesystem::path folder_;
};

TEST_F(Win32FileDialog, OpeningReturnsTheFullPathOfTheFile) {
  const Person person([&](HWND dialog) {
    Write(dialog, kName, Path(L"liste.def"));
    Press(dialog, IDOK);
  });
  EXPECT_EQ(ShowFileDialog({.mustExist = true}, nullptr), Utf8(Path(L"liste.def")));
}

TEST_F(Win32FileDialog, CancelGivesNothing) {
  const Person person([&](HWND dialog) {
    Write(dialog, kName, Path(L"liste.def"));
    Press(dialog, IDCANCEL);
  });
  EXPECT_EQ(ShowFileDialog({}, nullptr), std::nullopt);
}

TEST_F(Win32FileDialog, BeginsWithTitleAndName) {
  std::wstring title;
  std::wstring name;
  {
    const Person person([&](HWND dialog) {
      title = TextOf(dialog);
      name = TextOf(dialog, kName);
      Press(dialog, IDCANCEL);
    });
    ShowFileDialog({.save = true, .title = "Liste öffnen", .file = "März.def"}, nullptr);
  }
  EXPECT_EQ(title, L"Liste öffnen");
  EXPECT_EQ(name, L"März.def");
}

TEST_F(Win32FileDialog, OffersTheFiltersByTheirDescriptions) {
  std::vector<std::wstring> filters;
  {
    const Person person([&](HWND dialog) {
      const HWND list = GetDlgItem(dialog, kFilters);
      const auto count = SendMessageW(list, CB_GETCOUNT, 0, 0);
      for (LRESULT place = 0; place < count; ++place) {
        const WPARAM at = static_cast<WPARAM>(place);
        std::wstring text(static_cast<std::size_t>(SendMessageW(list, CB_GETLBTEXTLEN, at, 0)), 0);
        SendMessageW(list, CB_GETLBTEXT, at, reinterpret_cast<LPARAM>(text.data()));
        filters.push_back(text);
      }
      Press(dialog, IDCANCEL);
    });
    ShowFileDialog({.filters = {{"Definitions (*.def)", "*.def"}, {"All files (*.*)", "*.*"}}},
                   nullptr);
  }
  EXPECT_EQ(filters, (std::vector<std::wstring>{L"Definitions (*.def)", L"All files (*.*)"}));
}

TEST_F(Win32FileDialog, SavingAddsTheExtensionToANameWithoutOne) {
  const Person person([&](HWND dialog) {
    Write(dialog, kName, Path(L"neu"));
    Press(dialog, IDOK);
  });
  EXPECT_EQ(ShowFileDialog({.save = true, .defaultExtension = "def"}, nullptr),
            Utf8(Path(L"neu.def")));
}

TEST_F(Win32FileDialog, SavingOverAFileIsAskedFirst) {
  bool asked = false;
  {
    const Person person([&](HWND dialog) {
      Write(dialog, kName, Path(L"liste.def"));
      Press(dialog, IDOK);
      const HWND question = WaitForDialog(dialog);
      asked = question != nullptr;
      Press(question, IDNO);
      Press(dialog, IDCANCEL);
    });
    EXPECT_EQ(ShowFileDialog({.save = true}, nullptr), std::nullopt);
  }
  EXPECT_TRUE(asked);
}

TEST_F(Win32FileDialog, SavingOverAFileIsNotAskedWhenTheProgramAsksItself) {
  const Person person([&](HWND dialog) {
    Write(dialog, kName, Path(L"liste.def"));
    Press(dialog, IDOK);
  });
  EXPECT_EQ(ShowFileDialog({.save = true, .confirmReplacing = false}, nullptr),
            Utf8(Path(L"liste.def")));
}

TEST_F(Win32FileDialog, AFileThatMustExistIsAskedForAgain) {
  bool told = false;
  {
    const Person person([&](HWND dialog) {
      Write(dialog, kName, Path(L"fehlt.def"));
      Press(dialog, IDOK);
      const HWND message = WaitForDialog(dialog);
      told = message != nullptr;
      Press(message, IDOK);
      Write(dialog, kName, Path(L"liste.def"));
      Press(dialog, IDOK);
    });
    EXPECT_EQ(ShowFileDialog({.mustExist = true}, nullptr), Utf8(Path(L"liste.def")));
  }
  EXPECT_TRUE(told);
}

TEST_F(Win32FileDialog, AFileThatNeedNotExistCanBeOpened) {
  const Person person([&](HWND dialog) {
    Write(dialog, kName, Path(L"fehlt.def"));
    Press(dialog, IDOK);
  });
  EXPECT_EQ(ShowFileDialog({}, nullptr), Utf8(Path(L"fehlt.def")));
}

TEST_F(Win32FileDialog, TheProgramsFolderStaysTheSame) {
  const auto before = std::filesystem::current_path();
  const Person person([&](HWND dialog) {
    Write(dialog, kName, Path(L"liste.def"));
    Press(dialog, IDOK);
  });
  ShowFileDialog({}, nullptr);
  EXPECT_EQ(std::filesystem::current_path(), before);
}

TEST_F(Win32FileDialog, ANameThatNoFileCanHaveDoesNotKeepTheDialogAway) {
  const Person person([&](HWND dialog) {
    Write(dialog, kName, Path(L"liste.def"));
    Press(dialog, IDOK);
  });
  EXPECT_EQ(ShowFileDialog({.file = "a<b>|c?*"}, nullptr), Utf8(Path(L"liste.def")));
}

class Win32FolderDialog : public Win32FileDialog {
 protected:
  static void Select(HWND dialog, const std::wstring& path) {
    SendMessageW(dialog, BFFM_SETSELECTIONW, TRUE, reinterpret_cast<LPARAM>(path.c_str()));
  }
};

TEST_F(Win32FolderDialog, ReturnsTheFullPathOfTheFolder) {
  const Person person([&](HWND dialog) {
    Select(dialog, Folder().wstring());
    Press(dialog, IDOK);
  });
  EXPECT_EQ(ShowFolderDialog("Please select a folder", nullptr), Utf8(Folder().wstring()));
}

TEST_F(Win32FolderDialog, CancelledGivesAnEmptyText) {
  const Person person([&](HWND dialog) {
    Select(dialog, Folder().wstring());
    Press(dialog, IDCANCEL);
  });
  EXPECT_EQ(ShowFolderDialog("Please select a folder", nullptr), "");
}

TEST_F(Win32FolderDialog, ShowsItsTitle) {
  bool shown = false;
  {
    const Person person([&](HWND dialog) {
      for (HWND child = GetWindow(dialog, GW_CHILD); child != nullptr;
           child = GetWindow(child, GW_HWNDNEXT)) {
        shown = shown || TextOf(child) == L"Ordner wählen";
      }
      Press(dialog, IDCANCEL);
    });
    ShowFolderDialog("Ordner wählen", nullptr);
  }
  EXPECT_TRUE(shown);
}

TEST_F(Win32FolderDialog, AFolderThatIsNotOfTheFileSystemCannotBeChosen) {
  bool refused = false;
  {
    const Person person([&](HWND dialog) {
      Select(dialog, L"::{20D04FE0-3AEA-1069-A2D8-08002B30309D}");  // the computer
      refused = WaitUntil([&] { return IsWindowEnabled(GetDlgItem(dialog, IDOK)) == 0; });
      Press(dialog, IDCANCEL);
    });
    ShowFolderDialog("Please select a folder", nullptr);
  }
  EXPECT_TRUE(refused);
}

}  // namespace
}  // namespace rangewerks::tests
