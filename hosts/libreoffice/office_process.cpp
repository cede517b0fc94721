#include "hosts/libreoffice/office_process.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <thread>
#include <utility>
#include <vector>

#include "automation/error.h"
#include "hosts/libreoffice/failure.h"

namespace rangewerks::hosts::libreoffice {
namespace {

namespace fs = std::filesystem;

// $1 is the folder of the office, $2 the address of its profile, the rest its command line.
// Standard input is the lifeline. The office may not have become the leader of its process group
// yet when the lifeline closes; hence the loop. A killed office leaves two sockets behind: its
// pipe, and one that it names after its profile.
constexpr const char* kSupervisor = R"(
folder=$1
profile=$2
shift 2
exec 3<&0
setsid "$@" 3<&- </dev/null &
office=$!
{
  while read -r ignored <&3; do :; done
  until kill -s KILL -- -$office; do sleep 0.02; done
} 2>/dev/null &
watcher=$!
exec 3<&-
wait $office
status=$?
kill $watcher 2>/dev/null
kill -s KILL -- -$office 2>/dev/null
mark=$(printf %s "$profile" | iconv -f UTF-8 -t UTF-16LE | md5sum | cut -c1-32 |
  sed 's/\(..\)/ \1/g; s/ 0/ /g; s/ //g')
sockets=/tmp/OSL_PIPE_$(id -u)
rm -rf -- "$folder" "${sockets}_${folder##*/}" "${sockets}_SingleOfficeIPC_$mark"
exit $status
)";

[[noreturn]] void FailToStart(const std::string& step, int code) {
  Fail("LibreOffice couldn't be started: " + step + " failed, " + std::strerror(code) + ".");
}

fs::path MakeFolder() {
  std::string folder = (fs::temp_directory_path() / "rangewerks-office-XXXXXX").string();
  if (mkdtemp(folder.data()) == nullptr) FailToStart("making the folder " + folder, errno);
  return folder;
}

/// A file without a name, for what the office says.
FileDescriptor MakeOutput(const fs::path& folder) {
  std::string name = (folder / "output-XXXXXX").string();
  const int descriptor = mkostemp(name.data(), O_CLOEXEC);
  if (descriptor < 0) FailToStart("making the file " + name, errno);
  unlink(name.c_str());
  return FileDescriptor(descriptor);
}

std::vector<char*> Pointers(std::vector<std::string>& texts) {
  std::vector<char*> pointers;
  pointers.reserve(texts.size() + 1);
  for (std::string& text : texts) pointers.push_back(text.data());
  pointers.push_back(nullptr);
  return pointers;
}

/// The variable that decides, as the C library looks for it.
std::string_view LocaleOfEnvironment() {
  for (const char* name : {"LC_ALL", "LC_CTYPE", "LANG"}) {
    const char* value = std::getenv(name);
    if (value != nullptr && *value != '\0') return value;
  }
  return {};
}

/// This process's environment. In the plain C locale the office would take file names as ASCII, so
/// it gets the same locale with UTF-8.
std::vector<std::string> Environment() {
  std::vector<std::string> variables;
  for (char** each = environ; *each != nullptr; ++each) {
    const std::string_view variable(*each);
    // A sanitizer's runtime must not be loaded into the office.
    if (!variable.starts_with("LD_PRELOAD=")) variables.emplace_back(variable);
  }
  const std::string_view locale = LocaleOfEnvironment();
  if (locale.empty() || locale == "C" || locale == "POSIX") {
    std::erase_if(variables, [](const std::string& each) { return each.starts_with("LC_ALL="); });
    variables.emplace_back("LC_ALL=C.UTF-8");
  }
  return variables;
}

std::vector<std::string> CommandLine(const fs::path& programFolder, const fs::path& folder,
                                     const std::string& pipeName, bool visible) {
  const std::string profile = "file://" + (folder / "profile").string();
  // The launcher, not the program behind it: on a new profile that one ends at once and asks to be
  // started again.
  std::vector<std::string> command{"/bin/sh",
                                   "-c",
                                   kSupervisor,
                                   "rangewerks-office",
                                   folder.string(),
                                   profile,
                                   (programFolder / "soffice").string(),
                                   "--norestore",
                                   "--nologo",
                                   "--nodefault",
                                   "--accept=pipe,name=" + pipeName + ";urp;",
                                   "-env:UserInstallation=" + profile};
  if (!visible) command.insert(command.end(), {"--headless", "--invisible"});
  return command;
}

class SpawnSetup {
 public:
  SpawnSetup(int input, int output) {
    posix_spawn_file_actions_init(&actions_);
    posix_spawn_file_actions_adddup2(&actions_, input, STDIN_FILENO);
    posix_spawn_file_actions_adddup2(&actions_, output, STDOUT_FILENO);
    posix_spawn_file_actions_adddup2(&actions_, output, STDERR_FILENO);
    posix_spawnattr_init(&attributes_);
    // A session of its own: an interrupt typed at the terminal ends this program first, and the
    // office behind it.
    posix_spawnattr_setflags(&attributes_, POSIX_SPAWN_SETSID);
  }
  SpawnSetup(const SpawnSetup&) = delete;
  SpawnSetup& operator=(const SpawnSetup&) = delete;
  ~SpawnSetup() {
    posix_spawn_file_actions_destroy(&actions_);
    posix_spawnattr_destroy(&attributes_);
  }

  pid_t Start(std::vector<std::string> arguments, std::vector<std::string> environment) const {
    pid_t process = 0;
    const int failure = posix_spawn(&process, arguments.front().c_str(), &actions_, &attributes_,
                                    Pointers(arguments).data(), Pointers(environment).data());
    if (failure != 0) FailToStart("running /bin/sh", failure);
    return process;
  }

 private:
  posix_spawn_file_actions_t actions_;
  posix_spawnattr_t attributes_;
};

}  // namespace

FileDescriptor::FileDescriptor(FileDescriptor&& other) noexcept
    : descriptor_(std::exchange(other.descriptor_, -1)) {}

FileDescriptor& FileDescriptor::operator=(FileDescriptor&& other) noexcept {
  std::swap(descriptor_, other.descriptor_);
  return *this;
}

void FileDescriptor::Close() {
  if (descriptor_ >= 0) close(std::exchange(descriptor_, -1));
}

OfficeProcess::OfficeProcess(const fs::path& programFolder, bool visible)
    : folder_(MakeFolder()),
      pipeName_(folder_.filename().string()),
      output_(MakeOutput(folder_)),
      lifeline_(-1) {
  std::array<int, 2> ends{};
  if (pipe2(ends.data(), O_CLOEXEC) != 0) FailToStart("making a pipe", errno);
  FileDescriptor readEnd(ends[0]);
  FileDescriptor writeEnd(ends[1]);
  supervisor_ = SpawnSetup(readEnd.Get(), output_.Get())
                    .Start(CommandLine(programFolder, folder_, pipeName_, visible), Environment());
  lifeline_ = std::move(writeEnd);
}

OfficeProcess::~OfficeProcess() {
  lifeline_.Close();
  if (supervisor_ != 0) waitpid(supervisor_, nullptr, 0);
}

std::string OfficeProcess::Output() const {
  constexpr std::size_t kMost = 4096;
  std::string text(kMost, '\0');
  const ssize_t length = pread(output_.Get(), text.data(), text.size(), 0);
  text.resize(length > 0 ? static_cast<std::size_t>(length) : 0);
  return text;
}

bool OfficeProcess::IsRunning() {
  if (supervisor_ != 0 && waitpid(supervisor_, nullptr, WNOHANG) == supervisor_) supervisor_ = 0;
  return supervisor_ != 0;
}

bool OfficeProcess::WaitForEnd(std::chrono::milliseconds limit) {
  constexpr std::chrono::milliseconds kStep{5};
  for (std::chrono::milliseconds waited{0}; IsRunning(); waited += kStep) {
    if (waited >= limit) return false;
    std::this_thread::sleep_for(kStep);
  }
  return true;
}

fs::path FindProgramFolder() {
  std::vector<fs::path> candidates;
  if (const char* chosen = std::getenv("RANGEWERKS_OFFICE")) candidates.emplace_back(chosen);
  candidates.insert(candidates.end(), {RANGEWERKS_OFFICE_PROGRAM, "/usr/lib/libreoffice/program",
                                       "/usr/lib64/libreoffice/program"});
  const auto found = std::find_if(candidates.begin(), candidates.end(), [](const fs::path& folder) {
    std::error_code ignored;
    return fs::exists(folder / "soffice", ignored) && fs::exists(folder / "fundamentalrc", ignored);
  });
  if (found == candidates.end()) {
    Fail("LibreOffice isn't installed: there is no program soffice in " +
         candidates.front().string() +
         ". Install LibreOffice Calc (on Debian the package libreoffice-calc), or set "
         "RANGEWERKS_OFFICE to its program folder.");
  }
  return *found;
}

}  // namespace rangewerks::hosts::libreoffice
