#include "systems/posix/file_registry.h"

#include <fcntl.h>
#include <pwd.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdlib>
#include <iostream>
#include <system_error>

#include "systems/posix/settings_text.h"

namespace rangewerks::systems {
namespace {

namespace fs = std::filesystem;

static_assert(ENOENT == platform::Registry::kNotFound);

[[noreturn]] void Fail() { throw std::system_error(errno, std::generic_category()); }

/// A file that is open for as long as this lives. Raises std::system_error.
class OpenFile {
 public:
  OpenFile(const fs::path& path, int flags) : file_(open(path.c_str(), flags | O_CLOEXEC, 0600)) {
    if (file_ < 0) Fail();
  }
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;
  ~OpenFile() { close(file_); }

  /// Waits until nobody else has it locked. The lock ends with this or with the program.
  void Lock() const {
    while (flock(file_, LOCK_EX) != 0) {
      if (errno != EINTR) Fail();
    }
  }
  std::string ReadAll() const {
    std::string text;
    std::array<char, 4096> buffer{};
    while (const ssize_t count = read(file_, buffer.data(), buffer.size())) {
      if (count > 0) {
        text.append(buffer.data(), static_cast<std::size_t>(count));
      } else if (errno != EINTR) {
        Fail();
      }
    }
    return text;
  }
  void WriteAll(std::string_view text) const {
    while (!text.empty()) {
      const ssize_t count = write(file_, text.data(), text.size());
      if (count >= 0) {
        text.remove_prefix(static_cast<std::size_t>(count));
      } else if (errno != EINTR) {
        Fail();
      }
    }
  }
  /// Waits until what was written is on the disk.
  void Flush() const {
    if (fsync(file_) != 0) Fail();
  }

 private:
  int file_;
};

fs::path Beside(const fs::path& file, const std::string& ending) { return file.native() + ending; }

/// Nothing when there is no file.
std::optional<std::string> TextOf(const fs::path& file) {
  try {
    return OpenFile(file, O_RDONLY).ReadAll();
  } catch (const std::system_error& failure) {
    if (failure.code() == std::errc::no_such_file_or_directory) return std::nullopt;
    throw;
  }
}

void Rename(const fs::path& from, const fs::path& to) {
  if (rename(from.c_str(), to.c_str()) != 0) Fail();
}

void SetAside(const fs::path& file) {
  int number = 1;
  const auto name = [&] { return Beside(file, ".damaged-" + std::to_string(number)); };
  while (fs::symlink_status(name()).type() != fs::file_type::not_found) ++number;
  Rename(file, name());
  std::cerr << "rangewerks: the settings in " << file.native() << " are damaged; they are kept as "
            << name().native() << ", and settings start empty\n";
}

/// What the file holds. Only for who has the lock, so that nobody else's file is set aside.
Settings SettingsIn(const fs::path& file) {
  const auto text = TextOf(file);
  if (!text) return {};
  if (auto settings = ReadSettings(*text)) return *std::move(settings);
  SetAside(file);
  return {};
}

/// The program that writes keeps the others from it.
OpenFile Locked(const fs::path& file) { return {Beside(file, ".lock"), O_RDWR | O_CREAT}; }

void Replace(const fs::path& file, const std::string& text) {
  const fs::path aside = Beside(file, ".new");
  try {
    const OpenFile fresh(aside, O_WRONLY | O_CREAT | O_TRUNC);
    fresh.WriteAll(text);
    fresh.Flush();
    Rename(aside, file);
  } catch (const std::system_error&) {
    unlink(aside.c_str());
    throw;
  }
  OpenFile(file.parent_path(), O_RDONLY | O_DIRECTORY).Flush();
}

/// Makes a folder that nobody else may look into, with the folders above it.
void MakeFolder(const fs::path& folder) {
  if (fs::is_directory(folder)) return;
  if (folder.has_parent_path()) MakeFolder(folder.parent_path());
  if (mkdir(folder.c_str(), 0700) != 0 && errno != EEXIST) Fail();
}

/// Runs a step and returns the number of what went wrong.
template <class Step>
std::int32_t StatusOf(const Step& step) {
  try {
    step();
    return platform::Registry::kSuccess;
  } catch (const std::system_error& failure) {
    return failure.code().value();
  }
}

const platform::RegistryValue* Find(const Settings& settings, const std::string& key,
                                    const std::string& name) {
  const auto values = settings.find(NormalKey(key));
  if (values == settings.end()) return nullptr;
  const auto value = values->second.find(name);
  return value == values->second.end() ? nullptr : &value->second;
}

fs::path HomeFolder() {
  if (const char* home = std::getenv("HOME"); home != nullptr && *home == '/') return home;
  const passwd* entry = getpwuid(getuid());
  return entry == nullptr ? fs::path() : fs::path(entry->pw_dir);
}

}  // namespace

fs::path FileRegistry::PersonsFile() {
  const fs::path place = "rangewerks/settings";
  // A folder that isn't named in full is none, as desktops have agreed.
  const char* folder = std::getenv("XDG_CONFIG_HOME");
  if (folder != nullptr && *folder == '/') return folder / place;
  const fs::path home = HomeFolder();
  return home.empty() ? home : home / ".config" / place;
}

FileRegistry::Reading FileRegistry::Read(std::int32_t root, const std::string& key,
                                         const std::string& name) const {
  if (root != kCurrentUser) return {kNotFound, std::nullopt};
  Reading reading{kNotFound, std::nullopt};
  const std::int32_t status = StatusOf([&] {
    const auto text = TextOf(file_);
    if (!text) return;
    auto settings = ReadSettings(*text);
    if (!settings) {
      const OpenFile lock = Locked(file_);
      lock.Lock();
      settings = SettingsIn(file_);  // someone else may have been here before
    }
    if (const auto* value = Find(*settings, key, name)) reading = {kSuccess, *value};
  });
  return status == kSuccess ? reading : Reading{status, std::nullopt};
}

std::int32_t FileRegistry::Write(std::int32_t root, const std::string& key, const std::string& name,
                                 const platform::RegistryValue& value) {
  if (root != kCurrentUser) return EACCES;
  return StatusOf([&] {
    MakeFolder(file_.parent_path());
    const OpenFile lock = Locked(file_);
    lock.Lock();
    Settings settings = SettingsIn(file_);
    if (const auto* stored = Find(settings, key, name); stored && *stored == value) return;
    settings[NormalKey(key)][name] = value;
    Replace(file_, WriteSettings(settings));
  });
}

}  // namespace rangewerks::systems
