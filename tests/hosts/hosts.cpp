#include "hosts/hosts.h"

namespace rangewerks::tests {

std::vector<HostFactory> Hosts() {
  std::vector<HostFactory> hosts{WorkbookHost()};
#ifdef RANGEWERKS_LIBREOFFICE
  hosts.push_back(LibreOfficeHost());
#endif
  return hosts;
}

}  // namespace rangewerks::tests
