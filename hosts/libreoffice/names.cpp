#include "hosts/libreoffice/names.h"

#include "hosts/common/name_rules.h"
#include "hosts/libreoffice/application.h"
#include "hosts/libreoffice/failure.h"
#include "hosts/libreoffice/name.h"
#include "hosts/libreoffice/range.h"
#include "hosts/libreoffice/workbook.h"
#include "hosts/libreoffice/worksheet.h"

namespace rangewerks::hosts::libreoffice {
namespace {

/// Walks the names that there were at the start, without those that have been deleted since.
class NamesWalk final : public Enumerator {
 public:
  NamesWalk(SessionPointer session, BookPointer book, std::vector<DefinedName> names)
      : session_(std::move(session)), book_(std::move(book)), names_(std::move(names)) {}

  bool Next(Variant& element) override {
    try {
      while (passed_ < names_.size() && !names_[passed_].Exists()) ++passed_;
    } catch (...) {
      RaiseAsError("Walking through Names");
    }
    if (passed_ == names_.size()) return false;
    element = std::make_shared<Name>(session_, book_, std::move(names_[passed_++]));
    return true;
  }

 private:
  SessionPointer session_;
  BookPointer book_;
  std::vector<DefinedName> names_;
  std::size_t passed_ = 0;
};

}  // namespace

std::string ContentArgument(Book& book, const Variant& given) {
  if (!given.IsObject()) {
    if (given.IsString()) return NativeContent(book, *given.TryGet<std::string>());
    return NativeContent(book, "=" + ToString(given, automation::Locale()));
  }
  const auto range = given.AsObject().As<Range>();
  if (!range) Fail("A name can't refer to an object of the type " + given.TypeName());
  if (range->InBook().get() != &book) {
    Fail("A name of workbook \"" + book.Name() + "\" can't refer to cells of workbook \"" +
         range->InBook()->Name() + "\"");
  }
  return NativeReference({range->OnSheet()->Name(), range->Cells()});
}

Names::Names(SessionPointer session, BookPointer book, SheetPointer sheet)
    : OfficeObject(std::move(session)), book_(std::move(book)), sheet_(std::move(sheet)) {}

const MemberTable& Names::Members() const {
  static const MemberTable table =
      MemberTable::For<Names>("Names")
          .Get(0, "Item", &Names::GetItem, {"Index"}, "The name of that text or at that position.")
          .Get(1, "Count", &Names::GetCount, "Number of names.")
          .Method(2, "Add", &Names::Add, {"Name", "RefersTo"}, "Defines a name or moves it.")
          .Get(3, "Parent", &Names::GetParent, "The workbook or the sheet.")
          .Get(4, "Application", &Names::GetApplication, "The application.");
  return table;
}

void Names::RequireAlive() const {
  RequireOpen(*book_);
  if (sheet_) RequireThere(*sheet_);
}

Variant Names::GetItem(const Variant& index) const {
  if (const auto* text = index.TryGet<std::string>()) {
    auto name = FindName(*book_, sheet_, std::string(WithoutTrailingBlank(*text)));
    if (!name || (sheet_ && name->Scope() != sheet_)) {
      Fail("Workbook \"" + book_->Name() + "\" has no name \"" + *text + "\"");
    }
    return std::make_shared<Name>(Office(), book_, std::move(*name));
  }
  const std::int32_t position = LongArgument(index);
  auto all = AllNames(*book_, sheet_);
  if (position < 1 || static_cast<std::size_t>(position) > all.size()) {
    Fail("Workbook \"" + book_->Name() + "\" has no name number " + std::to_string(position) +
         " among its " + std::to_string(all.size()));
  }
  return std::make_shared<Name>(Office(), book_,
                                std::move(all[static_cast<std::size_t>(position) - 1]));
}

Variant Names::GetCount() const {
  return static_cast<std::int32_t>(AllNames(*book_, sheet_).size());
}

Variant Names::Add(const Variant& name, const Variant& refersTo) {
  return std::make_shared<Name>(
      Office(), book_,
      DefineName(*book_, sheet_, TextArgument(name), ContentArgument(*book_, refersTo)));
}

std::unique_ptr<Enumerator> Names::Walk() {
  return std::make_unique<NamesWalk>(Office(), book_, AllNames(*book_, sheet_));
}

Variant Names::GetParent() const {
  if (sheet_) return Worksheet::Of(Office(), book_, sheet_);
  return Workbook::Of(Office(), book_);
}

Variant Names::GetApplication() const { return Application::Of(Office()); }

}  // namespace rangewerks::hosts::libreoffice
