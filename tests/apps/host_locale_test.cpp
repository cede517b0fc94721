#include "apps/rangewerks/host_locale.h"

#include <gtest/gtest.h>

#include "hosts/workbook/host.h"

namespace rangewerks::apps {
namespace {

using automation::DateOrder;
using automation::Locale;

class LocaleOfTheHost : public ::testing::Test {
 protected:
  LocaleOfTheHost() { host.AddWorkbook("Book", {"Sheet1"}); }
  Locale Taken() const { return InLineWith(excel::Application(host.Application()), Locale()); }

  hosts::workbook::Host host;
};

TEST_F(LocaleOfTheHost, GivesItsSeparatorsAndDateOrder) {
  host.SetInternational(3, ",");
  host.SetInternational(4, ".");
  host.SetInternational(5, ";");
  host.SetInternational(17, ".");
  host.SetInternational(32, 1);
  const Locale taken = Taken();
  EXPECT_EQ(taken.decimalSeparator, ",");
  EXPECT_EQ(taken.thousandsSeparator, ".");
  EXPECT_EQ(taken.listSeparator, ";");
  EXPECT_EQ(taken.dateSeparator, ".");
  EXPECT_EQ(taken.timeSeparator, ":");
  EXPECT_EQ(taken.dateOrder, DateOrder::DayFirst);
  EXPECT_EQ(taken.shortDate, "d/m/yyyy");
}

TEST_F(LocaleOfTheHost, LeavesWhatTheHostDoesNotTell) {
  host.SetInternational(32, "unknown");
  host.SetInternational(3, "");
  const Locale taken = Taken();
  EXPECT_EQ(taken.dateOrder, DateOrder::MonthFirst);
  EXPECT_EQ(taken.shortDate, "m/d/yyyy");
  EXPECT_EQ(taken.decimalSeparator, ".");
}

}  // namespace
}  // namespace rangewerks::apps
