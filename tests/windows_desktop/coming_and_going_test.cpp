// Forms that are shown and closed again and again leave nothing behind.
#include <gtest/gtest.h>

#include "desktops/win32/win32_desktop.h"
#include "desktops/win32_possessions.h"
#include "windows_desktop/person_at_forms.h"
#include "windows_desktop/shown_forms.h"

namespace rangewerks::tests {
namespace {

// All of them a thousand times would take minutes; one form is as good as another for what is taken
// by each showing.
constexpr int kTimes = 100;
constexpr int kManyTimes = 1000;
constexpr int kFirstTimes = 20;  // what the system and its controls make once and keep

class ComingAndGoing : public testing::TestWithParam<ShownForm> {
 protected:
  void ShowAndClose(int times) {
    for (int i = 0; i < times; ++i) {
      const auto form = GetParam().make(desktop_);
      form->Show();
      UpdateWindow(reinterpret_cast<HWND>(form->get_hWnd()));
      form->Unload();
      HandOutMessages();
    }
  }

  desktops::Win32Desktop desktop_;
};

TEST_P(ComingAndGoing, NothingStaysBehind) {
  const bool errorBox = GetParam().name == "frmErrMessage";
  ShowAndClose(kFirstTimes);
  const Possessions before;
  ShowAndClose(errorBox ? kManyTimes : kTimes);
  // Wine's calendar keeps a font each time that it is given one.
  const bool calendar = GetParam().name == "frmBrowseCalendar";
  before.ExpectToBeAllThereIs(calendar ? kTimes : 0);
}

INSTANTIATE_TEST_SUITE_P(Of, ComingAndGoing, testing::ValuesIn(ShownForms()),
                         [](const auto& of) { return of.param.name; });

}  // namespace
}  // namespace rangewerks::tests
