#include "com/server/registration.h"

#include <algorithm>
#include <span>

#include "com/server/registration_rows.h"

namespace rangewerks::com {
namespace {

constexpr const wchar_t* kClasses = L"Software\\Classes";
/// The registry of the other word size, where the system keeps two.
constexpr REGSAM kOtherView = sizeof(void*) == 8 ? KEY_WOW64_32KEY : KEY_WOW64_64KEY;

/// An open key, or none.
class Key {
 public:
  Key() = default;
  Key(const Key&) = delete;
  Key& operator=(const Key&) = delete;
  ~Key() {
    if (handle_ != nullptr) RegCloseKey(handle_);
  }

  HKEY* Receive() { return &handle_; }
  HKEY Handle() const { return handle_; }

 private:
  HKEY handle_ = nullptr;
};

LSTATUS IgnoreMissing(LSTATUS error) {
  return error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND ? ERROR_SUCCESS : error;
}

bool IsEmpty(HKEY classes, const std::wstring& name) {
  Key key;
  RegOpenKeyExW(classes, name.c_str(), 0, KEY_QUERY_VALUE, key.Receive());
  DWORD keys = 1;
  DWORD values = 1;
  RegQueryInfoKeyW(key.Handle(), nullptr, nullptr, nullptr, &keys, nullptr, nullptr, &values,
                   nullptr, nullptr, nullptr, nullptr);
  return keys == 0 && values == 0;
}

/// Takes one value out, and the keys that are left empty by that.
LSTATUS Remove(HKEY classes, const RegistryRow& row) {
  const LSTATUS error = RegDeleteKeyValueW(classes, row.key.c_str(), row.name.c_str());
  if (error != ERROR_SUCCESS) return IgnoreMissing(error);
  std::wstring key = row.key;
  while (IsEmpty(classes, key)) {
    const LSTATUS deletion = RegDeleteKeyW(classes, key.c_str());
    if (deletion != ERROR_SUCCESS) return IgnoreMissing(deletion);
    const std::size_t parent = key.rfind(L'\\');
    if (parent == std::wstring::npos) break;
    key.resize(parent);
  }
  return ERROR_SUCCESS;
}

LSTATUS Write(HKEY classes, const RegistryRow& row) {
  const auto bytes = static_cast<DWORD>((row.value.size() + 1) * sizeof(wchar_t));
  return RegSetKeyValueW(classes, row.key.c_str(), row.name.c_str(), REG_SZ, row.value.c_str(),
                         bytes);
}

// HKEY_CLASSES_ROOT isn't used: it is a merged view whose writes go to one of two places.
LSTATUS WriteAll(HKEY root, std::span<const RegistryRow> rows) {
  Key classes;
  LSTATUS error = RegCreateKeyExW(root, kClasses, 0, nullptr, 0, KEY_READ | KEY_WRITE, nullptr,
                                  classes.Receive(), nullptr);
  std::size_t written = 0;
  while (error == ERROR_SUCCESS && written < rows.size()) {
    error = Write(classes.Handle(), rows[written]);
    if (error == ERROR_SUCCESS) ++written;
  }
  if (error != ERROR_SUCCESS) {
    for (; written > 0; --written) Remove(classes.Handle(), rows[written - 1]);
  }
  return error;
}

/// Whether the other build has registered a class at the same root.
bool OtherBuildIsRegistered(HKEY root, const Server& server) {
  const auto registered = [&](const ServedClass& served) {
    const std::wstring name = std::wstring(kClasses) + L"\\" + ServerKey(served);
    Key key;
    return RegOpenKeyExW(root, name.c_str(), 0, KEY_QUERY_VALUE | kOtherView, key.Receive()) ==
           ERROR_SUCCESS;
  };
  return std::ranges::any_of(server.classes, registered);
}

LSTATUS RemoveAll(HKEY root, const Server& server, std::span<const RegistryRow> rows) {
  Key classes;
  const LSTATUS opening = RegOpenKeyExW(root, kClasses, 0, KEY_READ, classes.Receive());
  if (opening != ERROR_SUCCESS) return IgnoreMissing(opening);
  LSTATUS first = ERROR_SUCCESS;
  const auto remove = [&](bool shared) {
    for (auto row = rows.rbegin(); row != rows.rend(); ++row) {
      if (row->shared != shared) continue;
      const LSTATUS error = Remove(classes.Handle(), *row);
      if (first == ERROR_SUCCESS) first = error;
    }
  };
  remove(false);
  if (!OtherBuildIsRegistered(root, server)) remove(true);
  return first;
}

}  // namespace

HRESULT Register(const Server& server) {
  const auto rows = RegistrationRows(server);
  LSTATUS error = WriteAll(HKEY_LOCAL_MACHINE, rows);
  if (error == ERROR_ACCESS_DENIED) error = WriteAll(HKEY_CURRENT_USER, rows);
  return HRESULT_FROM_WIN32(static_cast<DWORD>(error));
}

HRESULT Unregister(const Server& server) {
  const auto rows = RegistrationRows(server);
  const LSTATUS machine = RemoveAll(HKEY_LOCAL_MACHINE, server, rows);
  const LSTATUS person = RemoveAll(HKEY_CURRENT_USER, server, rows);
  return HRESULT_FROM_WIN32(static_cast<DWORD>(machine != ERROR_SUCCESS ? machine : person));
}

}  // namespace rangewerks::com
