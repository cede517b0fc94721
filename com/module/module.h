// What keeps this server's code in memory: the module may be unloaded when nobody holds an object
// of it and no class object is locked.
//
//   class Thing : public IUnknown {
//     ModuleLock lock_;  // a living Thing keeps the module
//   };
#pragma once

#include <windows.h>

namespace rangewerks::com {

/// Keeps the module loaded until a matching UnlockModule. From any thread.
void LockModule() noexcept;
void UnlockModule() noexcept;
/// Whether a lock is held.
bool ModuleInUse() noexcept;

/// Holds the module for as long as it lives; a member of each object that is given out.
class ModuleLock {
 public:
  ModuleLock() noexcept { LockModule(); }
  ModuleLock(const ModuleLock& /*other*/) noexcept { LockModule(); }
  ModuleLock& operator=(const ModuleLock&) noexcept = default;
  ~ModuleLock() { UnlockModule(); }
};

/// The DLL that holds this code: its file, its resources. Null before SetModuleInstance.
HINSTANCE ModuleInstance() noexcept;
/// Called once, by DllMain.
void SetModuleInstance(HINSTANCE instance) noexcept;

}  // namespace rangewerks::com
