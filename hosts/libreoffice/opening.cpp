#include <algorithm>
#include <array>
#include <com/sun/star/beans/PropertyValue.hpp>
#include <com/sun/star/document/MacroExecMode.hpp>
#include <com/sun/star/document/UpdateDocMode.hpp>
#include <com/sun/star/frame/XStorable.hpp>
#include <com/sun/star/lang/XServiceInfo.hpp>
#include <com/sun/star/sheet/XSpreadsheetDocument.hpp>
#include <com/sun/star/task/XInteractionAbort.hpp>
#include <com/sun/star/task/XInteractionHandler.hpp>
#include <com/sun/star/util/XCloseable.hpp>
#include <filesystem>
#include <fstream>

#include "cppuhelper/implbase1.hxx"
#include "hosts/common/name_rules.h"
#include "hosts/libreoffice/documents.h"
#include "hosts/libreoffice/failure.h"
#include "hosts/libreoffice/file_lock.h"
#include "osl/file.hxx"
#include "rtl/ref.hxx"

namespace rangewerks::hosts::libreoffice {
namespace {

namespace fs = std::filesystem;
using css::beans::PropertyValue;

PropertyValue Option(const char* name, const Any& value) {
  return {OUString::createFromAscii(name), -1, value, css::beans::PropertyState_DIRECT_VALUE};
}

/// Answers every question that the office asks while loading with "no", and remembers what it was
/// about: the one way to learn that a file wants a password.
class Refuser final : public cppu::WeakImplHelper1<css::task::XInteractionHandler> {
 public:
  void SAL_CALL handle(const Reference<css::task::XInteractionRequest>& request) override {
    const std::string type = ToUtf8(request->getRequest().getValueTypeName());
    askedForPassword_ = askedForPassword_ || type.find("Password") != std::string::npos;
    const auto ways = request->getContinuations();
    for (const auto& way : Elements(ways)) {
      const Reference<css::task::XInteractionAbort> abort(way, css::uno::UNO_QUERY);
      if (abort.is()) return abort->select();
    }
  }
  bool AskedForPassword() const noexcept { return askedForPassword_; }

 private:
  bool askedForPassword_ = false;
};

/// Spreadsheet files are archives or compound files. Anything else the office would take as text
/// and make a sheet of.
void RequireSpreadsheetSignature(const std::string& path) {
  constexpr std::string_view kArchive("PK\x03\x04", 4);
  constexpr std::string_view kCompound("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1", 8);
  std::ifstream file(path, std::ios::binary);
  if (!file) Fail(path + " can't be read: check the rights of the file.");
  std::array<char, 8> start{};
  file.read(start.data(), start.size());
  const std::string_view found(start.data(), static_cast<std::size_t>(file.gcount()));
  if (found.empty()) Fail(path + " is empty.");
  if (!found.starts_with(kArchive) && found != kCompound) {
    Fail(path +
         " isn't a spreadsheet file, whatever its name says: it begins like neither an "
         "xlsx, an ods nor an xls file.");
  }
}

void RequireFile(const std::string& path) {
  std::error_code ignored;
  if (!fs::exists(path, ignored)) Fail(path + " can't be opened: there is no such file.");
  if (!fs::is_regular_file(path, ignored)) Fail(path + " can't be opened: it isn't a file.");
}

void RequireNoLock(const std::string& path) {
  if (const auto owner = LockOwnerOf(path)) {
    Fail(path + " is locked: " + *owner +
         " has it open. Save and close it there, or remove the file " + LockFileOf(path).string() +
         " if nobody has.");
  }
}

bool IsSpreadsheet(const Reference<css::lang::XComponent>& component) {
  const Reference<css::lang::XServiceInfo> services(component, css::uno::UNO_QUERY);
  return services.is() &&
         services->supportsService(ToUno("com.sun.star.sheet.SpreadsheetDocument"));
}

/// A workbook proper, or a table in a text, database or web format that Calc can read too.
bool IsWorkbookFilter(const Reference<css::frame::XModel>& model) {
  constexpr std::array<std::string_view, 12> kFilters{"calc8",
                                                      "calc8_template",
                                                      "StarOffice XML (Calc)",
                                                      "MS Excel 97",
                                                      "MS Excel 97 Vorlage/Template",
                                                      "MS Excel 95",
                                                      "MS Excel 5.0/95",
                                                      "Calc MS Excel 2007 XML",
                                                      "Calc MS Excel 2007 XML Template",
                                                      "Calc MS Excel 2007 VBA XML",
                                                      "Calc MS Excel 2007 Binary",
                                                      "Calc Office Open XML"};
  const auto arguments = model->getArgs();
  for (const PropertyValue& argument : Elements(arguments)) {
    if (!argument.Name.equalsAscii("FilterName")) continue;
    const std::string filter = ToUtf8(Extract<OUString>(argument.Value));
    return std::find(kFilters.begin(), kFilters.end(), filter) != kFilters.end();
  }
  return false;
}

Reference<css::lang::XComponent> Load(Session& session, const OUString& url,
                                      const std::vector<PropertyValue>& options) {
  return session.Desktop()->loadComponentFromURL(url, ToUno("_blank"), 0, ToSequence(options));
}

Reference<css::lang::XComponent> LoadFile(Session& session, const std::string& path,
                                          OpenOptions options) {
  const rtl::Reference<Refuser> refuser(new Refuser);
  Reference<css::lang::XComponent> component;
  std::string reason;
  try {
    component =
        Load(session, UrlOf(path),
             {Option("Hidden", Any(!session.IsVisible())),
              Option("ReadOnly", Any(options.readOnly || options.evenIfLocked)),
              Option("MacroExecutionMode", Any(css::document::MacroExecMode::NEVER_EXECUTE)),
              Option("UpdateDocMode", Any(css::document::UpdateDocMode::NO_UPDATE)),
              Option("InteractionHandler",
                     Any(Reference<css::task::XInteractionHandler>(refuser.get())))});
  } catch (const css::lang::DisposedException&) {
    throw;
  } catch (const css::uno::Exception& failure) {
    reason = " LibreOffice says: " + ToUtf8(failure.Message);
  }
  if (refuser->AskedForPassword()) {
    if (component.is()) As<css::util::XCloseable>(component)->close(true);
    Fail(path + " is protected by a password. Remove the password and try again.");
  }
  if (!component.is()) {
    Fail(path + " can't be opened: it is damaged or no spreadsheet file." + reason);
  }
  return component;
}

void RequireSheetName(const std::string& name) {
  if (const std::string fault = FaultOfSheetName(name); !fault.empty()) {
    Fail("A sheet can't be called \"" + name + "\": " + fault);
  }
}

BookPointer FindOpen(Session& session, const fs::path& path) {
  for (const BookPointer& book : session.Books()) {
    if (book->Path() == path) return book;
  }
  return nullptr;
}

}  // namespace

OUString UrlOf(const std::string& path) {
  OUString url;
  if (osl::FileBase::getFileURLFromSystemPath(ToUno(path), url) != osl::FileBase::E_None) {
    Fail("\"" + path + "\" is no file name.");
  }
  return url;
}

BookPointer OpenDocument(Session& session, const std::string& given, OpenOptions options) {
  RequireFile(given);
  const std::string path = fs::canonical(given).string();
  if (BookPointer open = FindOpen(session, path)) {
    session.Activate(open);
    return open;
  }
  RequireSpreadsheetSignature(path);
  if (!options.evenIfLocked) RequireNoLock(path);

  const auto component = LoadFile(session, path, options);
  const Reference<css::frame::XModel> model(component, css::uno::UNO_QUERY);
  if (!IsSpreadsheet(component) || !IsWorkbookFilter(model)) {
    As<css::util::XCloseable>(component)->close(true);
    Fail(path + " isn't a workbook, whatever its name says.");
  }
  return session.Add(model, path);
}

BookPointer NewDocument(Session& session, const std::vector<std::string>& sheets) {
  if (sheets.empty()) Fail("A workbook can't be made without a sheet.");
  for (const std::string& name : sheets) RequireSheetName(name);
  const auto component =
      Load(session, ToUno("private:factory/scalc"), {Option("Hidden", Any(!session.IsVisible()))});
  BookPointer book = session.Add(As<css::frame::XModel>(component), {});
  while (book->SheetCount() > 1) book->Remove(book->SheetAt(book->SheetCount()));
  book->SheetAt(1)->Rename(sheets.front());
  for (std::size_t i = 1; i < sheets.size(); ++i) {
    book->Sheets()->insertNewByName(ToUno(sheets[i]), static_cast<std::int16_t>(i));
  }
  return book;
}

}  // namespace rangewerks::hosts::libreoffice
