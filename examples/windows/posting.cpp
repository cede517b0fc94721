// Reads the lines of a journal, writes a reference behind each good one, and tells what is wrong
// with the others. Nothing is registered: posting.exe.manifest names the two servers, which lie
// beside the program.
//
// The library is bound early, through the header that the build makes of its type library (Visual
// C++ makes one itself: #import "Rangewerks.dll"). The host is bound late, by the names of its
// members.
#include <comdef.h>
#include <rangewerks.h>

#include <cstdio>
#include <initializer_list>
#include <vector>

namespace {

/// Takes over the text and frees it at the end.
_bstr_t Taken(BSTR text) { return {text, false}; }

/// Raises what a call on the library has failed with, and the words that it has left.
void Check(HRESULT result) {
  if (SUCCEEDED(result)) return;
  IErrorInfo* words = nullptr;
  GetErrorInfo(0, &words);
  throw _com_error(result, words, false);
}

/// One call by name on an object of the host.
_variant_t Call(const _variant_t& object, const wchar_t* member, WORD kind,
                std::initializer_list<_variant_t> arguments = {}) {
  IDispatch* const target = V_DISPATCH(&object);
  auto* name = const_cast<wchar_t*>(member);
  DISPID id = DISPID_UNKNOWN;
  Check(target->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &id));
  std::vector<VARIANT> lastFirst(std::rbegin(arguments), std::rend(arguments));
  DISPID newValue = DISPID_PROPERTYPUT;
  DISPPARAMS parameters{lastFirst.data(), nullptr, static_cast<UINT>(lastFirst.size()), 0};
  if (kind == DISPATCH_PROPERTYPUT) {
    parameters.rgdispidNamedArgs = &newValue;
    parameters.cNamedArgs = 1;
  }
  _variant_t result;
  Check(target->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, kind, &parameters, &result, nullptr,
                       nullptr));
  return result;
}

_variant_t Get(const _variant_t& object, const wchar_t* member,
               std::initializer_list<_variant_t> arguments = {}) {
  return Call(object, member, DISPATCH_METHOD | DISPATCH_PROPERTYGET, arguments);
}

void Let(const _variant_t& object, const wchar_t* member, const _variant_t& value) {
  Call(object, member, DISPATCH_PROPERTYPUT, {value});
}

template <class Interface>
Interface* New(const wchar_t* progId) {
  CLSID id{};
  void* object = nullptr;
  Check(CLSIDFromProgID(progId, &id));
  Check(CoCreateInstance(id, nullptr, CLSCTX_SERVER, __uuidof(Interface), &object));
  return static_cast<Interface*>(object);
}

/// A sheet as an accounting department would hand it in.
_variant_t NewJournal(const _variant_t& application) {
  const _variant_t names = Get(Get(Get(application, L"Workbooks"), L"Add"), L"Names");
  const _variant_t sheet = Get(application, L"ActiveSheet");
  Let(sheet, L"Name", L"Journal");
  Get(names, L"Add", {L"Journal__posting_date", L"=Journal!$B$1"});
  Get(names, L"Add", {L"Journal__code", L"=Journal!$A$5:$A$9"});
  Get(names, L"Add", {L"Journal__amount", L"=Journal!$B$5:$B$9"});
  Get(names, L"Add", {L"Journal__reference", L"=Journal!$C$5:$C$9"});
  const auto put = [&](const wchar_t* cell, const _variant_t& value) {
    Let(Get(sheet, L"Range", {cell}), L"Value", value);
  };
  put(L"B1", _variant_t(45382.0, VT_DATE));  // 31 March 2024
  put(L"A5", L"4000");
  put(L"B5", 1250.5);
  put(L"A6", L"4010");
  put(L"B6", L"'(99.50)");
  put(L"A7", L"4020");
  put(L"B7", L"to follow");
  put(L"A8", L"4030");
  put(L"B8", 70.25);
  return sheet;
}

void Declare(_clsInterfaceRangeList& list, const wchar_t* name, eRangeHeadDetailInd indicator,
             eRangeDataType type, const wchar_t* description) {
  const _bstr_t none(L"");
  const _variant_t omitted(DISP_E_PARAMNOTFOUND, VT_ERROR);
  _clsExInputRange* record = nullptr;
  Check(list.Add(_bstr_t(name), indicator, type, VARIANT_TRUE, VARIANT_FALSE, _bstr_t(description),
                 0, omitted, nullptr, VARIANT_FALSE, none, none, &record));
  record->Release();
}

void PostLine(_clsInterfaceRangeList& list, long line) {
  VARIANT_BOOL isThere = VARIANT_FALSE;
  BSTR text = nullptr;
  Check(list.GetStrRange(_bstr_t(L"code"), &text, line, &isThere));
  const _bstr_t code = Taken(text);
  if (isThere == VARIANT_FALSE) return;  // a blank line
  double amount = 0;
  try {
    Check(list.GetValRange(_bstr_t(L"amount"), &amount, line, &isThere));
  } catch (const _com_error& error) {
    BSTR range = nullptr;
    long row = 0;
    Check(list.get_InvalidRange(&range));
    Check(list.get_InvalidRow(&row));
    std::printf("Line %ld, %ls: %ls\n", row, static_cast<const wchar_t*>(Taken(range)),
                static_cast<const wchar_t*>(error.Description()));
    return;
  }
  std::printf("Line %ld: %ls %.15g\n", line, static_cast<const wchar_t*>(code), amount);
  const _bstr_t reference = _bstr_t(L"P") + _bstr_t(_variant_t(line));
  Check(list.PopulateRange(_bstr_t(L"reference"), reference, line));
}

void PostJournal() {
  // With Excel as the host: L"Excel.Application", which is registered.
  const _variant_t application(New<IDispatch>(L"SheetHost.Application"), false);
  const _variant_t sheet = NewJournal(application);

  const _variant_t owner(New<_clsInterfaceRangeList>(L"Rangewerks.clsInterfaceRangeList"), false);
  auto& list = static_cast<_clsInterfaceRangeList&>(*V_DISPATCH(&owner));
  Declare(list, L"posting_date", hdiHeader, rdtDate, L"");
  Declare(list, L"code", hdiDetail, rdtString, L"Nominal code");
  Declare(list, L"amount", hdiDetail, rdtDouble, L"Amount");
  Declare(list, L"reference", hdiDetail, rdtString, L"Reference");
  Check(list.putref_ActSheet(V_DISPATCH(&sheet)));
  Check(list.put_SheetRangeNames(VARIANT_TRUE));
  Check(list.SetIfRangesExist());
  VARIANT_BOOL answer = VARIANT_FALSE;
  Check(list.ValidateRanges(&answer));

  DATE postingDate = 0;
  SYSTEMTIME day{};
  Check(list.GetDateRange(_bstr_t(L"posting_date"), &postingDate, 1, &answer));
  VariantTimeToSystemTime(postingDate, &day);
  std::printf("Posting date %d-%d-%d\n", day.wYear, day.wMonth, day.wDay);
  for (long line = 1; line <= 5; ++line) PostLine(list, line);
  std::printf("References:");
  for (const wchar_t* cell : {L"C5", L"C6", L"C7", L"C8"}) {
    const _bstr_t reference(Get(Get(sheet, L"Range", {cell}), L"Value"));
    std::printf(" %ls", reference.length() > 0 ? static_cast<const wchar_t*>(reference) : L"");
  }
  std::printf("\n");
}

}  // namespace

int main() {
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  int status = 0;
  try {
    PostJournal();
  } catch (const _com_error& error) {
    if (const _bstr_t words = error.Description(); words.length() > 0) {
      std::fprintf(stderr, "posting: %ls\n", static_cast<const wchar_t*>(words));
    } else {
      std::fprintf(stderr, "posting: %s\n", error.ErrorMessage());
    }
    status = 1;
  }
  CoUninitialize();
  return status;
}
