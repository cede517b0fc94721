#include "systems/posix/posix_system.h"

#include <dlfcn.h>

#include <filesystem>
#include <system_error>

#include "automation/error.h"
#include "systems/posix/locale_facts.h"

namespace rangewerks::systems {
namespace {

/// Some address within the code of this library.
void Anchor() {}

/// Where the dynamic linker found this code: empty, or what the program was called by, when that
/// wasn't a library.
std::string LinkedFile() {
  Dl_info info{};
  if (dladdr(reinterpret_cast<void*>(&Anchor), &info) == 0 || info.dli_fname == nullptr) return {};
  return info.dli_fname;
}

}  // namespace

std::string PosixSystem::LibraryFile() const {
  const std::filesystem::path linked = LinkedFile();
  std::error_code failure;
  if (linked.has_parent_path()) {
    const auto file = std::filesystem::canonical(linked, failure);
    if (!failure) return file.string();
  }
  const auto program = std::filesystem::read_symlink("/proc/self/exe", failure);
  if (failure) throw automation::Error(automation::ErrorNumber::FileNotFound);
  return program.string();
}

automation::Locale PosixSystem::CurrentLocale() const { return ReadLocale(); }

}  // namespace rangewerks::systems
