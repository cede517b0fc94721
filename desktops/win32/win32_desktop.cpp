#include "desktops/win32/win32_desktop.h"

#include <windows.h>
// The shell needs what comes before.
#include <shellapi.h>

#include "desktops/win32/dialogs.h"
#include "desktops/win32/text.h"
#include "desktops/win32/units.h"
#include "desktops/win32/visual_styles.h"
#include "desktops/win32/win32_form_window.h"
#include "forms/form.h"

namespace rangewerks::desktops {

namespace {

/// The window that a dialog stands over.
HWND OwnerOf(const forms::Form* form) {
  HWND window = nullptr;
  if (form != nullptr && form->Window() != nullptr) {
    // A form inside another program's window can't own one.
    window = GetAncestor(reinterpret_cast<HWND>(form->Window()->Handle()), GA_ROOT);
  }
  return window != nullptr ? window : GetActiveWindow();
}

}  // namespace

Win32Desktop::Win32Desktop() : styles_(std::make_shared<VisualStyles>()) {}

Win32Desktop::~Win32Desktop() { DropForms(); }

std::shared_ptr<forms::FormWindow> Win32Desktop::MakeWindow(forms::Form& form) {
  return Win32FormWindow::Make(*this, styles_, form);
}

void Win32Desktop::RunModal(forms::Form& form) {
  auto* window = static_cast<Win32FormWindow*>(form.Window());
  if (window == nullptr || window->RunModal()) return;
  // The thread ends, and nobody has answered the form.
  form.PersonClosed();
  if (form.IsVisible()) form.Hide();  // its own code has failed
}

forms::Answer Win32Desktop::ShowMessage(const forms::Message& message, forms::Form* owner) {
  const VisualStyles::Active active(*styles_);
  return ShowMessageBox(message, OwnerOf(owner));
}

std::optional<std::string> Win32Desktop::ShowInput(const std::string& prompt,
                                                   const std::string& title,
                                                   const std::string& text, forms::Form* owner) {
  const VisualStyles::Active active(*styles_);
  return ShowInputBox(prompt, title, text, OwnerOf(owner));
}

std::optional<forms::Colour> Win32Desktop::ChooseColour(forms::Form* owner) {
  const VisualStyles::Active active(*styles_);
  return ShowColourDialog(OwnerOf(owner));
}

std::optional<std::string> Win32Desktop::ChooseFile(const forms::FileDialog& dialog,
                                                    forms::Form* owner) {
  const VisualStyles::Active active(*styles_);
  return ShowFileDialog(dialog, OwnerOf(owner));
}

std::string Win32Desktop::BrowseForFolder(const std::string& title, forms::Form* owner) {
  const VisualStyles::Active active(*styles_);
  return ShowFolderDialog(title, OwnerOf(owner));
}

void Win32Desktop::Beep() { MessageBeep(MB_OK); }

void Win32Desktop::SetMousePointer(forms::MousePointer pointer) {
  pointer_ = pointer;
  const bool wait = pointer == forms::MousePointer::Hourglass;
  SetCursor(LoadCursorW(nullptr, MAKEINTRESOURCEW(wait ? 32514 : 32512)));
}

forms::Size Win32Desktop::Screen() {
  RECT area{};
  if (SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0) == FALSE) {
    area = {0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
  }
  const int dpi = DpiOfScreen();
  // Places count from the screen's corner: what is as far to the right as the screen is wide ends
  // at its edge, though a bar lies at the left.
  return {ToTwips(area.right, dpi), ToTwips(area.bottom, dpi)};
}

void Win32Desktop::ShowHelp(const std::string& file) {
  ShellExecuteW(nullptr, L"open", Utf16Of(file).c_str(), nullptr, nullptr, SW_SHOWNORMAL);
}

}  // namespace rangewerks::desktops
