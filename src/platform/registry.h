// Where settings are kept from one run to the next: keys in a tree, with named values in each.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <variant>

namespace rangewerks::platform {

/// A text (REG_SZ) or a 32-bit integer (REG_DWORD).
using RegistryValue = std::variant<std::string, std::int32_t>;

/// The registry, or what stands in for it on a system without one.
///
/// A root is the system's handle of one of its roots. The parts of a key stand between backslashes;
/// a second backslash in a row and one at the end change nothing. Keys and names are compared
/// without regard to case. What is written is there for the next call, in other programs too.
/// Nothing here raises an error: each call answers with a status.
class Registry {
 public:
  /// The root of what belongs to the person, HKEY_CURRENT_USER.
  static constexpr auto kCurrentUser = static_cast<std::int32_t>(0x80000001U);
  /// The root of what belongs to the machine, HKEY_LOCAL_MACHINE.
  static constexpr auto kLocalMachine = static_cast<std::int32_t>(0x80000002U);

  static constexpr std::int32_t kSuccess = 0;
  /// There is no such key or value.
  static constexpr std::int32_t kNotFound = 2;

  struct Reading {
    std::int32_t status;  ///< kSuccess, or else the system's number for what went wrong
    std::optional<RegistryValue> value;  ///< nothing too when it is of another type
  };

  static constexpr std::uint32_t kTypeText = 1;    ///< REG_SZ
  static constexpr std::uint32_t kTypeNumber = 4;  ///< REG_DWORD

  struct RawReading {
    std::int32_t status = kNotFound;  ///< kSuccess, or else the system's number
    std::uint32_t type = 0;           ///< the system's number of the value's type
    /// All that is stored, the zero behind a text too; the bytes of a number from the lowest. A
    /// text is UTF-8.
    std::string bytes{};
  };

  virtual ~Registry() = default;

  virtual Reading Read(std::int32_t root, const std::string& key,
                       const std::string& name) const = 0;
  /// Makes the key with its parents where they are missing. Returns the status.
  virtual std::int32_t Write(std::int32_t root, const std::string& key, const std::string& name,
                             const RegistryValue& value) = 0;
  /// A value of any type and at most `limit` bytes, from a key that is opened for reading and
  /// writing alike: one that the person may only read fails. Where there is only the person's own
  /// root, nothing is found.
  virtual RawReading ReadWithFullAccess(std::int32_t /*root*/, const std::string& /*key*/,
                                        const std::string& /*name*/, std::size_t /*limit*/) const {
    return {};
  }
};

}  // namespace rangewerks::platform
