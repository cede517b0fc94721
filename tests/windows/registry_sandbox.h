// A registry of a test's own in the place of the real one.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace rangewerks::tests {

/// For as long as it lives, this process sees two empty keys as HKEY_LOCAL_MACHINE and
/// HKEY_CURRENT_USER. Nothing of it stays.
class RegistrySandbox {
 public:
  RegistrySandbox();
  RegistrySandbox(const RegistrySandbox&) = delete;
  RegistrySandbox& operator=(const RegistrySandbox&) = delete;
  ~RegistrySandbox();

  /// Every key of one of the two and every value in it, one line each, sorted:
  /// "CLSID\{...}\ProgID" and "CLSID\{...}\ProgID [] text", without "Software\Classes\" in front.
  static std::vector<std::string> ClassesOf(HKEY root);
  /// From now on this person may look at the machine's classes, or at the key `below` them, and not
  /// change it. Keys that are further down already keep their rights.
  void ForbidMachine(const std::string& below = {});
  void AllowMachine();

 private:
  HKEY real_ = nullptr;  // the real HKEY_CURRENT_USER
  HKEY top_ = nullptr;
  HKEY machine_ = nullptr;
  HKEY person_ = nullptr;
  HKEY forbidden_ = nullptr;
  std::wstring name_;
};

}  // namespace rangewerks::tests
