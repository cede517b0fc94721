#include "hosts/libreoffice/user_properties.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <com/sun/star/beans/PropertyAttribute.hpp>
#include <com/sun/star/document/XDocumentPropertiesSupplier.hpp>
#include <com/sun/star/util/Date.hpp>
#include <com/sun/star/util/DateTime.hpp>

#include "automation/conversions.h"
#include "automation/text.h"
#include "hosts/libreoffice/failure.h"

namespace rangewerks::hosts::libreoffice {
namespace {

using automation::Date;
using automation::Locale;
using automation::Variant;
using std::chrono::days;
using std::chrono::sys_days;

constexpr sys_days kFirstDay{std::chrono::year(1899) / 12 / 30};
constexpr std::int64_t kSecondsOfMinute = 60;
constexpr std::int64_t kSecondsOfHour = 60 * kSecondsOfMinute;
constexpr std::int64_t kSecondsOfDay = 24 * kSecondsOfHour;

Date FromOffice(const css::util::DateTime& time) {
  const auto seconds = static_cast<double>(time.Hours * kSecondsOfHour +
                                           time.Minutes * kSecondsOfMinute + time.Seconds);
  return {automation::DateOf(time.Year, time.Month, time.Day).serial +
          seconds / static_cast<double>(kSecondsOfDay)};
}

css::util::DateTime ToOffice(Date date, const std::string& name) {
  if (date.serial < 0) {
    Fail("The document property \"" + name + "\" can't hold a date before 30 December 1899");
  }
  const auto all =
      static_cast<std::int64_t>(std::llround(date.serial * static_cast<double>(kSecondsOfDay)));
  const std::chrono::year_month_day day(kFirstDay + days(all / kSecondsOfDay));
  const std::int64_t left = all % kSecondsOfDay;
  css::util::DateTime time;
  time.Year = static_cast<std::int16_t>(static_cast<int>(day.year()));
  time.Month = static_cast<std::uint16_t>(static_cast<unsigned>(day.month()));
  time.Day = static_cast<std::uint16_t>(static_cast<unsigned>(day.day()));
  time.Hours = static_cast<std::uint16_t>(left / kSecondsOfHour);
  time.Minutes = static_cast<std::uint16_t>(left % kSecondsOfHour / kSecondsOfMinute);
  time.Seconds = static_cast<std::uint16_t>(left % kSecondsOfMinute);
  return time;
}

PropertyType TypeOfValue(const Any& value) {
  switch (value.getValueTypeClass()) {
    case css::uno::TypeClass_BOOLEAN:
      return PropertyType::Boolean;
    case css::uno::TypeClass_STRING:
      return PropertyType::String;
    case css::uno::TypeClass_STRUCT:
      return PropertyType::Date;
    case css::uno::TypeClass_BYTE:
    case css::uno::TypeClass_SHORT:
    case css::uno::TypeClass_LONG:
      return PropertyType::Number;
    default:
      return PropertyType::Float;
  }
}

Variant ToVariant(const Any& value) {
  switch (TypeOfValue(value)) {
    case PropertyType::Boolean:
      return Extract<bool>(value);
    case PropertyType::String:
      return ToUtf8(Extract<OUString>(value));
    case PropertyType::Number:
      return static_cast<std::int32_t>(Extract<sal_Int32>(value));
    case PropertyType::Float:
      return Extract<double>(value);
    case PropertyType::Date:
      break;
  }
  if (css::util::Date day; value >>= day) return automation::DateOf(day.Year, day.Month, day.Day);
  return FromOffice(Extract<css::util::DateTime>(value));
}

Any ToAny(const Variant& value, PropertyType type, const std::string& name) {
  const Locale& locale = Locale::Current();
  switch (type) {
    case PropertyType::Number:
      return Any(static_cast<sal_Int32>(ToLong(value, locale)));
    case PropertyType::Boolean:
      return Any(ToBoolean(value, locale));
    case PropertyType::Date:
      return Any(ToOffice(ToDate(value, locale), name));
    case PropertyType::Float:
      return Any(ToDouble(value, locale));
    case PropertyType::String:
      return Any(ToUno(ToString(value, locale)));
  }
  Fail(
      "A document property is of the type 1 (number), 2 (boolean), 3 (date), 4 (text) or 5 "
      "(number with decimals), not " +
      std::to_string(static_cast<std::int32_t>(type)));
}

}  // namespace

UserProperties::UserProperties(Book& book)
    : book_(&book),
      container_(As<css::document::XDocumentPropertiesSupplier>(book.Model())
                     ->getDocumentProperties()
                     ->getUserDefinedProperties()),
      values_(As<css::beans::XPropertySet>(container_)) {}

std::vector<std::string> UserProperties::Names() const {
  const auto all = values_->getPropertySetInfo()->getProperties();
  std::vector<std::string> names;
  for (const auto& each : libreoffice::Elements(all)) names.push_back(ToUtf8(each.Name));
  return names;
}

std::optional<std::string> UserProperties::Find(const std::string& name) const {
  for (std::string& each : Names()) {
    if (automation::EqualText(each, name)) return std::move(each);
  }
  return std::nullopt;
}

void UserProperties::RequireWritable(const std::string& name) const {
  if (book_->IsReadOnly()) {
    Fail("The document property \"" + name +
         "\" can't be changed: the workbook was opened for reading only");
  }
}

void UserProperties::Add(const std::string& name, std::int32_t type, const Variant& value) {
  RequireWritable(name);
  if (name.empty()) Fail("A document property can't be without a name");
  if (Find(name)) Fail("There is a document property \"" + name + "\" already");
  container_->addProperty(ToUno(name), css::beans::PropertyAttribute::REMOVABLE,
                          ToAny(value, static_cast<PropertyType>(type), name));
}

void UserProperties::Remove(const std::string& name) {
  RequireWritable(name);
  container_->removeProperty(ToUno(name));
}

PropertyType UserProperties::TypeOf(const std::string& name) const {
  return TypeOfValue(values_->getPropertyValue(ToUno(name)));
}

Variant UserProperties::Get(const std::string& name) const {
  return ToVariant(values_->getPropertyValue(ToUno(name)));
}

void UserProperties::Put(const std::string& name, const Variant& value) {
  RequireWritable(name);
  values_->setPropertyValue(ToUno(name), ToAny(value, TypeOf(name), name));
}

}  // namespace rangewerks::hosts::libreoffice
