#include <windows.h>
// The dialogs need what comes before.
#include <commdlg.h>
#include <shlobj.h>

#include <algorithm>
#include <array>
#include <memory>
#include <type_traits>

#include "desktops/win32/dialogs.h"
#include "desktops/win32/text.h"

namespace rangewerks::desktops {

namespace {

constexpr std::size_t kLongestPath = 32768;

struct TaskMemoryDeleter {
  void operator()(void* memory) const noexcept { CoTaskMemFree(memory); }
};
using OwnedIdentifiers = std::unique_ptr<std::remove_pointer_t<LPITEMIDLIST>, TaskMemoryDeleter>;

/// Pairs of texts, each with a NUL behind it, and one more at the end.
std::wstring FilterOf(const forms::FileDialog& dialog) {
  std::wstring filter;
  for (const auto& [description, patterns] : dialog.filters) {
    filter += Utf16Of(description) + L'\0' + Utf16Of(patterns) + L'\0';
  }
  return filter;
}

DWORD FlagsOf(const forms::FileDialog& dialog) {
  // The program's current folder is nobody's to change.
  DWORD flags = OFN_EXPLORER | OFN_HIDEREADONLY | OFN_NOCHANGEDIR;
  if (dialog.save) {
    flags |= OFN_PATHMUSTEXIST;
    if (dialog.confirmReplacing) flags |= OFN_OVERWRITEPROMPT;
  } else if (dialog.mustExist) {
    flags |= OFN_PATHMUSTEXIST | OFN_FILEMUSTEXIST;
  }
  return flags;
}

/// What is in the buffer, up to the first NUL.
std::string PathIn(const std::wstring& buffer) { return Utf8Of(buffer.c_str()); }

}  // namespace

std::optional<forms::Colour> ShowColourDialog(HWND owner) {
  static std::array<COLORREF, 16> mixed = [] {
    std::array<COLORREF, 16> white{};
    white.fill(RGB(255, 255, 255));
    return white;
  }();
  CHOOSECOLORW dialog{};
  dialog.lStructSize = sizeof(dialog);
  dialog.hwndOwner = owner;
  dialog.lpCustColors = mixed.data();
  dialog.Flags = CC_ANYCOLOR;
  if (ChooseColorW(&dialog) == 0) return std::nullopt;
  return static_cast<forms::Colour>(dialog.rgbResult);
}

std::optional<std::string> ShowFileDialog(const forms::FileDialog& dialog, HWND owner) {
  const std::wstring title = Utf16Of(dialog.title);
  const std::wstring filter = FilterOf(dialog);
  const std::wstring extension = Utf16Of(dialog.defaultExtension);
  std::wstring path = Utf16Of(dialog.file);
  path.resize(kLongestPath, L'\0');
  path.back() = L'\0';

  OPENFILENAMEW request{};
  request.lStructSize = sizeof(request);
  request.hwndOwner = owner;
  request.lpstrFilter = dialog.filters.empty() ? nullptr : filter.c_str();
  request.lpstrFile = path.data();
  request.nMaxFile = static_cast<DWORD>(path.size());
  request.lpstrTitle = dialog.title.empty() ? nullptr : title.c_str();
  request.lpstrDefExt = dialog.defaultExtension.empty() ? nullptr : extension.c_str();
  request.Flags = FlagsOf(dialog);

  const auto show = dialog.save ? &GetSaveFileNameW : &GetOpenFileNameW;
  bool chosen = show(&request) != 0;
  if (!chosen && CommDlgExtendedError() == FNERR_INVALIDFILENAME) {
    path.assign(kLongestPath, L'\0');
    chosen = show(&request) != 0;
  }
  if (!chosen) return std::nullopt;
  return PathIn(path);
}

std::string ShowFolderDialog(const std::string& title, HWND owner) {
  const std::wstring wideTitle = Utf16Of(title);
  BROWSEINFOW request{};
  request.hwndOwner = owner;
  request.lpszTitle = wideTitle.c_str();
  request.ulFlags = BIF_RETURNONLYFSDIRS;
  const OwnedIdentifiers chosen(SHBrowseForFolderW(&request));
  std::wstring path(MAX_PATH, L'\0');
  if (chosen == nullptr || SHGetPathFromIDListW(chosen.get(), path.data()) == 0) return {};
  return PathIn(path);
}

}  // namespace rangewerks::desktops
