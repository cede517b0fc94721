#include "com/bridge/com_object.h"

#include <mutex>
#include <optional>
#include <unordered_map>
#include <utility>

#include "automation/error.h"
#include "com/bridge/com_object_faces.h"
#include "com/bridge/enumerators.h"
#include "com/bridge/failures.h"
#include "com/bridge/incoming_arguments.h"
#include "com/bridge/text.h"
#include "com/bridge/type_information.h"
#include "com/bridge/values.h"

namespace rangewerks::com {
namespace {

using automation::CallKind;
using automation::Member;

struct LivingObjects {
  std::mutex mutex;
  std::unordered_map<const automation::Dispatch*, ComObject*> byCore;
};

LivingObjects& Living() {
  static auto* const living = new LivingObjects;  // outlives every object, those in statics too
  return *living;
}

const automation::MemberTable* TableOf(const Object& core) {
  const auto declared = core.As<automation::AutomationClass>();
  return declared ? &declared->Members() : nullptr;
}

const DualInterface* InterfaceOf(const automation::MemberTable* table) {
  return table == nullptr ? nullptr : PublishedInterface(table->ClassName());
}

const void* const* PlainSlots() {
  static const auto* const slots = new std::vector<const void*>(DispatchSlots());
  return slots->data();
}

}  // namespace

ComObject::ComObject(Object core)
    : face_{nullptr, this},
      core_(std::move(core)),
      table_(TableOf(core_)),
      published_(InterfaceOf(table_)),
      identifiers_(table_, published_ != nullptr) {
  face_.slots = published_ != nullptr ? published_->slots.data() : PlainSlots();
}

ComObject::~ComObject() = default;

Pointer<IDispatch> ComObject::For(const Object& object) {
  LivingObjects& living = Living();
  const std::lock_guard lock(living.mutex);
  ComObject*& entry = living.byCore[object.Target()];
  if (entry == nullptr || !entry->TryAddReference()) entry = new ComObject(object);
  return Pointer<IDispatch>::Adopt(entry->Dispatch());
}

const ComObject* ComObject::TryFrom(IUnknown* object) {
  // Our interface pointers, and no others, have our function in their first slot.
  const auto* const face = reinterpret_cast<const DispatchFace*>(object);
  return *face->slots == *PlainSlots() ? face->owner : nullptr;
}

bool ComObject::TryAddReference() noexcept {
  ULONG count = references_;
  while (count != 0) {
    if (references_.compare_exchange_weak(count, count + 1)) return true;
  }
  return false;  // the last reference is just going
}

ULONG ComObject::Release() noexcept {
  const ULONG left = --references_;
  if (left == 0) {
    LivingObjects& living = Living();
    {
      const std::lock_guard lock(living.mutex);
      const auto found = living.byCore.find(core_.Target());
      if (found != living.byCore.end() && found->second == this) living.byCore.erase(found);
    }
    delete this;
  }
  return left;
}

HRESULT ComObject::Query(REFIID iid, void** object) noexcept {
  if (object == nullptr) return E_POINTER;
  *object = nullptr;
  if (IsEqualIID(iid, IID_IUnknown) != 0 || IsEqualIID(iid, __uuidof(IDispatch)) != 0 ||
      (published_ != nullptr && IsEqualIID(iid, published_->iid) != 0)) {
    *object = Dispatch();
  } else if (IsEqualIID(iid, __uuidof(ISupportErrorInfo)) != 0) {
    if (!errorSupport_) errorSupport_ = std::make_unique<ErrorSupport>(*this);
    *object = errorSupport_.get();
  } else if (published_ != nullptr && (IsEqualIID(iid, __uuidof(IProvideClassInfo)) != 0 ||
                                       IsEqualIID(iid, __uuidof(IProvideClassInfo2)) != 0)) {
    if (!classInformation_) classInformation_ = std::make_unique<ClassInformation>(*this);
    *object = classInformation_.get();
  } else if (published_ != nullptr && published_->source &&
             IsEqualIID(iid, __uuidof(IConnectionPointContainer)) != 0) {
    if (!connectionPoints_) connectionPoints_ = std::make_unique<ConnectionPoints>(*this);
    *object = connectionPoints_.get();
  } else {
    *object = TryFindMore(iid);
  }
  if (*object == nullptr) return E_NOINTERFACE;
  AddReference();
  return S_OK;
}

IUnknown* ComObject::TryFindMore(REFIID iid) noexcept {
  if (published_ == nullptr || published_->more == nullptr) return nullptr;
  try {
    if (!more_) more_ = published_->more(*Dispatch(), core_);
    return more_->TryFind(iid);
  } catch (...) {
    return nullptr;  // a query says only whether the interface is there
  }
}

HRESULT ComObject::TypeInformation(UINT index, ITypeInfo** information) const noexcept {
  if (information == nullptr) return E_POINTER;
  *information = nullptr;
  if (index != 0) return DISP_E_BADINDEX;
  try {
    auto type = published_ != nullptr ? published_->members : NamedType(core_.TypeName());
    *information = type.Detach();
    return S_OK;
  } catch (...) {
    return ReportCurrentException();
  }
}

HRESULT ComObject::Identify(LPOLESTR* names, UINT count, DISPID* ids) const noexcept {
  if (names == nullptr || ids == nullptr) return E_POINTER;
  if (count == 0) return E_INVALIDARG;
  try {
    bool complete = true;
    const auto answer = [&](UINT i, std::optional<DISPID> id) {
      ids[i] = id.value_or(DISPID_UNKNOWN);
      complete = complete && id;
    };
    answer(0, identifiers_.OfMember(FromWide(names[0])));
    for (UINT i = 1; i < count; ++i) {
      answer(i, ids[0] == DISPID_UNKNOWN ? std::nullopt
                                         : identifiers_.OfArgument(ids[0], FromWide(names[i])));
    }
    return complete ? S_OK : DISP_E_UNKNOWNNAME;
  } catch (...) {
    return ReportCurrentException();
  }
}

CallKind ComObject::KindOf(Member member, WORD flags, const DISPPARAMS& parameters) const {
  if ((flags & DISPATCH_PROPERTYPUTREF) != 0) {
    // Some callers leave it to the object whether a value that is an object is referred to.
    const VARIANT* value = parameters.cArgs > 0 ? &parameters.rgvarg[0] : nullptr;
    const bool refers = (flags & DISPATCH_PROPERTYPUT) == 0 ||
                        (value != nullptr && FromVariant(*value).IsObject() &&
                         (table_ == nullptr || table_->TryFind(member, CallKind::Set) != nullptr));
    return refers ? CallKind::Set : CallKind::Let;
  }
  if ((flags & DISPATCH_PROPERTYPUT) != 0) return CallKind::Let;
  if ((flags & DISPATCH_PROPERTYGET) == 0) return CallKind::Call;
  const bool isMethod = (flags & DISPATCH_METHOD) != 0 && table_ != nullptr &&
                        table_->TryFind(member, CallKind::Get) == nullptr &&
                        table_->TryFind(member, CallKind::Call) != nullptr;
  return isMethod ? CallKind::Call : CallKind::Get;
}

HRESULT ComObject::Invoke(DISPID id, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                          EXCEPINFO* exception) const noexcept {
  if (parameters == nullptr) return E_POINTER;
  if (result != nullptr) VariantInit(result);
  try {
    if (id == DISPID_NEWENUM) {
      auto walk = NewEnumerator(core_);
      if (result != nullptr) {
        V_UNKNOWN(result) = walk.Detach();
        V_VT(result) = VT_UNKNOWN;
      }
      return S_OK;
    }
    const auto member = identifiers_.MemberOf(id);
    if (!member) return DISP_E_MEMBERNOTFOUND;
    const IncomingArguments arguments(
        *parameters, [&](DISPID name) { return identifiers_.ArgumentOf(id, name); });
    Variant answer;
    try {
      answer = core_.Target()->Invoke(
          {*member, KindOf(*member, flags, *parameters), arguments.positional, arguments.named});
    } catch (...) {
      arguments.WriteBack();  // what a member assigned before it failed stays assigned
      throw;
    }
    arguments.WriteBack();
    if (result != nullptr) ToVariant(answer, *result);
    return S_OK;
  } catch (...) {
    return DescribeCurrentException(exception);
  }
}

}  // namespace rangewerks::com
