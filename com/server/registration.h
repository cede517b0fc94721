// Writing a server into the registry and taking it out again.
#pragma once

#include <windows.h>

#include "com/server/server.h"

namespace rangewerks::com {

/// Registers the type library and the classes for everybody on the machine, or, where the person
/// may not write there, for that person. Either all of it is registered or, on failure, nothing
/// that this call has written stays.
HRESULT Register(const Server& server);

/// Takes out what Register writes, for the machine and for the person, and nothing else: keys and
/// values that others have added stay. What a build of this server for the other word size shares
/// with this one stays as long as that one is registered. Nothing to take out is a success.
HRESULT Unregister(const Server& server);

}  // namespace rangewerks::com
