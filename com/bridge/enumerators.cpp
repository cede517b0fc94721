#include "com/bridge/enumerators.h"

#include <utility>

#include "automation/error.h"
#include "com/bridge/counted.h"
#include "com/bridge/failures.h"
#include "com/bridge/values.h"

namespace rangewerks::com {
namespace {

using automation::Enumerator;
using automation::Object;

class ForeignWalk final : public Enumerator {
 public:
  explicit ForeignWalk(Pointer<IEnumVARIANT> walk) : walk_(std::move(walk)) {}
  bool Next(Variant& element) override {
    OwnedVariant next;
    ULONG fetched = 0;
    const HRESULT answer = walk_->Next(1, &next, &fetched);
    Require(answer);
    if (answer != S_OK) return false;
    element = FromVariant(*next);
    return true;
  }

 private:
  Pointer<IEnumVARIANT> walk_;
};

class EnumVariant final : public Counted<IEnumVARIANT> {
 public:
  EnumVariant(Object collection, std::unique_ptr<Enumerator> walk)
      : collection_(std::move(collection)), walk_(std::move(walk)) {}

  HRESULT STDMETHODCALLTYPE Next(ULONG count, VARIANT* elements, ULONG* fetched) noexcept override {
    if (fetched != nullptr) *fetched = 0;
    if (elements == nullptr || (fetched == nullptr && count > 1)) return E_POINTER;
    ULONG done = 0;
    try {
      for (Variant element; done < count && walk_->Next(element); ++done) {
        ToVariant(element, elements[done]);
      }
    } catch (...) {
      for (ULONG i = 0; i < done; ++i) VariantClear(&elements[i]);
      return ReportCurrentException();
    }
    if (fetched != nullptr) *fetched = done;
    return done == count ? S_OK : S_FALSE;
  }
  HRESULT STDMETHODCALLTYPE Skip(ULONG count) noexcept override {
    try {
      Variant passed;
      for (ULONG i = 0; i < count; ++i) {
        if (!walk_->Next(passed)) return S_FALSE;
      }
      return S_OK;
    } catch (...) {
      return ReportCurrentException();
    }
  }
  HRESULT STDMETHODCALLTYPE Reset() noexcept override {
    try {
      walk_ = collection_.Enumerate();
      return S_OK;
    } catch (...) {
      return ReportCurrentException();
    }
  }
  HRESULT STDMETHODCALLTYPE Clone(IEnumVARIANT** copy) noexcept override {
    if (copy != nullptr) *copy = nullptr;
    return E_NOTIMPL;
  }

 private:
  Object collection_;
  std::unique_ptr<Enumerator> walk_;
};

}  // namespace

std::unique_ptr<Enumerator> WalkOver(const VARIANT& enumerator) {
  Pointer<IEnumVARIANT> walk;
  if (V_VT(&enumerator) == VT_UNKNOWN || V_VT(&enumerator) == VT_DISPATCH) {
    walk = Pointer(V_UNKNOWN(&enumerator)).TryQuery<IEnumVARIANT>();
  }
  if (!walk) throw automation::Error(automation::ErrorNumber::NotACollection);
  return std::make_unique<ForeignWalk>(std::move(walk));
}

Pointer<IUnknown> NewEnumerator(const Object& collection) {
  return Pointer<IUnknown>::Adopt(new EnumVariant(collection, collection.Enumerate()));
}

}  // namespace rangewerks::com
