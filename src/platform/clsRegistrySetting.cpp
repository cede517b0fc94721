#include "platform/clsRegistrySetting.h"

#include "platform/basRegistry.h"

namespace rangewerks {

const std::string& clsRegistrySetting::NameFor(const std::string& sValueName) const {
  return sValueName == kNever ? valueName_ : sValueName;
}

void clsRegistrySetting::SaveSetting(const std::string& sValueName, const Variant& vValue) {
  basRegistry::WriteRegistryValue(*registry_, rootKey_, keyPath_, NameFor(sValueName),
                                  vValue.IsMissing() ? value_ : vValue, false);
}

clsRegistrySetting::Variant clsRegistrySetting::GetSetting(const std::string& sValueName,
                                                           const Variant& vDefault) {
  bool found = false;
  value_ =
      basRegistry::ReadRegistryValueEx(*registry_, rootKey_, keyPath_, NameFor(sValueName), found);
  return found ? value_ : vDefault;
}

}  // namespace rangewerks
