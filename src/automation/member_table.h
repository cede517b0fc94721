// A public class declares its members once, in a table, and is thereby callable by name from
// anywhere.
//
//   const MemberTable& Thing::Members() const {
//     static const MemberTable table = MemberTable::For<Thing>("Thing")
//         .Get(1, "Count", &Thing::Count, {}, "Number of entries.")
//         .Method(2, "Add", &Thing::Add, {{"Name"}, {"Size", 0}}, "Adds an entry; ...");
//     return table;
//   }
#pragma once

#include <array>
#include <concepts>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <tuple>
#include <type_traits>
#include <unordered_map>
#include <utility>
#include <vector>

#include "automation/conversions.h"
#include "automation/dispatch.h"
#include "automation/error.h"

namespace rangewerks::automation {

/// The type of an argument or a result, as a type library tells it.
enum class TypeCode {
  Void,
  Variant,
  Boolean,
  Integer,
  Long,  ///< enumerations too
  Double,
  Date,
  String,
  Object,
};

/// How a table names an argument: its name, and its default when it may be left out.
struct Parameter {
  Parameter(std::string_view parameterName) : name(parameterName) {}
  Parameter(const char* parameterName) : name(parameterName) {}
  Parameter(std::string_view parameterName, Variant value)
      : name(parameterName), defaultValue(std::move(value)) {}

  Member name;
  std::optional<Variant> defaultValue;
};

struct ArgumentInfo {
  Member name;
  TypeCode type;
  bool inOut;  ///< the callee writes to the caller's variable
  std::optional<Variant> defaultValue;
};

/// One entry of a table: one member in one role.
struct MemberInfo {
  Member name;
  std::int32_t id;  ///< dispatch identifier; 0 is the default member, -4 the enumerator
  CallKind kind;
  std::vector<ArgumentInfo> arguments;  ///< without the value of a let or set
  TypeCode result;                      ///< for a let or set the type of the value
  std::string help;
  std::function<Variant(Dispatch&, std::span<const Argument* const>)> invoke;
};

inline constexpr std::int32_t kDefaultMemberId = 0;
inline constexpr std::int32_t kEnumeratorId = -4;

/// The dispatch identifiers, roles, arguments and help strings of one class, in the order of its
/// slots, with the code behind each.
class MemberTable {
 public:
  template <class Class>
  class Builder;

  /// Starts the table of a class whose objects report that name.
  template <class Class>
  static Builder<Class> For(std::string_view className);
  /// Starts the table of a class that has the members of its base class and others besides.
  template <class Class>
  static Builder<Class> Extending(const MemberTable& base);

  const std::string& ClassName() const noexcept { return className_; }
  /// The class name, to be compared with others at the cost of a number.
  Member Type() const noexcept { return type_; }
  const std::vector<MemberInfo>& Entries() const noexcept { return entries_; }

  /// Finds the member and carries the call out on `self`: named arguments are placed, left out ones
  /// take their defaults, values are converted to the declared types and written back where the
  /// member writes to them. Raises 438, 448, 449, 450 or 13 when the call doesn't fit.
  Variant Invoke(Dispatch& self, const Invocation& call) const;
  /// The same for an entry of this table, which the caller has found itself.
  static Variant Invoke(Dispatch& self, const MemberInfo& entry,
                        std::span<const Argument> positional, std::span<const NamedArgument> named);
  /// The entry of a member in exactly that role, or null.
  const MemberInfo* TryFind(Member member, CallKind kind) const;

 private:
  explicit MemberTable(std::string_view className) : className_(className), type_(className) {}
  void Append(MemberInfo entry);
  const MemberInfo& Find(const Invocation& call) const;

  std::string className_;
  Member type_;
  std::vector<MemberInfo> entries_;
  /// Index + 1 into the entries by role; a method and a read answer for each other.
  std::unordered_map<Member, std::array<std::size_t, 4>> byName_;
};

/// The base of the library's public classes: late binding by their member table.
class AutomationClass : public Dispatch {
 public:
  std::string TypeName() const override { return Members().ClassName(); }
  Variant Invoke(const Invocation& call) override { return Members().Invoke(*this, call); }
  virtual const MemberTable& Members() const = 0;
};

/// A walk that has been started, as an object: for callers that fetch an enumerator by name. It can
/// be walked once.
class EnumeratorObject final : public Dispatch {
 public:
  explicit EnumeratorObject(std::unique_ptr<Enumerator> walk) : walk_(std::move(walk)) {}
  std::string TypeName() const override { return "Unknown"; }
  Variant Invoke(const Invocation& /*call*/) override { throw Error(ErrorNumber::MemberNotFound); }
  std::unique_ptr<Enumerator> Enumerate() override {
    if (!walk_) throw Error(ErrorNumber::NotACollection);
    return std::move(walk_);
  }

 private:
  std::unique_ptr<Enumerator> walk_;
};

// --- how C++ types and variants meet -------------------------------------------------------------

template <class T>
struct VariantCast;

template <>
struct VariantCast<Variant> {
  static constexpr TypeCode kType = TypeCode::Variant;
  static Variant From(const Variant& value) { return value; }
};
template <>
struct VariantCast<bool> {
  static constexpr TypeCode kType = TypeCode::Boolean;
  static bool From(const Variant& value) { return ToBoolean(value, Locale::Current()); }
};
template <>
struct VariantCast<std::int16_t> {
  static constexpr TypeCode kType = TypeCode::Integer;
  static std::int16_t From(const Variant& value) { return ToInteger(value, Locale::Current()); }
};
template <>
struct VariantCast<std::int32_t> {
  static constexpr TypeCode kType = TypeCode::Long;
  static std::int32_t From(const Variant& value) { return ToLong(value, Locale::Current()); }
};
template <>
struct VariantCast<double> {
  static constexpr TypeCode kType = TypeCode::Double;
  static double From(const Variant& value) { return ToDouble(value, Locale::Current()); }
};
template <>
struct VariantCast<Date> {
  static constexpr TypeCode kType = TypeCode::Date;
  static Date From(const Variant& value) { return ToDate(value, Locale::Current()); }
};
template <>
struct VariantCast<std::string> {
  static constexpr TypeCode kType = TypeCode::String;
  static std::string From(const Variant& value) { return ToString(value, Locale::Current()); }
};
template <class T>
requires std::is_enum_v<T>
struct VariantCast<T> {
  static constexpr TypeCode kType = TypeCode::Long;
  static T From(const Variant& value) { return static_cast<T>(ToLong(value, Locale::Current())); }
};
/// Object, and the typed proxies that derive from it.
template <class T>
requires std::derived_from<T, Object>
struct VariantCast<T> {
  static constexpr TypeCode kType = TypeCode::Object;
  static T From(const Variant& value) { return T(value.AsObject().Share()); }
};
/// The object in a value as one of a class of the library's own: no object is null. Raises 13 for
/// an object of another class.
template <class T>
std::shared_ptr<T> InstanceIn(const Variant& value) {
  const Object& object = value.AsObject();
  auto result = object.As<T>();
  if (object && !result) throw Error(ErrorNumber::TypeMismatch);
  return result;
}
template <class T>
requires std::derived_from<T, Dispatch>
struct VariantCast<std::shared_ptr<T>> {
  static constexpr TypeCode kType = TypeCode::Object;
  static std::shared_ptr<T> From(const Variant& value) { return InstanceIn<T>(value); }
};

template <class T>
Variant ToVariant(const T& value) {
  if constexpr (std::is_enum_v<T>) {
    return static_cast<std::int32_t>(value);
  } else if constexpr (std::derived_from<T, Object>) {
    return static_cast<const Object&>(value);
  } else {
    return Variant(value);
  }
}

// --- building a table ----------------------------------------------------------------------------

namespace detail {

/// A C++ reference that isn't const is an argument that the member writes to.
template <class T>
inline constexpr bool kWritesBack =
    std::is_lvalue_reference_v<T> && !std::is_const_v<std::remove_reference_t<T>>;

template <class Method>
struct Signature;
template <class C, class R, class... A>
struct Signature<R (C::*)(A...)> {
  using Result = R;
  static std::vector<ArgumentInfo> Arguments(const std::vector<Parameter>& parameters,
                                             std::size_t count) {
    const std::array<std::pair<TypeCode, bool>, sizeof...(A)> types{
        {{VariantCast<std::remove_cvref_t<A>>::kType, kWritesBack<A>}...}};
    std::vector<ArgumentInfo> result;
    for (std::size_t i = 0; i < count; ++i) {
      result.push_back({parameters.at(i).name, types.at(i).first, types.at(i).second,
                        parameters.at(i).defaultValue});
    }
    return result;
  }
  static constexpr std::size_t kCount = sizeof...(A);
  /// Type of the last argument, which is the value of a let.
  static TypeCode LastType() {
    TypeCode last = TypeCode::Void;
    ((last = VariantCast<std::remove_cvref_t<A>>::kType), ...);
    return last;
  }
  template <class Class, class M>
  static Variant Call(Class& self, M method, std::span<const Argument* const> arguments) {
    return CallWith(self, method, arguments, std::index_sequence_for<A...>());
  }

 private:
  template <class Class, class M, class... Values>
  static decltype(auto) Apply([[maybe_unused]] Class& self, M method, Values&... values) {
    if constexpr (std::is_member_function_pointer_v<M>) {
      return (self.*method)(values...);
    } else {
      return method(values...);
    }
  }
  template <class Parameter, class Value>
  static void WriteBack([[maybe_unused]] const Argument& argument,
                        [[maybe_unused]] const Value& value) {
    if constexpr (kWritesBack<Parameter>) argument.Assign(ToVariant(value));
  }
  template <class Class, class M, std::size_t... I>
  static Variant CallWith(Class& self, M method,
                          [[maybe_unused]] std::span<const Argument* const> arguments,
                          std::index_sequence<I...> /*indexes*/) {
    std::tuple<std::remove_cvref_t<A>...> values{
        VariantCast<std::remove_cvref_t<A>>::From(arguments[I]->Value())...};
    const auto writeBack = [&] { (WriteBack<A>(*arguments[I], std::get<I>(values)), ...); };
    try {
      if constexpr (std::is_void_v<R>) {
        Apply(self, method, std::get<I>(values)...);
        writeBack();
        return {};
      } else {
        Variant result =
            ToVariant<std::remove_cvref_t<R>>(Apply(self, method, std::get<I>(values)...));
        writeBack();
        return result;
      }
    } catch (...) {
      writeBack();  // a caller's variable keeps what the member gave it before it failed
      throw;
    }
  }
};
/// A class without state declares static functions.
template <class R, class... A>
struct Signature<R (*)(A...)> : Signature<R (Dispatch::*)(A...)> {};
template <class C, class R, class... A>
struct Signature<R (C::*)(A...) const> : Signature<R (C::*)(A...)> {};
template <class C, class R, class... A>
struct Signature<R (C::*)(A...) const noexcept> : Signature<R (C::*)(A...)> {};

template <class R>
constexpr TypeCode ResultType() {
  if constexpr (std::is_void_v<R>) {
    return TypeCode::Void;
  } else {
    return VariantCast<std::remove_cvref_t<R>>::kType;
  }
}

}  // namespace detail

template <class Class>
class MemberTable::Builder {
 public:
  explicit Builder(std::string_view className) : table_(className) {}
  explicit Builder(const MemberTable& base) : table_(base) {}
  operator MemberTable() && { return std::move(table_); }

  template <class M>
  Builder&& Method(std::int32_t id, std::string_view name, M method,
                   const std::vector<Parameter>& parameters, std::string help) && {
    return std::move(*this).Add(CallKind::Call, id, name, method, parameters, std::move(help));
  }
  template <class M>
  Builder&& Get(std::int32_t id, std::string_view name, M method, std::string help) && {
    return std::move(*this).Add(CallKind::Get, id, name, method, {}, std::move(help));
  }
  template <class M>
  Builder&& Get(std::int32_t id, std::string_view name, M method,
                const std::vector<Parameter>& parameters, std::string help) && {
    return std::move(*this).Add(CallKind::Get, id, name, method, parameters, std::move(help));
  }
  template <class M>
  Builder&& Let(std::int32_t id, std::string_view name, M method, std::string help) && {
    return std::move(*this).Add(CallKind::Let, id, name, method, {}, std::move(help));
  }
  template <class M>
  Builder&& Set(std::int32_t id, std::string_view name, M method, std::string help) && {
    return std::move(*this).Add(CallKind::Set, id, name, method, {}, std::move(help));
  }
  /// The member that a for-each asks for: the walk of the class's Enumerate.
  Builder&& Enumerator(std::string_view name) && {
    table_.Append({Member(name),
                   kEnumeratorId,
                   CallKind::Get,
                   {},
                   TypeCode::Object,
                   "Enumerates the entries in their order.",
                   [](Dispatch& self, std::span<const Argument* const>) {
                     return Variant(std::make_shared<EnumeratorObject>(self.Enumerate()));
                   }});
    return std::move(*this);
  }

 private:
  template <class M>
  Builder&& Add(CallKind kind, std::int32_t id, std::string_view name, M method,
                const std::vector<Parameter>& parameters, std::string help) && {
    using Sig = detail::Signature<M>;
    const std::size_t count = Sig::kCount - (Writes(kind) ? 1 : 0);
    TypeCode result = detail::ResultType<typename Sig::Result>();
    if (Writes(kind)) result = Sig::LastType();
    table_.Append({Member(name), id, kind, Sig::Arguments(parameters, count), result,
                   std::move(help),
                   [method](Dispatch& self, std::span<const Argument* const> arguments) {
                     return Sig::Call(static_cast<Class&>(self), method, arguments);
                   }});
    return std::move(*this);
  }

  MemberTable table_;
};

template <class Class>
MemberTable::Builder<Class> MemberTable::For(std::string_view className) {
  return Builder<Class>(className);
}

template <class Class>
MemberTable::Builder<Class> MemberTable::Extending(const MemberTable& base) {
  return Builder<Class>(base);
}

}  // namespace rangewerks::automation
