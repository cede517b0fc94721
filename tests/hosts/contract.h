// The base of the contract suite: what callers rely on in every spreadsheet program. Expectations
// name results and that something fails, never a program's own words.
//
//   class NamesContract : public HostContract {};
//   CONTRACT_FOR_ALL_HOSTS(NamesContract);
//   TEST_P(NamesContract, DeleteRemovesTheName) { ... }
#pragma once

#include <gtest/gtest.h>

#include "hosts/hosts.h"
#include "hosts/late_calls.h"

namespace rangewerks::tests {

/// A started program with one workbook of three sheets, the first in front. The names of the other
/// two need quotes in references.
class HostContract : public testing::TestWithParam<HostFactory> {
 protected:
  void SetUp() override {
    host_ = GetParam().make();
    book_ = host_->NewWorkbook({"Sheet1", "Data Sheet", "O'Brien"});
    sheet_ = Sheet("Sheet1");
    dataSheet_ = Sheet("Data Sheet");
  }

  Object Application() { return host_->Application(); }
  Object Sheet(const char* name) { return GetObject(Application(), "Sheets", {name}); }
  Object Names() { return GetObject(book_, "Names"); }
  static Object Cells(const Object& sheet, const char* address) {
    return GetObject(sheet, "Range", {address});
  }
  Object Cells(const char* address) { return Cells(sheet_, address); }

  std::unique_ptr<HostUnderTest> host_;
  Object book_;
  Object sheet_;      ///< "Sheet1", which is in front
  Object dataSheet_;  ///< "Data Sheet"
};

}  // namespace rangewerks::tests

#define CONTRACT_FOR_ALL_HOSTS(Suite)               \
  INSTANTIATE_TEST_SUITE_P(                         \
      EveryHost, Suite, testing::ValuesIn(Hosts()), \
      [](const testing::TestParamInfo<HostFactory>& i) { return i.param.name; })
