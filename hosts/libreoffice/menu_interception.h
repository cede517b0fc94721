// The way into the office's menu of the cells: entries are added while it opens, and their choice
// is led here.
#pragma once

#include <com/sun/star/frame/XController.hpp>
#include <memory>

#include "hosts/libreoffice/menu_board.h"
#include "hosts/libreoffice/uno.h"

namespace rangewerks::hosts::libreoffice {

/// The address of an entry is this with the entry's number behind it.
inline constexpr const char* kMenuProtocol = "rangewerks.menu:";

/// Adds the board's entries to the menu of the cells in that window from now on, for as long as the
/// window is there.
void InterceptMenus(const Reference<css::frame::XController>& controller,
                    const std::shared_ptr<MenuBoard>& board);

}  // namespace rangewerks::hosts::libreoffice
