// The fonts of one form. Private to this folder's sources.
#pragma once

#include <windows.h>

#include <map>
#include <string>
#include <utility>

#include "forms/form.h"

namespace rangewerks::desktops {

/// Fonts are made when they are first asked for, and live as long as this.
class Fonts {
 public:
  Fonts(const forms::FormDesign& design, int dpi);
  Fonts(const Fonts&) = delete;
  Fonts& operator=(const Fonts&) = delete;
  ~Fonts();

  /// `points` 0 is the form's own size.
  HFONT Get(double points, bool bold);

 private:
  LOGFONTW design_{};
  int dpi_;
  std::map<std::pair<double, bool>, HFONT> made_;
};

}  // namespace rangewerks::desktops
