#include "hosts/libreoffice/macro_library.h"

#include <com/sun/star/script/vba/XVBACompatibility.hpp>

namespace rangewerks::hosts::libreoffice {
namespace {

using Libraries = Reference<css::script::XLibraryContainer>;
using css::script::vba::XVBACompatibility;

}  // namespace

Libraries LibrariesOf(const Book& book) {
  return Property<Libraries>(As<css::beans::XPropertySet>(book.Model()), "BasicLibraries");
}

bool IsExcelMode(const Libraries& libraries) {
  return As<XVBACompatibility>(libraries)->getVBACompatibilityMode();
}

void SwitchExcelModeOn(const Libraries& libraries, const OUString& projectName) {
  const auto compatibility = As<XVBACompatibility>(libraries);
  if (!compatibility->getVBACompatibilityMode()) compatibility->setVBACompatibilityMode(true);
  if (compatibility->getProjectName() != projectName) compatibility->setProjectName(projectName);
}

void SwitchExcelModeOff(const Libraries& libraries) {
  As<XVBACompatibility>(libraries)->setVBACompatibilityMode(false);
}

OUString ProjectLibraryIn(const Libraries& libraries) {
  const auto compatibility = As<XVBACompatibility>(libraries);
  const OUString project = compatibility->getProjectName();
  if (!project.isEmpty() && libraries->hasByName(project)) return project;
  if (libraries->hasByName(ToUno(kProjectName))) return ToUno(kProjectName);
  if (!compatibility->getVBACompatibilityMode()) return {};
  // The name of the project is lost in an ods file, its library isn't.
  const auto names = libraries->getElementNames();
  for (const OUString& name : Elements(names)) {
    if (!name.equalsAscii("Standard")) return name;
  }
  return {};
}

Reference<css::container::XNameContainer> LoadedLibrary(const Libraries& libraries,
                                                        const OUString& name) {
  if (!libraries->isLibraryLoaded(name)) libraries->loadLibrary(name);
  return Extract<Reference<css::container::XNameContainer>>(libraries->getByName(name));
}

}  // namespace rangewerks::hosts::libreoffice
