#include <cstddef>
#include <cstring>
#include <initializer_list>
#include <vector>

#include "desktops/win32/dialogs.h"
#include "desktops/win32/text.h"

namespace rangewerks::desktops {

namespace {

constexpr WORD kPrompt = 100;
constexpr WORD kField = 101;

struct Item {
  DWORD style = 0;
  SHORT left = 0;
  SHORT top = 0;
  SHORT width = 0;
  SHORT height = 0;
  WORD id = 0;
  WORD kind = 0;  ///< the number of a class of the system
  std::wstring text{};
};

constexpr WORD kButtonKind = 0x0080;
constexpr WORD kEditKind = 0x0081;
constexpr WORD kStaticKind = 0x0082;

/// The description of a dialog in memory, in dialog units.
class Template {
 public:
  Template(const std::wstring& title, SHORT width, SHORT height, WORD items) {
    DLGTEMPLATE head{};
    head.style = WS_POPUP | WS_CAPTION | WS_SYSMENU | DS_MODALFRAME | DS_CENTER | DS_SHELLFONT |
                 DS_SETFOREGROUND;
    head.cdit = items;
    head.cx = width;
    head.cy = height;
    Put(head);
    PutWords({0, 0});  // no menu, the usual class
    PutText(title);
    PutWords({8});  // points
    PutText(L"MS Shell Dlg");
  }

  void Add(const Item& item) {
    words_.resize((words_.size() + 1) / 2 * 2);  // each begins at a multiple of four bytes
    DLGITEMTEMPLATE head{};
    head.style = WS_CHILD | WS_VISIBLE | item.style;
    head.x = item.left;
    head.y = item.top;
    head.cx = item.width;
    head.cy = item.height;
    head.id = item.id;
    Put(head);
    PutWords({0xFFFF, item.kind});
    PutText(item.text);
    PutWords({0});  // nothing more to tell at its creation
  }

  const DLGTEMPLATE* Get() const { return reinterpret_cast<const DLGTEMPLATE*>(words_.data()); }

 private:
  template <class Head>
  void Put(const Head& head) {
    const std::size_t end = words_.size();
    words_.resize(end + sizeof(head) / sizeof(WORD));
    std::memcpy(&words_[end], &head, sizeof(head));
  }
  void PutWords(std::initializer_list<WORD> words) { words_.insert(words_.end(), words); }
  void PutText(const std::wstring& text) {
    words_.insert(words_.end(), text.begin(), text.end());
    words_.push_back(0);
  }

  std::vector<WORD> words_;
};

struct Conversation {
  const std::string* text = nullptr;
  std::string typed{};
};

std::string TextOf(HWND window) {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
  text.resize(
      static_cast<std::size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
  return Utf8Of(text);
}

INT_PTR CALLBACK Answer(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_INITDIALOG) {
    SetWindowLongPtrW(dialog, DWLP_USER, lParam);
    const auto& conversation = *reinterpret_cast<const Conversation*>(lParam);
    SetDlgItemTextW(dialog, kField, Utf16Of(*conversation.text).c_str());
    return TRUE;  // the first control that takes text, the field, gets the keyboard
  }
  if (message != WM_COMMAND) return FALSE;
  const WORD id = LOWORD(wParam);
  if (id != IDOK && id != IDCANCEL) return FALSE;
  auto& conversation = *reinterpret_cast<Conversation*>(GetWindowLongPtrW(dialog, DWLP_USER));
  if (id == IDOK) conversation.typed = TextOf(GetDlgItem(dialog, kField));
  EndDialog(dialog, id);
  return TRUE;
}

Template Layout(const std::string& prompt, const std::string& title) {
  Template layout(Utf16Of(title.empty() ? forms::Toolkit::kProductName : title), 240, 92, 4);
  layout.Add({WS_TABSTOP | WS_BORDER | ES_AUTOHSCROLL, 7, 71, 226, 14, kField, kEditKind});
  layout.Add({WS_TABSTOP | BS_DEFPUSHBUTTON, 183, 7, 50, 14, IDOK, kButtonKind, L"OK"});
  layout.Add({WS_TABSTOP | BS_PUSHBUTTON, 183, 24, 50, 14, IDCANCEL, kButtonKind, L"Cancel"});
  layout.Add({SS_LEFT | SS_NOPREFIX, 7, 7, 170, 60, kPrompt, kStaticKind, Utf16Of(prompt)});
  return layout;
}

}  // namespace

std::optional<std::string> ShowInputBox(const std::string& prompt, const std::string& title,
                                        const std::string& text, HWND owner) {
  const Template layout = Layout(prompt, title);
  Conversation conversation{.text = &text};
  const INT_PTR pressed = DialogBoxIndirectParamW(GetModuleHandleW(nullptr), layout.Get(), owner,
                                                  Answer, reinterpret_cast<LPARAM>(&conversation));
  if (pressed != IDOK) return std::nullopt;
  return conversation.typed;
}

}  // namespace rangewerks::desktops
