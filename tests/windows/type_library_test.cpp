#include <gmock/gmock.h>
#include <oaidl.h>

#include <array>
#include <string>
#include <utility>
#include <vector>

#include "browse/clsAddBrowse.h"
#include "browse/clsBrowseDate.h"
#include "browse/clsExcelBrowse.h"
#include "browse/clsExcelVB.h"
#include "com/bridge/text.h"
#include "desktops/unattended/unattended_desktop.h"
#include "errors/ErrorMessageBox.h"
#include "errors/clsErrorList.h"
#include "errors/errL100Jrn.h"
#include "model/clsExInputRange.h"
#include "model/colExInputRangeList.h"
#include "model/colGroupHeadings.h"
#include "platform/clsExcelAbout.h"
#include "platform/clsRangewerksVer.h"
#include "rangelist/ExcelFunctions.h"
#include "rangelist/RangewerksErrors.h"
#include "rangelist/clsInterfaceRangeList.h"
#include "rangelist/elgErrors.h"
#include "sheetbuild/clsColumnStyle.h"
#include "sheetbuild/clsRangeProperties.h"
#include "sheetbuild/clsSaveSettings.h"
#include "sheetbuild/colour_pallet_object.h"
#include "windows/server_under_test.h"
#include "windows/type_texts.h"

namespace rangewerks::tests {
namespace {

using com::Bstr;
using com::Pointer;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

void ExpectDescribed(const automation::AutomationClass& object) {
  const std::string name = "_" + object.TypeName();
  const auto slots = SlotsOf(*TypeNamed(name).Get());
  const auto demanded = SlotsDemandedBy(object.Members());
  ASSERT_EQ(slots.size(), demanded.size()) << name;
  for (std::size_t i = 0; i < slots.size(); ++i) EXPECT_EQ(slots[i], demanded[i]) << name;
}

TEST(TypeLibrary, HasASlotForEachEntryOfTheMemberTablesInTheirOrder) {
  ExpectDescribed(clsInterfaceRangeList());
  ExpectDescribed(clsExInputRange());
  ExpectDescribed(colExInputRangeList());
  ExpectDescribed(colGroupHeadings());
  ExpectDescribed(clsRangeGroupHeading());
  ExpectDescribed(clsRangeProperties(nullptr));
  ExpectDescribed(clsColumnStyle(nullptr));
  ExpectDescribed(clsSaveSettings(nullptr));
  ExpectDescribed(clsExcelVB());
  ExpectDescribed(clsAddBrowse());
  ExpectDescribed(clsExcelBrowse());
  ExpectDescribed(ExcelFunctions(nullptr, nullptr));
  ExpectDescribed(ErrorMessageBox(nullptr, nullptr));
  ExpectDescribed(errL100Jrn());
  desktops::UnattendedDesktop desktop;
  ExpectDescribed(clsBrowseDate(nullptr, nullptr));
  ExpectDescribed(clsExcelAbout(nullptr, nullptr));
  ExpectDescribed(clsRangewerksVer(nullptr));
  ExpectDescribed(clsErrorList(std::shared_ptr<forms::Toolkit>(&desktop, [](auto*) {}), nullptr));
  ExpectDescribed(ColourPalletObject(nullptr));
}

TEST(TypeLibrary, TellsASlotInFull) {
  const auto slots = SlotsOf(*TypeNamed("_colExInputRangeList").Get());
  EXPECT_EQ(slots.at(0),
            std::to_string(7 * sizeof(void*)) +
                " call 1 Add(in RangeName String, in DetailIndicator Long, in RangeDataType Long, "
                "in IsMandatory Boolean optional False, in RangeExists Boolean optional False, "
                "in Description String optional \"\", in DataLength Integer optional 0, "
                "in Value Variant optional 0, inout sKey String optional, "
                "in IsBrowseable Boolean optional False, in BrowseColumn String optional \"\", "
                "in Group String optional \"\") Object \"Makes a range record and adds it at the "
                "end, under its name unless sKey is given.\"");
}

TEST(TypeLibrary, NamesTheTypesOfItsOwnInArgumentsAndResults) {
  EXPECT_THAT(
      OwnTypesIn(*TypeNamed("_clsInterfaceRangeList").Get()),
      ElementsAre("InvalidRangeType: eRangeHeadDetailInd*", "GroupHeadings: _colGroupHeadings**",
                  "InAnyRange: _clsExInputRange**", "AddInterface(eDataType): eRangeDataType",
                  "AddRangeNotOnListToSpreadsheet(oRngProps): _clsRangeProperties*",
                  "AddDetailRangeToSpreadsheet(oRngProps): _clsRangeProperties*",
                  "AddDetailRangeToSpreadsheet: _clsExInputRange**",
                  "AddRangeToSpreadsheet(oRngProps): _clsRangeProperties*",
                  "AddRangeToSpreadsheet: _clsExInputRange**",
                  "Add(DetailIndicator): eRangeHeadDetailInd", "Add(RangeDataType): eRangeDataType",
                  "Add: _clsExInputRange**", "AddCls(oExRngInput): _clsExInputRange*",
                  "AddCls: _clsExInputRange**", "Item: _clsExInputRange**",
                  "GetValues(HeadDetailInd): eRangeHeadDetailInd",
                  "PutValues(HeadDetailInd): eRangeHeadDetailInd"));
  EXPECT_THAT(
      OwnTypesIn(*TypeNamed("_clsExInputRange").Get()),
      ElementsAre("RangeDataType: eRangeDataType", "RangeDataType: eRangeDataType*",
                  "DetailIndicator: eRangeHeadDetailInd", "DetailIndicator: eRangeHeadDetailInd*"));
  EXPECT_THAT(
      OwnTypesIn(*TypeNamed("_colExInputRangeList").Get()),
      ElementsAre("Add(DetailIndicator): eRangeHeadDetailInd", "Add(RangeDataType): eRangeDataType",
                  "Add: _clsExInputRange**", "Item: _clsExInputRange**",
                  "Append(oISESAppend): _colExInputRangeList*"));
  EXPECT_THAT(OwnTypesIn(*TypeNamed("_colGroupHeadings").Get()),
              ElementsAre("Add: _clsRangeGroupHeading**", "Item: _clsRangeGroupHeading**"));
  EXPECT_THAT(OwnTypesIn(*TypeNamed("_clsRangeGroupHeading").Get()), IsEmpty());
  EXPECT_THAT(OwnTypesIn(*TypeNamed("_clsRangeProperties").Get()),
              ElementsAre("ExcelRange: _clsExInputRange**"));
  EXPECT_THAT(OwnTypesIn(*TypeNamed("_ExcelFunctions").Get()),
              ElementsAre("ValidateRanges(irList): _clsInterfaceRangeList*"));
}

/// "class: flags, default interface, source interface" of one class.
std::string ClassText(ITypeInfo& type) {
  TypeAttributes attributes(type);
  type.GetTypeAttr(attributes.Receive());
  std::string text = NameOfType(type) + ":";
  if ((attributes->wTypeFlags & TYPEFLAG_FAPPOBJECT) != 0) text += " global";
  if ((attributes->wTypeFlags & TYPEFLAG_FCANCREATE) != 0) text += " creatable";
  if ((attributes->wTypeFlags & TYPEFLAG_FCONTROL) != 0) text += " control";
  for (UINT i = 0; i < attributes->cImplTypes; ++i) {
    HREFTYPE reference = 0;
    INT flags = 0;
    Pointer<ITypeInfo> implemented;
    type.GetRefTypeOfImplType(i, &reference);
    type.GetRefTypeInfo(reference, implemented.Receive());
    type.GetImplTypeFlags(i, &flags);
    if ((flags & IMPLTYPEFLAG_FDEFAULT) != 0) text += " default";
    if ((flags & IMPLTYPEFLAG_FSOURCE) != 0) text += " source";
    text += " " + NameOfType(*implemented.Get());
  }
  return text;
}

TEST(TypeLibrary, TellsWhichClassesAClientCanCreateAndWhichAreGlobal) {
  std::vector<std::string> classes;
  const auto library = ServerTypeLibrary();
  for (UINT i = 0; i < library->GetTypeInfoCount(); ++i) {
    TYPEKIND kind = TKIND_MAX;
    library->GetTypeInfoType(i, &kind);
    if (kind != TKIND_COCLASS) continue;
    Pointer<ITypeInfo> type;
    library->GetTypeInfo(i, type.Receive());
    classes.push_back(ClassText(*type.Get()));
  }
  EXPECT_THAT(
      classes,
      ElementsAre("clsRangeGroupHeading: default _clsRangeGroupHeading",
                  "colGroupHeadings: default _colGroupHeadings",
                  "clsExInputRange: creatable default _clsExInputRange",
                  "colExInputRangeList: creatable default _colExInputRangeList",
                  "clsInterfaceRangeList: creatable default _clsInterfaceRangeList "
                  "default source __clsInterfaceRangeList",
                  "clsRangeProperties: creatable default _clsRangeProperties",
                  "clsColumnStyle: creatable default _clsColumnStyle",
                  "clsSaveSettings: creatable default _clsSaveSettings",
                  "clsExcelVB: creatable default _clsExcelVB",
                  "clsAddBrowse: creatable default _clsAddBrowse",
                  "clsExcelBrowse: creatable default _clsExcelBrowse",
                  "ExcelFunctions: global creatable default _ExcelFunctions",
                  "ErrorMessageBox: global creatable default _ErrorMessageBox",
                  "errL100Jrn: global creatable default _errL100Jrn",
                  "clsErrorList: creatable default _clsErrorList default source __clsErrorList",
                  "clsBrowseDate: creatable default _clsBrowseDate",
                  "clsExcelAbout: creatable default _clsExcelAbout",
                  "clsRangewerksVer: global creatable default _clsRangewerksVer",
                  "ctlColourPallet: creatable control default _ctlColourPallet"));
}

TEST(TypeLibrary, HidesTheInterfacesBehindTheirClasses) {
  for (const char* name :
       {"_clsRangeGroupHeading", "_colGroupHeadings", "_clsExInputRange", "_colExInputRangeList",
        "_clsInterfaceRangeList", "_clsRangeProperties", "_clsColumnStyle", "_clsSaveSettings",
        "_clsExcelVB", "_clsAddBrowse", "_clsExcelBrowse", "_ExcelFunctions", "_ErrorMessageBox",
        "_errL100Jrn", "_clsErrorList", "_clsBrowseDate", "_clsExcelAbout", "_clsRangewerksVer",
        "_ctlColourPallet"}) {
    const auto view = TableViewOf(*TypeNamed(name).Get());
    TypeAttributes attributes(*view.Get());
    view->GetTypeAttr(attributes.Receive());
    EXPECT_EQ(attributes->wTypeFlags, TYPEFLAG_FHIDDEN | TYPEFLAG_FDUAL | TYPEFLAG_FNONEXTENSIBLE |
                                          TYPEFLAG_FOLEAUTOMATION | TYPEFLAG_FDISPATCHABLE)
        << name;
  }
}

TEST(TypeLibrary, HidesTheEnumeratorFromBrowsers) {
  const auto view = TableViewOf(*TypeNamed("_colGroupHeadings").Get());
  FunctionDescription function(*view.Get());
  view->GetFuncDesc(5, function.Receive());
  EXPECT_EQ(function->memid, DISPID_NEWENUM);
  EXPECT_EQ(function->wFuncFlags, FUNCFLAG_FRESTRICTED);
}

/// "identifier name: help" of each event of a source interface.
std::vector<std::string> EventsOf(const char* source) {
  const auto type = TypeNamed(source);
  TypeAttributes attributes(*type.Get());
  type->GetTypeAttr(attributes.Receive());
  EXPECT_EQ(attributes->typekind, TKIND_DISPATCH);
  EXPECT_EQ(attributes->wTypeFlags & TYPEFLAG_FDUAL, 0);
  std::vector<std::string> events;
  for (UINT i = 0; i < attributes->cFuncs; ++i) {
    FunctionDescription function(*type.Get());
    type->GetFuncDesc(i, function.Receive());
    Bstr name;
    Bstr help;
    type->GetDocumentation(function->memid, name.Receive(), help.Receive(), nullptr, nullptr);
    events.push_back(std::to_string(function->memid) + " " + name.Text() + ": " + help.Text());
  }
  return events;
}

TEST(TypeLibrary, TellsTheEventsOfARangeList) {
  EXPECT_THAT(EventsOf("__clsInterfaceRangeList"),
              ElementsAre("1 RangeAddValidationError: Data validation could not be added to a "
                          "range.",
                          "2 RangeAddTooltipError: An input message could not be added: 0 while "
                          "adding it, 1 while setting its texts."));
}

TEST(TypeLibrary, TellsTheEventOfAnErrorList) {
  EXPECT_THAT(EventsOf("__clsErrorList"),
              ElementsAre("1 FormClosed: The person has closed the list."));
}

TEST(TypeLibrary, LetsAHandlerSeeTheStageOfAFailedTooltip) {
  const auto type = TypeNamed("__clsInterfaceRangeList");
  FunctionDescription function(*type.Get());
  type->GetFuncDesc(1, function.Receive());
  ASSERT_EQ(function->cParams, 1);
  const ELEMDESC& stage = function->lprgelemdescParam[0];
  EXPECT_EQ(stage.paramdesc.wParamFlags, PARAMFLAG_FIN | PARAMFLAG_FOUT);
  ASSERT_EQ(stage.tdesc.vt, VT_PTR);
  EXPECT_EQ(stage.tdesc.lptdesc->vt, VT_I2);
}

/// The names and values of an enumeration.
std::vector<std::pair<std::string, std::int32_t>> ValuesOf(const char* name) {
  const auto type = TypeNamed(name);
  TypeAttributes attributes(*type.Get());
  type->GetTypeAttr(attributes.Receive());
  EXPECT_EQ(attributes->typekind, TKIND_ENUM);
  std::vector<std::pair<std::string, std::int32_t>> values;
  for (UINT i = 0; i < attributes->cVars; ++i) {
    VariableDescription variable(*type.Get());
    type->GetVarDesc(i, variable.Receive());
    Bstr member;
    type->GetDocumentation(variable->memid, member.Receive(), nullptr, nullptr, nullptr);
    EXPECT_EQ(V_VT(variable->lpvarValue), VT_I4);
    values.emplace_back(member.Text(), V_I4(variable->lpvarValue));
  }
  return values;
}

TEST(TypeLibrary, HasTheEnumerationsWithTheirValues) {
  EXPECT_THAT(ValuesOf("eRangeDataType"),
              ElementsAre(Pair("rdtString", rdtString), Pair("rdtDouble", rdtDouble),
                          Pair("rdtDate", rdtDate), Pair("rdtInteger", rdtInteger),
                          Pair("rdtYesNo", rdtYesNo)));
  EXPECT_THAT(ValuesOf("eRangeHeadDetailInd"),
              ElementsAre(Pair("hdiHeader", hdiHeader), Pair("hdiDetail", hdiDetail),
                          Pair("hdiHeaderDetail", hdiHeaderDetail), Pair("hdiNone", hdiNone)));
  EXPECT_THAT(ValuesOf("RangewerksErrors"),
              ElementsAre(Pair("errRwkInvalidRangeValue", errRwkInvalidRangeValue),
                          Pair("errPLInvalidDecimalPlaces", errPLInvalidDecimalPlaces)));
  EXPECT_THAT(
      ValuesOf("elgErrors"),
      ElementsAre(Pair("errRowsInvalidRangeForBrowse", errRowsInvalidRangeForBrowse),
                  Pair("errColumnsInvalidRangeForBrowse", errColumnsInvalidRangeForBrowse)));
}

std::string Braced(const GUID& id) {
  std::array<wchar_t, 39> text{};
  StringFromGUID2(id, text.data(), static_cast<int>(text.size()));
  return com::FromWide(text.data());
}

// A failure here is a mistake in the library's definition, not in this list: docs/com.md tells why.
TEST(TypeLibrary, KeepsItsIdentifiers) {
  const auto library = ServerTypeLibrary();
  TLIBATTR* attributes = nullptr;
  library->GetLibAttr(&attributes);
  EXPECT_EQ(Braced(attributes->guid), "{BB9B934D-B790-4E40-AF93-ED39AECD8AE4}");
  EXPECT_EQ(attributes->wMajorVerNum, 1);
  EXPECT_EQ(attributes->wMinorVerNum, 0);
  library->ReleaseTLibAttr(attributes);
  std::vector<std::pair<std::string, std::string>> types;
  for (UINT i = 0; i < library->GetTypeInfoCount(); ++i) {
    Pointer<ITypeInfo> type;
    library->GetTypeInfo(i, type.Receive());
    TypeAttributes described(*type.Get());
    type->GetTypeAttr(described.Receive());
    types.emplace_back(NameOfType(*type.Get()), Braced(described->guid));
  }
  EXPECT_THAT(types,
              ElementsAre(Pair("eRangeDataType", "{D3A6A8BF-9FBD-48E4-8D49-55C5A3659AB0}"),
                          Pair("eRangeHeadDetailInd", "{B5697680-BC3A-422A-9E8D-872DAFFF75C5}"),
                          Pair("RangewerksErrors", "{87B6C095-2755-41DA-8026-C7D714226A0D}"),
                          Pair("elgErrors", "{B2F775B4-0C4E-44A8-A2D9-42764EF79FAB}"),
                          Pair("_clsRangeGroupHeading", "{582C478E-649D-4BC8-9BDD-AF82EF97438A}"),
                          Pair("_colGroupHeadings", "{74BDB599-98B2-432D-9DFF-CC7C40299DBB}"),
                          Pair("_clsExInputRange", "{AC6027B4-1BFC-42CF-817A-08ABFCCEAE1A}"),
                          Pair("_colExInputRangeList", "{EFA4B2D9-C96D-444A-9CA7-3554E5030AC1}"),
                          Pair("_clsRangeProperties", "{C64040F8-FCD8-4D58-AEA1-B68A0B025D7D}"),
                          Pair("_clsColumnStyle", "{6FBAAE43-2DC4-4F27-BE34-B7889C69699A}"),
                          Pair("_clsSaveSettings", "{3A4DB0AA-7EBB-4E13-A369-6DF49B9FB418}"),
                          Pair("_clsInterfaceRangeList", "{96AC32DF-DC59-4172-A116-306F51B69B53}"),
                          Pair("_clsExcelVB", "{9C1AD3BF-C1B4-4AE5-A46B-D94DFB51743A}"),
                          Pair("_clsAddBrowse", "{6EB88E20-609D-4DCC-8316-9E5DCA5DA59E}"),
                          Pair("_clsExcelBrowse", "{2769413C-A556-4E30-9AFD-AD638344416A}"),
                          Pair("_ExcelFunctions", "{6A523BB4-D3E4-46FE-905B-2DBCFF546108}"),
                          Pair("_ErrorMessageBox", "{3C266930-6CEF-4557-BCF0-92E30A4AF202}"),
                          Pair("_errL100Jrn", "{85A5D147-95E8-4A41-9E2F-1C9324A3ABC2}"),
                          Pair("_clsErrorList", "{C2CCE0EE-CCAD-44E1-A2CC-CB721992DAC1}"),
                          Pair("_clsBrowseDate", "{4A1705DE-A542-4024-A115-37C5D2ED0ED3}"),
                          Pair("_clsExcelAbout", "{976B7217-DEF1-40F9-B352-2E9B57D95D20}"),
                          Pair("_clsRangewerksVer", "{CE3AFD33-8651-4E95-92E1-0ACBC5E7D287}"),
                          Pair("_ctlColourPallet", "{5FCAEC6C-3F13-4749-B43E-F49B86A4D777}"),
                          Pair("__clsInterfaceRangeList", "{823CBCD1-3B30-4061-8544-84BB2F5E23F9}"),
                          Pair("__clsErrorList", "{0BDE0CAB-B365-45FA-80F1-B3740D75BE69}"),
                          Pair("clsRangeGroupHeading", "{57A505C8-0DAA-43EA-89B8-5B682761AACA}"),
                          Pair("colGroupHeadings", "{AC70CE33-AC49-4553-AAFB-083A3D44CB12}"),
                          Pair("clsExInputRange", "{FCEE5D41-C542-4C4D-93A6-8BD7E2627E81}"),
                          Pair("colExInputRangeList", "{5FE272D8-97E5-4632-AE63-DBFC05972E54}"),
                          Pair("clsInterfaceRangeList", "{EB72F789-34AC-4A6A-BDC6-C39A141A58E8}"),
                          Pair("clsRangeProperties", "{42CD4EDC-D06C-43CD-A93F-17A134F30A50}"),
                          Pair("clsColumnStyle", "{8724327A-FF1A-4459-8D32-B8379209BB5F}"),
                          Pair("clsSaveSettings", "{D7D4614C-341A-4305-A140-7E27209B1EC8}"),
                          Pair("clsExcelVB", "{71FEB512-C89F-49F7-9670-9EF77EEC9081}"),
                          Pair("clsAddBrowse", "{3A8064CD-B23D-4C18-B6A0-E169638F3EE9}"),
                          Pair("clsExcelBrowse", "{AC0AE843-5C1B-45F1-877E-10E11EA02C22}"),
                          Pair("ExcelFunctions", "{D9C76933-35AC-42B4-B8D4-9F0A9B9D13CE}"),
                          Pair("ErrorMessageBox", "{C4CEEC56-BC5B-42C9-8C97-0230704DA14B}"),
                          Pair("errL100Jrn", "{E36C2DB5-1A2D-4E2C-99EB-20A0667718AE}"),
                          Pair("clsErrorList", "{9E96988A-4C39-4B2C-AC94-C9BE1BC715A0}"),
                          Pair("clsBrowseDate", "{55BA9756-276A-4CBD-B8D8-F235A1304C9D}"),
                          Pair("clsExcelAbout", "{FF0D88CE-0E3E-4C28-B535-FE48D9770844}"),
                          Pair("clsRangewerksVer", "{158609F7-1220-4094-8E56-0F8B3646CCAA}"),
                          Pair("ctlColourPallet", "{69B45F30-D39B-48AA-B5FC-FC4EC6C6E1FF}")));
}

TEST(TypeLibrary, DescribesEveryTypeInWords) {
  const auto library = ServerTypeLibrary();
  Bstr name;
  Bstr help;
  library->GetDocumentation(-1, name.Receive(), help.Receive(), nullptr, nullptr);
  EXPECT_EQ(name.Text(), "Rangewerks");
  EXPECT_EQ(help.Text(), "Rangewerks");
  EXPECT_EQ(library->GetTypeInfoCount(), 44U);  // 4 enumerations, 21 interfaces, 19 classes
  for (UINT i = 0; i < library->GetTypeInfoCount(); ++i) {
    library->GetDocumentation(static_cast<INT>(i), name.Receive(), help.Receive(), nullptr,
                              nullptr);
    EXPECT_FALSE(help.Text().empty()) << name.Text();
  }
}

}  // namespace
}  // namespace rangewerks::tests
