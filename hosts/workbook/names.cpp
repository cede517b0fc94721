#include "hosts/workbook/names.h"

#include "hosts/common/name_rules.h"
#include "hosts/workbook/application.h"
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

void Names::RequireAlive() const {
  if (sheet_ && sheet_->deleted) Refuse("The sheet of these names has been deleted");
}

std::vector<NamePointer> Names::All() const {
  return sheet_ ? book_->names.AllOf(*sheet_) : book_->names.All();
}

std::shared_ptr<automation::Dispatch> Names::Find(const std::string& text) const {
  const std::string_view wanted = WithoutTrailingBlank(text);
  NamePointer name = sheet_ ? book_->names.FindOf(*sheet_, wanted) : nullptr;
  if (!name) name = book_->names.Find(wanted);
  if (!name || (sheet_ && name->scope != sheet_)) return nullptr;
  return std::make_shared<Name>(Shared(), book_, std::move(name));
}

objects::Slot Names::At(std::int32_t position) const {
  return objects::SlotIn(All(), position, [this](const NamePointer& name) {
    return std::make_shared<Name>(Shared(), book_, name);
  });
}

Variant Names::GetCount() const {
  const std::size_t count = sheet_ ? All().size() : book_->names.Count();
  return static_cast<std::int32_t>(count);
}

Variant Names::Add(const std::string& name, const Variant& refersTo) {
  const NamePointer defined = DefineName(*book_, name, sheet_, ContentOf(*book_, refersTo));
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
