#include <algorithm>
#include <com/sun/star/frame/Desktop.hpp>

#include "hosts/libreoffice/book.h"
#include "hosts/libreoffice/cell_menu.h"
#include "hosts/libreoffice/failure.h"
#include "hosts/libreoffice/office_locale.h"

namespace rangewerks::hosts::libreoffice {

Session::Session(const Reference<css::uno::XComponentContext>& context, bool visible)
    : context_(context), desktop_(css::frame::Desktop::create(context_)), isVisible_(visible) {}

Session::~Session() = default;

const BookPointer& Session::ActiveBook() const {
  if (!active_) Fail("No workbook is open");
  return active_;
}

BookPointer Session::Add(const Reference<css::frame::XModel>& model, const std::string& path) {
  books_.push_back(std::make_shared<Book>(this, model, path));
  active_ = books_.back();
  if (menu_ && menu_->IsShown()) menu_->ShowIn(*active_);
  return active_;
}

void Session::Close(const BookPointer& book) {
  book->Close();
  const auto place = std::find(books_.begin(), books_.end(), book);
  if (place == books_.end()) return;
  const BookPointer closed = std::move(*place);  // `book` may be the very entry that goes
  books_.erase(place);
  if (active_ == closed) active_ = books_.empty() ? nullptr : books_.back();
}

CellMenu& Session::Menu() {
  if (!menu_) menu_ = std::make_unique<CellMenu>(*this);
  return *menu_;
}

const automation::Locale& Session::OfficeLocale() {
  if (!locale_) locale_ = ReadOfficeLocale(context_);
  return *locale_;
}

}  // namespace rangewerks::hosts::libreoffice
