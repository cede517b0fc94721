#include "hosts/libreoffice_under_test.h"

#include <gtest/gtest.h>

#include "hosts/hosts.h"
#include "hosts/late_calls.h"

namespace rangewerks::tests {
namespace {

using hosts::libreoffice::Office;

std::unique_ptr<Office>& OfficeSlot() {
  static std::unique_ptr<Office> office;
  return office;
}

/// Ends the office while everything that it needs is still there.
class OfficeEnd final : public testing::Environment {
 public:
  void TearDown() override { OfficeSlot().reset(); }
};
const testing::Environment* const kOfficeEnd = testing::AddGlobalTestEnvironment(new OfficeEnd);

class LibreOfficeUnderTest final : public HostUnderTest {
 public:
  /// A fresh host has no workbook open.
  ~LibreOfficeUnderTest() override {
    const Object books = GetObject(SharedOffice().Application(), "Workbooks");
    for (const Variant& book : Elements(books)) SharedOffice().Close(book.AsObject());
  }

  Object Application() override { return SharedOffice().Application(); }
  Object NewWorkbook(const std::vector<std::string>& sheets) override {
    return SharedOffice().NewWorkbook(sheets);
  }
  void PutFormula(const Object& cell, const std::string& formula, const Variant& shown) override {
    Let(cell, "Formula", formula);
    EXPECT_EQ(Get(cell, "Value"), shown) << "LibreOffice works " << formula << " out itself";
  }
  void PutError(const Object& cell, std::int32_t number) override {
    Let(cell, "Formula", number == 2007 ? "=1/0" : "=NA()");
  }
  void DefineConstant(const Object& workbook, const std::string& name,
                      const std::string& content) override {
    AddName(GetObject(workbook, "Names"), name, content);
  }
};

}  // namespace

Office& SharedOffice() {
  if (!OfficeSlot()) OfficeSlot() = std::make_unique<Office>();
  return *OfficeSlot();
}

HostFactory LibreOfficeHost() {
  return {"LibreOffice", [] { return std::make_unique<LibreOfficeUnderTest>(); }};
}

}  // namespace rangewerks::tests
