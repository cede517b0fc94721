// The command "validate": whether the layout of a sheet's ranges is sound.
#pragma once

#include "apps/rangewerks/command.h"

namespace rangewerks::apps {

/// An unsound layout is a finding. Raises Failure when there is nothing to validate: a file, the
/// sheet, or all ranges (none of them mandatory) are missing or wrong. Sets the process's locale to
/// agree with the host.
ExitStatus RunValidate(const SheetOptions& options, Console console);

}  // namespace rangewerks::apps
