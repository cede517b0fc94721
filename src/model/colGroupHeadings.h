// The headings of the tree in which ranges are shown.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "automation/collection.h"
#include "automation/member_table.h"
#include "model/clsRangeGroupHeading.h"

namespace rangewerks {

/// Headings in the order of adding. Keys are unique and compared without regard to case.
class colGroupHeadings final : public automation::AutomationClass {
 public:
  using Variant = automation::Variant;
  using Heading = std::shared_ptr<clsRangeGroupHeading>;

  const automation::MemberTable& Members() const override;
  std::unique_ptr<automation::Enumerator> Enumerate() override;

  /// Takes all headings out.
  void ClearList();
  /// Makes a heading and adds it at the end. Raises 457 when the key exists.
  Heading Add(const std::string& HeadingText, const std::string& HeadingKey,
              const std::string& ParentGroup = {});
  /// The heading at a 1-based position or with a key. Raises 9 or 5 when there is none.
  Heading Item(const Variant& vntIndexKey) const { return headings_.At(vntIndexKey); }
  std::int32_t Count() const { return headings_.Count(); }
  /// Takes a heading out; fails as Item does.
  void Remove(const Variant& vntIndexKey) { headings_.Remove(vntIndexKey); }

 private:
  automation::Collection<Heading> headings_;
};

}  // namespace rangewerks
