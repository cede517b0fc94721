// Finding one's way to the office: from a running process to its component context.
#pragma once

#include <com/sun/star/uno/XComponentContext.hpp>

#include "hosts/libreoffice/office_process.h"
#include "hosts/libreoffice/uno.h"

namespace rangewerks::hosts::libreoffice {

/// Makes UNO ready in this process. Must run before anything else of UNO is used: without its
/// bootstrap file the library doesn't fail but crashes.
void PrepareUno(const std::filesystem::path& programFolder);

/// Connects to a starting office, with growing pauses between the attempts, for at most a minute.
/// Raises 1004 with the office's own words when it ends or doesn't answer by then.
Reference<css::uno::XComponentContext> Connect(OfficeProcess& process);

}  // namespace rangewerks::hosts::libreoffice
