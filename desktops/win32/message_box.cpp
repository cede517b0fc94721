#include "desktops/win32/dialogs.h"
#include "desktops/win32/text.h"

namespace rangewerks::desktops {

namespace {

forms::Answer LeastAnswer(std::int32_t flags) {
  switch (static_cast<UINT>(flags) & MB_TYPEMASK) {
    case MB_OKCANCEL:
    case MB_YESNOCANCEL:
      return forms::Answer::Cancel;
    case MB_YESNO:
      return forms::Answer::No;
    default:
      return forms::Answer::Ok;
  }
}

}  // namespace

forms::Answer ShowMessageBox(const forms::Message& message, HWND owner) {
  const std::wstring text = Utf16Of(message.text);
  const std::wstring title =
      Utf16Of(message.title.empty() ? forms::Toolkit::kProductName : message.title);
  // The flags have the numbers of Windows.
  const int pressed =
      MessageBoxW(owner, text.c_str(), title.c_str(), static_cast<UINT>(message.flags));
  switch (pressed) {
    case IDOK:
    case IDCANCEL:
    case IDYES:
    case IDNO:
      return forms::Answer{pressed};
    default:
      return LeastAnswer(message.flags);
  }
}

}  // namespace rangewerks::desktops
