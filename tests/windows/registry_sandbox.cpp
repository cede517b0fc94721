#include "windows/registry_sandbox.h"

#include <sddl.h>

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "com/bridge/text.h"

namespace rangewerks::tests {
namespace {

constexpr const wchar_t* kClasses = L"Software\\Classes";
constexpr DWORD kLongestName = 512;

void Require(LSTATUS error) {
  if (error != ERROR_SUCCESS) throw std::runtime_error("registry error " + std::to_string(error));
}

HKEY Create(HKEY parent, const wchar_t* name, REGSAM access = KEY_ALL_ACCESS) {
  HKEY key = nullptr;
  Require(RegCreateKeyExW(parent, name, 0, nullptr, REG_OPTION_NON_VOLATILE, access, nullptr, &key,
                          nullptr));
  return key;
}

/// Replaces who may do what with a key; "D:" and the rights, in the system's notation.
void SetRights(HKEY key, const wchar_t* rights) {
  PSECURITY_DESCRIPTOR descriptor = nullptr;
  if (ConvertStringSecurityDescriptorToSecurityDescriptorW(rights, SDDL_REVISION_1, &descriptor,
                                                           nullptr) == FALSE) {
    throw std::runtime_error("not a notation of rights");
  }
  const LSTATUS error = RegSetKeySecurity(key, DACL_SECURITY_INFORMATION, descriptor);
  LocalFree(descriptor);
  Require(error);
}

void List(HKEY key, const std::wstring& path, std::vector<std::string>& lines) {
  wchar_t name[kLongestName];
  wchar_t text[kLongestName];
  for (DWORD i = 0;; ++i) {
    DWORD nameLength = kLongestName;
    DWORD bytes = sizeof(text);
    DWORD type = 0;
    if (RegEnumValueW(key, i, name, &nameLength, nullptr, &type, reinterpret_cast<BYTE*>(text),
                      &bytes) != ERROR_SUCCESS) {
      break;
    }
    const std::wstring value =
        type == REG_SZ ? std::wstring(text, bytes / sizeof(wchar_t) - 1) : L"not a text";
    lines.push_back(com::FromWide(path + L" [" + name + L"] " + value));
  }
  for (DWORD i = 0;; ++i) {
    DWORD nameLength = kLongestName;
    if (RegEnumKeyExW(key, i, name, &nameLength, nullptr, nullptr, nullptr, nullptr) !=
        ERROR_SUCCESS) {
      break;
    }
    const std::wstring child = path.empty() ? name : path + L"\\" + name;
    lines.push_back(com::FromWide(child));
    HKEY opened = nullptr;
    Require(RegOpenKeyExW(key, name, 0, KEY_READ, &opened));
    List(opened, child, lines);
    RegCloseKey(opened);
  }
}

}  // namespace

RegistrySandbox::RegistrySandbox()
    : name_(L"Software\\Rangewerks test " + std::to_wstring(GetCurrentProcessId())) {
  Require(RegOpenKeyExW(HKEY_CURRENT_USER, nullptr, 0, KEY_ALL_ACCESS, &real_));
  top_ = Create(real_, name_.c_str());
  machine_ = Create(top_, L"Machine");
  person_ = Create(top_, L"Person");
  Require(RegOverridePredefKey(HKEY_LOCAL_MACHINE, machine_));
  Require(RegOverridePredefKey(HKEY_CURRENT_USER, person_));
}

RegistrySandbox::~RegistrySandbox() {
  RegOverridePredefKey(HKEY_LOCAL_MACHINE, nullptr);
  RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
  AllowMachine();
  for (HKEY key : {machine_, person_, top_}) {
    if (key != nullptr) RegCloseKey(key);
  }
  RegDeleteTreeW(real_, name_.c_str());
  RegCloseKey(real_);
}

std::vector<std::string> RegistrySandbox::ClassesOf(HKEY root) {
  std::vector<std::string> lines;
  HKEY classes = nullptr;
  if (RegOpenKeyExW(root, kClasses, 0, KEY_READ, &classes) != ERROR_SUCCESS) return lines;
  List(classes, L"", lines);
  RegCloseKey(classes);
  std::ranges::sort(lines);
  return lines;
}

void RegistrySandbox::ForbidMachine(const std::string& below) {
  std::wstring name = kClasses;
  if (!below.empty()) name += L"\\" + com::ToWide(below);
  forbidden_ = Create(HKEY_LOCAL_MACHINE, name.c_str(), KEY_READ | WRITE_DAC);
  SetRights(forbidden_, L"D:(A;;KR;;;WD)");
}

void RegistrySandbox::AllowMachine() {
  if (forbidden_ == nullptr) return;
  SetRights(forbidden_, L"D:(A;;KA;;;WD)");
  RegCloseKey(std::exchange(forbidden_, nullptr));
}

}  // namespace rangewerks::tests
