#include "systems/windows/windows_system.h"

#include <windows.h>
// The network calls need what comes before.
#include <winnetwk.h>

#include "automation/error.h"
#include "systems/windows/locale_facts.h"
#include "systems/windows/text.h"
#include "systems/windows/user_name.h"
#include "systems/windows/windows_registry.h"

namespace rangewerks::systems {
namespace {

constexpr std::size_t kUserNameSize = 256;
constexpr std::size_t kLongestPath = 32768;

/// Some address within the code of this library.
void Anchor() {}

HMODULE OwnModule() {
  HMODULE module = nullptr;
  GetModuleHandleExW(
      GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
      reinterpret_cast<const wchar_t*>(&Anchor), &module);
  return module;
}

}  // namespace

std::string WindowsSystem::LibraryFile() const {
  const HMODULE module = OwnModule();
  std::wstring path(kLongestPath, L'\0');
  const DWORD length =
      module == nullptr ? 0 : GetModuleFileNameW(module, path.data(), kLongestPath);
  if (length == 0) throw automation::Error(automation::ErrorNumber::FileNotFound);
  return Utf8Of(std::wstring_view(path).substr(0, length));
}

std::optional<std::string> WindowsSystem::LoggedOnUser() const {
  std::string buffer(kUserNameSize, ' ');
  DWORD size = kUserNameSize;
  if (WNetGetUserA("", buffer.data(), &size) != NO_ERROR) return std::nullopt;
  return UserNameIn(buffer);
}

std::string WindowsSystem::AccountName() const {
  std::string buffer(kUserNameSize, '\0');
  DWORD size = kUserNameSize;
  if (GetUserNameA(buffer.data(), &size) == 0) return {};
  return Utf8OfAnsi(buffer.substr(0, buffer.find('\0')));
}

automation::Locale WindowsSystem::CurrentLocale() const { return ReadLocale(nullptr); }

automation::Object WindowsSystem::CreateObject(const std::string& progId) const {
  try {
    if (objectMaker_) return objectMaker_(progId);
  } catch (const automation::Error&) {
    // Callers know one failure of making an object, whatever the system's reason.
  }
  throw automation::Error(automation::ErrorNumber::CannotCreateObject);
}

std::shared_ptr<platform::Registry> WindowsSystem::OpenRegistry() const {
  return std::make_shared<WindowsRegistry>();
}

bool WindowsSystem::FileExists(const std::string& path) const {
  const DWORD attributes = GetFileAttributesW(Utf16Of(path).c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

void WindowsSystem::StartProgram(const std::string& path) const {
  STARTUPINFOW start{};
  start.cb = sizeof start;
  start.dwFlags = STARTF_USESHOWWINDOW;
  start.wShowWindow = SW_SHOWNORMAL;
  PROCESS_INFORMATION started{};
  const std::wstring program = Utf16Of(path);
  // Quoted, so that a blank within the path isn't taken for the end of the program's name.
  std::wstring commandLine = L'"' + program + L'"';
  if (CreateProcessW(program.c_str(), commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr,
                     nullptr, &start, &started) == 0) {
    throw automation::Error(automation::ErrorNumber::FileNotFound);
  }
  CloseHandle(started.hThread);
  CloseHandle(started.hProcess);
}

}  // namespace rangewerks::systems
