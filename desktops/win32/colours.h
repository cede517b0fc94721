// Colours of forms as Windows paints them. Private to this folder's sources.
#pragma once

#include <windows.h>

#include <map>

#include "forms/colour.h"

namespace rangewerks::desktops {

/// A system colour as the person has chosen it.
COLORREF ToColorRef(forms::Colour colour);

/// The brushes of one form, made when they are first asked for.
class Brushes {
 public:
  Brushes() = default;
  Brushes(const Brushes&) = delete;
  Brushes& operator=(const Brushes&) = delete;
  ~Brushes();

  HBRUSH Get(forms::Colour colour);

 private:
  std::map<COLORREF, HBRUSH> made_;
};

}  // namespace rangewerks::desktops
