#include "model/colGroupHeadings.h"

#include <vector>

#include "errors/procedure.h"

namespace rangewerks {

void colGroupHeadings::ClearList() {
  while (Count() >= 1) Remove(1);
}

colGroupHeadings::Heading colGroupHeadings::Add(const std::string& HeadingText,
                                                const std::string& HeadingKey,
                                                const std::string& ParentGroup) {
  return Procedure("Add of Class Module colGroupHeadings Line#:", [&](Line& at) {
    at();
    auto heading = std::make_shared<clsRangeGroupHeading>();
    heading->let_HeadingText(HeadingText);
    heading->let_HeadingKey(HeadingKey);
    heading->let_ParentGroup(ParentGroup);
    at();
    headings_.Add(heading, HeadingKey);
    return heading;
  });
}

std::unique_ptr<automation::Enumerator> colGroupHeadings::Enumerate() {
  const auto& items = headings_.Items();
  return std::make_unique<automation::SnapshotEnumerator>(
      std::vector<Variant>(items.begin(), items.end()));
}

const automation::MemberTable& colGroupHeadings::Members() const {
  using C = colGroupHeadings;
  static const automation::MemberTable table =
      automation::MemberTable::For<C>("colGroupHeadings")
          .Method(1, "ClearList", &C::ClearList, {}, "Takes all headings out.")
          .Method(2, "Add", &C::Add, {{"HeadingText"}, {"HeadingKey"}, {"ParentGroup", ""}},
                  "Makes a heading and adds it at the end.")
          .Get(0, "Item", &C::Item, {{"vntIndexKey"}}, "The heading at a position or with a key.")
          .Get(3, "Count", &C::Count, "The number of headings.")
          .Method(4, "Remove", &C::Remove, {{"vntIndexKey"}}, "Takes a heading out.")
          .Enumerator("NewEnum");
  return table;
}

}  // namespace rangewerks
