// A global object without members. Callers know its class by identity alone.
#pragma once

#include "automation/member_table.h"

namespace rangewerks {

class errL100Jrn final : public automation::AutomationClass {
 public:
  const automation::MemberTable& Members() const override;
};

}  // namespace rangewerks
