// How the host reports what it refuses.
#pragma once

#include <string>

namespace rangewerks::hosts::workbook {

/// The source of the host's errors.
inline constexpr const char* kSource = "Workbook";

/// Raises 1004 with those words: what was asked for and where, and what stands in its way.
[[noreturn]] void Refuse(const std::string& description);
/// Raises 9, for an element that a collection lacks.
[[noreturn]] void RefuseElement(const std::string& description);

}  // namespace rangewerks::hosts::workbook
