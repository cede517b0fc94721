#include "systems/posix/posix_system.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "automation/conversions.h"
#include "hosts/temporary_folder.h"
#include "support/environment.h"
#include "support/error_of.h"
#include "systems/posix/locale_facts.h"

/// The C library's newlocale doesn't free its copy of LOCPATH, which only these tests set.
extern "C" const char* __lsan_default_suppressions();   // NOLINT(bugprone-reserved-identifier)
extern "C" const char* __lsan_default_suppressions() {  // NOLINT(bugprone-reserved-identifier)
  return "leak:__argz_add_sep";
}

namespace rangewerks::tests {
namespace {

using automation::DateOf;
using automation::DateOrder;
using automation::Locale;
using systems::PosixSystem;
using systems::TakeDateFormat;
using systems::TakeTimeFormat;

void ExpectDefault(const Locale& locale) {
  const Locale standard;
  EXPECT_EQ(locale.decimalSeparator, standard.decimalSeparator);
  EXPECT_EQ(locale.thousandsSeparator, standard.thousandsSeparator);
  EXPECT_EQ(locale.listSeparator, standard.listSeparator);
  EXPECT_EQ(locale.currencySymbol, standard.currencySymbol);
  EXPECT_EQ(locale.dateOrder, standard.dateOrder);
  EXPECT_EQ(locale.dateSeparator, standard.dateSeparator);
  EXPECT_EQ(locale.timeSeparator, standard.timeSeparator);
  EXPECT_EQ(locale.shortDate, standard.shortDate);
  EXPECT_EQ(locale.longTime, standard.longTime);
  EXPECT_EQ(locale.monthNames, standard.monthNames);
  EXPECT_EQ(locale.shortMonthNames, standard.shortMonthNames);
  EXPECT_EQ(locale.dayNames, standard.dayNames);
  EXPECT_EQ(locale.shortDayNames, standard.shortDayNames);
}

TEST(PosixSystem, NamesTheProgramThatItIsLinkedInto) {
  const std::string file = PosixSystem().LibraryFile();
  EXPECT_EQ(file, std::filesystem::read_symlink("/proc/self/exe").string());
  EXPECT_TRUE(std::filesystem::path(file).is_absolute());
}

TEST(PosixSystem, RunsUnderTheAccountOfThePersonWhoLoggedOn) {
  EXPECT_EQ(PosixSystem().AccountName(), PosixSystem().LoggedOnUser());
}

/// A program that leaves the file "ran" beside itself, with the number of its arguments in it.
class StartedProgram : public ::testing::Test {
 protected:
  void SetUp() override {
    folder.Write("a program",
                 "#!/bin/sh\n"
                 "cd \"$(dirname \"$0\")\" && printf '%s' \"$#\" >written && mv written ran\n");
    std::filesystem::permissions(program, std::filesystem::perms::owner_all);
  }

  TemporaryFolder folder;
  const std::string program = folder.File("a program");
  const std::string ran = folder.File("ran");
};

TEST_F(StartedProgram, RunsWithoutArguments) {
  PosixSystem().StartProgram(program);
  for (int i = 0; i < 500 && !std::filesystem::exists(ran); ++i) usleep(10000);
  std::string arguments;
  std::ifstream(ran) >> arguments;
  EXPECT_EQ(arguments, "0");
}

TEST_F(StartedProgram, MustBeAFileThatThePersonMayRun) {
  const auto fails = [](const std::string& path) {
    return ErrorOf([&] { PosixSystem().StartProgram(path); })
        .Is(automation::ErrorNumber::FileNotFound);
  };
  EXPECT_TRUE(fails(folder.File("none")));
  EXPECT_TRUE(fails(folder.File("")));
  std::filesystem::permissions(program, std::filesystem::perms::owner_read);
  EXPECT_TRUE(fails(program));
}

TEST_F(StartedProgram, ExistsAsAFileAndItsFolderDoesnt) {
  EXPECT_TRUE(PosixSystem().FileExists(program));
  EXPECT_FALSE(PosixSystem().FileExists(folder.File("")));
  EXPECT_FALSE(PosixSystem().FileExists(folder.File("none")));
  EXPECT_FALSE(PosixSystem().FileExists(""));
}

/// Days since 30 December 1899 in Greenwich.
double Greenwich() {
  const auto since = std::chrono::system_clock::now().time_since_epoch();
  return 25569 + std::chrono::duration<double>(since).count() / 86400;
}

TEST(PosixSystem, TellsTheTimeOfThePersonsTimeZoneToTheSecond) {
  constexpr double kSecond = 1.0 / 86400;
  for (const auto& [zone, hours] : {std::pair("UTC0", 0), {"EAST-5", 5}, {"WEST+11", -11}}) {
    const Setting timeZone("TZ", zone);
    const double before = Greenwich();
    const double now = PosixSystem().Now().serial - hours / 24.0;
    EXPECT_GT(now, before - 1.001 * kSecond) << zone;
    EXPECT_LT(now, Greenwich() + 0.001 * kSecond) << zone;
  }
}

TEST(PosixSystem, TakesTheDefaultLocaleForLocalesWithoutFacts) {
  for (const char* name : {"C", "POSIX", "C.UTF-8"}) {
    const Setting all("LC_ALL", name);
    SCOPED_TRACE(name);
    ExpectDefault(PosixSystem().CurrentLocale());
  }
}

TEST(PosixSystem, TakesTheDefaultLocaleWhenTheWantedOneIsntInstalled) {
  const Setting all("LC_ALL", "xx_YY.UTF-8");
  ExpectDefault(PosixSystem().CurrentLocale());
}

TEST(PosixSystem, TakesTheDefaultLocaleWhenNothingIsSet) {
  const Setting all("LC_ALL", nullptr);
  const Setting lang("LANG", nullptr);
  const Setting numeric("LC_NUMERIC", nullptr);
  const Setting monetary("LC_MONETARY", nullptr);
  const Setting time("LC_TIME", nullptr);
  ExpectDefault(PosixSystem().CurrentLocale());
}

/// Locales compiled for the test, so that it doesn't depend on which ones a machine has installed.
class CompiledLocale : public ::testing::Test {
 protected:
  ~CompiledLocale() override { std::filesystem::remove_all(folder_); }

  bool Compile(const std::string& name, const std::string& codeset) const {
    const std::string target = folder_ / (name + "." + codeset);
    const std::string command =
        "localedef -i " + name + " -f " + codeset + " '" + target + "' >/dev/null 2>&1";
    return std::system(command.c_str()) == 0;
  }

 private:
  static std::filesystem::path NewFolder() {
    std::string name = std::filesystem::temp_directory_path() / "rangewerks-locales-XXXXXX";
    if (mkdtemp(name.data()) == nullptr) throw std::filesystem::filesystem_error(name, {});
    return name;
  }

  std::filesystem::path folder_ = NewFolder();
  Setting path_{"LOCPATH", folder_.c_str()};
};

void ExpectGerman(const Locale& locale) {
  EXPECT_EQ(locale.decimalSeparator, ",");
  EXPECT_EQ(locale.thousandsSeparator, ".");
  EXPECT_EQ(locale.listSeparator, ";");
  EXPECT_EQ(locale.dateOrder, DateOrder::DayFirst);
  EXPECT_EQ(locale.dateSeparator, ".");
  EXPECT_EQ(locale.timeSeparator, ":");
  EXPECT_EQ(locale.longTime, "hh:nn:ss");
  EXPECT_EQ(locale.monthNames[2], "März");
  EXPECT_EQ(locale.monthNames[11], "Dezember");
  EXPECT_EQ(locale.shortMonthNames[9], "Okt");
  EXPECT_EQ(locale.dayNames[0], "Sonntag");
  EXPECT_EQ(locale.shortDayNames[6], "Sa");
  EXPECT_EQ(automation::ToString(DateOf(2024, 1, 5), locale), "05.01.2024");
  EXPECT_EQ(automation::ToDouble("1.234,56", locale), 1234.56);
}

TEST_F(CompiledLocale, GivesItsFacts) {
  if (!Compile("de_DE", "UTF-8")) GTEST_SKIP() << "localedef can't make de_DE here";
  const Setting all("LC_ALL", "de_DE.UTF-8");
  const Locale locale = PosixSystem().CurrentLocale();
  ExpectGerman(locale);
  EXPECT_EQ(locale.currencySymbol, "€");
}

TEST_F(CompiledLocale, GivesItsFactsAsUtf8WhateverItsCharacterSet) {
  if (!Compile("de_DE", "ISO-8859-15")) GTEST_SKIP() << "localedef can't make de_DE here";
  const Setting all("LC_ALL", "de_DE.ISO-8859-15");
  const Locale locale = PosixSystem().CurrentLocale();
  ExpectGerman(locale);
  EXPECT_EQ(locale.currencySymbol, "€");
}

TEST_F(CompiledLocale, MayDifferByCategory) {
  if (!Compile("de_DE", "UTF-8")) GTEST_SKIP() << "localedef can't make de_DE here";
  const Setting all("LC_ALL", nullptr);
  const Setting lang("LANG", "C");
  const Setting monetary("LC_MONETARY", nullptr);
  const Setting time("LC_TIME", nullptr);
  const Setting numeric("LC_NUMERIC", "de_DE.UTF-8");
  const Locale locale = PosixSystem().CurrentLocale();
  EXPECT_EQ(locale.decimalSeparator, ",");
  EXPECT_EQ(locale.thousandsSeparator, ".");
  EXPECT_EQ(locale.currencySymbol, "$");
  EXPECT_EQ(locale.shortDate, "m/d/yyyy");
}

TEST_F(CompiledLocale, OfTheUnitedStatesWritesHalfDays) {
  if (!Compile("en_US", "UTF-8")) GTEST_SKIP() << "localedef can't make en_US here";
  const Setting all("LC_ALL", "en_US.UTF-8");
  const Locale locale = PosixSystem().CurrentLocale();
  EXPECT_EQ(locale.dateOrder, DateOrder::MonthFirst);
  EXPECT_EQ(locale.longTime, "h:nn:ss AM/PM");
  EXPECT_EQ(locale.currencySymbol, "$");
  EXPECT_EQ(automation::ToString(DateOf(2024, 1, 5), locale), "01/05/2024");
}

struct DateFormat {
  const char* format;
  DateOrder order;
  const char* separator;
  const char* shortDate;
};

TEST(DateFormats, GiveOrderSeparatorAndPattern) {
  const std::vector<DateFormat> rows = {
      {"%d.%m.%Y", DateOrder::DayFirst, ".", "dd/mm/yyyy"},
      {"%d/%m/%y", DateOrder::DayFirst, "/", "dd/mm/yyyy"},
      {"%-d.%-m.%Y", DateOrder::DayFirst, ".", "d/m/yyyy"},
      {"%e.%m.%Y г.", DateOrder::DayFirst, ".", "d/mm/yyyy"},
      {"%m/%d/%Y", DateOrder::MonthFirst, "/", "mm/dd/yyyy"},
      {"%D", DateOrder::MonthFirst, "/", "mm/dd/yyyy"},
      {"%F", DateOrder::YearFirst, "-", "yyyy/mm/dd"},
      {"%Y-%m-%d.", DateOrder::YearFirst, "-", "yyyy/mm/dd"},
      {"%Y年%m月%d日", DateOrder::YearFirst, "/", "yyyy/mm/dd"},
      {"%d %b %Y", DateOrder::DayFirst, "/", "dd/mmm/yyyy"},
      {"%Oy/%Om/%Od", DateOrder::YearFirst, "/", "yyyy/mm/dd"},
  };
  for (const DateFormat& row : rows) {
    Locale locale;
    TakeDateFormat(row.format, locale);
    EXPECT_EQ(locale.dateOrder, row.order) << row.format;
    EXPECT_EQ(locale.dateSeparator, row.separator) << row.format;
    EXPECT_EQ(locale.shortDate, row.shortDate) << row.format;
  }
}

TEST(DateFormats, ThatAreNoThreePartsChangeNothing) {
  for (const char* format : {"", "%", "%d", "%d.%m", "%A %d.%m.%Y", "%x", "plain"}) {
    Locale locale;
    TakeDateFormat(format, locale);
    ExpectDefault(locale);
  }
}

TEST(TimeFormats, GiveSeparatorAndPattern) {
  const std::vector<std::vector<std::string>> rows = {
      {"%H:%M:%S", ":", "hh:nn:ss"},        {"%T", ":", "hh:nn:ss"},
      {"%H.%M.%S", ".", "hh:nn:ss"},        {"%k:%M:%S", ":", "h:nn:ss"},
      {"%-H:%M:%S", ":", "h:nn:ss"},        {"%H時%M分%S秒", ":", "hh:nn:ss"},
      {"%r", ":", "h:nn:ss AM/PM"},         {"%I:%M:%S %p", ":", "h:nn:ss AM/PM"},
      {"%p %I:%M:%S", ":", "h:nn:ss AM/PM"}};
  for (const auto& row : rows) {
    Locale locale;
    TakeTimeFormat(row[0], locale);
    EXPECT_EQ(locale.timeSeparator, row[1]) << row[0];
    EXPECT_EQ(locale.longTime, row[2]) << row[0];
  }
}

}  // namespace
}  // namespace rangewerks::tests
