// The slots of dual interfaces: functions that take a call through the virtual table to the member
// table. Private to dual_interface.h.
#pragma once

#include <oaidl.h>
#include <windows.h>

#include <array>
#include <concepts>
#include <span>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

#include "automation/dispatch.h"
#include "automation/member_table.h"
#include "com/bridge/objects.h"
#include "com/bridge/text.h"
#include "com/bridge/values.h"

namespace rangewerks::com {

class ComObject;

/// What an interface pointer of ours points to: as COM has it, a pointer to the table of functions.
struct DispatchFace {
  const void* const* slots;
  ComObject* owner;
};

/// The slots that every object has: those of IDispatch.
std::vector<const void*> DispatchSlots();

namespace detail {

using automation::Argument;
using automation::MemberInfo;
using automation::TypeCode;
using automation::Variant;

/// The entry of the owner's member table at that position.
const MemberInfo& EntryOf(const DispatchFace& face, std::size_t slot);
/// Carries the call out.
Variant Carry(const DispatchFace& face, const MemberInfo& entry,
              std::span<const Argument> arguments);
HRESULT ReportFailure() noexcept;

template <class T>
concept InterfaceType = std::derived_from<T, IUnknown>;

// A type that automation has twice (short: a number or a boolean; double: a number or a date) is
// told apart by the member table.
inline Variant Read(BSTR value, TypeCode /*type*/) { return FromBstr(value); }
inline Variant Read(LONG value, TypeCode /*type*/) { return static_cast<std::int32_t>(value); }
inline Variant Read(SHORT value, TypeCode type) {
  if (type == TypeCode::Boolean) return value != VARIANT_FALSE;
  return static_cast<std::int16_t>(value);
}
inline Variant Read(DOUBLE value, TypeCode type) {
  if (type == TypeCode::Date) return automation::Date{value};
  return value;
}
inline Variant Read(const VARIANT& value, TypeCode /*type*/) { return FromVariant(value); }
template <InterfaceType T>
Variant Read(T* value, TypeCode /*type*/) {
  return FromUnknown(value);
}
template <class T>
requires std::is_enum_v<T> Variant Read(T value, TypeCode /*type*/) {
  return static_cast<std::int32_t>(value);
}

template <class T>
void Write(T* place, const Variant& value) {
  if constexpr (std::is_same_v<T, VARIANT>) {
    VARIANT reference;
    VariantInit(&reference);
    V_VT(&reference) = VT_BYREF | VT_VARIANT;
    V_VARIANTREF(&reference) = place;
    AssignThrough(reference, value);
  } else if constexpr (std::is_same_v<T, BSTR>) {
    const BSTR old = std::exchange(*place, ToBstr(*value.TryGet<std::string>()));
    SysFreeString(old);
  } else if constexpr (std::is_same_v<T, SHORT>) {
    if (const bool* flag = value.TryGet<bool>()) {
      *place = *flag ? VARIANT_TRUE : VARIANT_FALSE;
    } else {
      *place = *value.TryGet<std::int16_t>();
    }
  } else if constexpr (std::is_same_v<T, DOUBLE>) {
    const auto* date = value.TryGet<automation::Date>();
    *place = date != nullptr ? date->serial : *value.TryGet<double>();
  } else if constexpr (std::is_same_v<T, IUnknown*>) {
    *place = ToUnknown(value.AsObject()).Detach();
  } else if constexpr (std::is_pointer_v<T>) {
    const T old = std::exchange(*place, static_cast<T>(ToDispatch(value.AsObject()).Detach()));
    if (old != nullptr) old->Release();
  } else {
    *place = static_cast<T>(*value.TryGet<std::int32_t>());
  }
}

/// A result is written where nothing is yet.
template <class T>
void WriteResult(T* place, const Variant& value) {
  *place = T{};
  Write(place, value);
}

/// What a slot's parameter is: a value, or a place that the callee reads and writes. A pointer to
/// an interface and a BSTR are values.
template <class P>
inline constexpr bool kIsPlace =
    std::is_pointer_v<P> && !std::is_same_v<P, BSTR> && !InterfaceType<std::remove_pointer_t<P>>;

/// No place at all is how a C++ caller leaves an optional one out.
template <class P>
Variant ReadParameter(P& parameter, TypeCode type) {
  if constexpr (kIsPlace<P>) {
    return parameter == nullptr ? Variant::Missing() : Read(*parameter, type);
  } else {
    return Read(parameter, type);
  }
}

template <std::size_t kSlot, class... P>
HRESULT CarrySlot(const DispatchFace& face, P&... parameters) noexcept {
  constexpr std::size_t kCount = sizeof...(P);
  try {
    const MemberInfo& entry = EntryOf(face, kSlot);
    const bool writes = automation::Writes(entry.kind);
    const bool answers = !writes && entry.result != TypeCode::Void;
    const std::size_t given = kCount - (answers ? 1 : 0);
    const auto typeOf = [&](std::size_t i) {
      return i < entry.arguments.size() ? entry.arguments[i].type : entry.result;
    };

    if constexpr (kCount > 0) {
      auto& last = std::get<kCount - 1>(std::tie(parameters...));
      if constexpr (kIsPlace<std::remove_reference_t<decltype(last)>>) {
        if (answers && last == nullptr) return E_POINTER;
      }
    }
    std::array<Variant, kCount + 1> variables;
    std::array<Argument, kCount + 1> arguments;
    const auto take = [&]<std::size_t... I>(std::index_sequence<I...> /*positions*/) {
      [[maybe_unused]] const auto takeOne = [&](std::size_t i, auto& parameter) {
        if (i >= given) return;
        variables.at(i) = ReadParameter(parameter, typeOf(i));
        const bool inOut = i < entry.arguments.size() && entry.arguments[i].inOut;
        arguments.at(i) = inOut && !variables.at(i).IsMissing()
                              ? Argument::Reference(variables.at(i))
                              : Argument(variables.at(i));
      };
      (takeOne(I, parameters), ...);
    };
    take(std::index_sequence_for<P...>());
    const auto writeBack = [&]<std::size_t... I>(std::index_sequence<I...> /*positions*/) {
      [[maybe_unused]] const auto writeOne = [&](std::size_t i, [[maybe_unused]] auto& parameter) {
        if constexpr (kIsPlace<std::remove_reference_t<decltype(parameter)>>) {
          if (i < given && arguments.at(i).IsReference()) Write(parameter, variables.at(i));
        }
      };
      (writeOne(I, parameters), ...);
    };

    Variant result;
    try {
      result = Carry(face, entry, std::span(arguments).first(given));
    } catch (...) {
      writeBack(std::index_sequence_for<P...>());  // as every caller by name sees it
      throw;
    }
    writeBack(std::index_sequence_for<P...>());
    if constexpr (kCount > 0) {
      auto& last = std::get<kCount - 1>(std::tie(parameters...));
      if constexpr (kIsPlace<std::remove_reference_t<decltype(last)>>) {
        if (answers) WriteResult(last, result);
      }
    }
    return S_OK;
  } catch (...) {
    return ReportFailure();
  }
}

template <std::size_t kSlot, auto kMember>
struct Slot;
template <std::size_t kSlot, class I, class... P, HRESULT (STDMETHODCALLTYPE I::*kMember)(P...)>
struct Slot<kSlot, kMember> {
  static HRESULT STDMETHODCALLTYPE Call(const DispatchFace* self, P... parameters) noexcept {
    return CarrySlot<kSlot>(*self, parameters...);
  }
};

}  // namespace detail

template <auto... Members, std::size_t... I>
void AppendSlots(std::vector<const void*>& slots, std::index_sequence<I...> /*positions*/) {
  (slots.push_back(reinterpret_cast<const void*>(&detail::Slot<I, Members>::Call)), ...);
}

}  // namespace rangewerks::com
