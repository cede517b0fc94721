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

void Names::RequireAlive() const {
  RequireOpen(*book_);
  if (sheet_) RequireThere(*sheet_);
}

std::shared_ptr<automation::Dispatch> Names::Find(const std::string& text) const {
  auto name = FindName(*book_, sheet_, std::string(WithoutTrailingBlank(text)));
  if (!name || (sheet_ && name->Scope() != sheet_)) return nullptr;
  return std::make_shared<Name>(Office(), book_, std::move(*name));
}

objects::Slot Names::At(std::int32_t position) const {
  return objects::SlotIn(AllNames(*book_, sheet_), position, [this](const DefinedName& name) {
    return std::make_shared<Name>(Office(), book_, name);
  });
}

Variant Names::GetCount() const {
  return static_cast<std::int32_t>(AllNames(*book_, sheet_).size());
}

Variant Names::Add(const std::string& name, const Variant& refersTo) {
  return std::make_shared<Name>(
      Office(), book_, DefineName(*book_, sheet_, name, ContentArgument(*book_, refersTo)));
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
