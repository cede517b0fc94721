#include "windows/sheet_host_under_test.h"

#include <objbase.h>
#include <windows.h>

#include <stdexcept>

#include "com/bridge/objects.h"
#include "hosts/hosts.h"
#include "hosts/late_calls.h"

namespace rangewerks::tests {

using automation::Member;

Object NewSheetHost() {
  static const HMODULE module = LoadLibraryW(SHEETHOST_DLL);
  if (module == nullptr) throw std::runtime_error("SheetHost.dll can't be loaded");
  using GetClassObject = HRESULT(STDAPICALLTYPE*)(REFCLSID, REFIID, void**);
  const auto getClassObject = reinterpret_cast<GetClassObject>(
      reinterpret_cast<void*>(GetProcAddress(module, "DllGetClassObject")));
  CLSID id{};
  com::Pointer<IClassFactory> factory;
  com::Pointer<IUnknown> object;
  if (FAILED(CLSIDFromString(L"{7FA37365-90C6-4CC4-903B-F6ACD676E1EE}", &id)) ||
      FAILED(getClassObject(id, __uuidof(IClassFactory), factory.ReceiveAny())) ||
      FAILED(factory->CreateInstance(nullptr, IID_IUnknown, object.ReceiveAny()))) {
    throw std::runtime_error("SheetHost.dll doesn't make a program");
  }
  return com::FromUnknown(object.Get());
}

namespace {

/// Builds its scenes with nothing but what any COM caller has.
class SheetHostUnderTest final : public HostUnderTest {
 public:
  Object Application() override { return application_; }

  Object NewWorkbook(const std::vector<std::string>& sheets) override {
    const Object book = Call(GetObject(application_, "Workbooks"), "Add").AsObject();
    Let(GetObject(book, "ActiveSheet"), "Name", sheets.front());
    const Object all = GetObject(book, "Sheets");
    for (std::size_t i = 1; i < sheets.size(); ++i) {
      const Object last = GetObject(all, "Item", {static_cast<std::int32_t>(i)});
      Let(all.Call(Member("Add"), {}, {{Member("After"), last}}).AsObject(), "Name", sheets[i]);
    }
    Call(GetObject(all, "Item", {1}), "Activate");
    return book;
  }
  void PutFormula(const Object& cell, const std::string& formula, const Variant& shown) override {
    Let(cell, "Formula", formula);
    Call(testing_, "SetShownValue", {cell, shown});
  }
  void PutError(const Object& cell, std::int32_t number) override {
    Call(testing_, "SetErrorValue", {cell, number});
  }
  void DefineConstant(const Object& workbook, const std::string& name,
                      const std::string& content) override {
    AddName(GetObject(workbook, "Names"), name, content);
  }
  void TrustMacros() override { Let(testing_, "TrustVBProject", true); }

 private:
  const Object application_ = NewSheetHost();
  const Object testing_ = GetObject(application_, "Testing");
};

}  // namespace

/// The contract suite runs on Windows against the host that COM callers have.
std::vector<HostFactory> Hosts() {
  return {{"SheetHost", [] { return std::make_unique<SheetHostUnderTest>(); }}};
}

}  // namespace rangewerks::tests
