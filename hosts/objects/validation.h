// The late-bound Validation of a range, which is there also when no cell has a rule.
#pragma once

#include <cstddef>

#include "hosts/objects/host_object.h"

namespace rangewerks::hosts::objects {

class Validation : public HostObject {
 public:
  const MemberTable& Members() const final;

 protected:
  virtual void Add(std::int32_t type, const Variant& alertStyle, const Variant& comparison,
                   const Variant& formula) = 0;
  virtual void Delete() = 0;

  // The rule must be there, and the same for all cells; otherwise these raise 1004.
  virtual Variant GetType() const = 0;
  virtual Variant GetAlertStyle() const = 0;
  virtual Variant GetOperator() const = 0;
  virtual Variant GetFormula1() const = 0;
  virtual Variant GetIgnoreBlank() const = 0;
  virtual void LetIgnoreBlank(bool ignores) = 0;
  /// One of the four texts, by its place among kValidationTexts.
  virtual std::string Text(std::size_t text) const = 0;
  /// `value` isn't too long.
  virtual void PutText(std::size_t text, const std::string& value) = 0;

 private:
  template <std::size_t text>
  Variant GetText() const;
  template <std::size_t text>
  void LetText(const std::string& value);
};

}  // namespace rangewerks::hosts::objects
