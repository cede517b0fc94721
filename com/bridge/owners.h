// Owners of what COM hands out by hand: interface pointers, texts and variants.
#pragma once

#include <oaidl.h>
#include <windows.h>

#include <utility>

namespace rangewerks::com {

/// A counted reference to an interface, or none.
template <class T>
class Pointer {
 public:
  Pointer() = default;
  /// Takes a reference of its own.
  explicit Pointer(T* target) : target_(target) {
    if (target_ != nullptr) target_->AddRef();
  }
  Pointer(const Pointer& other) : Pointer(other.target_) {}
  Pointer(Pointer&& other) noexcept : target_(std::exchange(other.target_, nullptr)) {}
  Pointer& operator=(Pointer other) noexcept {
    std::swap(target_, other.target_);
    return *this;
  }
  ~Pointer() {
    if (target_ != nullptr) target_->Release();
  }

  /// Takes over a reference that the caller has counted.
  static Pointer Adopt(T* target) noexcept {
    Pointer result;
    result.target_ = target;
    return result;
  }
  /// The object under another interface, or none when it lacks that.
  template <class U>
  Pointer<U> TryQuery(REFIID iid = __uuidof(U)) const {
    void* found = nullptr;
    if (target_ == nullptr || FAILED(target_->QueryInterface(iid, &found))) return {};
    return Pointer<U>::Adopt(static_cast<U*>(found));
  }

  T* Get() const noexcept { return target_; }
  T* operator->() const noexcept { return target_; }
  explicit operator bool() const noexcept { return target_ != nullptr; }
  /// Gives the reference away.
  T* Detach() noexcept { return std::exchange(target_, nullptr); }
  /// Where a function writes a reference that it has counted; drops the one held.
  T** Receive() noexcept {
    *this = Pointer();
    return &target_;
  }
  void** ReceiveAny() noexcept { return reinterpret_cast<void**>(Receive()); }

 private:
  T* target_ = nullptr;
};

/// A variant that is cleared at the end.
class OwnedVariant {
 public:
  OwnedVariant() noexcept { VariantInit(&value_); }
  OwnedVariant(const OwnedVariant&) = delete;
  OwnedVariant& operator=(const OwnedVariant&) = delete;
  ~OwnedVariant() { VariantClear(&value_); }

  VARIANT* operator&() noexcept { return &value_; }  // NOLINT(google-runtime-operator)
  VARIANT& operator*() noexcept { return value_; }
  VARIANT* operator->() noexcept { return &value_; }

 private:
  VARIANT value_;
};

}  // namespace rangewerks::com
