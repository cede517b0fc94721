// What the contract suite asks of a host besides the object model itself: a scene to look at.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "automation/object.h"
#include "automation/variant.h"

namespace rangewerks::tests {

/// One spreadsheet program, started and empty. What the object model can build, a test builds
/// through it (Names.Add, Range.Value); the rest is here.
class HostUnderTest {
 public:
  virtual ~HostUnderTest() = default;

  virtual automation::Object Application() = 0;
  /// A new workbook with these sheets; it is the active one and its first sheet is in front.
  virtual automation::Object NewWorkbook(const std::vector<std::string>& sheets) = 0;
  /// Puts a formula (as the user types it in English, such as "=1+1") into one cell, showing
  /// `shown`.
  virtual void PutFormula(const automation::Object& cell, const std::string& formula,
                          const automation::Variant& shown) = 0;
  /// Makes one cell hold an error, 2007 for a division by zero or 2042 for "not available".
  virtual void PutError(const automation::Object& cell, std::int32_t number) = 0;
  /// Defines a name for all sheets whose content is no reference, such as "=12.5".
  virtual void DefineConstant(const automation::Object& workbook, const std::string& name,
                              const std::string& content) = 0;
  /// Gives access to the macro projects of workbooks, where a host asks for trust first.
  virtual void TrustMacros() {}
};

/// A host by the name that test reports show.
struct HostFactory {
  std::string name;
  std::function<std::unique_ptr<HostUnderTest>()> make;
};

}  // namespace rangewerks::tests
