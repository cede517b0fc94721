#include "errors/errL100Jrn.h"

namespace rangewerks {

const automation::MemberTable& errL100Jrn::Members() const {
  static const automation::MemberTable table =
      automation::MemberTable::For<errL100Jrn>("errL100Jrn");
  return table;
}

}  // namespace rangewerks
