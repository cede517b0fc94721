// An office in another locale than the shared one.
#include <gtest/gtest.h>

#include <cstdlib>

#include "hosts/late_calls.h"
#include "hosts/libreoffice/office.h"
#include "platform/excel_format.h"

namespace rangewerks::tests {
namespace {

using automation::Date;
using hosts::libreoffice::Office;

/// Runs a test's programs in a locale, which needn't be installed: the office brings its own facts.
class LibreOfficeInGerman : public testing::Test {
 protected:
  LibreOfficeInGerman() { setenv("LC_ALL", "de_DE.UTF-8", 1); }
  ~LibreOfficeInGerman() override {
    if (given_.empty()) {
      unsetenv("LC_ALL");
    } else {
      setenv("LC_ALL", given_.c_str(), 1);
    }
  }

 private:
  static std::string Given() {
    const char* value = std::getenv("LC_ALL");
    return value == nullptr ? "" : value;
  }
  const std::string given_ = Given();
};

TEST_F(LibreOfficeInGerman, TheFactsAndTheReadingOfTextsAndFormulasAreThoseOfTheLocale) {
  Office office;
  const Object application = office.Application();
  EXPECT_EQ(GetText(application, "International", {3}), ",");
  EXPECT_EQ(GetText(application, "International", {4}), ".");
  EXPECT_EQ(GetText(application, "International", {5}), ";");
  EXPECT_EQ(Get(application, "International", {32}), Variant(1));

  const Object sheet = GetObject(office.NewWorkbook({"Sheet1"}), "ActiveSheet");
  std::int32_t row = 0;
  for (const auto& [text, value] :
       {std::pair{"1.234,5", Variant(1234.5)}, std::pair{"31.01.2024", Variant(Date{45322})},
        std::pair{"WAHR", Variant(true)}, std::pair{"abc", Variant("abc")}}) {
    const Object cell = GetObject(sheet, "Cells", {++row, 1});
    Let(cell, "Value", text);
    EXPECT_EQ(Get(cell, "Value"), value) << text;
  }
  const Object formula = GetObject(sheet, "Range", {"B1"});
  Let(formula, "Formula", "=SUM(1.5,2)");
  EXPECT_EQ(GetText(formula, "Formula"), "=SUM(1.5,2)");
  EXPECT_EQ(Get(formula, "Value"), Variant(3.5));

  const excel::Range cells(GetObject(sheet, "Range", {"C2:C9"}));
  const excel::FormatConditions conditions = cells.get_FormatConditions();
  conditions.Add(excel::xlExpression, "=MOD(ROW(); 2)=0");
  conditions.Add(excel::xlExpression, "=C2>1,5");
  EXPECT_EQ(GetText(cells.get_FormatConditions(1), "Formula1"), "=MOD(ROW(); 2)=0");
  EXPECT_EQ(GetText(cells.get_FormatConditions(2), "Formula1"), "=C2>1,5");
  EXPECT_EQ(ErrorNumberOf([&] { conditions.Add(excel::xlExpression, "=MOD(ROW(), 2)=0"); }), 1004);
  for (const char* format : {"0.00_ ;-0.00", "0;_ ;-0", "dd/mm/yyyy", "#,##0.00", "@"}) {
    cells.let_NumberFormat(format);
    EXPECT_EQ(GetText(cells, "NumberFormat"), format);
  }
}

}  // namespace
}  // namespace rangewerks::tests
