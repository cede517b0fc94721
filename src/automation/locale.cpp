#include "automation/locale.h"

#include <utility>

namespace rangewerks::automation {
namespace {

Locale& Process() {
  static Locale locale;
  return locale;
}

}  // namespace

const Locale& Locale::Current() { return Process(); }

void Locale::SetCurrent(Locale locale) { Process() = std::move(locale); }

}  // namespace rangewerks::automation
