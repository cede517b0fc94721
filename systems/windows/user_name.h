// The name in the buffer of a network call. Private to this folder's sources.
#pragma once

#include <string>
#include <string_view>

namespace rangewerks::systems {

/// The buffer was full of blanks, and the call has put the name and a NUL in front. Blanks go at
/// both ends, then the NUL, so that blanks at the end of the name itself stay. In UTF-8.
std::string UserNameIn(std::string_view buffer);

}  // namespace rangewerks::systems
