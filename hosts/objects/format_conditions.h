// The late-bound FormatConditions of a range, and one FormatCondition of them.
#pragma once

#include "hosts/objects/collection.h"

namespace rangewerks::hosts::objects {

/// The conditional formats that any of the cells has, in the order in which they were added.
class FormatConditions : public HostObject {
 public:
  const MemberTable& Members() const final;
  /// Raises when there is no such condition.
  virtual Variant GetItem(std::int32_t index) const = 0;

 protected:
  std::unique_ptr<Enumerator> Walk() final;

  virtual std::int32_t Count() const = 0;
  /// A condition behind those that the cells have, of the formula that a caller gave.
  virtual Variant AddFormula(const std::string& formula) = 0;
  virtual void Delete() = 0;

 private:
  Variant GetCount() const;
  Variant Add(std::int32_t type, const Variant& comparison, const Variant& formula);
};

class FormatCondition : public HostObject {
 public:
  const MemberTable& Members() const final;

 protected:
  virtual Variant GetType() = 0;
  virtual Variant GetFormula1() = 0;
  virtual Variant GetInterior() = 0;
  virtual void Delete() = 0;
};

}  // namespace rangewerks::hosts::objects
