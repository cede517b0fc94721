// The office process: what it leaves behind, and what is said when it is gone.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include "hosts/late_calls.h"
#include "hosts/libreoffice/office.h"
#include "hosts/libreoffice/office_process.h"

namespace rangewerks::tests {
namespace {

namespace fs = std::filesystem;
using hosts::libreoffice::Office;
using hosts::libreoffice::OfficeProcess;

/// The processes whose command line holds that text.
std::vector<pid_t> ProcessesWith(const std::string& text) {
  std::vector<pid_t> found;
  for (const auto& entry : fs::directory_iterator("/proc")) {
    const std::string name = entry.path().filename().string();
    if (name.find_first_not_of("0123456789") != std::string::npos) continue;
    std::ifstream file(entry.path() / "cmdline");
    const std::string line(std::istreambuf_iterator<char>(file), {});
    if (line.find(text) != std::string::npos) found.push_back(static_cast<pid_t>(std::stol(name)));
  }
  return found;
}

/// The office's sockets, of whatever office.
std::set<std::string> Sockets() {
  std::set<std::string> names;
  for (const auto& entry : fs::directory_iterator("/tmp")) {
    const std::string name = entry.path().filename().string();
    if (name.starts_with("OSL_PIPE_")) names.insert(name);
  }
  return names;
}

pid_t ParentOf(pid_t process) {
  std::ifstream file("/proc/" + std::to_string(process) + "/status");
  for (std::string line; std::getline(file, line);) {
    if (line.starts_with("PPid:")) return static_cast<pid_t>(std::stol(line.substr(5)));
  }
  return 0;
}

/// Waits, for half a minute at most, until `done()`.
template <class Condition>
bool Eventually(Condition done) {
  for (int i = 0; i < 3000; ++i) {
    if (done()) return true;
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  return false;
}

TEST(LibreOfficeProcess, AnOrderlyEndLeavesNeitherProcessNorProfile) {
  std::string folder;
  {
    OfficeProcess process(hosts::libreoffice::FindProgramFolder());
    folder = process.Folder().string();
    EXPECT_TRUE(process.IsRunning());
    EXPECT_TRUE(fs::exists(folder));
  }
  EXPECT_FALSE(fs::exists(folder));
  EXPECT_EQ(ProcessesWith(folder), std::vector<pid_t>());
}

TEST(LibreOfficeProcess, KillingTheProgramEndsItsOfficeAndRemovesTheProfile) {
  std::array<int, 2> ends{};
  ASSERT_EQ(pipe(ends.data()), 0);
  const auto before = Sockets();
  const pid_t program = fork();
  ASSERT_NE(program, -1);
  if (program == 0) {
    const OfficeProcess process(hosts::libreoffice::FindProgramFolder());
    const std::string folder = process.Folder().string() + "\n";
    if (write(ends[1], folder.data(), folder.size()) < 0) _exit(1);
    pause();
    _exit(0);
  }
  close(ends[1]);
  std::string folder;
  for (char c = 0; read(ends[0], &c, 1) == 1 && c != '\n';) folder += c;
  close(ends[0]);
  ASSERT_FALSE(folder.empty());
  // Not before the office itself runs, behind its launcher.
  ASSERT_TRUE(Eventually([&] { return fs::exists(folder + "/profile/user"); }));

  kill(program, SIGKILL);
  waitpid(program, nullptr, 0);

  EXPECT_TRUE(Eventually([&] { return ProcessesWith(folder).empty(); }));
  EXPECT_TRUE(Eventually([&] { return !fs::exists(folder); }));
  EXPECT_EQ(Sockets(), before);
}

TEST(LibreOfficeProcess, CallsAfterTheEndSayThatTheOfficeHasEnded) {
  Object cell;
  {
    Office office;
    cell = GetObject(GetObject(office.NewWorkbook({"Sheet1"}), "ActiveSheet"), "Range", {"A1"});
  }
  EXPECT_EQ(ErrorNumberOf([&] { Get(cell, "Value"); }), 1004);
}

TEST(LibreOfficeProcess, ACrashIsToldAsTheEndOfTheOffice) {
  const auto before = ProcessesWith("soffice.bin");
  Office office;
  const Object cell =
      GetObject(GetObject(office.NewWorkbook({"Sheet1"}), "ActiveSheet"), "Range", {"A1"});
  for (const pid_t process : ProcessesWith("soffice.bin")) {
    const bool isOurs = std::find(before.begin(), before.end(), process) == before.end();
    const bool isMine = ParentOf(ParentOf(ParentOf(process))) == getpid();
    if (isOurs && isMine) kill(process, SIGKILL);
  }
  std::string description;
  ASSERT_TRUE(Eventually([&] {
    try {
      Get(cell, "Value");
    } catch (const automation::Error& error) {
      description = error.Description();
    }
    return !description.empty();
  }));
  EXPECT_EQ(description,
            "Range.Value failed: LibreOffice has ended, or the workbook has been closed.");
}

}  // namespace
}  // namespace rangewerks::tests
