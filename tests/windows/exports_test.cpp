// What the DLL shows to the loader, read from its headers in memory.
#include <gmock/gmock.h>
#include <windows.h>

#include <algorithm>
#include <cctype>
#include <string>
#include <vector>

#include "windows/server_under_test.h"

namespace rangewerks::tests {
namespace {

using testing::ElementsAre;
using testing::IsSubsetOf;

template <class T>
const T* At(DWORD offset) {
  return reinterpret_cast<const T*>(reinterpret_cast<const char*>(ServerModule()) + offset);
}

DWORD Directory(std::size_t index) {
  const auto* const headers =
      At<IMAGE_NT_HEADERS>(static_cast<DWORD>(At<IMAGE_DOS_HEADER>(0)->e_lfanew));
  return headers->OptionalHeader.DataDirectory[index].VirtualAddress;
}

TEST(TheDll, ExportsTheFourEntryPointsAndNothingElse) {
  const auto* const exports = At<IMAGE_EXPORT_DIRECTORY>(Directory(IMAGE_DIRECTORY_ENTRY_EXPORT));
  std::vector<std::string> names;
  for (DWORD i = 0; i < exports->NumberOfNames; ++i) {
    names.emplace_back(At<char>(At<DWORD>(exports->AddressOfNames)[i]));
  }
  EXPECT_EQ(exports->NumberOfFunctions, 4U);
  EXPECT_THAT(names, ElementsAre("DllCanUnloadNow", "DllGetClassObject", "DllRegisterServer",
                                 "DllUnregisterServer"));
}

TEST(TheDll, NeedsNoLibraryThatTheSystemLacks) {
  std::vector<std::string> libraries;
  for (const auto* entry = At<IMAGE_IMPORT_DESCRIPTOR>(Directory(IMAGE_DIRECTORY_ENTRY_IMPORT));
       entry->Name != 0; ++entry) {
    std::string name = At<char>(entry->Name);
    std::ranges::transform(name, name.begin(), [](unsigned char c) { return std::tolower(c); });
    libraries.push_back(name);
  }
  EXPECT_THAT(libraries, IsSubsetOf({"advapi32.dll", "comctl32.dll", "comdlg32.dll", "gdi32.dll",
                                     "kernel32.dll", "mpr.dll", "msvcrt.dll", "ole32.dll",
                                     "oleaut32.dll", "shell32.dll", "user32.dll"}));
}

}  // namespace
}  // namespace rangewerks::tests
