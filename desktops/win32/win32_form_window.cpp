#include "desktops/win32/win32_form_window.h"

#include <ranges>
#include <utility>

#include "desktops/win32/failure.h"
#include "desktops/win32/form_at_work.h"
#include "desktops/win32/list_window.h"
#include "desktops/win32/text.h"
#include "desktops/win32/tree_window.h"
#include "desktops/win32/units.h"

namespace rangewerks::desktops {

namespace {

/// Hints are broken into lines of at most this length, at the standard resolution.
constexpr int kWidestHint = 320;
constexpr int kFirstControl = 1000;

}  // namespace

std::shared_ptr<forms::FormWindow> Win32FormWindow::Make(Win32Desktop& desktop,
                                                         std::shared_ptr<const VisualStyles> styles,
                                                         forms::Form& form) {
  auto made = std::make_shared<Win32FormWindow>(desktop, std::move(styles), form);
  made->MakeAll();
  return {made.get(), [made](forms::FormWindow*) mutable {
            made->Close();
            made.reset();
          }};
}

Win32FormWindow::Win32FormWindow(Win32Desktop& desktop, std::shared_ptr<const VisualStyles> styles,
                                 forms::Form& form)
    : desktop_(desktop),
      form_(form),
      styles_(std::move(styles)),
      keeper_(desktop.Keeper()),
      classes_(Procedure) {}

Win32FormWindow::~Win32FormWindow() {
  if (window_ == nullptr) return;
  SetWindowLongPtrW(window_, GWLP_USERDATA, 0);
  DestroyWindow(window_);
}

DWORD Win32FormWindow::Style() const {
  switch (form_.Design().border) {
    case forms::Border::Sizable:
      return WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN;
    case forms::Border::Embedded:
      return WS_CHILD | WS_CLIPCHILDREN | WS_CLIPSIBLINGS;
    case forms::Border::Fixed:
      break;
  }
  return WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN;
}

DWORD Win32FormWindow::ExtendedStyle() const {
  const bool dialog = form_.Design().border == forms::Border::Fixed;
  return WS_EX_CONTROLPARENT | (dialog ? WS_EX_DLGMODALFRAME : 0U);
}

void Win32FormWindow::MakeAll() {
  const AtWork atWork(*this);
  const OwnChange ownChange(*this);
  const VisualStyles::Active active(*styles_);
  const bool embedded = form_.Design().border == forms::Border::Embedded;
  HWND parent = embedded ? reinterpret_cast<HWND>(form_.EmbeddingWindow()) : nullptr;
  HMENU menu = embedded ? nullptr : menu_.Make(form_.MenuBar());
  if (CreateWindowExW(ExtendedStyle(), kFormClass, Utf16Of(form_.Caption()).c_str(), Style(), 0, 0,
                      0, 0, parent, menu, ThisModule(), this) == nullptr) {
    const automation::Error refused = WindowRefused();
    if (menu != nullptr) DestroyMenu(menu);
    throw automation::Error(refused);
  }
  around_.form = window_;
  around_.dpi = DpiOf(window_);
  around_.fonts = std::make_unique<Fonts>(form_.Design(), around_.dpi);
  around_.toolTips.Open(MulDiv(kWidestHint, around_.dpi, kStandardDpi));
  if (form_.Design().border == forms::Border::Sizable) {
    icon_ = MakeIcon(forms::Draw(forms::Picture::Product, GetSystemMetrics(SM_CXSMICON)));
    SendMessageW(window_, WM_SETICON, ICON_SMALL, reinterpret_cast<LPARAM>(icon_.get()));
  }
  MakeControls(form_, window_);
  for (const auto& control : controls_) control->ApplyAll();
  // Inside another program's window it is that program which gives and takes the keyboard.
  if (!embedded) keys_.emplace(window_, *this);
}

void Win32FormWindow::MakeControls(const forms::Container& container, HWND parent) {
  for (forms::Control* control : container.Children()) {
    const int id = kFirstControl + static_cast<int>(controls_.size());
    controls_.push_back(MakeControlWindow(around_, *control, parent, id));
    byControl_[control] = controls_.back().get();
    if (const auto* inner = dynamic_cast<const forms::Container*>(control)) {
      MakeControls(*inner, controls_.back()->Handle());
    }
  }
}

void Win32FormWindow::Close() {
  if (std::exchange(closed_, true)) return;
  EndModal();
  around_.toolTips.Close();
  keys_.reset();
  if (window_ == nullptr) return;
  self_ = shared_from_this();
  ShowWindow(window_, SW_HIDE);
  TryDestroy();
}

void Win32FormWindow::TryDestroy() {
  if (!closed_ || window_ == nullptr || atWork_ > 0) return;
  const std::shared_ptr<Win32FormWindow> keep = shared_from_this();
  DestroyWindow(window_);
}

// Another program may take its window away with ours in it.
void Win32FormWindow::Destroyed() {
  SetWindowLongPtrW(window_, GWLP_USERDATA, 0);
  window_ = nullptr;
  around_.owners.clear();
  self_.reset();
  if (closed_) return;
  keys_.reset();
  form_.Handle([this] { form_.Unload(); });
}

void Win32FormWindow::EndModal() {
  for (ModalLoop* loop : std::views::reverse(modals_)) loop->End();
}

bool Win32FormWindow::RunModal() {
  const std::shared_ptr<Win32FormWindow> keep = shared_from_this();
  if (closed_ || window_ == nullptr || !form_.IsVisible()) return true;
  // With an owner the form stays above it, and gives it the keyboard back at the end.
  const bool owned = previous_ != nullptr && IsWindow(previous_) != FALSE && previous_ != window_;
  if (owned) {
    SetWindowLongPtrW(window_, GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(previous_));
    if ((GetWindowLongPtrW(previous_, GWL_EXSTYLE) & WS_EX_TOPMOST) != 0) {
      SetWindowPos(window_, HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    }
  }
  ModalLoop loop(GetAncestor(window_, GA_ROOT));
  modals_.push_back(&loop);
  const bool finished = loop.Run();
  std::erase(modals_, &loop);
  if (owned && window_ != nullptr) SetWindowLongPtrW(window_, GWLP_HWNDPARENT, 0);
  TryDestroy();
  return finished;
}

void Win32FormWindow::Show() {
  if (window_ == nullptr) return;
  const AtWork atWork(*this);
  const OwnChange ownChange(*this);
  const VisualStyles::Active active(*styles_);
  if (form_.Design().border == forms::Border::Embedded) {
    ShowWindow(window_, SW_SHOWNA);
    return;
  }
  if (IsWindowVisible(window_) == FALSE) previous_ = GetActiveWindow();
  ShowWindow(window_, SW_SHOW);
  SetForegroundWindow(window_);
}

void Win32FormWindow::Hide() {
  EndModal();
  const AtWork atWork(*this);
  if (window_ != nullptr) ShowWindow(window_, SW_HIDE);
}

void Win32FormWindow::ControlChanged(forms::Control& control, forms::Aspect aspect) {
  ControlWindow* window = WindowOf(control);
  if (window == nullptr) return;
  const AtWork atWork(*this);
  const VisualStyles::Active active(*styles_);
  window->Apply(aspect);
  if (aspect != forms::Aspect::Enabled) return;
  // What stands on a frame can be used no more than the frame.
  for (const auto& other : controls_) {
    if (IsChild(window->Handle(), other->Handle()) != FALSE) other->ApplyEnabled();
  }
}

void Win32FormWindow::MenuChanged(forms::MenuEntry& entry) {
  if (window_ != nullptr) menu_.Changed(window_, entry);
}

void Win32FormWindow::NodeChanged(forms::TreeView& tree, forms::TreeNode& node) {
  if (ControlWindow* window = WindowOf(tree)) static_cast<TreeWindow*>(window)->NodeChanged(node);
}

void Win32FormWindow::ItemChanged(forms::ListView& list, forms::ListItem& item) {
  if (ControlWindow* window = WindowOf(list)) static_cast<ListWindow*>(window)->ItemChanged(item);
}

ControlWindow* Win32FormWindow::WindowOf(const forms::Control& control) const {
  const auto found = byControl_.find(&control);
  return window_ == nullptr || found == byControl_.end() ? nullptr : found->second;
}

ControlWindow* Win32FormWindow::OwnerOf(HWND window) const {
  const auto found = around_.owners.find(window);
  return found == around_.owners.end() ? nullptr : found->second;
}

}  // namespace rangewerks::desktops
