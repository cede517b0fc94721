#include <unistd.h>

#include <algorithm>
#include <array>
#include <com/sun/star/beans/PropertyValue.hpp>
#include <com/sun/star/frame/XStorable.hpp>
#include <filesystem>

#include "automation/text.h"
#include "hosts/libreoffice/documents.h"
#include "hosts/libreoffice/failure.h"
#include "hosts/libreoffice/modules_for_excel.h"

namespace rangewerks::hosts::libreoffice {
namespace {

namespace fs = std::filesystem;
using css::beans::PropertyValue;

struct FileFormat {
  std::string_view extension;
  const char* filter;
};
constexpr std::array<FileFormat, 4> kFormats{{{".xlsx", "Calc MS Excel 2007 XML"},
                                              {".xlsm", "Calc MS Excel 2007 VBA XML"},
                                              {".xls", "MS Excel 97"},
                                              {".ods", "calc8"}}};

OUString FilterFor(const fs::path& path) {
  const std::string extension = path.extension().string();
  for (const FileFormat& format : kFormats) {
    if (automation::EqualText(extension, format.extension)) {
      return OUString::createFromAscii(format.filter);
    }
  }
  Fail(path.string() + " can't be written: its extension is none of xlsx, xlsm, xls and ods.");
}

bool IsExcelMacroFile(const fs::path& path) {
  const std::string extension = path.extension().string();
  return automation::EqualText(extension, ".xlsm") || automation::EqualText(extension, ".xls");
}

/// Carries out the storing itself, into a file of the kind that `path` is of.
template <class Store>
void StoreModulesToo(Book& book, const fs::path& path, const Store& store) {
  if (!IsExcelMacroFile(path)) return store();
  const ModulesForExcelFile prepared(book);
  store();
}

/// A file beside the one that is wanted; removed unless it takes that one's place.
class FileAside {
 public:
  explicit FileAside(fs::path target)
      : target_(std::move(target)), aside_(target_.parent_path() / Name()) {}
  FileAside(const FileAside&) = delete;
  FileAside& operator=(const FileAside&) = delete;
  ~FileAside() {
    std::error_code ignored;
    fs::remove(aside_, ignored);
  }

  const fs::path& Path() const noexcept { return aside_; }
  void TakePlace() {
    std::error_code failure;
    fs::rename(aside_, target_, failure);
    if (failure) Fail(target_.string() + " can't be written: " + failure.message());
  }

 private:
  std::string Name() const {
    return "." + target_.filename().string() + "." + std::to_string(getpid()) + ".tmp";
  }

  fs::path target_;
  fs::path aside_;
};

}  // namespace

void SaveDocumentCopy(Book& book, const std::string& path) {
  const fs::path target = fs::absolute(path);
  const OUString filter = FilterFor(target);
  std::error_code ignored;
  if (!fs::is_directory(target.parent_path(), ignored)) {
    Fail(target.string() + " can't be written: there is no folder " +
         target.parent_path().string() + ".");
  }
  if (target == book.Path()) {
    Fail(target.string() + " can't be written as a copy: it is the open workbook's own file.");
  }
  FileAside aside(target);
  const std::vector<PropertyValue> options{
      {ToUno("FilterName"), -1, Any(filter), css::beans::PropertyState_DIRECT_VALUE},
      {ToUno("Overwrite"), -1, Any(true), css::beans::PropertyState_DIRECT_VALUE}};
  try {
    StoreModulesToo(book, target, [&] {
      As<css::frame::XStorable>(book.Model())
          ->storeToURL(UrlOf(aside.Path().string()), ToSequence(options));
    });
  } catch (const css::lang::DisposedException&) {
    throw;
  } catch (const css::uno::Exception& failure) {
    Fail(target.string() + " can't be written: LibreOffice says " + ToUtf8(failure.Message));
  }
  aside.TakePlace();
}

void SaveDocument(Book& book) {
  const auto storable = As<css::frame::XStorable>(book.Model());
  if (book.Path().empty()) Fail("Workbook \"" + book.Name() + "\" has no file to be saved to");
  if (storable->isReadonly()) Fail(book.Path() + " is open for reading only");
  StoreModulesToo(book, book.Path(), [&] { storable->store(); });
}

}  // namespace rangewerks::hosts::libreoffice
