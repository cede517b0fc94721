#include "hosts/workbook/application.h"

#include "hosts/workbook/command_bars.h"
#include "hosts/workbook/names.h"
#include "hosts/workbook/range.h"
#include "hosts/workbook/shape.h"
#include "hosts/workbook/sheets.h"
#include "hosts/workbook/shortcut_menu.h"
#include "hosts/workbook/testing.h"
#include "hosts/workbook/workbook.h"
#include "hosts/workbook/workbooks.h"
#include "hosts/workbook/worksheet.h"

namespace rangewerks::hosts::workbook {
namespace {

const automation::Member kTesting{"Testing"};

}  // namespace

std::shared_ptr<Application> Application::Of(const SessionPointer& session) {
  return FaceOf<Application>(session->face, [&] { return std::make_shared<Application>(session); });
}

const MemberTable& Application::Members() const {
  static const MemberTable table =
      MemberTable::Extending<Application>(objects::Application::Members())
          .Get(14, "Testing", &Application::GetTesting,
               "The calls made, failures on request, and what else only a test needs.");
  return table;
}

void Application::Note(const Invocation& call) {
  if (call.member != kTesting) ModelObject::Note(call);
}

Variant Application::GetTesting() const { return std::make_shared<Testing>(Host(Shared())); }

Book& Application::ActiveBook() const {
  if (Shared()->active == nullptr) Refuse("No workbook is open");
  return *Shared()->active;
}

std::shared_ptr<objects::Collection> Application::Workbooks() const {
  return std::make_shared<workbook::Workbooks>(Shared());
}
std::shared_ptr<objects::Collection> Application::Names() const {
  return std::make_shared<workbook::Names>(Shared(), &ActiveBook());
}
std::shared_ptr<objects::Collection> Application::Sheets() const {
  return std::make_shared<workbook::Sheets>(Shared(), &ActiveBook());
}

std::shared_ptr<objects::HostObject> Application::ActiveWorkbook() const {
  return Shared()->active == nullptr ? nullptr : Workbook::Of(Shared(), Shared()->active);
}

std::shared_ptr<objects::Worksheet> Application::ActiveSheet() const {
  return Shared()->active == nullptr ? nullptr : Worksheet::Of(Shared(), Shared()->active->active);
}

Variant Application::GetSelection() const {
  if (Shared()->active == nullptr) return Object();
  const SheetPointer& sheet = Shared()->active->active;
  if (sheet->shapeSelected) return std::make_shared<Shape>(Shared(), sheet);
  return std::make_shared<Range>(Shared(), sheet, sheet->selection);
}

Variant Application::GetInternational(const Variant& index) const {
  return Shared()->international.At(LongArgument(index));
}

std::shared_ptr<objects::Collection> Application::CommandBars() const {
  return std::make_shared<workbook::CommandBars>(Shared());
}
std::shared_ptr<objects::HostObject> Application::MenuOfCells() const {
  return std::make_shared<Menu>(Shared(), Shared()->menus.ofCells);
}

}  // namespace rangewerks::hosts::workbook
