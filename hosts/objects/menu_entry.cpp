#include "hosts/objects/menu_entry.h"

namespace rangewerks::hosts::objects {

void MenuEntryObject::RequireAlive() const {
  if (Entry().deleted) Refuse("The menu entry \"" + Entry().caption + "\" has been deleted");
}

Variant MenuEntryObject::GetCaption() const { return Entry().caption; }
Variant MenuEntryObject::GetOnAction() const { return Entry().onAction; }
void MenuEntryObject::LetOnAction(const std::string& macro) { Entry().onAction = macro; }

}  // namespace rangewerks::hosts::objects
