// The spreadsheet program around the forms: a workbook of SheetHost.dll, and a window that stands
// for the program's own.
#pragma once

#include <gmock/gmock.h>

#include <string>

#include "hosts/late_calls.h"
#include "windows/server_under_test.h"
#include "windows/sheet_host_under_test.h"
#include "windows_desktop/person_at_forms.h"

namespace rangewerks::tests {

class FormsOfTheServer : public testing::Test {
 protected:
  FormsOfTheServer() {
    SetCursorPos(0, 0);
    Call(GetObject(application_, "Workbooks"), "Add");
    sheet_ = GetObject(application_, "ActiveSheet");
    SetForegroundWindow(window_);
    HandOutMessages();
  }
  ~FormsOfTheServer() override {
    DestroyWindow(window_);
    HandOutMessages();
  }

  Object Range(const std::string& address) const { return GetObject(sheet_, "Range", {address}); }

  const Apartment apartment_;
  const Object application_ = NewSheetHost();
  Object sheet_;
  const HWND window_ = CreateWindowExW(0, L"Static", L"Host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0,
                                       0, 300, 200, nullptr, nullptr, nullptr, nullptr);
};

}  // namespace rangewerks::tests
