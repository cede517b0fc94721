// The registry of Windows, in the code page of the system (ANSI): what the code page lacks becomes
// "?".
#pragma once

#include <cstdint>
#include <string>

#include "platform/registry.h"

namespace rangewerks::systems {

/// Statuses are the numbers of winerror.h.
class WindowsRegistry final : public platform::Registry {
 public:
  Reading Read(std::int32_t root, const std::string& key, const std::string& name) const override;
  std::int32_t Write(std::int32_t root, const std::string& key, const std::string& name,
                     const platform::RegistryValue& value) override;
  RawReading ReadWithFullAccess(std::int32_t root, const std::string& key, const std::string& name,
                                std::size_t limit) const override;
};

}  // namespace rangewerks::systems
