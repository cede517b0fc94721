// What every source file of this folder that talks to the office needs of UNO: texts in both
// forms, required references, sequences. Never included from a public header.
#pragma once

#include <com/sun/star/beans/XPropertySet.hpp>
#include <com/sun/star/container/NoSuchElementException.hpp>
#include <com/sun/star/lang/DisposedException.hpp>
#include <com/sun/star/uno/Any.hxx>
#include <com/sun/star/uno/Exception.hpp>
#include <com/sun/star/uno/Reference.hxx>
#include <com/sun/star/uno/RuntimeException.hpp>
#include <com/sun/star/uno/Sequence.hxx>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "rtl/ustring.hxx"

namespace rangewerks::hosts::libreoffice {

namespace css = com::sun::star;
using css::uno::Any;
using css::uno::Reference;
using css::uno::Sequence;
using css::uno::UNO_QUERY_THROW;
using rtl::OUString;

std::string ToUtf8(const OUString& text);
OUString ToUno(std::string_view text);

/// The same object under another interface. Raises the office's RuntimeException when it lacks it.
template <class Interface, class Other>
Reference<Interface> As(const Reference<Other>& object) {
  return Reference<Interface>(object, UNO_QUERY_THROW);
}

/// A value as the type that the office documents for it. Raises the office's RuntimeException when
/// it has another.
template <class T>
T Extract(const Any& value) {
  T result{};
  if (!(value >>= result)) {
    throw css::uno::RuntimeException(
        ToUno("a value of the type " + ToUtf8(value.getValueTypeName()) + " wasn't expected"));
  }
  return result;
}

/// One property.
template <class T>
T Property(const Reference<css::beans::XPropertySet>& object, const char* name) {
  return Extract<T>(object->getPropertyValue(OUString::createFromAscii(name)));
}

/// The elements of a sequence that outlives their use.
template <class T>
std::span<const T> Elements(const Sequence<T>& sequence) {
  return {sequence.getConstArray(), static_cast<std::size_t>(sequence.getLength())};
}
template <class T>
std::span<const T> Elements(const Sequence<T>&& sequence) = delete;

template <class T>
Sequence<T> ToSequence(const std::vector<T>& elements) {
  return Sequence<T>(elements.data(), static_cast<sal_Int32>(elements.size()));
}

}  // namespace rangewerks::hosts::libreoffice
