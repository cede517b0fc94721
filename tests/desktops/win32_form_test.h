// What the tests of windows have in common: a desktop and the form with every kind of control.
#pragma once

#include <gmock/gmock.h>

#include <memory>

#include "desktops/win32/win32_desktop.h"
#include "desktops/win32_hands.h"
#include "desktops/win32_sample_form.h"

namespace rangewerks::tests {

class Win32FormTest : public testing::Test {
 protected:
  Win32FormTest() {
    SetCursorPos(0, 0);  // out of the way
  }
  ~Win32FormTest() override {
    form->Unload();
    Settle();
  }

  /// Shows the form and forgets what its handlers were told until then.
  void Show() {
    form->Show();
    Settle();
    form->TakeTold();
  }

  desktops::Win32Desktop desktop;
  std::shared_ptr<SampleForm> form = std::make_shared<SampleForm>(desktop);
};

}  // namespace rangewerks::tests
