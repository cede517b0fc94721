// A plain sequence of values, for members that take a collection.
//
//   list->ClearRangesForTag("T1", std::make_shared<ValueList>(std::vector<Variant>{"codes"}));
#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "automation/dispatch.h"
#include "automation/error.h"

namespace rangewerks::automation {

/// Can be enumerated and nothing else; its values never change.
class ValueList final : public Dispatch {
 public:
  explicit ValueList(std::vector<Variant> values) : values_(std::move(values)) {}

  std::string TypeName() const override { return "ValueList"; }
  Variant Invoke(const Invocation& /*call*/) override { throw Error(ErrorNumber::MemberNotFound); }
  std::unique_ptr<Enumerator> Enumerate() override {
    return std::make_unique<SnapshotEnumerator>(values_);
  }

 private:
  std::vector<Variant> values_;
};

}  // namespace rangewerks::automation
