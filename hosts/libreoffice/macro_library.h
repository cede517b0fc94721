// Finding the library of a document that holds the project of an Excel file.
#pragma once

#include <com/sun/star/container/XNameContainer.hpp>
#include <com/sun/star/script/XLibraryContainer.hpp>

#include "hosts/libreoffice/book.h"

namespace rangewerks::hosts::libreoffice {

/// The name that a project has unless its file says another.
inline constexpr const char* kProjectName = "VBAProject";

Reference<css::script::XLibraryContainer> LibrariesOf(const Book& book);

/// Whether the office takes the document's macros as those of an Excel file.
bool IsExcelMode(const Reference<css::script::XLibraryContainer>& libraries);
/// Switches that on, with the project called so, or off.
void SwitchExcelModeOn(const Reference<css::script::XLibraryContainer>& libraries,
                       const OUString& projectName);
void SwitchExcelModeOff(const Reference<css::script::XLibraryContainer>& libraries);

/// The name of the project's library; empty when there is none.
OUString ProjectLibraryIn(const Reference<css::script::XLibraryContainer>& libraries);

/// A library with its modules read.
Reference<css::container::XNameContainer> LoadedLibrary(
    const Reference<css::script::XLibraryContainer>& libraries, const OUString& name);

}  // namespace rangewerks::hosts::libreoffice
