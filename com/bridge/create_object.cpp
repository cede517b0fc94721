#include "com/bridge/create_object.h"

#include <objbase.h>

#include "com/bridge/failures.h"
#include "com/bridge/objects.h"
#include "com/bridge/owners.h"
#include "com/bridge/text.h"

namespace rangewerks::com {

automation::Object CreateObject(const std::string& progId) {
  CLSID id{};
  Require(CLSIDFromProgID(ToWide(progId).c_str(), &id));
  Pointer<IUnknown> object;
  Require(CoCreateInstance(id, nullptr, CLSCTX_SERVER, IID_IUnknown, object.ReceiveAny()));
  return FromUnknown(object.Get());
}

}  // namespace rangewerks::com
