#include "apps/rangewerks/spreadsheet.h"

#include <filesystem>

#include "apps/rangewerks/failure.h"
#include "automation/text.h"
#include "hosts/workbook/host.h"
#ifdef RANGEWERKS_LIBREOFFICE
#include "hosts/libreoffice/office.h"
#endif

namespace rangewerks::apps {

namespace {

class InMemory final : public Spreadsheet {
 public:
  automation::Object Open(const std::string& path) override { return host_.Open(path); }

 private:
  hosts::workbook::Host host_;
};

#ifdef RANGEWERKS_LIBREOFFICE
class LibreOffice final : public Spreadsheet {
 public:
  automation::Object Open(const std::string& path) override {
    return office_.Open(path, {.readOnly = true});
  }

 private:
  hosts::libreoffice::Office office_;
};

std::unique_ptr<Spreadsheet> StartLibreOffice() { return std::make_unique<LibreOffice>(); }
#else
std::unique_ptr<Spreadsheet> StartLibreOffice() {
  throw Failure(
      "this build has no LibreOffice host; read a JSON workbook file with --host workbook, or "
      "build with RANGEWERKS_LIBREOFFICE=ON");
}
#endif

}  // namespace

HostKind HostFor(const std::string& path) {
  const std::string extension = std::filesystem::path(path).extension().string();
  return automation::EqualText(extension, ".json") ? HostKind::Workbook : HostKind::LibreOffice;
}

std::unique_ptr<Spreadsheet> StartSpreadsheet(HostKind kind) {
  if (kind == HostKind::LibreOffice) return StartLibreOffice();
  return std::make_unique<InMemory>();
}

}  // namespace rangewerks::apps
