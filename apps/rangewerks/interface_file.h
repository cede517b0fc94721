// The interface file: the declaration of a posting interface's ranges as JSON.
// docs/interface-file.md describes it for those who write one.
#pragma once

#include <memory>
#include <string>

#include "rangelist/clsInterfaceRangeList.h"

namespace rangewerks::apps {

/// The list that a file declares, with its switches set and no sheet yet. Raises Failure, with the
/// file and the place in it, for a file that can't be read or has anything wrong in it.
std::shared_ptr<clsInterfaceRangeList> ReadInterfaceFile(const std::string& path);

/// The same from the file's text; messages start with the place.
std::shared_ptr<clsInterfaceRangeList> ParseInterface(const std::string& text);

}  // namespace rangewerks::apps
