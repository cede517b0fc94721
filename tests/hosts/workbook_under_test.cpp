#include "automation/dispatch.h"
#include "hosts/hosts.h"
#include "hosts/workbook/host.h"

namespace rangewerks::tests {
namespace {

using automation::Member;
using automation::Object;
using automation::Variant;

class WorkbookUnderTest final : public HostUnderTest {
 public:
  Object Application() override { return host_.Application(); }
  Object NewWorkbook(const std::vector<std::string>& sheets) override {
    return host_.AddWorkbook("Book" + std::to_string(++books_), sheets);
  }
  void PutFormula(const Object& cell, const std::string& formula, const Variant& shown) override {
    static const Member kFormula{"Formula"};
    cell.Let(kFormula, formula);
    host_.SetShownValue(cell, shown);
  }
  void PutError(const Object& cell, std::int32_t number) override {
    host_.SetErrorValue(cell, number);
  }
  void DefineConstant(const Object& workbook, const std::string& name,
                      const std::string& content) override {
    host_.DefineConstant(workbook, name, content);
  }
  void TrustMacros() override { host_.TrustVBProject(true); }

 private:
  hosts::workbook::Host host_;
  int books_ = 0;
};

}  // namespace

HostFactory WorkbookHost() {
  return {"Workbook", [] { return std::make_unique<WorkbookUnderTest>(); }};
}

}  // namespace rangewerks::tests
