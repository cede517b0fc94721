// The server for programs that don't register it: the assembly manifest beside the DLL, and a
// program that finds the classes through it.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "com/bridge/text.h"
#include "windows/server_under_test.h"
#include "windows/type_texts.h"

namespace rangewerks::tests {
namespace {

using com::Bstr;
using com::Pointer;

std::string Braced(const GUID& id) {
  wchar_t text[39] = {};
  StringFromGUID2(id, text, 39);
  return com::FromWide(text);
}

std::string TextOf(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

/// How a container treats a control, which no type library says.
constexpr const char* kControl =
    " miscStatusContent=\"recomposeonresize,cantlinkinside,insideout,activatewhenvisible,"
    "setclientsitefirst\"";

/// The manifest that the type library demands: each class that can be created with its ProgID, each
/// interface with the proxy that registering gives it.
class DemandedManifest {
 public:
  DemandedManifest() {
    const auto library = ServerTypeLibrary();
    TLIBATTR* attributes = nullptr;
    library->GetLibAttr(&attributes);
    library_ = Braced(attributes->guid);
    version_ =
        std::to_string(attributes->wMajorVerNum) + "." + std::to_string(attributes->wMinorVerNum);
    library->ReleaseTLibAttr(attributes);
    for (UINT i = 0; i < library->GetTypeInfoCount(); ++i) {
      Pointer<ITypeInfo> type;
      library->GetTypeInfo(i, type.Receive());
      Add(*type.Get());
    }
  }

  std::string Text() const {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n"
           "<!-- For programs that use Rangewerks.dll without registering it; docs/com.md tells "
           "how. "
           "-->\n"
           "<assembly xmlns=\"urn:schemas-microsoft-com:asm.v1\" manifestVersion=\"1.0\">\n"
           "  <assemblyIdentity type=\"win32\" name=\"Rangewerks.X\" version=\"" +
           version_ +
           ".0.0\"/>\n"
           "  <file name=\"Rangewerks.dll\">\n"
           "    <typelib tlbid=\"" +
           library_ + "\" version=\"" + version_ + "\" helpdir=\"\"/>\n" + classes_ +
           "  </file>\n" + interfaces_ + "</assembly>\n";
  }

 private:
  void Add(ITypeInfo& type) {
    TypeAttributes attributes(type);
    type.GetTypeAttr(attributes.Receive());
    const std::string name = NameOfType(type);
    const std::string id = Braced(attributes->guid);
    if (attributes->typekind == TKIND_COCLASS &&
        (attributes->wTypeFlags & TYPEFLAG_FCANCREATE) != 0) {
      classes_ += "    <comClass clsid=\"" + id + "\" progid=\"Rangewerks." + name +
                  "\" threadingModel=\"Apartment\" tlbid=\"" + library_ + "\"" +
                  ((attributes->wTypeFlags & TYPEFLAG_FCONTROL) != 0 ? kControl : "") + "/>\n";
    } else if (attributes->typekind == TKIND_DISPATCH || attributes->typekind == TKIND_INTERFACE) {
      const bool isDual = (attributes->wTypeFlags & TYPEFLAG_FDUAL) != 0;
      interfaces_ += "  <comInterfaceExternalProxyStub name=\"" + name + "\" iid=\"" + id +
                     "\" proxyStubClsid32=\"{0002042" + (isDual ? "4" : "0") +
                     "-0000-0000-C000-000000000046}\" tlbid=\"" + library_ + "\"/>\n";
    }
  }

  std::string library_;
  std::string version_;
  std::string classes_;
  std::string interfaces_;
};

TEST(RegistrationFree, TheManifestSaysWhatTheTypeLibrarySays) {
  const std::filesystem::path manifests = RANGEWERKS_MANIFESTS;
  EXPECT_EQ(TextOf(manifests / "rangewerks" / "Rangewerks.X.manifest"), DemandedManifest().Text());
}

/// The sample program's folder, which has both servers in it, is in force as if the program were
/// running.
class HandedOut : public testing::Test {
 protected:
  HandedOut() {
    const std::wstring program = (folder_ / "posting.exe.manifest").wstring();
    const std::wstring assemblies = folder_.wstring();
    ACTCTXW description{};
    description.cbSize = sizeof(description);
    description.lpSource = program.c_str();
    description.dwFlags = ACTCTX_FLAG_ASSEMBLY_DIRECTORY_VALID;
    description.lpAssemblyDirectory = assemblies.c_str();
    context_ = CreateActCtxW(&description);
    if (context_ != INVALID_HANDLE_VALUE) ActivateActCtx(context_, &cookie_);
  }
  ~HandedOut() override {
    if (context_ == INVALID_HANDLE_VALUE) return;
    DeactivateActCtx(0, cookie_);
    ReleaseActCtx(context_);
  }

  /// A new object of the class with that ProgID; none when it can't be made.
  template <class Interface>
  static Pointer<Interface> New(const wchar_t* progId) {
    CLSID id{};
    Pointer<Interface> object;
    if (FAILED(CLSIDFromProgID(progId, &id))) return {};
    CoCreateInstance(id, nullptr, CLSCTX_SERVER, __uuidof(Interface), object.ReceiveAny());
    return object;
  }

  const std::filesystem::path folder_ = RANGEWERKS_SAMPLE_PROGRAM;
  Apartment apartment_;
  HANDLE context_ = INVALID_HANDLE_VALUE;
  ULONG_PTR cookie_ = 0;
};

TEST_F(HandedOut, TheClassesComeFromTheFolderWhateverIsRegistered) {
  ASSERT_NE(context_, INVALID_HANDLE_VALUE);
  const auto functions = New<_ExcelFunctions>(L"Rangewerks.ExcelFunctions");
  ASSERT_TRUE(functions);
  Bstr servedFrom;
  ASSERT_EQ(functions->DllPath(servedFrom.Receive()), S_OK);
  EXPECT_TRUE(std::filesystem::equivalent(servedFrom.Text(), folder_)) << servedFrom.Text();
  EXPECT_TRUE(New<_clsInterfaceRangeList>(L"Rangewerks.clsInterfaceRangeList"));
  EXPECT_TRUE(New<_clsExInputRange>(L"Rangewerks.clsExInputRange"));
  EXPECT_TRUE(New<_colExInputRangeList>(L"Rangewerks.colExInputRangeList"));
  EXPECT_TRUE(New<IDispatch>(L"SheetHost.Application"));
}

}  // namespace
}  // namespace rangewerks::tests
