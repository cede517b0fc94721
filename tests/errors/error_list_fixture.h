// An error list over a sheet of the in-memory workbook, with its form on a desktop without windows.
#pragma once

#include <gmock/gmock.h>

#include <memory>
#include <string>
#include <vector>

#include "desktops/headless/headless_desktop.h"
#include "errors/clsErrorList.h"
#include "errors/frmErrMessage.h"
#include "hosts/workbook/host.h"
#include "support/error_of.h"
#include "support/fixed_system.h"

namespace rangewerks::tests {

class ErrorListFixture : public ::testing::Test {
 protected:
  using Error = automation::Error;
  using Member = automation::Member;
  using Object = automation::Object;
  using Variant = automation::Variant;

  ErrorListFixture() {
    host.AddWorkbook("Book1", {"Sheet1"});
    sheet = excel::Worksheet(host.Application().Get(Member("ActiveSheet")).AsObject());
  }
  /// A form that is open keeps its desktop, and the desktop keeps the form.
  ~ErrorListFixture() override {
    if (list) Form().DropWindow();
  }

  void UseKeyRange(const std::string& address) { list->set_KeyRange(sheet.get_Range(address)); }
  frmErrorListDisplay& Form() const { return list->Display(); }
  /// All cells of a row of the store, those that nobody has written as "-".
  std::vector<std::string> Row(std::size_t row) const {
    std::vector<std::string> texts;
    for (std::size_t column = 0; column < ErrorRows::kColumns; ++column) {
      const Variant cell = list->Rows().Cell(row, column);
      texts.push_back(cell.IsEmpty() ? "-" : ToString(cell, automation::Locale()));
    }
    return texts;
  }
  std::string Selection() const {
    const Object selected = host.Application().Get(Member("Selection")).AsObject();
    return *selected.Get(Member("Address")).TryGet<std::string>();
  }
  template <class Action>
  std::vector<std::string> CallsOf(const Action& action) {
    host.Calls().LogCalls(true);
    host.Calls().Reset();
    action();
    auto lines = host.Calls().Lines();
    host.Calls().LogCalls(false);
    return lines;
  }
  /// The person reads the next failure and closes the box.
  void ReadTheNextFailure() {
    desktop->WhenShown<frmErrMessage>([this](frmErrMessage& form) {
      failure = form.txtMainMessage.get_Text();
      failureSource = form.txtExtra.get_Text();
      desktop->Click(form.cmdOK);
    });
  }

  hosts::workbook::Host host;
  excel::Worksheet sheet;
  std::shared_ptr<desktops::HeadlessDesktop> desktop =
      std::make_shared<desktops::HeadlessDesktop>();
  std::shared_ptr<ErrorMessageBox> box =
      std::make_shared<ErrorMessageBox>(desktop, std::make_shared<FixedSystem>("/lib"));
  std::shared_ptr<clsErrorList> list = std::make_shared<clsErrorList>(desktop, box);
  std::string failure;
  std::string failureSource;
};

}  // namespace rangewerks::tests
