#include "hosts/libreoffice/cell_menu.h"

#include <algorithm>
#include <com/sun/star/beans/PropertyValue.hpp>
#include <com/sun/star/container/XNameAccess.hpp>
#include <com/sun/star/frame/theUICommandDescription.hpp>
#include <com/sun/star/ui/theModuleUIConfigurationManagerSupplier.hpp>

#include "hosts/common/captions.h"
#include "hosts/libreoffice/failure.h"
#include "hosts/libreoffice/menu_interception.h"
#include "hosts/libreoffice/office_object.h"

namespace rangewerks::hosts::libreoffice {
namespace {

using automation::Variant;
using css::beans::PropertyValue;
using css::container::XNameAccess;
using Context = Reference<css::uno::XComponentContext>;

constexpr const char* kModule = "com.sun.star.sheet.SpreadsheetDocument";
constexpr const char* kMenu = "private:resource/popupmenu/cell";

/// One text among facts; empty when it isn't there.
OUString TextIn(const Sequence<PropertyValue>& facts, const char* name) {
  OUString text;
  for (const PropertyValue& fact : Elements(facts)) {
    if (fact.Name.equalsAscii(name)) fact.Value >>= text;
  }
  return text;
}

/// What an entry of the office's says.
std::string CaptionOf(const Reference<XNameAccess>& descriptions, const OUString& command) {
  if (!descriptions->hasByName(command)) return ToUtf8(command);
  const auto facts = Extract<Sequence<PropertyValue>>(descriptions->getByName(command));
  const OUString inMenus = TextIn(facts, "PopupLabel");
  std::string caption = ToUtf8(inMenus.isEmpty() ? TextIn(facts, "Label") : inMenus);
  std::replace(caption.begin(), caption.end(), '~', '&');
  return caption;
}

std::vector<MenuEntryPointer> OfficeEntries(const Context& context) {
  const auto settings = css::ui::theModuleUIConfigurationManagerSupplier::get(context)
                            ->getUIConfigurationManager(ToUno(kModule))
                            ->getSettings(ToUno(kMenu), false);
  const auto descriptions = Extract<Reference<XNameAccess>>(
      css::frame::theUICommandDescription::get(context)->getByName(ToUno(kModule)));
  std::vector<MenuEntryPointer> entries;
  const std::int32_t count = settings->getCount();
  for (std::int32_t i = 0; i < count; ++i) {
    const auto facts = Extract<Sequence<PropertyValue>>(settings->getByIndex(i));
    const OUString command = TextIn(facts, "CommandURL");
    if (command.isEmpty()) continue;  // a line between entries
    auto entry = std::make_shared<MenuEntry>();
    entry->command = ToUtf8(command);
    entry->caption = CaptionOf(descriptions, command);
    entries.push_back(std::move(entry));
  }
  return entries;
}

void RequireAdded(const MenuEntry& entry) {
  if (entry.id == 0) {
    Fail("The menu entry \"" + entry.caption + "\" can't be changed: it is one of LibreOffice's");
  }
}

}  // namespace

CellMenu::CellMenu(Session& session)
    : session_(&session), entries_(OfficeEntries(session.Context())) {}

std::size_t CellMenu::PlaceOf(const Variant& index) const {
  if (const auto* caption = index.TryGet<std::string>()) {
    std::vector<std::string> captions;
    captions.reserve(entries_.size());
    for (const MenuEntryPointer& entry : entries_) captions.push_back(entry->caption);
    const auto place = FindCaption(captions, *caption);
    if (!place) FailElement("The menu of the cells has no entry \"" + *caption + "\"");
    return *place;
  }
  const std::int32_t position = LongArgument(index);
  if (position < 1 || static_cast<std::size_t>(position) > entries_.size()) {
    FailElement("The menu of the cells has no entry number " + std::to_string(position) +
                " among its " + std::to_string(entries_.size()));
  }
  return static_cast<std::size_t>(position) - 1;
}

MenuEntryPointer CellMenu::EntryAt(const Variant& index) const { return entries_[PlaceOf(index)]; }

MenuEntryPointer CellMenu::Add(const std::string& caption, const Variant& before) {
  const std::size_t place = before.IsMissing() ? entries_.size() : PlaceOf(before);
  if (!IsShown()) {
    for (const BookPointer& book : session_->Books()) ShowIn(*book);
  }
  auto entry = std::make_shared<MenuEntry>();
  entry->id = ++lastId_;
  entry->caption = caption;
  entries_.insert(entries_.begin() + static_cast<std::ptrdiff_t>(place), entry);
  TellOffice();
  return entry;
}

void CellMenu::Remove(const MenuEntryPointer& entry) {
  RequireAdded(*entry);
  std::erase(entries_, entry);
  entry->deleted = true;
  TellOffice();
}

void CellMenu::PutCaption(const MenuEntryPointer& entry, const std::string& caption) {
  RequireAdded(*entry);
  entry->caption = caption;
  TellOffice();
}

void CellMenu::TellOffice() {
  std::vector<ShownEntry> shown;
  for (auto each = entries_.begin(); each != entries_.end(); ++each) {
    if ((*each)->id == 0) continue;
    const auto next = std::find_if(each, entries_.end(),
                                   [](const MenuEntryPointer& entry) { return entry->id == 0; });
    shown.push_back(
        {(*each)->id, (*each)->caption, next == entries_.end() ? std::string() : (*next)->command});
  }
  board_->Show(std::move(shown));
}

void CellMenu::ShowIn(Book& book) { InterceptMenus(book.Controller(), board_); }

MenuEntryPointer CellMenu::TakeChoice(std::chrono::milliseconds wait) {
  const auto id = board_->TakeChoice(wait);
  if (!id) return nullptr;
  const auto entry = std::find_if(entries_.begin(), entries_.end(),
                                  [&](const MenuEntryPointer& each) { return each->id == *id; });
  return entry == entries_.end() ? nullptr : *entry;
}

}  // namespace rangewerks::hosts::libreoffice
