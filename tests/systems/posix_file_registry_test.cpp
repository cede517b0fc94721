#include "systems/posix/file_registry.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <new>
#include <random>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include "hosts/temporary_folder.h"
#include "support/environment.h"
#include "support/registry_contract.h"
#include "systems/posix/posix_system.h"

namespace rangewerks::tests {
namespace {

namespace fs = std::filesystem;
using automation::Variant;
using platform::Registry;
using platform::RegistryValue;
using systems::FileRegistry;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::UnorderedElementsAre;

constexpr std::int32_t kRoot = Registry::kCurrentUser;

/// A registry whose folder goes when it goes.
class TemporaryRegistry final : public platform::Registry {
 public:
  Reading Read(std::int32_t root, const std::string& key, const std::string& name) const override {
    return registry_.Read(root, key, name);
  }
  std::int32_t Write(std::int32_t root, const std::string& key, const std::string& name,
                     const RegistryValue& value) override {
    return registry_.Write(root, key, name, value);
  }

 private:
  TemporaryFolder folder_;
  FileRegistry registry_{folder_.File("settings")};
};

INSTANTIATE_TEST_SUITE_P(InAFile, RegistryContract,
                         ::testing::Values([] { return std::make_shared<TemporaryRegistry>(); }));

class FileRegistryTest : public ::testing::Test {
 protected:
  static std::string TextOf(const fs::path& file) {
    std::ostringstream text;
    text << std::ifstream(file).rdbuf();
    return text.str();
  }
  fs::path Path(const std::string& name) const { return folder.File(name); }
  std::vector<std::string> Files() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(file.parent_path())) {
      names.push_back(entry.path().filename());
    }
    return names;
  }
  void Put(const std::string& text) const { std::ofstream(file) << text; }
  std::optional<RegistryValue> Value(const std::string& name) const {
    return registry.Read(kRoot, "key", name).value;
  }
  std::int32_t Write(const std::string& name, const RegistryValue& value) {
    return registry.Write(kRoot, "key", name, value);
  }

  TemporaryFolder folder;
  fs::path file = Path("settings");
  FileRegistry registry{file};
};

TEST_F(FileRegistryTest, ReadingMakesNoFile) {
  EXPECT_EQ(registry.Read(kRoot, "key", "value").status, ENOENT);
  EXPECT_THAT(Files(), IsEmpty());
}

TEST_F(FileRegistryTest, AWriteLeavesTheFileAndItsLockAlone) {
  EXPECT_EQ(Write("value", 1), 0);
  EXPECT_THAT(Files(), UnorderedElementsAre("settings", "settings.lock"));
}

TEST_F(FileRegistryTest, MakesTheFoldersAboveTheFileForTheirOwnerAlone) {
  FileRegistry deep(Path("a") / "b" / "settings");
  EXPECT_EQ(deep.Write(kRoot, "key", "value", 1), 0);
  EXPECT_EQ(fs::status(Path("a")).permissions(), fs::perms::owner_all);
  EXPECT_EQ(fs::status(Path("a") / "b" / "settings").permissions(),
            fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(FileRegistryTest, AValueThatIsThereAlreadyIsNotWrittenAgain) {
  Write("value", 1);
  const std::string byHand = "# mine\n" + TextOf(file);
  Put(byHand);
  EXPECT_EQ(Write("VALUE", 1), 0);
  EXPECT_EQ(TextOf(file), byHand);
}

TEST_F(FileRegistryTest, WhatAnotherProgramWroteIsSeenAtOnce) {
  FileRegistry another(file);
  another.Write(kRoot, "key", "value", "first");
  EXPECT_EQ(Value("value"), RegistryValue("first"));
  another.Write(kRoot, "key", "value", "second");
  EXPECT_EQ(Value("value"), RegistryValue("second"));
}

TEST_F(FileRegistryTest, RootsOtherThanThePersonsHaveNoValuesAndTakeNone) {
  const auto machine = platform::Registry::kLocalMachine;
  Write("value", 1);
  EXPECT_FALSE(registry.Read(machine, "key", "value").value);
  EXPECT_EQ(registry.ReadWithFullAccess(machine, "key", "value", 100).status,
            platform::Registry::kNotFound);
  EXPECT_EQ(registry.Write(machine, "key", "value", 2), EACCES);
  EXPECT_EQ(Value("value"), RegistryValue(1));
}

TEST_F(FileRegistryTest, ADamagedFileIsSetAsideWithAMessageWhenItIsRead) {
  Put("[key]\n\"value\" = 1\n");
  ::testing::internal::CaptureStderr();
  EXPECT_EQ(registry.Read(kRoot, "key", "value").status, ENOENT);
  EXPECT_EQ(::testing::internal::GetCapturedStderr(),
            "rangewerks: the settings in " + file.native() + " are damaged; they are kept as " +
                file.native() + ".damaged-1, and settings start empty\n");
  EXPECT_EQ(TextOf(Path("settings.damaged-1")), "[key]\n\"value\" = 1\n");
  EXPECT_FALSE(fs::exists(file));
}

TEST_F(FileRegistryTest, ADamagedFileIsSetAsideBeforeANewOneIsWritten) {
  Put("");
  ::testing::internal::CaptureStderr();
  EXPECT_EQ(Write("value", 2), 0);
  EXPECT_THAT(::testing::internal::GetCapturedStderr(), HasSubstr(".damaged-1"));
  EXPECT_EQ(Value("value"), RegistryValue(2));
  EXPECT_TRUE(fs::exists(Path("settings.damaged-1")));
}

TEST_F(FileRegistryTest, EachDamagedFileIsKept) {
  ::testing::internal::CaptureStderr();
  for (const char* text : {"one", "two", "three"}) {
    Put(text);
    EXPECT_FALSE(Value("value"));
  }
  ::testing::internal::GetCapturedStderr();
  EXPECT_EQ(TextOf(Path("settings.damaged-1")), "one");
  EXPECT_EQ(TextOf(Path("settings.damaged-2")), "two");
  EXPECT_EQ(TextOf(Path("settings.damaged-3")), "three");
}

TEST_F(FileRegistryTest, WhatIsNoFileIsNeitherReadNorReplaced) {
  fs::create_directory(file);
  EXPECT_EQ(registry.Read(kRoot, "key", "value").status, EISDIR);
  EXPECT_EQ(Write("value", 1), EISDIR);
  EXPECT_TRUE(fs::is_directory(file));
}

TEST_F(FileRegistryTest, AWriteThatFailsLeavesTheOldFileAndNothingElse) {
  Write("value", 1);
  fs::create_directory(Path("settings.new"));
  EXPECT_EQ(Write("value", 2), EISDIR);
  EXPECT_EQ(Value("value"), RegistryValue(1));
}

TEST_F(FileRegistryTest, WithoutAPathThereIsNothingToReadAndWritingFails) {
  FileRegistry none{fs::path()};
  EXPECT_EQ(none.Read(kRoot, "key", "value").status, ENOENT);
  EXPECT_NE(none.Write(kRoot, "key", "value", 1), 0);
}

TEST_F(FileRegistryTest, WhatAnInterruptedWriteLeftIsOverwrittenByTheNext) {
  std::ofstream(Path("settings.new")) << std::string(10000, 'x');
  Write("value", 1);
  EXPECT_THAT(Files(), UnorderedElementsAre("settings", "settings.lock"));
  EXPECT_EQ(Value("value"), RegistryValue(1));
}

// --- several programs ----------------------------------------------------------------------------

/// Runs a step in a process of its own, which ends with it.
template <class Step>
pid_t Start(const Step& step) {
  const pid_t process = fork();
  if (process != 0) return process;
  step();
  _exit(0);
}

TEST_F(FileRegistryTest, ProgramsThatWriteAtOnceLoseNothingOfEachOther) {
  constexpr int kPrograms = 4;
  constexpr int kWrites = 50;
  std::vector<pid_t> processes;
  for (int program = 0; program < kPrograms; ++program) {
    processes.push_back(Start([&] {
      for (int i = 0; i < kWrites; ++i) {
        Write("value " + std::to_string(program) + "." + std::to_string(i), i);
      }
    }));
  }
  for (const pid_t process : processes) {
    int status = -1;
    ASSERT_EQ(waitpid(process, &status, 0), process);
    EXPECT_EQ(status, 0);
  }
  for (int program = 0; program < kPrograms; ++program) {
    for (int i = 0; i < kWrites; ++i) {
      const std::string name = "value " + std::to_string(program) + "." + std::to_string(i);
      EXPECT_EQ(Value(name), RegistryValue(i)) << name;
    }
  }
  EXPECT_THAT(Files(), UnorderedElementsAre("settings", "settings.lock"));
}

TEST_F(FileRegistryTest, AReaderSeesTheOldOrTheNewValueWhileAnotherProgramWrites) {
  Write("value", 0);
  const pid_t process = Start([&] {
    for (int i = 1; i <= 200; ++i) Write("value", i);
  });
  int last = 0;
  while (waitpid(process, nullptr, WNOHANG) == 0) {
    const auto value = Value("value");
    ASSERT_TRUE(value);
    EXPECT_GE(std::get<std::int32_t>(*value), last);
    last = std::get<std::int32_t>(*value);
  }
  EXPECT_EQ(Value("value"), RegistryValue(200));
}

/// How often the next test kills: RANGEWERKS_KILLS, or so many that it takes seconds.
int Kills() {
  const char* wanted = std::getenv("RANGEWERKS_KILLS");
  return wanted != nullptr ? std::atoi(wanted) : 500;
}

/// A number that this process and the ones that it starts have in common.
class SharedCount {
 public:
  SharedCount() {
    void* place = mmap(nullptr, sizeof(std::atomic<int>), PROT_READ | PROT_WRITE,
                       MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    if (place == MAP_FAILED) throw std::bad_alloc();
    count_ = new (place) std::atomic<int>(0);
  }
  SharedCount(const SharedCount&) = delete;
  SharedCount& operator=(const SharedCount&) = delete;
  ~SharedCount() { munmap(count_, sizeof(std::atomic<int>)); }

  std::atomic<int>& operator*() const { return *count_; }

 private:
  std::atomic<int>* count_;
};

TEST_F(FileRegistryTest, KillsInTheMiddleOfWritesLoseNothingButTheWriteItself) {
  const std::string other(2000, 'o');
  Write("other", other);
  const SharedCount done;  // the last write that was reported as done
  std::mt19937 random(20240131);
  std::uniform_int_distribution<int> lifetime(0, 1500);
  int inTheMiddle = 0;
  for (int kill = 0; kill < Kills(); ++kill) {
    const int before = *done;
    const pid_t process = Start([&] {
      for (int i = *done + 1;; ++i) {
        if (Write("value", i) == 0) *done = i;
      }
    });
    // Half of the programs are killed as soon as they have done something, so that on a slow
    // machine too there's something to lose.
    while (kill % 2 == 0 && *done == before) std::this_thread::yield();
    std::this_thread::sleep_for(std::chrono::microseconds(lifetime(random)));
    ASSERT_EQ(::kill(process, SIGKILL), 0);
    ASSERT_EQ(waitpid(process, nullptr, 0), process);

    inTheMiddle += fs::exists(Path("settings.new")) ? 1 : 0;
    ASSERT_EQ(Value("other"), RegistryValue(other));
    if (*done == 0) continue;
    const auto value = Value("value");
    ASSERT_TRUE(value);
    const int stored = std::get<std::int32_t>(*value);
    ASSERT_TRUE(stored == *done || stored == *done + 1) << stored << " after " << *done;
    *done = stored;
  }
  EXPECT_GT(inTheMiddle, 0) << "no kill came in the middle of a write";
  RecordProperty("kills", Kills());
  RecordProperty("kills_with_a_file_half_written", inTheMiddle);
  EXPECT_EQ(Write("after all", 1), 0);
  EXPECT_THAT(Files(), UnorderedElementsAre("settings", "settings.lock"));
}

// --- the person's file ---------------------------------------------------------------------------

TEST(PersonsFile, LiesUnderTheDesktopsConfigurationFolder) {
  const Setting home("HOME", "/home/anna");
  const Setting configuration("XDG_CONFIG_HOME", "/conf");
  EXPECT_EQ(FileRegistry::PersonsFile(), "/conf/rangewerks/settings");
}

TEST(PersonsFile, LiesUnderTheHomeFolderWhenThatFolderIsntNamedInFull) {
  const Setting home("HOME", "/home/anna");
  for (const char* folder : {static_cast<const char*>(nullptr), "", "conf"}) {
    const Setting configuration("XDG_CONFIG_HOME", folder);
    EXPECT_EQ(FileRegistry::PersonsFile(), "/home/anna/.config/rangewerks/settings");
  }
}

TEST(PersonsFile, TakesTheAccountsHomeWhenNoHomeIsSet) {
  const Setting home("HOME", nullptr);
  const Setting configuration("XDG_CONFIG_HOME", nullptr);
  EXPECT_EQ(FileRegistry::PersonsFile().filename(), "settings");
  EXPECT_TRUE(FileRegistry::PersonsFile().is_absolute());
}

TEST(PersonsFile, IsWhatTheSystemKeepsSettingsIn) {
  const TemporaryFolder folder;
  const Setting configuration("XDG_CONFIG_HOME", folder.File("").c_str());
  EXPECT_EQ(systems::PosixSystem().OpenRegistry()->Write(kRoot, "key", "value", 1), 0);
  EXPECT_TRUE(fs::exists(folder.File("rangewerks/settings")));
}

}  // namespace
}  // namespace rangewerks::tests
