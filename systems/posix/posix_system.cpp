#include "systems/posix/posix_system.h"

#include <dlfcn.h>
#include <pwd.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <filesystem>
#include <system_error>
#include <vector>

#include "automation/error.h"
#include "automation/text.h"
#include "systems/posix/desktop_mail.h"
#include "systems/posix/file_registry.h"
#include "systems/posix/locale_facts.h"

namespace rangewerks::systems {
namespace {

constexpr std::size_t kAccountSize = 1024;

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

std::optional<std::string> PosixSystem::LoggedOnUser() const {
  const long suggested = sysconf(_SC_GETPW_R_SIZE_MAX);
  std::vector<char> buffer(suggested > 0 ? static_cast<std::size_t>(suggested) : kAccountSize);
  passwd entry{};
  passwd* found = nullptr;
  int result = 0;
  while ((result = getpwuid_r(getuid(), &entry, buffer.data(), buffer.size(), &found)) == ERANGE) {
    buffer.resize(buffer.size() * 2);
  }
  if (result != 0 || found == nullptr) return std::nullopt;
  return std::string(entry.pw_name);
}

automation::Locale PosixSystem::CurrentLocale() const { return ReadLocale(); }

automation::Object PosixSystem::CreateObject(const std::string& progId) const {
  if (!automation::EqualText(progId, "Outlook.Application")) {
    throw automation::Error(automation::ErrorNumber::CannotCreateObject);
  }
  return {std::make_shared<DesktopMail>()};
}

std::shared_ptr<platform::Registry> PosixSystem::OpenRegistry() const {
  return std::make_shared<FileRegistry>(FileRegistry::PersonsFile());
}

bool PosixSystem::FileExists(const std::string& path) const {
  std::error_code failure;
  return std::filesystem::is_regular_file(path, failure);
}

void PosixSystem::StartProgram(const std::string& path) const {
  // A shell that ends at once leaves the program to the system, so nobody has to wait for its end.
  std::string shell = "sh";
  std::string option = "-c";
  std::string command = R"("$0" </dev/null >/dev/null 2>&1 &)";
  std::string program = path;
  const std::array<char*, 5> arguments{shell.data(), option.data(), command.data(), program.data(),
                                       nullptr};
  pid_t child = 0;
  if (!FileExists(path) || access(path.c_str(), X_OK) != 0 ||
      posix_spawn(&child, "/bin/sh", nullptr, nullptr, arguments.data(), environ) != 0) {
    throw automation::Error(automation::ErrorNumber::FileNotFound);
  }
  while (waitpid(child, nullptr, 0) < 0 && errno == EINTR) {
  }
}

}  // namespace rangewerks::systems
