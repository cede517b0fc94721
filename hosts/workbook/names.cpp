#include "hosts/workbook/names.h"

#include "hosts/common/name_rules.h"
#include "hosts/workbook/application.h"
#include "hosts/workbook/failure.h"
#include "hosts/workbook/name.h"
#include "hosts/workbook/workbook.h"
#include "hosts/workbook/worksheet.h"

namespace rangewerks::hosts::workbook {
namespace {

/// Walks the names that there were at the start, without those that have been deleted since.
class NamesWalk final : public Enumerator {
 public:
  NamesWalk(SessionPointer session, Book* book, std::vector<NamePointer> names)
      : session_(std::move(session)), book_(book), names_(std::move(names)) {}

  bool Next(Variant& element) override {
    while (passed_ < names_.size() && names_[passed_]->deleted) ++passed_;
    if (passed_ == names_.size()) return false;
    element = std::make_shared<Name>(session_, book_, names_[passed_++]);
    return true;
  }

 private:
  SessionPointer session_;
  Book* book_;
  std::vector<NamePointer> names_;
  std::size_t passed_ = 0;
};

}  // namespace

Names::Names(SessionPointer session, Book* book, SheetPointer sheet)
    : ModelObject(std::move(session)), book_(book), sheet_(std::move(sheet)) {}

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
  if (sheet_ && sheet_->deleted) Refuse("The sheet of these names has been deleted");
}

std::vector<NamePointer> Names::All() const {
  return sheet_ ? book_->names.AllOf(*sheet_) : book_->names.All();
}

Variant Names::GetItem(const Variant& index) const {
  if (const auto* text = index.TryGet<std::string>()) {
    const std::string_view wanted = WithoutTrailingBlank(*text);
    NamePointer name = sheet_ ? book_->names.FindOf(*sheet_, wanted) : nullptr;
    if (!name) name = book_->names.Find(wanted);
    if (!name || (sheet_ && name->scope != sheet_)) {
      Refuse("Workbook \"" + book_->name + "\" has no name \"" + *text + "\"");
    }
    return std::make_shared<Name>(Shared(), book_, std::move(name));
  }
  const std::int32_t position = LongArgument(index);
  const auto all = All();
  if (position < 1 || static_cast<std::size_t>(position) > all.size()) {
    Refuse("Workbook \"" + book_->name + "\" has no name number " + std::to_string(position) +
           " among its " + std::to_string(all.size()));
  }
  return std::make_shared<Name>(Shared(), book_, all[static_cast<std::size_t>(position) - 1]);
}

Variant Names::GetCount() const {
  const std::size_t count = sheet_ ? All().size() : book_->names.Count();
  return static_cast<std::int32_t>(count);
}

Variant Names::Add(const Variant& name, const Variant& refersTo) {
  const NamePointer defined =
      DefineName(*book_, TextArgument(name), sheet_, ContentOf(*book_, refersTo));
  return std::make_shared<Name>(Shared(), book_, defined);
}

std::unique_ptr<Enumerator> Names::Walk() {
  return std::make_unique<NamesWalk>(Shared(), book_, All());
}

Variant Names::GetParent() const {
  if (sheet_) return Worksheet::Of(Shared(), sheet_);
  return Workbook::Of(Shared(), book_);
}

Variant Names::GetApplication() const { return Application::Of(Shared()); }

}  // namespace rangewerks::hosts::workbook
