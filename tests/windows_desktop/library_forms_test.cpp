// The forms that only the library itself shows so far, on the person's desktop.
#include <gmock/gmock.h>

#include "admin/frmResizeRanges.h"
#include "desktops/win32/win32_desktop.h"
#include "filesave/frmPath.h"
#include "sheetbuild/frmColourPallet.h"
#include "support/fixed_system.h"
#include "windows_desktop/person_at_forms.h"

namespace rangewerks::tests {
namespace {

using ::testing::ElementsAre;

class LibraryForms : public testing::Test {
 protected:
  LibraryForms() { SetCursorPos(0, 0); }

  static void Show(forms::Form& form, const std::wstring& title,
                   const std::function<void(HWND form)>& act) {
    Meanwhile([&] { act(WaitForForm(title)); }, [&] { form.Show(forms::Modality::Modal); });
  }

  const std::shared_ptr<FixedSystem> system_ = std::make_shared<FixedSystem>("C:\\Rangewerks.dll");
  desktops::Win32Desktop desktop_;
};

// --- the number of rows
// ----------------------------------------------------------------------------

class Rows : public LibraryForms {
 protected:
  Rows() { form_->let_AllowedNumberOfRows(200); }
  void Show(const std::function<void(HWND form)>& act) {
    LibraryForms::Show(*form_, L"Recreate/Resize Detail Ranges", act);
  }
  static std::wstring Refusal(HWND form) { return TextOf(PartOf(form, L"Static", 2)); }

  const std::shared_ptr<frmResizeRanges> form_ = std::make_shared<frmResizeRanges>(desktop_);
};

TEST_F(Rows, TabGoesFromTheNumberToTheButtonsAndEnterAcceptsIt) {
  Show([](HWND form) {
    EXPECT_THAT(TabThrough(form, 3), ElementsAre(L"Edit 1", L"Button 1", L"Cancel", L"Edit 1"));
    Type(form, "200");
    PressKeys(form, {VK_RETURN});
    EXPECT_TRUE(WaitUntilGone(form));
  });
  EXPECT_TRUE(form_->get_OKSelected());
  EXPECT_EQ(form_->get_ResizeRows(), 200);
}

TEST_F(Rows, ANumberAboveTheLimitIsRefusedUntilThePersonTypesAgain) {
  Show([](HWND form) {
    Type(form, "201");
    PressKeys(form, {VK_RETURN});
    EXPECT_TRUE(WaitUntil([&] { return Refusal(form) == L"Invalid Value"; }));
    PressKeys(form, {VK_BACK});
    EXPECT_TRUE(WaitUntil([&] { return Refusal(form).empty(); }));
    PressKeys(form, {VK_ESCAPE});
    EXPECT_TRUE(WaitUntilGone(form));
  });
  EXPECT_FALSE(form_->get_OKSelected());
}

// --- the settings of saving
// ------------------------------------------------------------------------

class SaveSettings : public LibraryForms {
 protected:
  SaveSettings() {
    settings_->let_FilePath("C:\\windows");
    settings_->let_Filename("%i");
    form_->set_FileSave(settings_);
  }
  void Show(const std::function<void(HWND form)>& act) {
    LibraryForms::Show(*form_, L" Save To File", act);
  }

  const std::shared_ptr<clsExcelFileSave> settings_ = std::make_shared<clsExcelFileSave>(system_);
  const std::shared_ptr<frmPath> form_ = std::make_shared<frmPath>(desktop_, system_);
};

TEST_F(SaveSettings, TheSpaceBarSwitchesSavingOnAndWithItWhatBelongsToIt) {
  Show([](HWND form) {
    EXPECT_THAT(TabThrough(form, 5),
                ElementsAre(L"Button 1", L"...", L"Edit 3", L"&OK", L"&Cancel", L"Button 1"));
    PressKeys(form, {VK_SPACE});
    EXPECT_TRUE(WaitUntil([&] { return IsWindowEnabled(PartOf(form, L"Edit", 1)) != FALSE; }));
    EXPECT_THAT(TabThrough(form, 8),
                ElementsAre(L"Button 1", L"Button 2", L"Edit 1", L"...", L"Edit 2", L"Edit 3",
                            L"&OK", L"&Cancel", L"Button 1"));
    PressKeys(form, {VK_MENU, 'O'});
    EXPECT_TRUE(WaitUntilGone(form));
  });
  EXPECT_FALSE(form_->get_Cancel());
  EXPECT_TRUE(settings_->get_DoSaveFile());
}

TEST_F(SaveSettings, AFolderThatIsNotThereIsRefusedAndAltCLeavesAllAsItWas) {
  settings_->let_DoSaveFile(true);
  Show([](HWND form) {
    Click(PartOf(form, L"Edit", 1));
    PressKeys(form, {VK_END});
    Type(form, "x");
    EXPECT_TRUE(WaitUntil([&] { return TextOf(PartOf(form, L"Edit", 1)) == L"C:\\windowsx"; }));
    PressKeys(form, {VK_RETURN});
    const HWND refused = WaitForDialog(form);
    EXPECT_EQ(TextOf(refused, 0xFFFF), L"File path not found or access denied");
    Press(refused, IDOK);
    EXPECT_TRUE(WaitUntil([&] { return IsWindowEnabled(form) != FALSE; }));
    PressKeys(form, {VK_MENU, 'C'});
  });
  EXPECT_TRUE(form_->get_Cancel());
  EXPECT_EQ(settings_->get_FilePath(), "C:\\windows");
}

// --- the colours
// -----------------------------------------------------------------------------------

class Colours : public LibraryForms {
 protected:
  void Show(const std::function<void(HWND form)>& act) {
    LibraryForms::Show(*form_, L" Colour Configurator", act);
  }

  const std::shared_ptr<frmColourPallet> form_ =
      std::make_shared<frmColourPallet>(desktop_, system_->OpenRegistry());
};

// The dialog's own numbers of its fields.
constexpr int kRed = 706;
constexpr int kGreen = 707;
constexpr int kBlue = 708;

TEST_F(Colours, AChosenColourShowsOnItsSwatch) {
  Show([&](HWND form) {
    Click(PartOf(form, L"Button", 2));
    const HWND chooser = WaitForDialog(form);
    Write(chooser, kRed, L"16");
    Write(chooser, kGreen, L"32");
    Write(chooser, kBlue, L"48");
    Press(chooser, IDOK);
    EXPECT_TRUE(WaitUntilGone(chooser));
    const HWND swatch = PartOf(form, L"Edit", 1);
    EXPECT_TRUE(WaitUntil([&] {
      const HDC device = GetDC(swatch);
      const COLORREF colour = GetPixel(device, 40, 8);
      ReleaseDC(swatch, device);
      return colour == 0x302010;
    }));
    Click(ButtonOf(form, L"Cancel"));
  });
}

TEST_F(Colours, SwitchingTheRangesColourOffTakesTheAlternateRowsColourWithIt) {
  Show([](HWND form) {
    const HWND range = ButtonOf(form, L"Enable Range Color");
    const HWND alternate = ButtonOf(form, L"Enable Alternate Range Color");
    EXPECT_EQ(SendMessageW(range, BM_GETCHECK, 0, 0), BST_CHECKED);
    EXPECT_EQ(SendMessageW(alternate, BM_GETCHECK, 0, 0), BST_CHECKED);
    Click(range);
    EXPECT_TRUE(
        WaitUntil([&] { return SendMessageW(alternate, BM_GETCHECK, 0, 0) == BST_UNCHECKED; }));
    EXPECT_EQ(SendMessageW(range, BM_GETCHECK, 0, 0), BST_UNCHECKED);
    EXPECT_THAT(TabThrough(form, 4),
                ElementsAre(L"Enable Range Color", L"Enable Alternate Range Color", L"OK",
                            L"Cancel", L"Enable Range Color"));
    PressKeys(form, {VK_ESCAPE});
  });
}

}  // namespace
}  // namespace rangewerks::tests
