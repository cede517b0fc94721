// What a program has of the system, for tests that it gives back what it has taken.
#pragma once

#include <windows.h>

namespace rangewerks::tests {

/// As it is when this is made, to be compared with a later time.
class Possessions {
 public:
  Possessions();

  /// But for so many drawing objects, and the few that the system itself comes to need.
  void ExpectToBeAllThereIs(unsigned kept = 0) const;

 private:
  unsigned drawingNumber_;
  unsigned windowNumber_;
  int windows_;
  SIZE_T memory_;
  DWORD handles_;
  // Wine doesn't count these.
  DWORD drawingObjects_;
  DWORD windowObjects_;
};

}  // namespace rangewerks::tests
