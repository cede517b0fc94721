#include <algorithm>
#include <com/sun/star/frame/Desktop.hpp>

#include "hosts/libreoffice/book.h"
#include "hosts/libreoffice/failure.h"
#include "hosts/libreoffice/office_locale.h"

namespace rangewerks::hosts::libreoffice {

Session::Session(Reference<css::uno::XComponentContext> context)
    : context_(std::move(context)), desktop_(css::frame::Desktop::create(context_)) {}

const BookPointer& Session::ActiveBook() const {
  if (!active_) Fail("No workbook is open");
  return active_;
}

BookPointer Session::Add(const Reference<css::frame::XModel>& model, const std::string& path) {
  books_.push_back(std::make_shared<Book>(this, model, path));
  active_ = books_.back();
  return active_;
}

void Session::Close(const BookPointer& book) {
  book->Close();
  const BookPointer kept = book;
  std::erase(books_, kept);
  if (active_ == kept) active_ = books_.empty() ? nullptr : books_.back();
}

const automation::Locale& Session::OfficeLocale() {
  if (!locale_) locale_ = ReadOfficeLocale(context_);
  return *locale_;
}

}  // namespace rangewerks::hosts::libreoffice
