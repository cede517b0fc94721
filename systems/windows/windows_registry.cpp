#include "systems/windows/windows_registry.h"

#include <windows.h>

#include "systems/windows/text.h"

namespace rangewerks::systems {
namespace {

using platform::RegistryValue;

static_assert(ERROR_SUCCESS == platform::Registry::kSuccess);
static_assert(ERROR_FILE_NOT_FOUND == platform::Registry::kNotFound);

HKEY RootOf(std::int32_t root) {
  // Windows widens the handles of its roots with their sign.
  return reinterpret_cast<HKEY>(static_cast<LONG_PTR>(root));
}

/// All that can be done to a key but to delete it and to change who may use it.
constexpr REGSAM kFullAccess = KEY_QUERY_VALUE | KEY_SET_VALUE | KEY_CREATE_SUB_KEY |
                               KEY_ENUMERATE_SUB_KEYS | KEY_NOTIFY | KEY_CREATE_LINK | READ_CONTROL;
static_assert(kFullAccess == 0x2003F);

LONG WINAPI OpenWithFullAccess(HKEY root, LPCSTR key, PHKEY opened) {
  return RegOpenKeyExA(root, key, 0, kFullAccess, opened);
}

/// A key for as long as this lives; `call` is RegOpenKeyA, RegCreateKeyA or one of their kind.
class Key {
 public:
  Key(decltype(RegOpenKeyA)& call, std::int32_t root, const std::string& key)
      : status_(call(RootOf(root), AnsiOf(key).c_str(), &key_)) {}
  Key(const Key&) = delete;
  Key& operator=(const Key&) = delete;
  ~Key() {
    if (key_ != nullptr) RegCloseKey(key_);
  }

  LONG Status() const { return status_; }
  HKEY Get() const { return key_; }

 private:
  HKEY key_ = nullptr;
  LONG status_;
};

}  // namespace

WindowsRegistry::Reading WindowsRegistry::Read(std::int32_t root, const std::string& key,
                                               const std::string& name) const {
  const Key open(RegOpenKeyA, root, key);
  if (open.Status() != ERROR_SUCCESS) return {open.Status(), std::nullopt};
  const std::string ansiName = AnsiOf(name);
  DWORD type = REG_NONE;
  DWORD size = 0;
  const auto query = [&](void* to) {
    return RegQueryValueExA(open.Get(), ansiName.c_str(), nullptr, &type, static_cast<BYTE*>(to),
                            &size);
  };
  LONG status = query(nullptr);
  if (status != ERROR_SUCCESS) return {status, std::nullopt};
  if (type == REG_SZ) {
    std::string text(size, '\0');
    status = query(text.data());
    if (status == ERROR_SUCCESS) return {status, Utf8OfAnsi(text)};
  } else if (type == REG_DWORD) {
    std::int32_t number = 0;
    size = sizeof number;
    status = query(&number);
    if (status == ERROR_SUCCESS) return {status, number};
  }
  return {status, std::nullopt};
}

std::int32_t WindowsRegistry::Write(std::int32_t root, const std::string& key,
                                    const std::string& name, const RegistryValue& value) {
  const Key open(RegCreateKeyA, root, key);
  if (open.Status() != ERROR_SUCCESS) return open.Status();
  const auto set = [&](DWORD type, const void* data, std::size_t size) {
    return RegSetValueExA(open.Get(), AnsiOf(name).c_str(), 0, type, static_cast<const BYTE*>(data),
                          static_cast<DWORD>(size));
  };
  if (const auto* number = std::get_if<std::int32_t>(&value)) {
    return set(REG_DWORD, number, sizeof *number);
  }
  const std::string text = AnsiOf(std::get<std::string>(value));
  return set(REG_SZ, text.c_str(), text.size() + 1);
}

WindowsRegistry::RawReading WindowsRegistry::ReadWithFullAccess(std::int32_t root,
                                                                const std::string& key,
                                                                const std::string& name,
                                                                std::size_t limit) const {
  const Key open(OpenWithFullAccess, root, key);
  if (open.Status() != ERROR_SUCCESS) return {.status = open.Status()};
  std::string bytes(limit, '\0');
  DWORD type = REG_NONE;
  auto size = static_cast<DWORD>(limit);
  const LONG status = RegQueryValueExA(open.Get(), AnsiOf(name).c_str(), nullptr, &type,
                                       reinterpret_cast<BYTE*>(bytes.data()), &size);
  if (status != ERROR_SUCCESS) return {.status = status};
  bytes.resize(size);
  return {kSuccess, type, type == REG_SZ ? Utf8OfAnsi(bytes) : bytes};
}

}  // namespace rangewerks::systems
