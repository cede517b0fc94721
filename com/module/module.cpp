#include "com/module/module.h"

#include <atomic>

namespace rangewerks::com {
namespace {

std::atomic<long> locks{0};
HINSTANCE thisModule = nullptr;

}  // namespace

void LockModule() noexcept { ++locks; }
void UnlockModule() noexcept { --locks; }
bool ModuleInUse() noexcept { return locks != 0; }

HINSTANCE ModuleInstance() noexcept { return thisModule; }
void SetModuleInstance(HINSTANCE instance) noexcept { thisModule = instance; }

}  // namespace rangewerks::com
