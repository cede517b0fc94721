// The cell styles of one document, as far as conditional formats need them: the office keeps the
// look of a condition as a style of its own.
#pragma once

#include <com/sun/star/container/XNameContainer.hpp>
#include <com/sun/star/frame/XModel.hpp>
#include <string>

#include "hosts/libreoffice/uno.h"

namespace rangewerks::hosts::libreoffice {

/// Fills are 0xRRGGBB, or kNoFill. Styles are known by their names. An empty name is the look of a
/// condition that changes nothing.
class CellStyles {
 public:
  explicit CellStyles(const Reference<css::frame::XModel>& model) : model_(model) {}

  /// The fill of a style.
  std::int32_t FillOf(const std::string& style);
  /// The name of the style that is like `style` but for this fill; made when it is new. Two
  /// conditions that want the same share it.
  std::string WithFill(const std::string& style, std::int32_t fill);

 private:
  const Reference<css::container::XNameContainer>& All();

  Reference<css::frame::XModel> model_;
  Reference<css::container::XNameContainer> all_;
};

}  // namespace rangewerks::hosts::libreoffice
