#include "systems/windows/windows_system.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <array>
#include <filesystem>
#include <string>
#include <vector>

#include "automation/conversions.h"
#include "automation/error.h"
#include "automation/object.h"
#include "support/error_of.h"
#include "systems/windows/locale_facts.h"
#include "systems/windows/user_name.h"

namespace rangewerks::tests {
namespace {

using automation::DateOf;
using automation::DateOrder;
using automation::Locale;
using systems::DatePatternOf;
using systems::ReadLocale;
using systems::TimePatternOf;
using systems::UserNameIn;
using systems::WindowsSystem;

TEST(WindowsSystem, NamesTheProgramThatItIsLinkedInto) {
  const std::filesystem::path file = WindowsSystem().LibraryFile();
  EXPECT_TRUE(file.is_absolute());
  EXPECT_EQ(file.filename(), "test_systems.exe");
  EXPECT_TRUE(std::filesystem::exists(file));
}

TEST(WindowsSystem, KnowsThePersonByTheNameOfTheAccount) {
  std::array<char, 256> account{};
  DWORD size = account.size();
  ASSERT_NE(GetUserNameA(account.data(), &size), 0);
  EXPECT_EQ(WindowsSystem().LoggedOnUser(), std::string(account.data()));
  EXPECT_EQ(WindowsSystem().AccountName(), account.data());
}

TEST(WindowsSystem, MakesObjectsAsItsMakerDoes) {
  std::string asked;
  const WindowsSystem system([&](const std::string& progId) {
    asked = progId;
    return automation::Object();
  });
  EXPECT_FALSE(system.CreateObject("Outlook.Application"));
  EXPECT_EQ(asked, "Outlook.Application");
}

TEST(WindowsSystem, MakesNoObjectWithoutAMakerOrWhenItFails) {
  EXPECT_EQ(ErrorOf([] { WindowsSystem().CreateObject("Any.Thing"); }).Number(), 429);
  const WindowsSystem failing([](const std::string& /*progId*/) -> automation::Object {
    throw automation::Error(1004, "Server", "busy");
  });
  const automation::Error error = ErrorOf([&] { failing.CreateObject("Any.Thing"); });
  EXPECT_EQ(error.Number(), 429);
  EXPECT_EQ(error.Description(), "ActiveX component can't create object");
}

TEST(WindowsSystem, TellsFilesFromFoldersAndFromNothing) {
  const WindowsSystem system;
  EXPECT_TRUE(system.FileExists(system.LibraryFile()));
  EXPECT_FALSE(
      system.FileExists(std::filesystem::path(system.LibraryFile()).parent_path().string()));
  EXPECT_FALSE(system.FileExists("C:\\no such file"));
  EXPECT_FALSE(system.FileExists(""));
}

TEST(WindowsSystem, StartsAProgramAndFailsWhenItCant) {
  const WindowsSystem system;
  EXPECT_NO_THROW(system.StartProgram("C:\\windows\\system32\\hostname.exe"));
  for (const char* path : {"C:\\no such program.exe", "C:\\windows", ""}) {
    EXPECT_TRUE(
        ErrorOf([&] { system.StartProgram(path); }).Is(automation::ErrorNumber::FileNotFound))
        << path;
  }
}

/// What a call leaves in a buffer of 256 blanks.
std::string BufferWith(std::string_view name) {
  std::string buffer(256, ' ');
  buffer.replace(0, name.size() + 1, std::string(name) + '\0');
  return buffer;
}

TEST(UserName, EndsAtTheNulThatTheCallLeft) {
  EXPECT_EQ(UserNameIn(BufferWith("maria")), "maria");
  EXPECT_EQ(UserNameIn(BufferWith("")), "");
}

TEST(UserName, LosesBlanksInFrontButKeepsThoseBeforeTheNul) {
  EXPECT_EQ(UserNameIn(BufferWith("  maria lopez  ")), "maria lopez  ");
}

TEST(UserName, MayFillTheBuffer) {
  const std::string name(255, 'x');
  EXPECT_EQ(UserNameIn(BufferWith(name)), name);
}

TEST(UserName, IsReadInTheCodePageOfTheSystem) {
  if (GetACP() != 1252) GTEST_SKIP() << "the code page here isn't 1252";
  EXPECT_EQ(UserNameIn(BufferWith("J\xF6rg")), "Jörg");
}

TEST(WindowsLocale, OfThePersonIsTheOneThatTheSystemNames) {
  std::array<wchar_t, LOCALE_NAME_MAX_LENGTH> name{};
  ASSERT_NE(GetUserDefaultLocaleName(name.data(), static_cast<int>(name.size())), 0);
  const Locale named = ReadLocale(name.data());
  const Locale locale = WindowsSystem().CurrentLocale();
  EXPECT_EQ(locale.decimalSeparator, named.decimalSeparator);
  EXPECT_EQ(locale.shortDate, named.shortDate);
  EXPECT_EQ(locale.monthNames, named.monthNames);
}

/// A setting of the person's for the length of a test.
class PersonalFact {
 public:
  PersonalFact(LCTYPE type, const wchar_t* value) : type_(type) {
    GetLocaleInfoW(LOCALE_USER_DEFAULT, type, before_.data(), static_cast<int>(before_.size()));
    SetLocaleInfoW(LOCALE_USER_DEFAULT, type, value);
  }
  PersonalFact(const PersonalFact&) = delete;
  PersonalFact& operator=(const PersonalFact&) = delete;
  ~PersonalFact() { SetLocaleInfoW(LOCALE_USER_DEFAULT, type_, before_.data()); }

 private:
  LCTYPE type_;
  std::array<wchar_t, 80> before_{};
};

TEST(WindowsLocale, OfThePersonHasWhatTheyHaveChanged) {
  const PersonalFact separator(LOCALE_SDECIMAL, L"·");
  const PersonalFact date(LOCALE_SSHORTDATE, L"yy-MM-dd");
  const Locale locale = WindowsSystem().CurrentLocale();
  EXPECT_EQ(locale.decimalSeparator, "·");
  EXPECT_EQ(automation::ToString(DateOf(2024, 1, 5), locale), "24-01-05");
}

TEST(WindowsLocale, OfTheUnitedStatesIsTheDefault) {
  const Locale standard;
  const Locale locale = ReadLocale(L"en-US");
  EXPECT_EQ(locale.decimalSeparator, ".");
  EXPECT_EQ(locale.thousandsSeparator, ",");
  EXPECT_EQ(locale.listSeparator, ",");
  EXPECT_EQ(locale.currencySymbol, "$");
  EXPECT_EQ(locale.dateOrder, DateOrder::MonthFirst);
  EXPECT_EQ(locale.dateSeparator, "/");
  EXPECT_EQ(locale.timeSeparator, ":");
  EXPECT_EQ(locale.shortDate, "m/d/yyyy");
  EXPECT_EQ(locale.longTime, "h:nn:ss AM/PM");
  EXPECT_EQ(locale.monthNames, standard.monthNames);
  EXPECT_EQ(locale.shortMonthNames, standard.shortMonthNames);
  EXPECT_EQ(locale.dayNames, standard.dayNames);
  EXPECT_EQ(locale.shortDayNames, standard.shortDayNames);
}

TEST(WindowsLocale, OfGermanyWritesTheDayFirst) {
  const Locale locale = ReadLocale(L"de-DE");
  EXPECT_EQ(locale.decimalSeparator, ",");
  EXPECT_EQ(locale.thousandsSeparator, ".");
  EXPECT_EQ(locale.listSeparator, ";");
  EXPECT_EQ(locale.currencySymbol, "€");
  EXPECT_EQ(locale.dateOrder, DateOrder::DayFirst);
  EXPECT_EQ(locale.dateSeparator, ".");
  EXPECT_EQ(locale.timeSeparator, ":");
  EXPECT_EQ(locale.shortDate, "d/m/yyyy");
  EXPECT_EQ(locale.longTime, "hh:nn:ss");
  EXPECT_EQ(locale.monthNames[2], "März");
  EXPECT_EQ(locale.monthNames[11], "Dezember");
  EXPECT_EQ(locale.shortMonthNames[9], "Okt");
  EXPECT_EQ(locale.dayNames[0], "Sonntag");
  EXPECT_EQ(locale.dayNames[1], "Montag");
  EXPECT_EQ(locale.shortDayNames[6].substr(0, 2), "Sa");  // some versions add a full stop
  EXPECT_EQ(automation::ToString(DateOf(2024, 1, 5), locale), "5.1.2024");
  EXPECT_EQ(automation::ToDouble("1.234,56", locale), 1234.56);
}

TEST(WindowsLocale, OfSwedenWritesTheYearFirst) {
  const Locale locale = ReadLocale(L"sv-SE");
  EXPECT_EQ(locale.decimalSeparator, ",");
  EXPECT_EQ(locale.thousandsSeparator, "\u00A0");
  EXPECT_EQ(locale.listSeparator, ";");
  EXPECT_EQ(locale.currencySymbol, "kr");
  EXPECT_EQ(locale.dateOrder, DateOrder::YearFirst);
  EXPECT_EQ(locale.dateSeparator, "-");
  EXPECT_EQ(locale.timeSeparator, ":");
  EXPECT_EQ(locale.shortDate, "yyyy/mm/dd");
  EXPECT_EQ(locale.longTime, "hh:nn:ss");
  EXPECT_EQ(locale.monthNames[4], "maj");
  EXPECT_EQ(locale.shortMonthNames[0].substr(0, 3), "jan");
  EXPECT_EQ(locale.dayNames[0], "söndag");
  EXPECT_EQ(locale.shortDayNames[6], "lör");
  EXPECT_EQ(automation::ToString(DateOf(2024, 1, 5), locale), "2024-01-05");
}

TEST(WindowsLocale, ThatTheSystemDoesntKnowIsTheDefault) {
  const Locale standard;
  const Locale locale = ReadLocale(L"not a locale");
  EXPECT_EQ(locale.decimalSeparator, ".");
  EXPECT_EQ(locale.dateOrder, DateOrder::MonthFirst);
  EXPECT_EQ(locale.lastTwoDigitYear, 2029);
  EXPECT_EQ(locale.shortDate, "m/d/yyyy");
  EXPECT_EQ(locale.longTime, "h:nn:ss AM/PM");
  EXPECT_EQ(locale.monthNames, standard.monthNames);
  EXPECT_EQ(locale.dayNames, standard.dayNames);
}

TEST(DatePictures, BecomePatterns) {
  const std::vector<std::vector<std::string>> rows = {
      {"M/d/yyyy", "/", "m/d/yyyy"},
      {"dd.MM.yy", ".", "dd/mm/yy"},
      {"d.MM.y", ".", "d/mm/yy"},
      {"yyyyy-MM-dd", "-", "yyyy/mm/dd"},
      {"yyyy. MM. dd.", ". ", "yyyy/mm/dd."},
      {"d.MM.yyyy 'г'.", ".", "d/mm/yyyy г/"},
      {"gg yyyy/M/d", "/", " yyyy/m/d"},
      {"yyyy年M月d日", "/", "yyyy年m月d日"},
      {"dddd, d 'de' MMMM 'de' yyyy", "/", R"(dddd, d \d\e mmmm \d\e yyyy)"},
      {"d 'o''clock' MMM", "/", R"(d \o'\c\l\o\c\k mmm)"},
      {R"(d"M\yyyy)", "/", R"(d\"m\\yyyy)"},
      {"d/M/yyyy", ".", R"(d\/m\/yyyy)"},
      {"d'unclosed", "/", R"(d\u\n\c\l\o\s\e\d)"},
      {"", "/", ""},
  };
  for (const auto& row : rows) EXPECT_EQ(DatePatternOf(row[0], row[1]), row[2]) << row[0];
}

TEST(TimePictures, BecomePatterns) {
  const std::vector<std::vector<std::string>> rows = {
      {"h:mm:ss tt", ":", "h:nn:ss AM/PM"},  {"HH:mm:ss", ":", "hh:nn:ss"},
      {"H.mm.ss", ".", "h:nn:ss"},           {"tt h:mm:ss", ":", "AM/PM h:nn:ss"},
      {"hh:mm:ss t", ":", "hh:nn:ss AM/PM"}, {"HH:mm:ss tt", ":", "hh:nn:ss "},
      {"H:mm:ss 'ч'.", ":", "h:nn:ss ч."},   {"HH'h'mm", ":", R"(hh\hnn)"}};
  for (const auto& row : rows) EXPECT_EQ(TimePatternOf(row[0], row[1]), row[2]) << row[0];
}

}  // namespace
}  // namespace rangewerks::tests
