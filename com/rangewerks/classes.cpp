// What Rangewerks.dll serves: the one place that picks the system and makes the public classes.
#include <rangewerks.h>

#include "automation/locale.h"
#include "browse/clsAddBrowse.h"
#include "browse/clsBrowseDate.h"
#include "browse/clsExcelBrowse.h"
#include "browse/clsExcelVB.h"
#include "com/bridge/create_object.h"
#include "com/control/control.h"
#include "com/module/module.h"
#include "com/rangewerks/colour_pallet_control.h"
#include "com/rangewerks/interfaces.h"
#include "com/server/server.h"
#include "com/server/type_library.h"
#include "desktops/unattended/unattended_desktop.h"
#include "desktops/win32/win32_desktop.h"
#include "errors/ErrorMessageBox.h"
#include "errors/clsErrorList.h"
#include "errors/errL100Jrn.h"
#include "model/clsExInputRange.h"
#include "model/colExInputRangeList.h"
#include "platform/clsExcelAbout.h"
#include "platform/clsRangewerksVer.h"
#include "rangelist/ExcelFunctions.h"
#include "rangelist/clsInterfaceRangeList.h"
#include "sheetbuild/clsColumnStyle.h"
#include "sheetbuild/clsRangeProperties.h"
#include "sheetbuild/clsSaveSettings.h"
#include "systems/windows/windows_system.h"

namespace rangewerks::com {
namespace {

std::shared_ptr<const platform::System> TheSystem() {
  static const auto system = std::make_shared<const systems::WindowsSystem>(&CreateObject);
  return system;
}

std::shared_ptr<forms::Toolkit> MakeDesktop() {
  if (desktops::IsUnattended()) return std::make_shared<desktops::UnattendedDesktop>();
  return std::make_shared<desktops::Win32Desktop>();
}

/// Where forms are shown. A form that is open keeps the module.
std::shared_ptr<forms::Toolkit> TheDesktop() {
  static const auto desktop = [] {
    auto made = MakeDesktop();
    made->KeepWhileLoaded([] { return std::make_shared<ModuleLock>(); });
    return made;
  }();
  return desktop;
}

std::shared_ptr<ErrorMessageBox> NewErrorMessageBox() {
  return std::make_shared<ErrorMessageBox>(TheDesktop(), TheSystem());
}

/// The library converts by the locale of the person who has loaded it, and its classes appear with
/// the interfaces of the type library.
void Prepare() {
  automation::Locale::SetCurrent(TheSystem()->CurrentLocale());
  const Pointer<ITypeLib> library = ModuleTypeLibrary();
  for (auto interfaceOf :
       {InputRangeInterface, InputRangeListInterface, GroupHeadingInterface, GroupHeadingsInterface,
        RangeListInterface, ExcelFunctionsInterface, RangePropertiesInterface, ColumnStyleInterface,
        SaveSettingsInterface, ExcelVBInterface, AddBrowseInterface, ExcelBrowseInterface,
        ErrorMessageBoxInterface, ErrL100JrnInterface, ErrorListInterface, BrowseDateInterface,
        ExcelAboutInterface, RangewerksVerInterface, ColourPalletInterface}) {
    Publish(interfaceOf(), *library.Get());
  }
}

}  // namespace

const Server& TheServer() {
  static const Server server = {
      .classes =
          {
              {__uuidof(::clsInterfaceRangeList), L"Rangewerks.clsInterfaceRangeList",
               L"Rangewerks interface range list",
               [] { return Object(std::make_shared<clsInterfaceRangeList>(TheSystem())); }},
              {__uuidof(::clsExInputRange), L"Rangewerks.clsExInputRange",
               L"Rangewerks declared range",
               [] { return Object(std::make_shared<clsExInputRange>()); }},
              {__uuidof(::colExInputRangeList), L"Rangewerks.colExInputRangeList",
               L"Rangewerks list of declared ranges",
               [] { return Object(std::make_shared<colExInputRangeList>()); }},
              {__uuidof(::clsRangeProperties), L"Rangewerks.clsRangeProperties",
               L"Rangewerks range properties",
               [] {
                 return Object(std::make_shared<clsRangeProperties>(TheSystem()->OpenRegistry()));
               }},
              {__uuidof(::clsColumnStyle), L"Rangewerks.clsColumnStyle",
               L"Rangewerks stored colours",
               [] {
                 return Object(std::make_shared<clsColumnStyle>(TheSystem()->OpenRegistry()));
               }},
              {__uuidof(::clsSaveSettings), L"Rangewerks.clsSaveSettings",
               L"Rangewerks stored options",
               [] {
                 return Object(std::make_shared<clsSaveSettings>(TheSystem()->OpenRegistry()));
               }},
              {__uuidof(::clsExcelVB), L"Rangewerks.clsExcelVB", L"Rangewerks macro code editor",
               [] { return Object(std::make_shared<clsExcelVB>()); }},
              {__uuidof(::clsAddBrowse), L"Rangewerks.clsAddBrowse",
               L"Rangewerks browse of a workbook",
               [] { return Object(std::make_shared<clsAddBrowse>()); }},
              {__uuidof(::clsExcelBrowse), L"Rangewerks.clsExcelBrowse",
               L"Rangewerks right-click browse",
               [] { return Object(std::make_shared<clsExcelBrowse>()); }},
              {__uuidof(::ExcelFunctions), L"Rangewerks.ExcelFunctions",
               L"Rangewerks routines for sheets",
               [] { return Object(std::make_shared<ExcelFunctions>(TheSystem(), TheDesktop())); }},
              {__uuidof(::ErrorMessageBox), L"Rangewerks.ErrorMessageBox",
               L"Rangewerks error message box", [] { return Object(NewErrorMessageBox()); }},
              {__uuidof(::errL100Jrn), L"Rangewerks.errL100Jrn",
               L"Rangewerks object without members",
               [] { return Object(std::make_shared<errL100Jrn>()); }},
              {__uuidof(::clsErrorList), L"Rangewerks.clsErrorList", L"Rangewerks error list",
               [] {
                 return Object(std::make_shared<clsErrorList>(TheDesktop(), NewErrorMessageBox()));
               }},
              {__uuidof(::clsBrowseDate), L"Rangewerks.clsBrowseDate", L"Rangewerks date browse",
               [] { return Object(std::make_shared<clsBrowseDate>(TheDesktop(), TheSystem())); }},
              {__uuidof(::clsExcelAbout), L"Rangewerks.clsExcelAbout", L"Rangewerks about box",
               [] { return Object(std::make_shared<clsExcelAbout>(TheDesktop(), TheSystem())); }},
              {__uuidof(::clsRangewerksVer), L"Rangewerks.clsRangewerksVer", L"Rangewerks version",
               [] { return Object(std::make_shared<clsRangewerksVer>(TheSystem())); }},
              {__uuidof(::ctlColourPallet), L"Rangewerks.ctlColourPallet",
               L"Rangewerks colour panel", &MakeColourPallet, kControlStatus},
          },
      .hasTypeLibrary = true,
      .prepare = &Prepare,
  };
  return server;
}

}  // namespace rangewerks::com
