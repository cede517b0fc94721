// The command "browse": whether a workbook has a right-click browse, and giving it one or taking it
// away, saved as a copy.
#pragma once

#include <string>

#include "apps/rangewerks/browsing.h"
#include "apps/rangewerks/command.h"
#include "apps/rangewerks/save_target.h"

namespace rangewerks::apps {

enum class BrowseAction { Add, Remove, Status };

struct BrowseOptions {
  SheetOptions book;  ///< only the workbook and its host count
  BrowseAction action = BrowseAction::Status;
  std::string component = "OstrelBrowseModule";
  BrowseMethod method = BrowseMethod::Property;
  SaveOptions save;
};

/// That --status finds no browse is a finding. Raises Failure, before anything is saved, for wrong
/// usage and files, when the workbook would lose something, and when the spreadsheet program fails.
ExitStatus RunBrowse(const BrowseOptions& options, Console console);

}  // namespace rangewerks::apps
