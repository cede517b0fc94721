#include "com/server/registration_rows.h"

#include <oaidl.h>

#include "com/bridge/failures.h"
#include "com/bridge/owners.h"
#include "com/server/type_library.h"

namespace rangewerks::com {
namespace {

/// The system's proxies, which marshal by type information.
constexpr const wchar_t* kAutomationProxy = L"{00020424-0000-0000-C000-000000000046}";
constexpr const wchar_t* kDispatchProxy = L"{00020420-0000-0000-C000-000000000046}";

std::wstring Braced(const GUID& id) {
  std::wstring text(39, L'\0');
  StringFromGUID2(id, text.data(), static_cast<int>(text.size()));
  text.pop_back();  // the terminator
  return text;
}

/// Text as type information hands it out.
std::wstring Take(BSTR text) {
  std::wstring result(text == nullptr ? L"" : text, SysStringLen(text));
  SysFreeString(text);
  return result;
}

/// Type information's description of a library or type, freed at the end.
template <class Owner, class Description, void (STDMETHODCALLTYPE Owner::*kFree)(Description*)>
class Described {
 public:
  explicit Described(Owner& owner) : owner_(owner) {}
  Described(const Described&) = delete;
  Described& operator=(const Described&) = delete;
  ~Described() {
    if (description_ != nullptr) (owner_.*kFree)(description_);
  }
  Description** Receive() { return &description_; }
  const Description* operator->() const { return description_; }

 private:
  Owner& owner_;
  Description* description_ = nullptr;
};
using LibraryAttributes = Described<ITypeLib, TLIBATTR, &ITypeLib::ReleaseTLibAttr>;
using TypeAttributes = Described<ITypeInfo, TYPEATTR, &ITypeInfo::ReleaseTypeAttr>;

struct Library {
  std::wstring id;
  std::wstring version;
};

std::wstring Hexadecimal(unsigned number) {
  wchar_t text[16];
  swprintf(text, std::size(text), L"%x", number);
  return text;
}

void AddInterface(ITypeInfo& type, const Library& library, std::vector<RegistryRow>& rows) {
  TypeAttributes attributes(type);
  Require(type.GetTypeAttr(attributes.Receive()));
  const bool dispatchOnly =
      attributes->typekind == TKIND_DISPATCH && (attributes->wTypeFlags & TYPEFLAG_FDUAL) == 0;
  const bool marshalled = attributes->typekind == TKIND_DISPATCH ||
                          (attributes->wTypeFlags & TYPEFLAG_FOLEAUTOMATION) != 0;
  if (!marshalled) return;
  BSTR name = nullptr;
  Require(type.GetDocumentation(MEMBERID_NIL, &name, nullptr, nullptr, nullptr));
  const std::wstring key = L"Interface\\" + Braced(attributes->guid);
  rows.push_back({key, L"", Take(name)});
  rows.push_back(
      {key + L"\\ProxyStubClsid32", L"", dispatchOnly ? kDispatchProxy : kAutomationProxy});
  rows.push_back({key + L"\\TypeLib", L"", library.id});
  rows.push_back({key + L"\\TypeLib", L"Version", library.version});
}

Library AddTypeLibrary(ITypeLib& types, const std::wstring& file, std::vector<RegistryRow>& rows) {
  LibraryAttributes attributes(types);
  Require(types.GetLibAttr(attributes.Receive()));
  BSTR description = nullptr;
  Require(types.GetDocumentation(-1, nullptr, &description, nullptr, nullptr));
  const Library library = {Braced(attributes->guid), Hexadecimal(attributes->wMajorVerNum) + L"." +
                                                         Hexadecimal(attributes->wMinorVerNum)};
  const std::wstring key = L"TypeLib\\" + library.id + L"\\" + library.version;
  // That it lies in a file is no fact of the library's own.
  const int flags = attributes->wLibFlags & ~LIBFLAG_FHASDISKIMAGE;
  const wchar_t* const platform = attributes->syskind == SYS_WIN64 ? L"win64" : L"win32";
  rows.push_back({key, L"", Take(description), true});
  rows.push_back({key + L"\\" + Hexadecimal(attributes->lcid) + L"\\" + platform, L"", file});
  rows.push_back({key + L"\\FLAGS", L"", std::to_wstring(flags), true});
  rows.push_back({key + L"\\HELPDIR", L"", file.substr(0, file.find_last_of(L"\\/")), true});
  for (UINT i = 0; i < types.GetTypeInfoCount(); ++i) {
    TYPEKIND kind = TKIND_MAX;
    Require(types.GetTypeInfoType(i, &kind));
    if (kind != TKIND_INTERFACE && kind != TKIND_DISPATCH) continue;
    Pointer<ITypeInfo> type;
    Require(types.GetTypeInfo(i, type.Receive()));
    AddInterface(*type.Get(), library, rows);
  }
  return library;
}

void AddClass(const ServedClass& served, const std::wstring& file, std::vector<RegistryRow>& rows) {
  const std::wstring id = Braced(served.id);
  const std::wstring key = L"CLSID\\" + id;
  rows.push_back({key, L"", served.name});
  rows.push_back({ServerKey(served), L"", file});
  rows.push_back({ServerKey(served), L"ThreadingModel", L"Apartment"});
  rows.push_back({key + L"\\ProgID", L"", served.progId});
  rows.push_back({key + L"\\Programmable", L"", L""});
  rows.push_back({served.progId, L"", served.name, true});
  rows.push_back({served.progId + L"\\CLSID", L"", id, true});
}

void AddControl(const ServedClass& served, const std::wstring& file,
                std::vector<RegistryRow>& rows) {
  const std::wstring key = L"CLSID\\" + Braced(served.id);
  rows.push_back({key + L"\\Control", L"", L""});
  // None for the aspects in general, these for the content.
  rows.push_back({key + L"\\MiscStatus", L"", L"0"});
  rows.push_back({key + L"\\MiscStatus\\1", L"", std::to_wstring(served.controlStatus)});
  rows.push_back({key + L"\\ToolboxBitmap32", L"", file + L", " + std::to_wstring(kToolboxBitmap)});
}

}  // namespace

std::wstring ServerKey(const ServedClass& served) {
  return L"CLSID\\" + Braced(served.id) + L"\\InprocServer32";
}

std::vector<RegistryRow> RegistrationRows(const Server& server) {
  std::vector<RegistryRow> rows;
  const std::wstring file = ModuleFile();
  Library library;
  if (server.hasTypeLibrary) library = AddTypeLibrary(*ModuleTypeLibrary().Get(), file, rows);
  for (const ServedClass& served : server.classes) {
    AddClass(served, file, rows);
    if (served.controlStatus != 0) AddControl(served, file, rows);
    if (!server.hasTypeLibrary) continue;
    const std::wstring key = L"CLSID\\" + Braced(served.id);
    rows.push_back({key + L"\\TypeLib", L"", library.id});
    rows.push_back({key + L"\\Version", L"", library.version});
  }
  return rows;
}

}  // namespace rangewerks::com
