#include "hosts/libreoffice/formats.h"

#include <algorithm>
#include <com/sun/star/beans/XPropertyState.hpp>
#include <com/sun/star/container/XIndexAccess.hpp>
#include <com/sun/star/sheet/XSheetCellRanges.hpp>
#include <com/sun/star/sheet/XUniqueCellFormatRangesSupplier.hpp>
#include <com/sun/star/util/MalformedNumberFormatException.hpp>
#include <com/sun/star/util/NotNumericException.hpp>
#include <com/sun/star/util/NumberFormat.hpp>
#include <com/sun/star/util/NumberFormatter.hpp>
#include <com/sun/star/util/XNumberFormatsSupplier.hpp>
#include <tuple>

#include "automation/text.h"
#include "hosts/libreoffice/failure.h"

namespace rangewerks::hosts::libreoffice {
namespace {

constexpr const char* kNumberFormat = "NumberFormat";
constexpr const char* kGeneral = "General";

const css::lang::Locale& English() {
  static const css::lang::Locale english(ToUno("en"), ToUno("US"), OUString());
  return english;
}

FormatKind KindOfType(std::int16_t type) {
  namespace types = css::util::NumberFormat;
  if ((type & types::DATETIME) != 0) return FormatKind::Date;
  if ((type & types::TEXT) != 0) return FormatKind::Text;
  if ((type & types::LOGICAL) != 0) return FormatKind::Boolean;
  // A standard format that the user has written is of no interest here: it shows numbers as they
  // are.
  return (type & types::NUMBER) != 0 && (type & ~(types::NUMBER | types::DEFINED)) == 0
             ? FormatKind::General
             : FormatKind::Other;
}

/// Digits with at most one separator: what most cells show, told without asking.
bool IsPlainNumber(const std::string& text) {
  std::size_t separators = 0;
  for (const char c : text) {
    if (c >= '0' && c <= '9') continue;
    if (c == '-' && &c == text.data()) continue;
    if ((c != '.' && c != ',') || ++separators > 1) return false;
  }
  return true;
}

/// The end, one behind, of what stands at `start` in a format and has no letters of its own
/// meaning: a text in quotes, a character that is shown, skipped or repeated, an hour's half.
std::size_t EndOfLiteral(const std::string& format, std::size_t start) {
  for (const std::string_view half : {"AM/PM", "A/P"}) {
    if (format.compare(start, half.size(), half) == 0) return start + half.size();
  }
  switch (format[start]) {
    case '"':
      return std::min(format.find('"', start + 1), format.size() - 1) + 1;
    case '\\':
    case '_':
    case '*':
      return std::min(start + 2, format.size());
    default:
      return start;
  }
}

char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

/// "[RED]" as "[Red]", "[HH]" as "[hh]"; what has "$" in front, a currency, stays.
std::string UsualBrackets(std::string text) {
  if (text.starts_with("[$")) return text;
  const bool isTime = text.find_first_not_of("[HMS]") == std::string::npos;
  for (std::size_t i = isTime ? 1 : 2; i < text.size(); ++i) text[i] = Lower(text[i]);
  return text;
}

/// The office writes the letters of dates and the names of colours large.
std::string UsualSpelling(const std::string& format) {
  if (format == kGeneral) return format;
  std::string usual;
  for (std::size_t i = 0; i < format.size();) {
    std::size_t end = EndOfLiteral(format, i);
    if (end != i) {
      usual += format.substr(i, end - i);
    } else if (format[i] == '[') {
      end = std::min(format.find(']', i), format.size() - 1) + 1;
      usual += UsualBrackets(format.substr(i, end - i));
    } else {
      const bool isDateLetter = std::string_view("YMDHS").find(format[i]) != std::string_view::npos;
      usual += isDateLetter ? Lower(format[i]) : format[i];
      end = i + 1;
    }
    i = end;
  }
  return usual;
}

Reference<css::beans::XPropertySet> PropertiesOf(const Reference<css::uno::XInterface>& cells) {
  return As<css::beans::XPropertySet>(cells);
}

bool IsUniform(const Reference<css::uno::XInterface>& block) {
  return As<css::beans::XPropertyState>(block)->getPropertyState(ToUno(kNumberFormat)) !=
         css::beans::PropertyState_AMBIGUOUS_VALUE;
}

}  // namespace

Formats::Formats(const Reference<css::frame::XModel>& model,
                 const Reference<css::uno::XComponentContext>& context)
    : model_(model), context_(context) {}

const Reference<css::util::XNumberFormats>& Formats::All() {
  if (!all_.is()) all_ = As<css::util::XNumberFormatsSupplier>(model_)->getNumberFormats();
  return all_;
}

const Reference<css::util::XNumberFormatter>& Formats::Reader() {
  if (!reader_.is()) {
    reader_ = As<css::util::XNumberFormatter>(css::util::NumberFormatter::create(context_));
    reader_->attachNumberFormatsSupplier(As<css::util::XNumberFormatsSupplier>(model_));
  }
  return reader_;
}

FormatKind Formats::KindOf(std::int32_t key) {
  if (key == 0) return FormatKind::General;
  if (const auto known = kinds_.find(key); known != kinds_.end()) return known->second;
  const FormatKind kind = KindOfType(Property<std::int16_t>(All()->getByKey(key), "Type"));
  kinds_.emplace(key, kind);
  return kind;
}

FormatKind Formats::KindOfShown(const std::string& shown) {
  if (IsPlainNumber(shown)) return FormatKind::Other;
  try {
    return KindOf(Reader()->detectNumberFormat(0, ToUno(shown)));
  } catch (const css::util::NotNumericException&) {
    return FormatKind::Other;
  }
}

std::optional<bool> Formats::BooleanOf(const std::string& word) {
  if (trueWord_.empty()) {
    const std::int32_t key = KeyOf("BOOLEAN");
    trueWord_ = ToUtf8(Reader()->convertNumberToString(key, 1));
    falseWord_ = ToUtf8(Reader()->convertNumberToString(key, 0));
  }
  if (automation::EqualText(word, trueWord_)) return true;
  if (automation::EqualText(word, falseWord_)) return false;
  return std::nullopt;
}

std::string Formats::TextOf(std::int32_t key) {
  if (key == 0) return kGeneral;
  const auto english = As<css::util::XNumberFormats>(All());
  const auto original = english->getByKey(key);
  const auto locale = Property<css::lang::Locale>(original, "Locale");
  const auto text = Property<OUString>(original, "FormatString");
  const std::int32_t converted = english->addNewConverted(text, locale, English());
  return UsualSpelling(ToUtf8(Property<OUString>(english->getByKey(converted), "FormatString")));
}

std::int32_t Formats::KeyOf(const std::string& text) {
  if (text.empty() || automation::EqualText(text, kGeneral)) return 0;
  if (const auto known = keys_.find(text); known != keys_.end()) return known->second;
  try {
    const std::int32_t key = All()->addNewConverted(ToUno(text), English(), css::lang::Locale());
    keys_.emplace(text, key);
    return key;
  } catch (const css::util::MalformedNumberFormatException&) {
    Fail("\"" + text + "\" is no number format");
  }
}

std::int32_t FormatKeyOf(const Reference<css::uno::XInterface>& cells) {
  return Property<std::int32_t>(PropertiesOf(cells), kNumberFormat);
}

void PutFormatKey(const Reference<css::uno::XInterface>& cells, std::int32_t key) {
  PropertiesOf(cells)->setPropertyValue(OUString::createFromAscii(kNumberFormat), Any(key));
}

std::vector<FormattedArea> FormatsOf(Sheet& sheet, const Area& area) {
  const auto block = sheet.Block(area);
  if (area.IsOneCell() || IsUniform(block)) return {{area, FormatKeyOf(block)}};
  std::vector<FormattedArea> parts;
  const auto groups =
      As<css::sheet::XUniqueCellFormatRangesSupplier>(block)->getUniqueCellFormatRanges();
  for (std::int32_t i = 0; i < groups->getCount(); ++i) {
    const auto group = Extract<Reference<css::sheet::XSheetCellRanges>>(groups->getByIndex(i));
    const std::int32_t key = FormatKeyOf(group);
    const auto addresses = group->getRangeAddresses();
    for (const auto& each : Elements(addresses)) {
      parts.push_back({AreaOf(each), key});
    }
  }
  return parts;
}

}  // namespace rangewerks::hosts::libreoffice
