// The office's locale: how it writes numbers and dates, and understands them when typed.
#pragma once

#include <com/sun/star/uno/XComponentContext.hpp>

#include "automation/locale.h"
#include "hosts/libreoffice/uno.h"

namespace rangewerks::hosts::libreoffice {

/// The facts of the locale that the office runs in: the one of its settings, or else that of the
/// environment in which it was started (LC_ALL and its like).
automation::Locale ReadOfficeLocale(const Reference<css::uno::XComponentContext>& context);

}  // namespace rangewerks::hosts::libreoffice
