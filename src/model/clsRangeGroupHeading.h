// One heading of the tree in which ranges are shown.
#pragma once

#include <string>

#include "automation/member_table.h"

namespace rangewerks {

class clsRangeGroupHeading final : public automation::AutomationClass {
 public:
  const automation::MemberTable& Members() const override;

  /// HeadingKey of the heading above this one; empty at the top. It need not exist.
  const std::string& get_ParentGroup() const { return parentGroup_; }
  void let_ParentGroup(const std::string& value) { parentGroup_ = value; }
  /// The words shown in the tree.
  void let_HeadingText(const std::string& value) { headingText_ = value; }
  const std::string& get_HeadingText() const { return headingText_; }
  /// The key to which a range's Group refers.
  void let_HeadingKey(const std::string& value) { headingKey_ = value; }
  const std::string& get_HeadingKey() const { return headingKey_; }

 private:
  std::string headingKey_;
  std::string headingText_;
  std::string parentGroup_;
};

}  // namespace rangewerks
