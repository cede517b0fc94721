#include "hosts/workbook/host.h"

#include "hosts/workbook/application.h"
#include "hosts/workbook/failure.h"
#include "hosts/workbook/name.h"
#include "hosts/workbook/range.h"
#include "hosts/workbook/workbook.h"
#include "hosts/workbook/workbook_file.h"
#include "hosts/workbook/workbook_writing.h"

namespace rangewerks::hosts::workbook {
namespace {

/// The object as one of the host's own, such as a Range.
template <class T>
std::shared_ptr<T> Own(const Object& object, const char* wanted) {
  auto own = object.As<T>();
  if (!own) Refuse(std::string("Expected a ") + wanted + ", not a " + object.TypeName());
  return own;
}

template <class Change>
void ChangeCell(const Object& cell, Change change) {
  const auto range = Own<Range>(cell, "Range");
  const Area& area = range->Cells();
  if (!area.IsOneCell()) Refuse("Expected one cell, not " + AddressOf(area));
  range->OnSheet()->grid.Update({area.row, area.column}, change);
}

}  // namespace

Host::Host() : Host(std::make_shared<Session>()) {}
Host::Host(std::shared_ptr<Session> session) : session_(std::move(session)) {}
Host::~Host() = default;
Host::Host(Host&&) noexcept = default;
Host& Host::operator=(Host&&) noexcept = default;

Object Host::Application() const { return workbook::Application::Of(session_); }

Object Host::AddWorkbook(const std::string& name, const std::vector<std::string>& sheets) {
  return Workbook::Of(session_, &session_->AddBook(std::make_unique<Book>(name, sheets)));
}

Object Host::Open(const std::string& path) {
  return Workbook::Of(session_, &ReadWorkbookFile(*session_, path));
}

void Host::SaveCopyAs(const Object& workbook, const std::string& path) const {
  WriteWorkbookFile(*session_, *Own<Workbook>(workbook, "Workbook")->Data(), path);
}

void Host::SetShownValue(const Object& cell, const Variant& value) {
  ChangeCell(cell, [&](Cell& content) {
    if (!content.IsFormula()) Refuse("Only a cell with a formula has a shown value of its own");
    PutShown(content, value);
  });
}

void Host::SetErrorValue(const Object& cell, std::int32_t number) {
  ChangeCell(cell,
             [&](Cell& content) { Put(content, automation::ErrorValue::FromNumber(number)); });
}

void Host::DefineConstant(const Object& workbook, const std::string& name,
                          const std::string& content) {
  DefineName(*Own<Workbook>(workbook, "Workbook")->Data(), name, nullptr, content);
}

void Host::SetInternational(std::int32_t index, const Variant& value) {
  session_->international.Set(index, value);
}

void Host::SetVersion(const std::string& version) { session_->version = version; }

void Host::TrustVBProject(bool trusted) { session_->trustsMacroProject = trusted; }
bool Host::TrustsVBProject() const { return session_->trustsMacroProject; }

void Host::SelectShape() {
  if (session_->active == nullptr) Refuse("No workbook is open");
  session_->active->active->shapeSelected = true;
}

automation::Locale Host::CurrentLocale() const { return session_->international.CurrentLocale(); }

CallLog& Host::Calls() { return session_->calls; }

}  // namespace rangewerks::hosts::workbook
