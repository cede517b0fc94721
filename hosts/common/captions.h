// Finding the entry of a menu by what it says.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace rangewerks::hosts {

/// The place, from 0, of the entry with that caption. A caption as it stands goes before one that
/// differs in case and in the "&" ahead of its access key; among several the first is meant.
std::optional<std::size_t> FindCaption(std::span<const std::string> captions,
                                       std::string_view caption);

}  // namespace rangewerks::hosts
