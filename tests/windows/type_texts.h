// What a type library says, as texts that a test can compare with what the member tables say.
#pragma once

#include <oaidl.h>

#include <string>
#include <vector>

#include "automation/member_table.h"
#include "com/bridge/owners.h"

namespace rangewerks::tests {

/// The type with that name in Rangewerks.dll's library.
com::Pointer<ITypeInfo> TypeNamed(const std::string& name);
std::string NameOfType(ITypeInfo& type);

/// One line for each slot of a dual interface behind those of IDispatch: its offset, how it is
/// called, its identifier and name, each argument with its direction, type and default, the result,
/// the help string.
///
///   72 get 0 Item(in vntIndexKey Variant) Object "The range at a position or with a key."
std::vector<std::string> SlotsOf(ITypeInfo& dual);
/// The same lines as a class's member table demands them.
std::vector<std::string> SlotsDemandedBy(const automation::MemberTable& table);

/// "member: type" for each result and "member(argument): type" for each argument of a dual
/// interface, or of a source interface, whose type is a type of the library's own.
std::vector<std::string> OwnTypesIn(ITypeInfo& interfaceType);

/// The slots of a dual interface as its virtual table has them; another interface as it is.
com::Pointer<ITypeInfo> TableViewOf(ITypeInfo& type);

/// A description that a type hands out, freed at the end.
template <class Description, void (STDMETHODCALLTYPE ITypeInfo::*kFree)(Description*)>
class Described {
 public:
  explicit Described(ITypeInfo& type) : type_(type) {}
  Described(const Described&) = delete;
  Described& operator=(const Described&) = delete;
  ~Described() {
    if (description_ != nullptr) (type_.*kFree)(description_);
  }
  Description** Receive() { return &description_; }
  Description* operator->() const { return description_; }

 private:
  ITypeInfo& type_;
  Description* description_ = nullptr;
};
using TypeAttributes = Described<TYPEATTR, &ITypeInfo::ReleaseTypeAttr>;
using FunctionDescription = Described<FUNCDESC, &ITypeInfo::ReleaseFuncDesc>;
using VariableDescription = Described<VARDESC, &ITypeInfo::ReleaseVarDesc>;

}  // namespace rangewerks::tests
