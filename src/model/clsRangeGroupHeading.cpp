#include "model/clsRangeGroupHeading.h"

namespace rangewerks {

const automation::MemberTable& clsRangeGroupHeading::Members() const {
  using C = clsRangeGroupHeading;
  static const char* const kParent = "Key of the heading above this one; empty at the top.";
  static const char* const kText = "The words shown in the tree.";
  static const char* const kKey = "The key to which a range's Group refers.";
  static const automation::MemberTable table =
      automation::MemberTable::For<C>("clsRangeGroupHeading")
          .Get(1, "ParentGroup", &C::get_ParentGroup, kParent)
          .Let(1, "ParentGroup", &C::let_ParentGroup, kParent)
          .Let(2, "HeadingText", &C::let_HeadingText, kText)
          .Get(2, "HeadingText", &C::get_HeadingText, kText)
          .Let(3, "HeadingKey", &C::let_HeadingKey, kKey)
          .Get(3, "HeadingKey", &C::get_HeadingKey, kKey);
  return table;
}

}  // namespace rangewerks
