// The other way into the shared office's documents: through its own interfaces, to set up what the
// object model here has no members for.
#pragma once

#include <com/sun/star/beans/NamedValue.hpp>
#include <com/sun/star/beans/PropertyValue.hpp>
#include <com/sun/star/frame/XStorable.hpp>
#include <com/sun/star/util/CellProtection.hpp>
#include <com/sun/star/util/Date.hpp>
#include <com/sun/star/util/XProtectable.hpp>
#include <string>
#include <vector>

#include "hosts/late_calls.h"
#include "hosts/libreoffice/documents.h"
#include "hosts/libreoffice/range.h"
#include "hosts/libreoffice/workbook.h"

namespace rangewerks::tests {

namespace lo = hosts::libreoffice;
namespace css = lo::css;

inline lo::Book& BookOf(const Object& workbook) { return *workbook.As<lo::Workbook>()->InBook(); }

/// Saves under a filter of the office, with more options, such as a password.
inline void StoreAs(const Object& workbook, const std::string& path, const char* filter,
                    std::vector<css::beans::PropertyValue> options = {}) {
  options.emplace_back(lo::ToUno("FilterName"), -1, css::uno::Any(lo::ToUno(filter)),
                       css::beans::PropertyState_DIRECT_VALUE);
  lo::As<css::frame::XStorable>(BookOf(workbook).Model())
      ->storeToURL(lo::UrlOf(path), lo::ToSequence(options));
}

inline css::beans::PropertyValue Password(const char* password) {
  return {lo::ToUno("Password"), -1, css::uno::Any(lo::ToUno(password)),
          css::beans::PropertyState_DIRECT_VALUE};
}

/// The same for the formats of Office XML.
inline css::beans::PropertyValue OfficeXmlPassword(const char* password) {
  const std::vector<css::beans::NamedValue> facts{
      {lo::ToUno("CryptoType"), css::uno::Any(lo::ToUno("Standard"))},
      {lo::ToUno("OOXPassword"), css::uno::Any(lo::ToUno(password))}};
  return {lo::ToUno("EncryptionData"), -1, css::uno::Any(lo::ToSequence(facts)),
          css::beans::PropertyState_DIRECT_VALUE};
}

/// Makes the document count its dates from 1 January 1904.
inline void CountFrom1904(const Object& workbook) {
  lo::As<css::beans::XPropertySet>(BookOf(workbook).Model())
      ->setPropertyValue(lo::ToUno("NullDate"), css::uno::Any(css::util::Date(1, 1, 1904)));
}

inline void Protect(const Object& workbook, std::int32_t sheet) {
  lo::As<css::util::XProtectable>(BookOf(workbook).SheetAt(sheet)->Cells())->protect({});
}

inline css::uno::Reference<css::beans::XPropertySet> PropertiesOf(const Object& range) {
  const auto cells = range.As<lo::Range>();
  return lo::As<css::beans::XPropertySet>(cells->OnSheet()->Block(cells->Cells()));
}

/// Leaves the cells open to changes while their sheet is protected.
inline void Unlock(const Object& range) {
  const css::util::CellProtection open(false, false, false, false);
  PropertiesOf(range)->setPropertyValue(lo::ToUno("CellProtection"), css::uno::Any(open));
}

}  // namespace rangewerks::tests
