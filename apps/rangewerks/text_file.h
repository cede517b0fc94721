// A whole file as text.
#pragma once

#include <string>

namespace rangewerks::apps {

/// The bytes of a file. Raises Failure when it can't be read; `kind` says in the message what the
/// file is for.
std::string ReadTextFile(const std::string& path, const std::string& kind);

}  // namespace rangewerks::apps
