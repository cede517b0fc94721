// The failures of the keyed content of trees and lists.
#pragma once

#include "automation/error.h"

namespace rangewerks::forms {

inline automation::Error ElementNotFound() { return {35601, {}, "Element not found"}; }
inline automation::Error KeyNotUnique() { return {35602, {}, "Key is not unique in collection"}; }

}  // namespace rangewerks::forms
