// What is left of forms that have been closed: nothing.
#include "desktops/win32_form_test.h"
#include "desktops/win32_possessions.h"

namespace rangewerks::tests {
namespace {

void ShowAndClose(forms::Form& form, int times) {
  for (int i = 0; i < times; ++i) {
    form.Show();
    UpdateWindow(WindowOf(form));
    form.Unload();
    HandOut();
  }
}

class SmallForm final : public forms::Form {
 public:
  explicit SmallForm(forms::Toolkit& toolkit) : Form(toolkit, "SmallForm", {.caption = "Small"}) {}
  forms::MenuEntry mnuFile{*this, "mnuFile", "&File"};
  forms::MenuEntry mnuSave{mnuFile, "mnuSave", "&Save"};
  forms::Frame fraAll{*this, "fraAll", {.place = {0, 0, 3000, 3000}, .text = "All"}};
  forms::TextBox txtSwatch{
      fraAll, "txtSwatch", {.place = {120, 360, 900, 300}, .toolTip = "Hint", .backColor = 0xFF}};
  forms::CommandButton cmdOK{fraAll,
                             "cmdOK",
                             {.place = {120, 900, 900, 300},
                              .text = "OK",
                              .bold = true,
                              .picture = forms::Picture::Ok,
                              .isDefault = true}};
};

class Win32Remains : public Win32FormTest {};

TEST_F(Win32Remains, NothingStaysBehindAThousandShowings) {
  auto small = std::make_shared<SmallForm>(desktop);
  ShowAndClose(*small, 20);
  const Possessions before;
  ShowAndClose(*small, 1000);
  before.ExpectToBeAllThereIs();
}

TEST_F(Win32Remains, NothingStaysBehindOfAnyKindOfControl) {
  ShowAndClose(*form, 10);
  const Possessions before;
  constexpr int kTimes = 60;
  ShowAndClose(*form, kTimes);
  // Wine's calendar keeps a font each time that it is given one. One more object left by each
  // showing would be seen.
  before.ExpectToBeAllThereIs(kTimes);
}

}  // namespace
}  // namespace rangewerks::tests
