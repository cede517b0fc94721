// Keys for modeless forms.
//
// A modeless form stands inside a message loop that isn't ours and knows nothing of it. What makes
// Tab, access keys, Enter and Escape work has to see the keys before that loop hands them out: a
// hook of this thread does, which is there while at least one form is. Private to this folder's
// sources.
#pragma once

#include <windows.h>

namespace rangewerks::desktops {

class KeyTaker {
 public:
  KeyTaker(const KeyTaker&) = delete;
  KeyTaker& operator=(const KeyTaker&) = delete;
  virtual ~KeyTaker() = default;
  /// A key message of the form's window or of a window in it. True takes the message away from the
  /// loop.
  virtual bool TakeKey(MSG& message) = 0;

 protected:
  KeyTaker() = default;
};

/// For as long as this lives, the form sees its keys first.
class KeyRegistration {
 public:
  KeyRegistration(HWND form, KeyTaker& taker);
  KeyRegistration(const KeyRegistration&) = delete;
  KeyRegistration& operator=(const KeyRegistration&) = delete;
  ~KeyRegistration();

 private:
  HWND form_;
};

}  // namespace rangewerks::desktops
