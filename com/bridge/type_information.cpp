#include "com/bridge/type_information.h"

#include <ocidl.h>

#include "com/bridge/text.h"

namespace rangewerks::com {

Pointer<ITypeInfo> TypeInformationOf(IDispatch* object) {
  Pointer<ITypeInfo> result;
  if (object == nullptr || FAILED(object->GetTypeInfo(0, LOCALE_USER_DEFAULT, result.Receive()))) {
    return {};
  }
  return result;
}

std::string NameOf(ITypeInfo& type) { return NameOf(type, MEMBERID_NIL); }

std::string NameOf(ITypeInfo& type, MEMBERID member) {
  Bstr name;
  if (FAILED(type.GetDocumentation(member, name.Receive(), nullptr, nullptr, nullptr))) return {};
  return name.Text();
}

GUID IdentifierOf(ITypeInfo& type) {
  TYPEATTR* attributes = nullptr;
  if (FAILED(type.GetTypeAttr(&attributes))) return GUID_NULL;
  const GUID result = attributes->guid;
  type.ReleaseTypeAttr(attributes);
  return result;
}

namespace {

/// Number of the interfaces that a class lists.
WORD ImplementedBy(ITypeInfo& type) {
  TYPEATTR* attributes = nullptr;
  if (FAILED(type.GetTypeAttr(&attributes))) return 0;
  const WORD result = attributes->cImplTypes;
  type.ReleaseTypeAttr(attributes);
  return result;
}

Pointer<ITypeInfo> ClassWithDefault(ITypeInfo& members) {
  Pointer<ITypeLib> library;
  UINT index = 0;
  if (FAILED(members.GetContainingTypeLib(library.Receive(), &index))) return {};
  const GUID wanted = IdentifierOf(members);
  for (UINT i = 0; i < library->GetTypeInfoCount(); ++i) {
    TYPEKIND kind{};
    Pointer<ITypeInfo> type;
    if (FAILED(library->GetTypeInfoType(i, &kind)) || kind != TKIND_COCLASS) continue;
    if (FAILED(library->GetTypeInfo(i, type.Receive()))) continue;
    const auto candidate = DefaultInterfaceOf(*type.Get(), 0);
    if (candidate && IsEqualGUID(IdentifierOf(*candidate.Get()), wanted) != 0) {
      return type;
    }
  }
  return {};
}

}  // namespace

Pointer<ITypeInfo> ClassOf(IUnknown* object, IDispatch* dispatch) {
  Pointer<ITypeInfo> result;
  const auto teller = Pointer(object).TryQuery<IProvideClassInfo>();
  if (teller && SUCCEEDED(teller->GetClassInfo(result.Receive())) && result) return result;
  const auto members = TypeInformationOf(dispatch);
  return members ? ClassWithDefault(*members.Get()) : Pointer<ITypeInfo>();
}

Pointer<ITypeInfo> DefaultInterfaceOf(ITypeInfo& type, int sourceFlag) {
  const WORD implemented = ImplementedBy(type);
  for (UINT i = 0; i < implemented; ++i) {
    int flags = 0;
    HREFTYPE reference = 0;
    Pointer<ITypeInfo> result;
    if (FAILED(type.GetImplTypeFlags(i, &flags))) continue;
    if ((flags & (IMPLTYPEFLAG_FDEFAULT | IMPLTYPEFLAG_FSOURCE)) !=
        (IMPLTYPEFLAG_FDEFAULT | sourceFlag)) {
      continue;
    }
    if (SUCCEEDED(type.GetRefTypeOfImplType(i, &reference)) &&
        SUCCEEDED(type.GetRefTypeInfo(reference, result.Receive()))) {
      return result;
    }
  }
  return {};
}

}  // namespace rangewerks::com
