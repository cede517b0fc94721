// The dialogs that Windows has ready. Each returns when the person has answered; its owner, which
// may be null, takes no input meanwhile. Private to this folder's sources.
#pragma once

#include <windows.h>

#include <optional>
#include <string>

#include "forms/toolkit.h"

namespace rangewerks::desktops {

/// The title is the product's name when the message has none. Where no window can be shown, the
/// answer is the one that does the least: Cancel, else No, else Ok.
forms::Answer ShowMessageBox(const forms::Message& message, HWND owner);

/// The text typed, or nothing when the person cancelled. `text` stands in the field at first.
std::optional<std::string> ShowInputBox(const std::string& prompt, const std::string& title,
                                        const std::string& text, HWND owner);

/// The colour chosen, 0xBBGGRR, or nothing. No colour is preset; colours that the person mixes are
/// offered again until the program ends.
std::optional<forms::Colour> ShowColourDialog(HWND owner);

/// The full path of the file chosen, or nothing. A name to begin with that no file can have is left
/// out.
std::optional<std::string> ShowFileDialog(const forms::FileDialog& dialog, HWND owner);

/// The full path of the folder chosen, or an empty text. Only folders of the file system can be
/// chosen.
std::string ShowFolderDialog(const std::string& title, HWND owner);

}  // namespace rangewerks::desktops
