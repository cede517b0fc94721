// How a failure of the office becomes an error of the object model.
#pragma once

#include <string>

namespace rangewerks::hosts::libreoffice {

/// The source of every error that this host raises itself.
inline constexpr const char* kErrorSource = "LibreOffice";

/// Raises 1004 with that description.
[[noreturn]] void Fail(const std::string& description);

/// Raises 9, for an element that a collection lacks.
[[noreturn]] void FailElement(const std::string& description);

/// Called from a catch block: raises again what was caught, an exception of the office as 1004 with
/// `what` was being done in front of the office's own words. An office that has ended is told as
/// that. Other exceptions pass unchanged.
[[noreturn]] void RaiseAsError(const std::string& what);

}  // namespace rangewerks::hosts::libreoffice
