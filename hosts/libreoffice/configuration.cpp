#include "hosts/libreoffice/configuration.h"

#include <com/sun/star/beans/PropertyValue.hpp>
#include <com/sun/star/configuration/theDefaultProvider.hpp>
#include <com/sun/star/container/XNameAccess.hpp>

namespace rangewerks::hosts::libreoffice {

std::string ReadConfigured(const Reference<css::uno::XComponentContext>& context,
                           const std::string& path, const char* name) {
  const css::beans::PropertyValue node(ToUno("nodepath"), -1, Any(ToUno(path)),
                                       css::beans::PropertyState_DIRECT_VALUE);
  const std::vector<Any> arguments{Any(node)};
  const auto access = Reference<css::container::XNameAccess>(
      css::configuration::theDefaultProvider::get(context)->createInstanceWithArguments(
          ToUno("com.sun.star.configuration.ConfigurationAccess"), ToSequence(arguments)),
      UNO_QUERY_THROW);
  OUString value;
  access->getByName(ToUno(name)) >>= value;
  return ToUtf8(value);
}

}  // namespace rangewerks::hosts::libreoffice
