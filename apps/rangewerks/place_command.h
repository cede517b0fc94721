// The command "place": declared ranges onto a sheet, saved as a copy.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "apps/rangewerks/command.h"
#include "apps/rangewerks/placing.h"
#include "apps/rangewerks/save_target.h"
#include "platform/registry.h"

namespace rangewerks::apps {

/// Either one range with its address, or a layout file.
struct PlaceOptions {
  SheetOptions sheet;
  std::optional<std::string> layout;  ///< path of the layout file
  std::optional<std::string> range;   ///< the one range, as it is declared
  std::string at;                     ///< its address
  std::int32_t rows = 0;              ///< its height; 0 for that of the address
  PlaceFeatures features;
  SaveOptions save;
};

/// What can't be added to a range, and a layout that isn't sound once a layout file is placed, are
/// findings; the workbook is saved all the same. Raises Failure, before anything is saved, for
/// wrong usage and files, when a range can't be placed and when the spreadsheet program fails. Sets
/// the process's locale to agree with the host. `registry` holds the person's colours.
ExitStatus RunPlace(const PlaceOptions& options,
                    const std::shared_ptr<platform::Registry>& registry, Console console);

}  // namespace rangewerks::apps
