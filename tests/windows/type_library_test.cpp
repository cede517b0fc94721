#include <gmock/gmock.h>
#include <oaidl.h>

#include <string>
#include <utility>
#include <vector>

#include "com/bridge/text.h"
#include "model/clsExInputRange.h"
#include "model/colExInputRangeList.h"
#include "model/colGroupHeadings.h"
#include "rangelist/ExcelFunctions.h"
#include "rangelist/RangewerksErrors.h"
#include "rangelist/clsInterfaceRangeList.h"
#include "rangelist/elgErrors.h"
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
  ExpectDescribed(ExcelFunctions(nullptr));
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
  EXPECT_THAT(classes,
              ElementsAre("clsRangeGroupHeading: default _clsRangeGroupHeading",
                          "colGroupHeadings: default _colGroupHeadings",
                          "clsExInputRange: creatable default _clsExInputRange",
                          "colExInputRangeList: creatable default _colExInputRangeList",
                          "clsInterfaceRangeList: creatable default _clsInterfaceRangeList "
                          "default source __clsInterfaceRangeList",
                          "ExcelFunctions: global creatable default _ExcelFunctions"));
}

TEST(TypeLibrary, HidesTheInterfacesBehindTheirClasses) {
  for (const char* name : {"_clsRangeGroupHeading", "_colGroupHeadings", "_clsExInputRange",
                           "_colExInputRangeList", "_clsInterfaceRangeList", "_ExcelFunctions"}) {
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

TEST(TypeLibrary, TellsTheEventsOfARangeList) {
  const auto type = TypeNamed("__clsInterfaceRangeList");
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
  EXPECT_THAT(events,
              ElementsAre("1 RangeAddValidationError: Data validation could not be added to a "
                          "range.",
                          "2 RangeAddTooltipError: An input message could not be added: 0 while "
                          "adding it, 1 while setting its texts."));
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

TEST(TypeLibrary, DescribesEveryTypeInWords) {
  const auto library = ServerTypeLibrary();
  Bstr name;
  Bstr help;
  library->GetDocumentation(-1, name.Receive(), help.Receive(), nullptr, nullptr);
  EXPECT_EQ(name.Text(), "Rangewerks");
  EXPECT_EQ(help.Text(), "Rangewerks");
  EXPECT_EQ(library->GetTypeInfoCount(), 17U);  // 4 enumerations, 7 interfaces, 6 classes
  for (UINT i = 0; i < library->GetTypeInfoCount(); ++i) {
    library->GetDocumentation(static_cast<INT>(i), name.Receive(), help.Receive(), nullptr,
                              nullptr);
    EXPECT_FALSE(help.Text().empty()) << name.Text();
  }
}

}  // namespace
}  // namespace rangewerks::tests
