#include "hosts/libreoffice/book.h"

#include <algorithm>
#include <com/sun/star/frame/XStorable.hpp>
#include <com/sun/star/frame/XTitle.hpp>
#include <com/sun/star/sheet/XSpreadsheetDocument.hpp>
#include <com/sun/star/sheet/XSpreadsheetView.hpp>
#include <com/sun/star/util/Date.hpp>
#include <com/sun/star/util/XCloseable.hpp>
#include <filesystem>

#include "automation/conversions.h"
#include "automation/error.h"
#include "automation/text.h"
#include "hosts/libreoffice/failure.h"

namespace rangewerks::hosts::libreoffice {
namespace {

using automation::EqualText;

}  // namespace

Book::Book(Session* session, const Reference<css::frame::XModel>& model, std::string path)
    : session_(session),
      model_(model),
      path_(std::move(path)),
      isReadOnly_(As<css::frame::XStorable>(model_)->isReadonly()),
      sheets_(As<css::sheet::XSpreadsheetDocument>(model_)->getSheets()),
      inOrder_(As<css::container::XIndexAccess>(sheets_)),
      formats_(model_, session->Context()),
      formulas_(model_),
      styles_(model_) {}

std::string Book::Name() const {
  if (!path_.empty()) return std::filesystem::path(path_).filename().string();
  return ToUtf8(As<css::frame::XTitle>(model_)->getTitle());
}

std::int32_t Book::SheetCount() const { return inOrder_->getCount(); }

SheetPointer Book::SheetAt(std::int32_t position) {
  if (position < 1 || position > SheetCount()) {
    FailElement("Workbook \"" + Name() + "\" has no sheet number " + std::to_string(position) +
                " among its " + std::to_string(SheetCount()));
  }
  return Known(Extract<Reference<css::sheet::XSpreadsheet>>(inOrder_->getByIndex(position - 1)));
}

SheetPointer Book::FindSheet(const std::string& name) {
  for (const SheetPointer& sheet : known_) {
    if (EqualText(sheet->LastName(), name) && EqualText(sheet->Name(), name)) return sheet;
  }
  try {
    return Known(Extract<Reference<css::sheet::XSpreadsheet>>(sheets_->getByName(ToUno(name))));
  } catch (const css::container::NoSuchElementException&) {
    return nullptr;
  }
}

/// The office makes a new object for a sheet each time that it is asked; here one sheet is one
/// object, so that ranges can be compared without asking.
SheetPointer Book::Known(const Reference<css::sheet::XSpreadsheet>& cells) {
  auto sheet = std::make_shared<Sheet>(this, cells);
  const std::int16_t index = sheet->Index();
  const auto same = std::find_if(known_.begin(), known_.end(), [index](const SheetPointer& each) {
    return each->Index() == index;
  });
  if (same != known_.end()) return *same;
  known_.push_back(sheet);
  return sheet;
}

SheetPointer Book::ActiveSheet() {
  return Known(As<css::sheet::XSpreadsheetView>(Controller())->getActiveSheet());
}

void Book::Activate(const SheetPointer& sheet) {
  As<css::sheet::XSpreadsheetView>(Controller())->setActiveSheet(sheet->Cells());
}

void Book::Remove(const SheetPointer& sheet) {
  if (SheetCount() == 1) Fail("The only sheet of workbook \"" + Name() + "\" can't be deleted");
  sheets_->removeByName(ToUno(sheet->Name()));
  sheet->deleted = true;
  std::erase(known_, sheet);
}

const Reference<css::sheet::XNamedRanges>& Book::Names() {
  if (!names_.is()) {
    names_ = Property<Reference<css::sheet::XNamedRanges>>(As<css::beans::XPropertySet>(model_),
                                                           "NamedRanges");
  }
  return names_;
}

const Reference<css::frame::XController>& Book::Controller() {
  if (!controller_.is()) controller_ = model_->getCurrentController();
  if (!controller_.is()) Fail("Workbook \"" + Name() + "\" has no window");
  return controller_;
}

double Book::FirstDay() {
  if (!firstDay_) {
    const auto day = Property<css::util::Date>(As<css::beans::XPropertySet>(model_), "NullDate");
    firstDay_ = automation::DateOf(day.Year, day.Month, day.Day).serial;
  }
  return *firstDay_;
}

void Book::Close() {
  if (closed) return;
  closed = true;
  As<css::util::XCloseable>(model_)->close(true);
}

}  // namespace rangewerks::hosts::libreoffice
