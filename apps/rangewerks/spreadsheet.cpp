#include "apps/rangewerks/spreadsheet.h"

#include <array>
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
  /// Nobody else is there to trust the command with the macros of its own workbook.
  InMemory() { host_.TrustVBProject(true); }

  automation::Object Open(const std::string& path, Access /*access*/) override {
    return host_.Open(path);
  }
  void SaveCopyAs(const automation::Object& workbook, const std::string& path) override {
    host_.SaveCopyAs(workbook, path);
  }

 private:
  hosts::workbook::Host host_;
};

#ifdef RANGEWERKS_LIBREOFFICE
class LibreOffice final : public Spreadsheet {
 public:
  automation::Object Open(const std::string& path, Access access) override {
    return office_.Open(path, {.readOnly = access == Access::Read});
  }
  void SaveCopyAs(const automation::Object& workbook, const std::string& path) override {
    office_.SaveCopyAs(workbook, path);
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

std::span<const std::string_view> WrittenBy(HostKind kind) {
  static constexpr std::array<std::string_view, 1> kWorkbook{".json"};
  static constexpr std::array<std::string_view, 4> kLibreOffice{".xlsx", ".xlsm", ".xls", ".ods"};
  if (kind == HostKind::Workbook) return kWorkbook;
  return kLibreOffice;
}

std::unique_ptr<Spreadsheet> StartSpreadsheet(HostKind kind) {
  if (kind == HostKind::LibreOffice) return StartLibreOffice();
  return std::make_unique<InMemory>();
}

}  // namespace rangewerks::apps
