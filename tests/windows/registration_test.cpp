// Registering and unregistering, in a registry of the test's own.
#include <gmock/gmock.h>
#include <windows.h>

#include <algorithm>
#include <array>
#include <iterator>
#include <string>
#include <vector>

#include "com/bridge/text.h"
#include "windows/registry_sandbox.h"
#include "windows/server_under_test.h"

namespace rangewerks::tests {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

HRESULT Call(const char* entryPoint) {
  using EntryPoint = HRESULT(STDAPICALLTYPE*)();
  const auto function = reinterpret_cast<EntryPoint>(
      reinterpret_cast<void*>(GetProcAddress(ServerModule(), entryPoint)));
  return function();
}
HRESULT RegisterServer() { return Call("DllRegisterServer"); }
HRESULT UnregisterServer() { return Call("DllUnregisterServer"); }

std::string ServerFile() {
  std::array<wchar_t, 2 * MAX_PATH> file{};
  GetModuleFileNameW(ServerModule(), file.data(), static_cast<DWORD>(file.size()));
  return com::FromWide(file.data());
}
std::string ServerFolder() { return ServerFile().substr(0, ServerFile().rfind('\\')); }

/// The identifiers as published. They never change; a failure here is a mistake in the library's
/// definition, not in this list.
constexpr const char* kLibrary = "{BB9B934D-B790-4E40-AF93-ED39AECD8AE4}";
struct PublishedClass {
  const char* id;
  const char* progId;
  const char* name;
};
constexpr std::array kClasses = {
    PublishedClass{"{EB72F789-34AC-4A6A-BDC6-C39A141A58E8}", "Rangewerks.clsInterfaceRangeList",
                   "Rangewerks interface range list"},
    PublishedClass{"{FCEE5D41-C542-4C4D-93A6-8BD7E2627E81}", "Rangewerks.clsExInputRange",
                   "Rangewerks declared range"},
    PublishedClass{"{5FE272D8-97E5-4632-AE63-DBFC05972E54}", "Rangewerks.colExInputRangeList",
                   "Rangewerks list of declared ranges"},
    PublishedClass{"{42CD4EDC-D06C-43CD-A93F-17A134F30A50}", "Rangewerks.clsRangeProperties",
                   "Rangewerks range properties"},
    PublishedClass{"{8724327A-FF1A-4459-8D32-B8379209BB5F}", "Rangewerks.clsColumnStyle",
                   "Rangewerks stored colours"},
    PublishedClass{"{D7D4614C-341A-4305-A140-7E27209B1EC8}", "Rangewerks.clsSaveSettings",
                   "Rangewerks stored options"},
    PublishedClass{"{71FEB512-C89F-49F7-9670-9EF77EEC9081}", "Rangewerks.clsExcelVB",
                   "Rangewerks macro code editor"},
    PublishedClass{"{3A8064CD-B23D-4C18-B6A0-E169638F3EE9}", "Rangewerks.clsAddBrowse",
                   "Rangewerks browse of a workbook"},
    PublishedClass{"{AC0AE843-5C1B-45F1-877E-10E11EA02C22}", "Rangewerks.clsExcelBrowse",
                   "Rangewerks right-click browse"},
    PublishedClass{"{D9C76933-35AC-42B4-B8D4-9F0A9B9D13CE}", "Rangewerks.ExcelFunctions",
                   "Rangewerks routines for sheets"},
    PublishedClass{"{C4CEEC56-BC5B-42C9-8C97-0230704DA14B}", "Rangewerks.ErrorMessageBox",
                   "Rangewerks error message box"},
    PublishedClass{"{E36C2DB5-1A2D-4E2C-99EB-20A0667718AE}", "Rangewerks.errL100Jrn",
                   "Rangewerks object without members"},
    PublishedClass{"{9E96988A-4C39-4B2C-AC94-C9BE1BC715A0}", "Rangewerks.clsErrorList",
                   "Rangewerks error list"},
    PublishedClass{"{55BA9756-276A-4CBD-B8D8-F235A1304C9D}", "Rangewerks.clsBrowseDate",
                   "Rangewerks date browse"},
    PublishedClass{"{FF0D88CE-0E3E-4C28-B535-FE48D9770844}", "Rangewerks.clsExcelAbout",
                   "Rangewerks about box"},
    PublishedClass{"{158609F7-1220-4094-8E56-0F8B3646CCAA}", "Rangewerks.clsRangewerksVer",
                   "Rangewerks version"},
    PublishedClass{"{69B45F30-D39B-48AA-B5FC-FC4EC6C6E1FF}", "Rangewerks.ctlColourPallet",
                   "Rangewerks colour panel"},
};
constexpr const PublishedClass& kControl = kClasses.back();
struct PublishedInterface {
  const char* id;
  const char* name;
};
constexpr const char* kDualProxy = "{00020424-0000-0000-C000-000000000046}";
constexpr std::array kDualInterfaces = {
    PublishedInterface{"{582C478E-649D-4BC8-9BDD-AF82EF97438A}", "_clsRangeGroupHeading"},
    PublishedInterface{"{74BDB599-98B2-432D-9DFF-CC7C40299DBB}", "_colGroupHeadings"},
    PublishedInterface{"{AC6027B4-1BFC-42CF-817A-08ABFCCEAE1A}", "_clsExInputRange"},
    PublishedInterface{"{EFA4B2D9-C96D-444A-9CA7-3554E5030AC1}", "_colExInputRangeList"},
    PublishedInterface{"{96AC32DF-DC59-4172-A116-306F51B69B53}", "_clsInterfaceRangeList"},
    PublishedInterface{"{C64040F8-FCD8-4D58-AEA1-B68A0B025D7D}", "_clsRangeProperties"},
    PublishedInterface{"{6FBAAE43-2DC4-4F27-BE34-B7889C69699A}", "_clsColumnStyle"},
    PublishedInterface{"{3A4DB0AA-7EBB-4E13-A369-6DF49B9FB418}", "_clsSaveSettings"},
    PublishedInterface{"{9C1AD3BF-C1B4-4AE5-A46B-D94DFB51743A}", "_clsExcelVB"},
    PublishedInterface{"{6EB88E20-609D-4DCC-8316-9E5DCA5DA59E}", "_clsAddBrowse"},
    PublishedInterface{"{2769413C-A556-4E30-9AFD-AD638344416A}", "_clsExcelBrowse"},
    PublishedInterface{"{6A523BB4-D3E4-46FE-905B-2DBCFF546108}", "_ExcelFunctions"},
    PublishedInterface{"{3C266930-6CEF-4557-BCF0-92E30A4AF202}", "_ErrorMessageBox"},
    PublishedInterface{"{85A5D147-95E8-4A41-9E2F-1C9324A3ABC2}", "_errL100Jrn"},
    PublishedInterface{"{C2CCE0EE-CCAD-44E1-A2CC-CB721992DAC1}", "_clsErrorList"},
    PublishedInterface{"{4A1705DE-A542-4024-A115-37C5D2ED0ED3}", "_clsBrowseDate"},
    PublishedInterface{"{976B7217-DEF1-40F9-B352-2E9B57D95D20}", "_clsExcelAbout"},
    PublishedInterface{"{CE3AFD33-8651-4E95-92E1-0ACBC5E7D287}", "_clsRangewerksVer"},
    PublishedInterface{"{5FCAEC6C-3F13-4749-B43E-F49B86A4D777}", "_ctlColourPallet"},
};
constexpr const char* kEventsProxy = "{00020420-0000-0000-C000-000000000046}";
constexpr std::array kEvents = {
    PublishedInterface{"{823CBCD1-3B30-4061-8544-84BB2F5E23F9}", "__clsInterfaceRangeList"},
    PublishedInterface{"{0BDE0CAB-B365-45FA-80F1-B3740D75BE69}", "__clsErrorList"},
};

/// Keys and values in the form of RegistrySandbox::ClassesOf.
class Lines {
 public:
  void Value(const std::string& key, const std::string& name, const std::string& text) {
    Key(key);
    lines_.push_back(key + " [" + name + "] " + text);
  }
  std::vector<std::string> Sorted() {
    std::ranges::sort(lines_);
    return lines_;
  }

 private:
  void Key(const std::string& key) {
    if (std::ranges::find(lines_, key) != lines_.end()) return;
    lines_.push_back(key);
    const std::size_t parent = key.rfind('\\');
    if (parent != std::string::npos) Key(key.substr(0, parent));
  }

  std::vector<std::string> lines_;
};

void AddInterface(const PublishedInterface& published, const char* proxy, Lines& lines) {
  const std::string key = std::string("Interface\\") + published.id;
  lines.Value(key, "", published.name);
  lines.Value(key + "\\ProxyStubClsid32", "", proxy);
  lines.Value(key + "\\TypeLib", "", kLibrary);
  lines.Value(key + "\\TypeLib", "Version", "1.0");
}

std::vector<std::string> Registered() {
  Lines lines;
  const std::string library = std::string("TypeLib\\") + kLibrary + "\\1.0";
  lines.Value(library, "", "Rangewerks");
  lines.Value(library + (sizeof(void*) == 8 ? "\\0\\win64" : "\\0\\win32"), "", ServerFile());
  lines.Value(library + "\\FLAGS", "", "0");
  lines.Value(library + "\\HELPDIR", "", ServerFolder());
  for (const PublishedClass& served : kClasses) {
    const std::string key = std::string("CLSID\\") + served.id;
    lines.Value(key, "", served.name);
    lines.Value(key + "\\InprocServer32", "", ServerFile());
    lines.Value(key + "\\InprocServer32", "ThreadingModel", "Apartment");
    lines.Value(key + "\\ProgID", "", served.progId);
    lines.Value(key + "\\Programmable", "", "");
    lines.Value(key + "\\TypeLib", "", kLibrary);
    lines.Value(key + "\\Version", "", "1.0");
    lines.Value(served.progId, "", served.name);
    lines.Value(std::string(served.progId) + "\\CLSID", "", served.id);
  }
  const std::string control = std::string("CLSID\\") + kControl.id;
  lines.Value(control + "\\Control", "", "");
  lines.Value(control + "\\MiscStatus", "", "0");
  lines.Value(control + "\\MiscStatus\\1", "", "131473");
  lines.Value(control + "\\ToolboxBitmap32", "", ServerFile() + ", 101");
  for (const PublishedInterface& dual : kDualInterfaces) AddInterface(dual, kDualProxy, lines);
  for (const PublishedInterface& events : kEvents) AddInterface(events, kEventsProxy, lines);
  return lines.Sorted();
}

std::vector<std::string> MachineClasses() { return RegistrySandbox::ClassesOf(HKEY_LOCAL_MACHINE); }
std::vector<std::string> PersonClasses() { return RegistrySandbox::ClassesOf(HKEY_CURRENT_USER); }

void SetText(HKEY root, const std::string& key, const wchar_t* text) {
  const std::wstring value = text;
  ASSERT_EQ(
      RegSetKeyValueW(root, com::ToWide("Software\\Classes\\" + key).c_str(), nullptr, REG_SZ,
                      value.c_str(), static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t))),
      ERROR_SUCCESS);
}

class Registration : public testing::Test {
 protected:
  RegistrySandbox sandbox_;
};

TEST_F(Registration, WritesTheLibraryAndTheClassesForTheMachine) {
  EXPECT_EQ(RegisterServer(), S_OK);
  EXPECT_THAT(MachineClasses(), ElementsAreArray(Registered()));
  EXPECT_THAT(PersonClasses(), IsEmpty());
}

TEST_F(Registration, LeavesNothingBehindWhenTakenOut) {
  ASSERT_EQ(RegisterServer(), S_OK);
  EXPECT_EQ(UnregisterServer(), S_OK);
  EXPECT_THAT(MachineClasses(), IsEmpty());
  EXPECT_THAT(PersonClasses(), IsEmpty());
}

TEST_F(Registration, IsTheSameTheSecondTime) {
  ASSERT_EQ(RegisterServer(), S_OK);
  ASSERT_EQ(UnregisterServer(), S_OK);
  EXPECT_EQ(RegisterServer(), S_OK);
  EXPECT_THAT(MachineClasses(), ElementsAreArray(Registered()));
  EXPECT_EQ(RegisterServer(), S_OK);
  EXPECT_THAT(MachineClasses(), ElementsAreArray(Registered()));
}

TEST_F(Registration, IsForThePersonWhereTheMachineIsForbidden) {
  sandbox_.ForbidMachine();
  EXPECT_EQ(RegisterServer(), S_OK);
  EXPECT_THAT(MachineClasses(), IsEmpty());
  EXPECT_THAT(PersonClasses(), ElementsAreArray(Registered()));

  EXPECT_EQ(UnregisterServer(), S_OK);
  EXPECT_THAT(PersonClasses(), IsEmpty());
}

TEST_F(Registration, IsTakenOutForTheMachineAndForThePerson) {
  sandbox_.ForbidMachine();
  ASSERT_EQ(RegisterServer(), S_OK);
  sandbox_.AllowMachine();
  ASSERT_EQ(RegisterServer(), S_OK);
  ASSERT_THAT(MachineClasses(), ElementsAreArray(Registered()));
  ASSERT_THAT(PersonClasses(), ElementsAreArray(Registered()));

  EXPECT_EQ(UnregisterServer(), S_OK);
  EXPECT_THAT(MachineClasses(), IsEmpty());
  EXPECT_THAT(PersonClasses(), IsEmpty());
}

TEST_F(Registration, ThatWasNeverMadeIsTakenOutWithoutFailure) {
  EXPECT_EQ(UnregisterServer(), S_OK);
  sandbox_.ForbidMachine();
  EXPECT_EQ(UnregisterServer(), S_OK);
}

TEST_F(Registration, LeavesAloneWhatOthersHaveWritten) {
  const std::string key = std::string("CLSID\\") + kClasses[0].id;
  SetText(HKEY_LOCAL_MACHINE, "CLSID\\{00000000-0000-0000-0000-000000000001}", L"Another class");
  ASSERT_EQ(RegisterServer(), S_OK);
  SetText(HKEY_LOCAL_MACHINE, key + "\\Note", L"added by a person");
  EXPECT_EQ(UnregisterServer(), S_OK);
  EXPECT_THAT(MachineClasses(),
              ElementsAre("CLSID", "CLSID\\{00000000-0000-0000-0000-000000000001}",
                          "CLSID\\{00000000-0000-0000-0000-000000000001} [] Another class", key,
                          key + "\\Note", key + "\\Note [] added by a person"));
}

TEST_F(Registration, ThatMayNotBeTakenOutIsAFailure) {
  ASSERT_EQ(RegisterServer(), S_OK);
  const std::string key = std::string("CLSID\\") + kClasses[0].id + "\\InprocServer32";
  sandbox_.ForbidMachine(key);
  EXPECT_EQ(UnregisterServer(), HRESULT_FROM_WIN32(ERROR_ACCESS_DENIED));
  EXPECT_THAT(MachineClasses(), Contains(key + " [] " + ServerFile()));
}

TEST_F(Registration, ThatFailsHalfWayLeavesNothingBehind) {
  const std::string key = std::string("CLSID\\") + kClasses[3].id;
  sandbox_.ForbidMachine(key);
  EXPECT_EQ(RegisterServer(), S_OK);  // for the person then
  EXPECT_THAT(MachineClasses(), ElementsAre("CLSID", key));
  EXPECT_THAT(PersonClasses(), ElementsAreArray(Registered()));
}

// A 64-bit system keeps the classes of 32-bit servers in a branch of their own.
TEST_F(Registration, KeepsWhatTheRegisteredBuildOfTheOtherWordSizeShares) {
  if (sizeof(void*) == 4) GTEST_SKIP() << "a 32-bit system has no other branch";
  ASSERT_EQ(RegisterServer(), S_OK);
  const std::string theirs = std::string("Wow6432Node\\CLSID\\") + kClasses[0].id;
  SetText(HKEY_LOCAL_MACHINE, theirs + "\\InprocServer32", L"C:\\x86\\Rangewerks.dll");
  EXPECT_EQ(UnregisterServer(), S_OK);
  std::vector<std::string> shared;
  std::ranges::copy_if(Registered(), std::back_inserter(shared), [](const std::string& line) {
    return line.find(" [") != std::string::npos &&
           (line.starts_with("Rangewerks.") || line.starts_with("TypeLib\\")) &&
           line.find("\\win64") == std::string::npos;
  });
  std::vector<std::string> left;
  std::ranges::copy_if(MachineClasses(), std::back_inserter(left), [](const std::string& line) {
    return line.find(" [") != std::string::npos && !line.starts_with("Wow6432Node");
  });
  EXPECT_EQ(shared.size(), 2 * kClasses.size() + 3);  // two for each class, three for the library
  EXPECT_EQ(left, shared);
}

}  // namespace
}  // namespace rangewerks::tests
