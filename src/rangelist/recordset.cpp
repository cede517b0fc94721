#include "rangelist/recordset.h"

namespace rangewerks {

using automation::MemberTable;

namespace {

/// What data access reports for a field that a recordset lacks.
constexpr std::int32_t kNoSuchField = 3265;

}  // namespace

const MemberTable& RecordsetField::Members() const {
  using C = RecordsetField;
  static const MemberTable table =
      MemberTable::For<C>("Field")
          .Get(1, "Name", &C::get_Name, "The field's name.")
          .Get(automation::kDefaultMemberId, "Value", &C::get_Value,
               "The field's value in the current row; null when it has none.");
  return table;
}

const MemberTable& Recordset::Members() const {
  using C = Recordset;
  static const MemberTable table = MemberTable::For<C>("Recordset")
                                       .Get(automation::kDefaultMemberId, "Fields", &C::get_Fields,
                                            {{"Index"}}, "The field of that name.");
  return table;
}

void Recordset::SetField(const std::string& name, const Variant& value) {
  fields_[name] = std::make_shared<RecordsetField>(name, value);
}

std::shared_ptr<RecordsetField> Recordset::get_Fields(const std::string& name) const {
  const auto found = fields_.find(std::string_view(name));
  if (found == fields_.end()) {
    throw automation::Error(kNoSuchField, "Recordset", "The row has no field \"" + name + "\".");
  }
  return found->second;
}

}  // namespace rangewerks
