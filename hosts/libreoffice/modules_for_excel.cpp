#include "hosts/libreoffice/modules_for_excel.h"

#include "hosts/libreoffice/macro_library.h"
#include "hosts/libreoffice/module_text.h"

namespace rangewerks::hosts::libreoffice {

ModulesForExcelFile::ModulesForExcelFile(Book& book) {
  const auto libraries = LibrariesOf(book);
  if (!IsExcelMode(libraries)) return;
  const OUString name = ProjectLibraryIn(libraries);
  if (name.isEmpty()) return;
  SwitchExcelModeOn(libraries, name);
  library_ = LoadedLibrary(libraries, name);
  const auto modules = library_->getElementNames();
  for (const OUString& module : libreoffice::Elements(modules)) {
    const auto text = Extract<OUString>(library_->getByName(module));
    if (WithoutHeader(ToUtf8(text)).empty() || !text.endsWith("\n")) continue;
    shortened_.push_back({module, text});
    library_->replaceByName(module, Any(text.copy(0, text.getLength() - 1)));
  }
}

ModulesForExcelFile::~ModulesForExcelFile() {
  try {
    for (const Shortened& each : shortened_) library_->replaceByName(each.name, Any(each.text));
  } catch (const css::uno::Exception&) {
  }
}

}  // namespace rangewerks::hosts::libreoffice
