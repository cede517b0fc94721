// The document's own properties: their types, and what of them files keep.
#include <gmock/gmock.h>

#include "hosts/libreoffice_documents.h"
#include "hosts/libreoffice_under_test.h"
#include "hosts/temporary_folder.h"

namespace rangewerks::tests {
namespace {

using automation::Date;
using automation::Member;
using testing::ElementsAre;

constexpr std::int32_t kRefused = 1004;
constexpr double kNoonOnLastDayOfJanuary2024 = 45322.5;

class LibreOfficeProperties : public testing::TestWithParam<const char*> {
 protected:
  void SetUp() override { book_ = SharedOffice().NewWorkbook({"Ledger"}); }
  void TearDown() override {
    for (const Variant& book : Elements(GetObject(SharedOffice().Application(), "Workbooks"))) {
      SharedOffice().Close(book.AsObject());
    }
  }

  Object All() { return GetObject(book_, "CustomDocumentProperties"); }
  Object Add(const char* name, std::int32_t type, const Variant& value) {
    const Variant added = All().Call(Member("Add"), {},
                                     {{Member("Name"), name},
                                      {Member("LinkToContent"), false},
                                      {Member("Type"), type},
                                      {Member("Value"), value}});
    return added.AsObject();
  }
  Variant ValueOf(const char* name) { return Get(GetObject(All(), "Item", {name}), "Value"); }
  std::vector<std::string> Names() {
    std::vector<std::string> names;
    for (const Variant& each : Elements(All())) names.push_back(GetText(each.AsObject(), "Name"));
    return names;
  }
  void Reopen() {
    const std::string path = folder_.File(std::to_string(++saved_) + GetParam());
    SharedOffice().SaveCopyAs(book_, path);
    SharedOffice().Close(book_);
    book_ = SharedOffice().Open(path);
  }

  TemporaryFolder folder_;
  int saved_ = 0;
  Object book_;
};
INSTANTIATE_TEST_SUITE_P(Formats, LibreOfficeProperties,
                         testing::Values(".xlsx", ".xlsm", ".xls", ".ods"),
                         [](const auto& each) { return std::string(each.param).substr(1); });

TEST_P(LibreOfficeProperties, AFileKeepsBooleansTextsDatesAndNumbers) {
  Add("OstrelBrowseModule", 2, true);
  Add("Z\xC3\xBCrich & <Co>", 4, "a \"text\"\xE2\x82\xAC");
  Add("Posted", 3, Date{kNoonOnLastDayOfJanuary2024});
  Add("Rate", 5, 1.25);
  Add("Lines", 1, 7);
  EXPECT_EQ(ValueOf("Lines"), Variant(7));
  Reopen();
  EXPECT_EQ(ValueOf("OstrelBrowseModule"), Variant(true));
  EXPECT_EQ(ValueOf("Z\xC3\xBCrich & <Co>"), Variant("a \"text\"\xE2\x82\xAC"));
  EXPECT_EQ(ValueOf("Posted"), Variant(Date{kNoonOnLastDayOfJanuary2024}));
  EXPECT_EQ(ValueOf("Rate"), Variant(1.25));
  EXPECT_EQ(ValueOf("Lines"), Variant(7.0)) << "the file knows one kind of number";
}

TEST_P(LibreOfficeProperties, AMarkerCanBeSwitchedOffAndOnAgainInAFile) {
  Add("OstrelBrowseModule", 2, true);
  Reopen();
  Let(GetObject(All(), "Item", {"OstrelBrowseModule"}), "Value", false);
  Reopen();
  EXPECT_EQ(ValueOf("OstrelBrowseModule"), Variant(false));
  EXPECT_EQ(ErrorNumberOf([&] { Add("OstrelBrowseModule", 2, true); }), kRefused);
  EXPECT_EQ(ValueOf("OstrelBrowseModule"), Variant(false));
  Let(GetObject(All(), "Item", {"OstrelBrowseModule"}), "Value", true);
  Reopen();
  EXPECT_EQ(ValueOf("OstrelBrowseModule"), Variant(true));
}

TEST_P(LibreOfficeProperties, ADeletedPropertyIsGoneFromTheFile) {
  Add("OstrelBrowseModule", 2, true);
  Add("Other", 4, "stays");
  Reopen();
  Call(GetObject(All(), "Item", {"OstrelBrowseModule"}), "Delete");
  Reopen();
  EXPECT_EQ(ErrorNumberOf([&] { ValueOf("OstrelBrowseModule"); }), kRefused);
  EXPECT_EQ(ValueOf("Other"), Variant("stays"));
}

class LibreOfficePropertiesInMemory : public LibreOfficeProperties {};
INSTANTIATE_TEST_SUITE_P(One, LibreOfficePropertiesInMemory, testing::Values(".ods"));

TEST_P(LibreOfficePropertiesInMemory, APropertyTellsItsNameAndType) {
  EXPECT_EQ(GetLong(All(), "Count"), 0);
  Add("Marker", 2, 1);
  Add("Lines", 1, 7.0);
  EXPECT_THAT(Names(), ElementsAre("Lines", "Marker"));
  const Object marker = GetObject(All(), "Item", {"MARKER"});
  EXPECT_EQ(GetText(marker, "Name"), "Marker");
  EXPECT_EQ(GetLong(marker, "Type"), 2);
  EXPECT_EQ(Get(marker, "Value"), Variant(true));
  EXPECT_EQ(GetText(GetObject(All(), "Item", {1}), "Name"), "Lines");
  EXPECT_EQ(GetLong(GetObject(All(), "Item", {1}), "Type"), 1);
}

TEST_P(LibreOfficePropertiesInMemory, AValueIsConvertedToTheTypeOfTheProperty) {
  const Object lines = Add("Lines", 1, 7);
  Let(lines, "Value", "12");
  EXPECT_EQ(Get(lines, "Value"), Variant(12));
  EXPECT_EQ(ErrorNumberOf([&] { Let(lines, "Value", "many"); }), 13);
  EXPECT_EQ(Get(lines, "Value"), Variant(12));
}

TEST_P(LibreOfficePropertiesInMemory, WhatCantBeAPropertyIsRefused) {
  Add("Marker", 2, true);
  EXPECT_EQ(ErrorNumberOf([&] { Add("marker", 4, "x"); }), kRefused);
  EXPECT_EQ(ErrorNumberOf([&] { Add("", 2, true); }), kRefused);
  EXPECT_EQ(ErrorNumberOf([&] { Add("Other", 6, 1); }), kRefused);
  EXPECT_EQ(ErrorNumberOf([&] { Add("Other", 3, Date{-1}); }), kRefused);
  EXPECT_EQ(ErrorNumberOf([&] { Call(All(), "Add", {"Other", true, 2, true}); }), kRefused);
  EXPECT_EQ(ErrorNumberOf([&] { Call(All(), "Add", {"Other", false, 2}); }), kRefused);
  EXPECT_EQ(ErrorNumberOf([&] { GetObject(All(), "Item", {"Other"}); }), kRefused);
  EXPECT_EQ(ErrorNumberOf([&] { GetObject(All(), "Item", {2}); }), kRefused);
  EXPECT_THAT(Names(), ElementsAre("Marker"));
}

TEST_P(LibreOfficePropertiesInMemory, AWorkbookOpenedForReadingKeepsItsProperties) {
  Add("Marker", 2, true);
  const std::string path = folder_.File("book.ods");
  SharedOffice().SaveCopyAs(book_, path);
  book_ = SharedOffice().Open(path, {.readOnly = true});
  EXPECT_EQ(ErrorNumberOf([&] { Add("Other", 2, true); }), kRefused);
  EXPECT_EQ(ErrorNumberOf([&] { Let(GetObject(All(), "Item", {"Marker"}), "Value", false); }),
            kRefused);
  EXPECT_EQ(ErrorNumberOf([&] { Call(GetObject(All(), "Item", {"Marker"}), "Delete"); }), kRefused);
  EXPECT_EQ(ValueOf("Marker"), Variant(true));
}

TEST_P(LibreOfficePropertiesInMemory, ADeletedPropertyIsRefusedEverything) {
  const Object marker = Add("Marker", 2, true);
  Call(marker, "Delete");
  EXPECT_EQ(ErrorNumberOf([&] { Get(marker, "Value"); }), kRefused);
  EXPECT_EQ(ErrorNumberOf([&] { Let(marker, "Value", true); }), kRefused);
}

}  // namespace
}  // namespace rangewerks::tests
