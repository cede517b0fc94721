// The look of the controls: that of the person's desktop, whatever program this code is loaded
// into. Private to this folder's sources.
#pragma once

#include <windows.h>

namespace rangewerks::desktops {

/// The program or DLL that this code stands in.
HINSTANCE ThisModule();

/// What the manifest with the number 2 in this module's resources asks for. Without such a resource
/// the controls look as the program around wants them.
class VisualStyles {
 public:
  VisualStyles();
  VisualStyles(const VisualStyles&) = delete;
  VisualStyles& operator=(const VisualStyles&) = delete;
  ~VisualStyles();

  /// In force for as long as this lives: while windows are made and messages handled.
  class Active {
   public:
    explicit Active(const VisualStyles& styles);
    Active(const Active&) = delete;
    Active& operator=(const Active&) = delete;
    ~Active();

   private:
    ULONG_PTR cookie_ = 0;
  };

 private:
  HANDLE context_;
};

}  // namespace rangewerks::desktops
