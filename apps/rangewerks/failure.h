// A failure that the person at the keyboard has to put right.
#pragma once

#include <stdexcept>

namespace rangewerks::apps {

/// What went wrong, where, and what to do about it, in words that are shown as they are behind the
/// program's name. The command ends with exit status 2 and has written nothing to standard output.
class Failure : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace rangewerks::apps
