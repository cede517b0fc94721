// What type information tells about objects of others, and the little that we tell of ours where no
// type library describes them.
#pragma once

#include <oaidl.h>
#include <windows.h>

#include <string>

#include "com/bridge/owners.h"

namespace rangewerks::com {

/// The type information of an object; none when it has none, or `object` is null.
Pointer<ITypeInfo> TypeInformationOf(IDispatch* object);
/// The name of a type, empty when it has none.
std::string NameOf(ITypeInfo& type);
/// The name of a member or event of a type, empty when the type doesn't have it.
std::string NameOf(ITypeInfo& type, MEMBERID member);
GUID IdentifierOf(ITypeInfo& type);

/// The class of an object: what it says itself, or the class in its type library whose default
/// interface the object's is. None when neither can be told.
Pointer<ITypeInfo> ClassOf(IUnknown* object, IDispatch* dispatch);
/// The class's interface of that kind (IMPLTYPEFLAG_FSOURCE: of its events, 0: of its members) that
/// is marked as the default; none when there is none.
Pointer<ITypeInfo> DefaultInterfaceOf(ITypeInfo& type, int sourceFlag);

/// Type information that tells a name and nothing else.
Pointer<ITypeInfo> NamedType(const std::string& name);

}  // namespace rangewerks::com
