#include "systems/windows/user_name.h"

#include "automation/text.h"
#include "systems/windows/text.h"

namespace rangewerks::systems {

std::string UserNameIn(std::string_view buffer) {
  std::string_view name = automation::Trim(buffer);
  if (!name.empty()) name.remove_suffix(1);
  return Utf8OfAnsi(name);
}

}  // namespace rangewerks::systems
