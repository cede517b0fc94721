// Reading the office's settings.
#pragma once

#include <com/sun/star/uno/XComponentContext.hpp>
#include <string>

#include "hosts/libreoffice/uno.h"

namespace rangewerks::hosts::libreoffice {

/// One text of the office's configuration, such as "ooSetupVersion" below
/// "/org.openoffice.Setup/Product"; empty when it isn't set.
std::string ReadConfigured(const Reference<css::uno::XComponentContext>& context,
                           const std::string& path, const char* name);

}  // namespace rangewerks::hosts::libreoffice
