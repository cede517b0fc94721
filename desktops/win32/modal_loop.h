// The message loop of a form that is shown modally. Private to this folder's sources.
#pragma once

#include <windows.h>

#include <vector>

namespace rangewerks::desktops {

class ModalLoop {
 public:
  /// The other windows of this thread that the person could use take no input from now on.
  explicit ModalLoop(HWND form);
  ModalLoop(const ModalLoop&) = delete;
  ModalLoop& operator=(const ModalLoop&) = delete;
  ~ModalLoop() { End(); }

  /// Hands out messages until End. False when the thread is to end: the form is still there then.
  bool Run();
  /// Gives the other windows back; to be called before the form goes, or else a window of another
  /// program would come to the front.
  void End();

 private:
  HWND form_;
  std::vector<HWND> disabled_;
  bool ended_ = false;
};

}  // namespace rangewerks::desktops
