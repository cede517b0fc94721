#include "windows/conversion_texts.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <limits>
#include <random>

namespace rangewerks::tests {
namespace {

using Texts = std::vector<std::string>;

/// Collects texts; a text that comes twice is kept once.
class Collector {
 public:
  void Add(std::string text) { texts_.push_back(std::move(text)); }
  void Add(const Texts& texts) { texts_.insert(texts_.end(), texts.begin(), texts.end()); }

  Texts Take() && {
    std::sort(texts_.begin(), texts_.end());
    texts_.erase(std::unique(texts_.begin(), texts_.end()), texts_.end());
    return std::move(texts_);
  }

 private:
  Texts texts_;
};

/// Every beginning with every middle and every end.
Texts Combine(const Texts& beginnings, const Texts& middles, const Texts& ends) {
  Texts texts;
  for (const auto& beginning : beginnings) {
    for (const auto& middle : middles) {
      for (const auto& end : ends) {
        std::string text = beginning;
        texts.push_back(text.append(middle).append(end));
      }
    }
  }
  return texts;
}

const Texts& Bodies() {
  static const Texts bodies = {
      "0", "7", "00012", "123456789012345", "12345678901234567890123", "0.1", "0,1",
      // separators in right and wrong places
      ".", ",", ".5", ",5", "5.", "5,", "1.5", "1,5", "1..5", "1,,5", "1.,5", "1,.5", "1.2.3",
      "1,2,3", "1,234", "1.234", "1,234.5", "1.234,5", "1,234,567.89", "1.234.567,89", "12,34.5",
      "12.34,5", ",234", ".234", "1234,", "1 5", "1 234", "1 234,5", "1 234.5", "1  2",
      "1\u00A0234", "1\u00A0234,5", "1\u202F234", "1\u202F234,5", "\u00A0234", "1'234", "1'234.5",
      "1_000", "1\t2",
      // exponents
      "1e5", "1E5", "1e+5", "1E-5", "1d5", "1D-5", "1e", "1e+", "e5", "1e5.5", "1e5,5", "1e5e5",
      "1 e5", "1e 5", "1.5e3", "1,5e3", "1e05", "1e+005", "1f5"};
  return bodies;
}

Texts Surrounded() {
  const Texts before = {"",   "-",  "+",  " ",  "- ", "--", "+-", "(",      "( ",     "((", "$",
                        "€",  "£",  "-$", "$-", "-€", "€-", "$ ", "€ ",     "$(",     "($", "€(",
                        "(€", "(-", "-(", "%",  "\t", "#",  "F",  "\u2212", "\u00A0", "'",  "="};
  const Texts after = {"",  "-",  "+",  " ",  " -",   ")",      " )",      "))", "$", " $",
                       "€", " €", "€-", "-€", ")€",   "€)",     "-)",      ")-", "%", " %",
                       "x", "F",  " F", "\t", "\r\n", "\u00A0", "\u00A0€", "'",  "--"};
  return Combine(before, {"7", "1.5", "1,5", "1,234.5", "1.234,5", "1 234", ""}, after);
}

Texts BitPatterns() {
  Texts digits = {"",
                  "0",
                  "10",
                  "fF",
                  "7F",
                  "80",
                  "FF",
                  "7FFF",
                  "8000",
                  "FFFF",
                  "10000",
                  "12345",
                  "7FFFFFFF",
                  "80000000",
                  "FFFFFFFF",
                  "100000000",
                  "7FFFFFFFFFFFFFFF",
                  "8000000000000000",
                  "FFFFFFFFFFFFFFFF",
                  "10000000000000000",
                  "00000000000000000000F",
                  "G",
                  "1G",
                  "1.5",
                  "1,5",
                  "1 0",
                  "-1",
                  "17",
                  "18",
                  "177777",
                  "200000",
                  "37777777777",
                  "40000000000",
                  "777777777777777777777",
                  "1777777777777777777777",
                  "2000000000000000000000"};
  return Combine({"&H", "&h", "&O", "&o", "&", "-&H", " &H", "$&H", "&h ", "0x"}, digits,
                 {"", " ", "&", "-"});
}

/// Where integers of 8, 16, 32 and 64 bits end.
Texts IntegerBorders() {
  return Combine({"", "-"},
                 {"127",
                  "128",
                  "255",
                  "256",
                  "32766",
                  "32767",
                  "32768",
                  "32769",
                  "65535",
                  "65536",
                  "2147483646",
                  "2147483647",
                  "2147483648",
                  "2147483649",
                  "4294967295",
                  "4294967296",
                  "9223372036854775807",
                  "9223372036854775808",
                  "18446744073709551615",
                  "18446744073709551616",
                  "79228162514264337593543950335",
                  "79228162514264337593543950336"},
                 {"", ".4", ".5", ".50001", ".6", ",4", ",5", ",6", "e0", "-"});
}

Texts Exponents() {
  Texts texts;
  for (const int exponent :
       {-1000000, -400, -330, -325, -324, -323, -322, -310, -308, -307, -100, -30,
        -29,      -28,  -27,  -16,  -15,  -14,  -5,   -4,   -3,   -1,   0,    1,
        2,        4,    9,    10,   14,   15,   16,   17,   20,   21,   22,   23,
        24,       27,   28,   29,   30,   100,  307,  308,  309,  310,  400,  1000000}) {
    for (const char* digits : {"1", "4.9", "5", "9", "1.7976931348623157", "1.7976931348623159",
                               "-1", "0", "123456789", "1.23456789012345678"}) {
      texts.push_back(std::string(digits) + "e" + std::to_string(exponent));
    }
  }
  return texts;
}

/// Amounts of money with two places, and long fractions.
Texts Amounts() {
  std::mt19937 random(20240131);  // the same in every run
  Texts texts;
  for (int i = 0; i < 300; ++i) {
    const std::string whole = std::to_string(random() % 10'000'000);
    const std::string cents = std::to_string(10 + random() % 90);
    texts.push_back(whole + "." + cents);
    texts.push_back(whole + "," + cents);
  }
  for (int digits = 1; digits <= 40; ++digits) {
    const auto count = static_cast<std::size_t>(digits);
    texts.push_back("0." + std::string(count, '3'));
    texts.push_back("0," + std::string(count, '6'));
    texts.push_back(std::string(count, '9'));
    texts.push_back("1" + std::string(count, '0'));
    texts.push_back("0." + std::string(count, '0') + "1");
  }
  return texts;
}

const Texts& DateSeparators() {
  static const Texts separators = {"/",  "-",  ".", " ", ",", ", ", " / ", ". ",
                                   "//", "\\", "_", ":", "",  "--", " - "};
  return separators;
}

std::string Join(const Texts& parts, const std::string& separator) {
  std::string text;
  for (std::size_t i = 0; i < parts.size(); ++i)
    text.append(i == 0 ? "" : separator).append(parts[i]);
  return text;
}

/// Numbers in every order that stands for a day, and in orders that stand for none.
Texts NumberedDays() {
  const std::vector<Texts> days = {{"1", "2", "2024"},
                                   {"01", "02", "2024"},
                                   {"31", "12", "2024"},
                                   {"12", "31", "2024"},
                                   {"2024", "01", "31"},
                                   {"2024", "31", "01"},
                                   {"2024", "1", "2"},
                                   {"1", "2", "24"},
                                   {"31", "12", "99"},
                                   {"12", "31", "00"},
                                   {"24", "12", "13"},
                                   {"12", "13", "14"},
                                   {"13", "14", "15"},
                                   {"99", "12", "31"},
                                   {"32", "01", "24"},
                                   {"1", "2", "3"},
                                   {"29", "02", "2024"},
                                   {"29", "02", "2023"},
                                   {"2", "29", "2024"},
                                   {"2", "29", "2023"},
                                   {"29", "2", "00"},
                                   {"29", "2", "1900"},
                                   {"30", "2", "2024"},
                                   {"31", "4", "2024"},
                                   {"32", "1", "2024"},
                                   {"0", "1", "2024"},
                                   {"1", "0", "2024"},
                                   {"13", "13", "2024"},
                                   {"1", "1", "100"},
                                   {"1", "1", "0099"},
                                   {"1", "1", "99"},
                                   {"1", "1", "0"},
                                   {"1", "1", "9999"},
                                   {"1", "1", "10000"},
                                   {"31", "12", "9999"},
                                   {"001", "1", "2024"},
                                   {"12", "2024", "31"},
                                   {"2024", "00", "10"},
                                   {"2024", "2", "30"},
                                   {"1", "2", "3", "4"},
                                   {"1", "2", "2024", "3"},
                                   {"5", "2024"},
                                   {"2024", "5"},
                                   {"1", "2"},
                                   {"31", "12"},
                                   {"12", "31"},
                                   {"13", "13"},
                                   {"2", "30"},
                                   {"30", "2"},
                                   {"5", "45"},
                                   {"45", "5"},
                                   {"5", "99"},
                                   {"5", "0"},
                                   {"13", "2024"},
                                   {"5", "100"},
                                   {"1", "32"},
                                   {"5", "006"},
                                   {"2024"},
                                   {"31"}};
  Collector texts;
  for (const Texts& day : days) {
    for (const auto& separator : DateSeparators()) texts.Add(Join(day, separator));
  }
  return std::move(texts).Take();
}

Texts TwoDigitYears() {
  Texts texts;
  for (int year = 0; year < 100; ++year) {
    const std::string digits = (year < 10 ? "0" : "") + std::to_string(year);
    texts.push_back("1/2/" + digits);
    texts.push_back("Jan " + digits);
    texts.push_back("3 Jan " + digits);
    texts.push_back("1/" + digits);
  }
  return texts;
}

const Texts& MonthNames() {
  static const Texts names = {
      "Jan",      "January",  "JANUARY",  "jan",    "Jan.",   "Janu",      "J",       "Feb",
      "February", "Mar",      "March",    "April",  "May",    "June",      "Jun.",    "July",
      "August",   "Aug",      "Sep",      "Sept",   "Sept.",  "September", "Oct",     "October",
      "November", "Dec",      "December", "Dec.",   "Januar", "Februar",   "März",    "MÄRZ",
      "märz",     "Mär",      "Mai",      "Juni",   "Juli",   "Okt",       "Oktober", "Dez",
      "Dez.",     "Dezember", "janvier",  "janv.",  "janv",   "février",   "FÉVRIER", "févr.",
      "fevrier",  "mars",     "avril",    "avr.",   "mai",    "juin",      "juillet", "juil.",
      "juil",     "août",     "AOÛT",     "aout",   "sept.",  "septembre", "octobre", "novembre",
      "décembre", "déc.",     "XYZ",      "Monday", "Mon"};
  return names;
}

Texts NamedDays() {
  Collector texts;
  for (const auto& name : MonthNames()) {
    texts.Add({"5 " + name + " 2024", name + " 5 2024", name + " 5, 2024", "5. " + name + " 2024",
               "2024 " + name + " 5", name + " 2024", "5 " + name});
  }
  for (const char* name : {"Jan", "January", "Feb"}) {
    for (const auto& separator : DateSeparators()) {
      for (const Texts& parts : std::initializer_list<Texts>{
               {"5", name, "2024"}, {name, "5", "2024"},   {"2024", name, "5"},
               {"2024", "5", name}, {"5", "2024", name},   {"5", name, "24"},
               {name, "5", "24"},   {"5", "6", name},      {"31", name, "24"},
               {"45", name, "24"},  {name, "2024"},        {"2024", name},
               {"5", name},         {name, "5"},           {"30", name},
               {name, "45"},        {name, "0"},           {name},
               {name, name},        {name, "Mar", "2024"}, {"5", name, "6", "2024"}}) {
        texts.Add(Join(parts, separator));
      }
    }
  }
  texts.Add({"Monday, 1 January 2024", "Mon 1 Jan 2024", "Monday", "1st Jan 2024", "1 Jan 2024 AD",
             "the 5 Jan 2024", "January the 5 2024", "Montag, 1. Januar 2024",
             "lundi 1 janvier 2024"});
  return std::move(texts).Take();
}

const Texts& Times() {
  static const Texts times = {
      "13:45",        "13:45:30",    "1:5",        "1:5:9",     "01:05",    "0:00",    "00:00:00",
      "12:00",        "23:59:59",    "24:00",      "24:00:00",  "25:00",    "13:60",   "13:45:60",
      "13:45:30.5",   "13:45:30:15", "13:",        ":45",       "13:45:",   "-1:00",   "111:00",
      "1:111",        "001:05",      "13.45",      "13.45.30",  "13,45",    "13-45",   "13 45",
      "13 : 45",      "13: 45",      "1:45 PM",    "1:45PM",    "1:45pm",   "1:45 Pm", "1:45:30 am",
      "1:45 p",       "1:45p",       "1:45 a",     "1:45 p.m.", "PM 1:45",  "1 PM 45", "12:00 AM",
      "12:30 PM",     "12 AM",       "12AM",       "0:30 AM",   "0:30 PM",  "0 AM",    "13:45 PM",
      "13:45 AM",     "13 PM",       "3 PM",       "3PM",       "3pm",      "3 P",     "3 XM",
      "3 PM PM",      "3 AM PM",     "PM",         "AM",        "1:45 Uhr", "13h45",   "13:45Z",
      "1:45\u00A0PM", "12:60 PM",    "11:59:59 PM"};
  return times;
}

Texts DaysWithTimes() {
  const Texts days = {"12/31/2024", "31/12/2024",      "31.12.2024", "2024-12-31",
                      "5 Jan 2024", "January 5, 2024", "1/2",        "31 12 2024",
                      "1/2/24",     "29/02/2023",      "Jan 2024"};
  Collector texts;
  texts.Add(
      Combine(days, {" ", "  ", "T", ", ", "\t", ""}, {"13:45", "1:45:30 PM", "3 PM", "24:00"}));
  texts.Add(Combine(days, {" "}, Times()));
  texts.Add(Combine({"13:45", "1:45:30 PM", "3 PM", "24:00"}, {" ", "  ", ", "}, days));
  texts.Add(
      Combine({"12/31/2024 13:45", "13:45 12/31/2024"}, {" "}, {"x", "5", "13:45", "1/2/2024"}));
  return std::move(texts).Take();
}

Texts OddlySurroundedDays() {
  return Combine({"", " ", "\t", "-", "/", ".", ",", "x", "(", "'", "\u00A0", "\r\n"},
                 {"12/31/2024", "31.12.2024", "2024-12-31", "5 Jan 2024", "13:45", "1/2", "1.2."},
                 {"", " ", "\t", "/", "-", ".", ",", "x", ")", ";", "\u00A0", "\r\n", "-1", "e5"});
}

}  // namespace

Texts NumberTexts() {
  Collector texts;
  texts.Add(Combine({"", "-", "+", " ", "$", "€", "("}, Bodies(), {"", "-", " ", "$", " €", ")"}));
  texts.Add(Surrounded());
  texts.Add(BitPatterns());
  texts.Add(IntegerBorders());
  texts.Add(Exponents());
  texts.Add(Amounts());
  return std::move(texts).Take();
}

Texts DateTexts() {
  Collector texts;
  texts.Add(NumberedDays());
  texts.Add(TwoDigitYears());
  texts.Add(NamedDays());
  texts.Add(Times());
  texts.Add(DaysWithTimes());
  texts.Add(OddlySurroundedDays());
  return std::move(texts).Take();
}

Texts OtherTexts() {
  Collector texts;
  texts.Add(Combine({"", " ", "#"},
                    {"True", "False", "TRUE", "false", "tRuE", "Wahr", "Falsch", "Vrai", "Faux",
                     "Yes", "No", "Y", "N", "on", "off", "T"},
                    {"", " ", "#"}));
  texts.Add({"",        " ",        "   ",     "\t",       "\r\n",     "abc",    "12abc",
             "abc12",   "N/A",      "#N/A",    "#DIV/0!",  "inf",      "-inf",   "nan",
             "NaN",     "Infinity", "1.#INF",  "1.#QNAN",  "null",     "empty",  "１２",
             "١٢",      "½",        "²",       "Ⅻ",        "1２",      "五",     "\u200B5",
             "5\u200B", "1e1０",    "+",       "-",        "*",        "/",      "1/2/３",
             "1+1",     "=1+1",     "5 5 5",   "A1",       "0b1",      "1L",     "1.5f",
             "1i",      "1%",       "10 %",    "USD 5",    "5 EUR",    "EUR 5",  "DM 5",
             "5 h",     "45000",    "45000.5", "45322,25", "20240131", "311224", "31122024"});
  return std::move(texts).Take();
}

std::vector<double> BorderNumbers() {
  std::vector<double> numbers;
  const auto addBoth = [&](double value) {
    numbers.push_back(value);
    numbers.push_back(-value);
  };
  for (int exponent = -320; exponent <= 308; ++exponent) {
    const double power = std::pow(10.0, exponent);
    for (const double factor : {1.0, 1.5, 9.99999999999999, 9.9999999999999949, 1.23456789012345}) {
      addBoth(power * factor);
    }
    addBoth(std::nextafter(power, 0.0));
    addBoth(std::nextafter(power, std::numeric_limits<double>::max()));
  }
  for (int bits = -60; bits <= 70; ++bits) {
    const double power = std::ldexp(1.0, bits);
    for (const double value : {power, power - 1, power + 1, power - 0.5, power + 0.5})
      addBoth(value);
  }
  for (int i = 0; i <= 40; ++i) {
    addBoth(i + 0.5);
    addBoth(i / 3.0);
    addBoth(i / 100.0);
  }
  std::mt19937 random(31012024);  // the same in every run
  for (int i = 0; i < 3000; ++i) {
    addBoth(static_cast<double>(random() % 1'000'000'000) / 100.0);  // amounts of money
    addBoth(static_cast<double>(random()) * 4294967296.0 + random());
    addBoth((static_cast<double>(random()) + random() / 4294967296.0) / 1e6);
  }
  for (const double value : {32767.0, 32768.0, 32769.0, 2147483647.0, 2147483648.0, 2147483649.0}) {
    for (const double off : {-1.0, -0.51, -0.5, -0.49, 0.0, 0.49, 0.5, 0.51, 1.0})
      addBoth(value + off);
  }
  addBoth(std::numeric_limits<double>::infinity());
  addBoth(std::numeric_limits<double>::quiet_NaN());
  return numbers;
}

std::vector<double> BorderDates() {
  std::vector<double> dates;
  for (const double day : {-657434.0, -328718.0, -328716.0, -36522.0, -3.0, -1.0, 0.0, 1.0, 2.0,
                           60.0, 61.0, 36526.0, 45322.0, 45351.0, 73050.0, 2958465.0}) {
    for (int second = 0; second < 86400; second += 977) {
      const double fraction = second / 86400.0;
      dates.push_back(day < 0 ? day - fraction : day + fraction);
    }
  }
  for (double day = -300000; day < 300000; day += 991) dates.push_back(day);
  const double second = 1.0 / 86400;
  for (const double day :
       {-657434.75, 45322 + 0.4 * second, 45322 + 0.6 * second, 45323 - 0.4 * second,
        45323 - 0.6 * second, -1 - 86399.6 * second, 2958465 + 86399.6 * second, 2958466.0,
        -657435.0, 1e300, 0.1, 0.7, -0.25, -0.75}) {
    dates.push_back(day);
  }
  return dates;
}

Texts DatePatterns() {
  return {"dd/mm/yyyy",
          "mm/dd/yyyy",
          "yyyy/mm/dd",
          "dd",
          "mm",
          "yy",
          "d",
          "m",
          "ddd",
          "dddd",
          "mmm",
          "mmmm",
          "yyyy",
          "h",
          "hh",
          "n",
          "nn",
          "s",
          "ss",
          "hh:nn:ss",
          "h:nn:ss AM/PM",
          "am/pm hh",
          "hh:mm",
          "hhmm",
          "mm hh",
          "hh:ss mm",
          "DD/MM/YYYY",
          "dddd, d. mmmm yyyy",
          "dd-mm-yy",
          "yyyy\\-mm\\-dd",
          "\"day\" d",
          "\\d d",
          "d mmm yyyy hh:nn",
          "ddmmyy",
          "hhnnss"};
}

}  // namespace rangewerks::tests
