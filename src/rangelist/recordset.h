// The current row of a recordset, for native callers of PopulateRangeRs.
//
//   auto row = std::make_shared<Recordset>();
//   row->SetField("amount", 12.5);
//   list->PopulateRangeRs(row, "amount", "amount", 1);
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>

#include "automation/member_table.h"
#include "automation/text.h"

namespace rangewerks {

/// One field of a row.
class RecordsetField final : public automation::AutomationClass {
 public:
  using Variant = automation::Variant;

  RecordsetField(std::string name, Variant value)
      : name_(std::move(name)), value_(std::move(value)) {}
  const automation::MemberTable& Members() const override;

  const std::string& get_Name() const { return name_; }
  const Variant& get_Value() const { return value_; }

 private:
  std::string name_;
  Variant value_;
};

/// Named fields; names are compared without regard to case. Answers Fields(name) as any recordset
/// does, with error 3265 for a name that it lacks.
class Recordset final : public automation::AutomationClass {
 public:
  using Variant = automation::Variant;

  const automation::MemberTable& Members() const override;

  /// Sets a field of the current row; null stands for a field without a value.
  void SetField(const std::string& name, const Variant& value);
  std::shared_ptr<RecordsetField> get_Fields(const std::string& name) const;

 private:
  std::unordered_map<std::string, std::shared_ptr<RecordsetField>, automation::FoldedHash,
                     automation::FoldedEqual>
      fields_;
};

}  // namespace rangewerks
