// The library's own version.
#pragma once

#include <memory>
#include <string>

#include "automation/member_table.h"
#include "platform/system.h"

namespace rangewerks {

/// A global object of the library.
class clsRangewerksVer final : public automation::AutomationClass {
 public:
  explicit clsRangewerksVer(std::shared_ptr<const platform::System> system)
      : system_(std::move(system)) {}

  const automation::MemberTable& Members() const override;

  /// The name of the library's file and its version: "Rangewerks: 0.1.0". Raises 53 when the system
  /// can't tell the file.
  std::string get_RangewerksVer() const;

 private:
  std::shared_ptr<const platform::System> system_;
};

}  // namespace rangewerks
