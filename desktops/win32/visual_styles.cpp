#include "desktops/win32/visual_styles.h"

// The common controls need what comes before.
#include <commctrl.h>

#include <array>

namespace rangewerks::desktops {

namespace {

constexpr WORD kManifest = 2;

}  // namespace

HINSTANCE ThisModule() {
  HMODULE module = nullptr;
  GetModuleHandleExW(
      GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
      reinterpret_cast<LPCWSTR>(reinterpret_cast<const void*>(&ThisModule)), &module);
  return module;
}

VisualStyles::VisualStyles() : context_(INVALID_HANDLE_VALUE) {
  std::array<wchar_t, 32768> file{};
  if (GetModuleFileNameW(ThisModule(), file.data(), static_cast<DWORD>(file.size())) != 0) {
    ACTCTXW wanted{};
    wanted.cbSize = sizeof wanted;
    wanted.dwFlags = ACTCTX_FLAG_RESOURCE_NAME_VALID | ACTCTX_FLAG_HMODULE_VALID;
    wanted.lpSource = file.data();
    wanted.lpResourceName = MAKEINTRESOURCEW(kManifest);
    wanted.hModule = ThisModule();
    context_ = CreateActCtxW(&wanted);
  }
  const Active active(*this);
  const INITCOMMONCONTROLSEX classes{sizeof classes, ICC_LISTVIEW_CLASSES | ICC_TREEVIEW_CLASSES |
                                                         ICC_DATE_CLASSES | ICC_BAR_CLASSES |
                                                         ICC_STANDARD_CLASSES};
  InitCommonControlsEx(&classes);
}

VisualStyles::~VisualStyles() {
  if (context_ != INVALID_HANDLE_VALUE) ReleaseActCtx(context_);
}

VisualStyles::Active::Active(const VisualStyles& styles) {
  if (styles.context_ == INVALID_HANDLE_VALUE ||
      ActivateActCtx(styles.context_, &cookie_) == FALSE) {
    cookie_ = 0;
  }
}

VisualStyles::Active::~Active() {
  if (cookie_ != 0) DeactivateActCtx(0, cookie_);
}

}  // namespace rangewerks::desktops
