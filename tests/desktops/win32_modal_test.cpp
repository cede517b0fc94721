// Forms that are shown modally.
#include "desktops/win32_form_test.h"
#include "desktops/win32_person.h"

namespace rangewerks::tests {
namespace {

using testing::ElementsAre;

class Win32Modal : public Win32FormTest {
 protected:
  Win32Modal() {
    SetForegroundWindow(host_);
    Settle();
  }
  ~Win32Modal() override { DestroyWindow(host_); }

  /// Runs while the form is shown modally, as the first message of its loop.
  void Meanwhile(std::function<void()> act) {
    const static UINT message = WM_APP + 77;
    act_ = std::move(act);
    SetWindowLongPtrW(host_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    SetWindowLongPtrW(host_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Act));
    PostMessageW(host_, message, 0, 0);
  }

  HWND host_ = CreateWindowExW(0, L"Static", L"Host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 200,
                               100, nullptr, nullptr, nullptr, nullptr);

 private:
  static LRESULT CALLBACK Act(HWND window, UINT message, WPARAM first, LPARAM second) {
    if (message != WM_APP + 77) return DefWindowProcW(window, message, first, second);
    auto* self = reinterpret_cast<Win32Modal*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    Settle();
    const auto act = std::exchange(self->act_, nullptr);
    act();
    return 0;
  }

  std::function<void()> act_;
};

TEST_F(Win32Modal, OtherWindowsOfTheThreadTakeNoInputMeanwhileAndDoAfterwards) {
  auto other = std::make_shared<SampleForm>(desktop);
  other->Show();
  const HWND asleep = CreateWindowExW(0, L"Static", L"", WS_POPUP | WS_VISIBLE | WS_DISABLED, 0, 0,
                                      9, 9, nullptr, nullptr, nullptr, nullptr);
  Meanwhile([&] {
    EXPECT_FALSE(IsWindowEnabled(host_));
    EXPECT_FALSE(IsWindowEnabled(WindowOf(*other)));
    EXPECT_TRUE(IsWindowEnabled(WindowOf(*form)));
    form->Hide();
    EXPECT_TRUE(IsWindowEnabled(host_));
  });
  form->Show(forms::Modality::Modal);
  EXPECT_FALSE(form->IsVisible());
  EXPECT_TRUE(IsWindowEnabled(host_));
  EXPECT_TRUE(IsWindowEnabled(WindowOf(*other)));
  EXPECT_FALSE(IsWindowEnabled(asleep));
  DestroyWindow(asleep);
  other->Unload();
}

TEST_F(Win32Modal, TheFormStandsOverTheWindowThatWasActiveAndGivesTheKeyboardBack) {
  Meanwhile([&] {
    EXPECT_EQ(GetWindow(WindowOf(*form), GW_OWNER), host_);
    EXPECT_EQ(GetActiveWindow(), WindowOf(*form));
    EXPECT_EQ(Focused(*form), "txtName");
    form->Hide();
  });
  form->Show(forms::Modality::Modal);
  EXPECT_EQ(GetActiveWindow(), host_);
  EXPECT_EQ(GetWindow(WindowOf(*form), GW_OWNER), nullptr);
}

TEST_F(Win32Modal, AFormOverATopmostOneIsTopmostToo) {
  Show();
  form->SetTopMost(true);
  auto over = std::make_shared<SampleForm>(desktop);
  Meanwhile([&] {
    EXPECT_EQ(GetWindow(WindowOf(*over), GW_OWNER), WindowOf(*form));
    EXPECT_NE(GetWindowLongPtrW(WindowOf(*over), GWL_EXSTYLE) & WS_EX_TOPMOST, 0);
    over->Unload();
  });
  over->Show(forms::Modality::Modal);
  EXPECT_FALSE(over->IsLoaded());
}

TEST_F(Win32Modal, UnloadingInAHandlerEndsIt) {
  form->cmdOK.Click = [&] { form->Unload(); };
  HWND window = nullptr;
  Meanwhile([&] {
    window = WindowOf(*form);
    PressKey(VK_RETURN);
  });
  form->Show(forms::Modality::Modal);
  EXPECT_FALSE(form->IsLoaded());
  EXPECT_FALSE(IsWindow(window));
  EXPECT_TRUE(IsWindowEnabled(host_));
}

TEST_F(Win32Modal, ClosingByTheTitleBarEndsIt) {
  Meanwhile([&] {
    form->TakeTold();
    PostMessageW(WindowOf(*form), WM_SYSCOMMAND, SC_CLOSE, 0);
  });
  form->Show(forms::Modality::Modal);
  EXPECT_THAT(form->TakeTold(), ElementsAre("Form_QueryUnload", "Form_Unload"));
}

TEST_F(Win32Modal, AFormOverAModalFormLeavesThatOneDisabledUntilItGoes) {
  auto over = std::make_shared<SampleForm>(desktop);
  over->cmdCancel.Click = [&] { over->Unload(); };
  form->cmdOK.Click = [&] {
    Meanwhile([&] {
      EXPECT_FALSE(IsWindowEnabled(WindowOf(*form)));
      EXPECT_EQ(GetWindow(WindowOf(*over), GW_OWNER), WindowOf(*form));
      PressKey(VK_ESCAPE);
    });
    over->Show(forms::Modality::Modal);
    EXPECT_TRUE(IsWindowEnabled(WindowOf(*form)));
    EXPECT_FALSE(IsWindowEnabled(host_));
    EXPECT_EQ(GetActiveWindow(), WindowOf(*form));
    form->Unload();
  };
  Meanwhile([] { QueueKeys({{VK_RETURN}}); });
  form->Show(forms::Modality::Modal);
  EXPECT_FALSE(over->IsLoaded());
  EXPECT_FALSE(form->IsLoaded());
  EXPECT_TRUE(IsWindowEnabled(host_));
}

TEST_F(Win32Modal, TheEndOfTheThreadClosesItAndIsLeftForTheLoopOutside) {
  Meanwhile([&] {
    form->TakeTold();
    PostQuitMessage(7);
  });
  form->Show(forms::Modality::Modal);
  EXPECT_FALSE(form->IsLoaded());
  EXPECT_THAT(form->TakeTold(), ElementsAre("Form_QueryUnload", "Form_Unload"));
  EXPECT_TRUE(IsWindowEnabled(host_));
  MSG message{};
  while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
  EXPECT_EQ(message.wParam, 7U);
}

TEST_F(Win32Modal, AMessageBoxOfAFormStandsOverIt) {
  Meanwhile([&] {
    const HWND window = WindowOf(*form);
    const Person person([&](HWND dialog) {
      EXPECT_EQ(GetWindow(dialog, GW_OWNER), window);
      Press(dialog, IDOK);
    });
    desktop.ShowMessage({.text = "Hello"}, form.get());
    form->Hide();
  });
  form->Show(forms::Modality::Modal);
  EXPECT_FALSE(form->IsVisible());
}

}  // namespace
}  // namespace rangewerks::tests
