#include "platform/excel_menus.h"

#include "automation/dispatch.h"
#include "platform/typed_call.h"

namespace rangewerks::excel {
namespace {

using automation::Member;

const Member kAdd{"Add"};
const Member kBefore{"Before"};
const Member kCaption{"Caption"};
const Member kControls{"Controls"};
const Member kDelete{"Delete"};
const Member kItem{"Item"};
const Member kMenuItems{"MenuItems"};
const Member kName{"Name"};
const Member kTag{"Tag"};

}  // namespace

std::string CommandBarControl::get_Caption() const { return Text(Get(kCaption)); }
void CommandBarControl::let_Caption(const std::string& caption) const { Let(kCaption, caption); }
void CommandBarControl::let_Tag(const std::string& tag) const { Let(kTag, tag); }
void CommandBarControl::Delete() const { Call(kDelete); }

CommandBarControl CommandBarControls::get_Item(const std::string& caption) const {
  return Typed<CommandBarControl>(Get(kItem, {caption}));
}

std::string CommandBar::get_Name() const { return Text(Get(kName)); }
CommandBarControls CommandBar::get_Controls() const {
  return Typed<CommandBarControls>(Get(kControls));
}

void MenuItems::Add(const std::string& caption, std::int32_t before) const {
  Call(kAdd, {caption}, {{kBefore, before}});
}

MenuItems Menu::get_MenuItems() const { return Typed<MenuItems>(Get(kMenuItems)); }

}  // namespace rangewerks::excel
