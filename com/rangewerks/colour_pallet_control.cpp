#include "com/rangewerks/colour_pallet_control.h"

#include <rangewerks.h>

#include "com/control/control.h"
#include "com/module/module.h"
#include "desktops/win32/win32_desktop.h"
#include "sheetbuild/colour_pallet_object.h"

namespace rangewerks::com {

namespace {

constexpr double kWidth = 5895;
constexpr double kHeight = 1935;

class ColourPalletForm final : public ControlForm {
 public:
  explicit ColourPalletForm(forms::Toolkit& toolkit)
      : ControlForm(toolkit, "ctlColourPallet", kWidth, kHeight) {}

  ctlColourPallet panel{*this, "ctlColourPallet1", {.place = {0, 0, kWidth, kHeight}}};

 protected:
  void Form_Resize() override { panel.Move({0, 0, get_Width(), get_Height()}); }
};

}  // namespace

automation::Object MakeColourPallet() {
  const auto desktop = std::make_shared<desktops::Win32Desktop>();
  desktop->KeepWhileLoaded([] { return std::make_shared<ModuleLock>(); });
  const std::shared_ptr<ColourPalletForm> form(
      new ColourPalletForm(*desktop),
      [desktop](ColourPalletForm* one) { delete one; });  // before its desktop goes
  // A loaded form keeps itself alive; nobody sees it any more once the panel is let go.
  const std::shared_ptr<ctlColourPallet> panel(&form->panel,
                                               [form](ctlColourPallet*) { form->DropWindow(); });
  return std::make_shared<ColourPalletObject>(panel);
}

std::unique_ptr<MoreInterfaces> ControlOfColourPallet(IUnknown& whole,
                                                      const automation::Object& core) {
  const automation::Member shownBy("LoadColours");
  auto& form = static_cast<ControlForm&>(core.As<ColourPalletObject>()->Panel().OwningForm());
  return MakeControl(
      whole, core, form,
      {.classId = __uuidof(::ctlColourPallet),
       .name = L"Rangewerks colour panel",
       .properties = {automation::Member("HeadingColour"), automation::Member("ColumnColour")},
       .shownBy = shownBy});
}

}  // namespace rangewerks::com
