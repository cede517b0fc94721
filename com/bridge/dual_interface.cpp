#include "com/bridge/dual_interface.h"

#include <unordered_map>

#include "com/bridge/com_object.h"
#include "com/bridge/failures.h"
#include "com/bridge/type_information.h"

namespace rangewerks::com {
namespace {

// Written while the server starts, before there is an object; read from then on.
std::unordered_map<std::string, DualInterface>& Published() {
  static auto* const published = new std::unordered_map<std::string, DualInterface>;
  return *published;
}

Pointer<ITypeInfo> ClassNamed(ITypeLib& library, const std::string& name) {
  for (UINT i = 0; i < library.GetTypeInfoCount(); ++i) {
    TYPEKIND kind{};
    Pointer<ITypeInfo> type;
    if (SUCCEEDED(library.GetTypeInfoType(i, &kind)) && kind == TKIND_COCLASS &&
        SUCCEEDED(library.GetTypeInfo(i, type.Receive())) && NameOf(*type.Get()) == name) {
      return type;
    }
  }
  throw FailureOf(TYPE_E_ELEMENTNOTFOUND);
}

}  // namespace

void Publish(DualInterface dual, ITypeLib& library) {
  Require(library.GetTypeInfoOfGuid(dual.iid, dual.members.Receive()));
  dual.type = ClassNamed(library, dual.className);
  dual.source = DefaultInterfaceOf(*dual.type.Get(), IMPLTYPEFLAG_FSOURCE);
  Published().insert_or_assign(dual.className, std::move(dual));
}

const DualInterface* PublishedInterface(const std::string& className) {
  const auto found = Published().find(className);
  return found == Published().end() ? nullptr : &found->second;
}

}  // namespace rangewerks::com
