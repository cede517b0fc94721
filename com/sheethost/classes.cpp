// What SheetHost.dll serves: a workbook in memory, for trying the library out and testing it where
// there is no Excel.
#include "automation/locale.h"
#include "com/server/server.h"
#include "hosts/workbook/host.h"
#include "systems/windows/windows_system.h"

namespace rangewerks::com {
namespace {

/// Chosen once; it never changes.
constexpr CLSID kApplication = {
    0x7fa37365, 0x90c6, 0x4cc4, {0x90, 0x3b, 0xf6, 0xac, 0xd6, 0x76, 0xe1, 0xee}};

/// As Excel does, the host reads typed texts by the locale of the person who has loaded it.
void Prepare() { automation::Locale::SetCurrent(systems::WindowsSystem().CurrentLocale()); }

}  // namespace

const Server& TheServer() {
  static const Server server = {
      .classes = {{kApplication, L"SheetHost.Application", L"SheetHost workbook in memory",
                   [] { return hosts::workbook::Host().Application(); }}},
      .prepare = &Prepare,
  };
  return server;
}

}  // namespace rangewerks::com
