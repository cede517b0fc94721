// Objects of other servers by the name that they are registered under.
#pragma once

#include <string>

#include "automation/object.h"

namespace rangewerks::com {

/// A new object of the class with that program identifier, started where need be. Raises 429 when
/// there is no such class, and what its server fails with otherwise.
automation::Object CreateObject(const std::string& progId);

}  // namespace rangewerks::com
