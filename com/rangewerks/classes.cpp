// What Rangewerks.dll serves: the one place that picks the system and makes the public classes.
#include <rangewerks.h>

#include "automation/locale.h"
#include "com/bridge/create_object.h"
#include "com/rangewerks/interfaces.h"
#include "com/server/server.h"
#include "com/server/type_library.h"
#include "model/clsExInputRange.h"
#include "model/colExInputRangeList.h"
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

/// The library converts by the locale of the person who has loaded it, and its classes appear with
/// the interfaces of the type library.
void Prepare() {
  automation::Locale::SetCurrent(TheSystem()->CurrentLocale());
  const Pointer<ITypeLib> library = ModuleTypeLibrary();
  for (auto interfaceOf : {InputRangeInterface, InputRangeListInterface, GroupHeadingInterface,
                           GroupHeadingsInterface, RangeListInterface, ExcelFunctionsInterface,
                           RangePropertiesInterface, ColumnStyleInterface, SaveSettingsInterface}) {
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
              {__uuidof(::ExcelFunctions), L"Rangewerks.ExcelFunctions",
               L"Rangewerks routines for sheets",
               [] { return Object(std::make_shared<ExcelFunctions>(TheSystem())); }},
          },
      .hasTypeLibrary = true,
      .prepare = &Prepare,
  };
  return server;
}

}  // namespace rangewerks::com
