// The custom document properties of a workbook.
#include "hosts/contract.h"
#include "platform/excel_constants.h"

namespace rangewerks::tests {
namespace {

using automation::Member;

class DocumentPropertiesContract : public HostContract {
 protected:
  void SetUp() override {
    HostContract::SetUp();
    properties_ = GetObject(book_, "CustomDocumentProperties");
  }

  static void AddTo(const Object& properties, const char* name, bool value) {
    properties.Call(Member("Add"), {},
                    {{Member("Name"), name},
                     {Member("LinkToContent"), false},
                     {Member("Type"), excel::msoPropertyTypeBoolean},
                     {Member("Value"), value}});
  }
  void Add(const char* name, bool value) { AddTo(properties_, name, value); }
  Object Item(const char* name) { return GetObject(properties_, "Item", {name}); }
  Variant ValueOf(const char* name) { return Item(name).Get(Member::Default()); }

  Object properties_;
};
CONTRACT_FOR_ALL_HOSTS(DocumentPropertiesContract);

TEST_P(DocumentPropertiesContract, TheConstantIsThePublishedNumber) {
  EXPECT_EQ(excel::msoPropertyTypeBoolean, 2);
}

TEST_P(DocumentPropertiesContract, ANewWorkbookHasNone) {
  EXPECT_EQ(GetLong(properties_, "Count"), 0);
  EXPECT_TRUE(Elements(properties_).empty());
}

TEST_P(DocumentPropertiesContract, APropertyIsAddedByNamedArgumentsAndReadByName) {
  Add("Zo\xC3\xAB", true);
  EXPECT_EQ(ValueOf("Zo\xC3\xAB"), Variant(true));
  EXPECT_EQ(Get(Item("Zo\xC3\xAB"), "Value"), Variant(true));
  EXPECT_EQ(GetText(Item("Zo\xC3\xAB"), "Name"), "Zo\xC3\xAB");
  EXPECT_EQ(GetLong(properties_, "Count"), 1);
}

TEST_P(DocumentPropertiesContract, ANameThatExistsFailsAndKeepsItsValue) {
  Add("Browse", true);
  EXPECT_TRUE(Fails([&] { Add("Browse", false); }));
  EXPECT_EQ(ValueOf("Browse"), Variant(true));
  EXPECT_EQ(GetLong(properties_, "Count"), 1);
}

TEST_P(DocumentPropertiesContract, TheDefaultPropertyWritesTheValue) {
  Add("Browse", true);
  Item("Browse").Let(Member::Default(), false);
  EXPECT_EQ(ValueOf("Browse"), Variant(false));
  Let(Item("Browse"), "Value", true);
  EXPECT_EQ(ValueOf("Browse"), Variant(true));
}

TEST_P(DocumentPropertiesContract, ANameThatIsNotThereFails) {
  EXPECT_TRUE(Fails([&] { Item("Browse"); }));
}

TEST_P(DocumentPropertiesContract, DeleteRemovesTheProperty) {
  Add("First", true);
  Add("Second", false);
  Call(Item("First"), "Delete");
  EXPECT_TRUE(Fails([&] { Item("First"); }));
  EXPECT_EQ(ValueOf("Second"), Variant(false));
}

TEST_P(DocumentPropertiesContract, AnotherWorkbookHasItsOwn) {
  Add("Browse", true);
  const Object other = host_->NewWorkbook({"Sheet1"});
  EXPECT_EQ(GetLong(GetObject(other, "CustomDocumentProperties"), "Count"), 0);
}

TEST_P(DocumentPropertiesContract, AValueIsWrittenThroughTheCollectionToo) {
  Add("Browse", true);
  properties_.Let(Member("Item"), {"Browse"}, false);
  EXPECT_EQ(ValueOf("Browse"), Variant(false));
  properties_.Let(Member::Default(), {"Browse"}, true);
  EXPECT_EQ(ValueOf("Browse"), Variant(true));
}

TEST_P(DocumentPropertiesContract, KnowTheirCollectionTheirWorkbookAndTheApplication) {
  Add("Browse", true);
  EXPECT_EQ(GetObject(Item("Browse"), "Parent").TypeName(), "DocumentProperties");
  EXPECT_EQ(GetObject(Item("Browse"), "Application").TypeName(), "Application");
  EXPECT_EQ(GetText(GetObject(properties_, "Parent"), "Name"), GetText(book_, "Name"));
  EXPECT_EQ(GetObject(properties_, "Application").TypeName(), "Application");
}

}  // namespace
}  // namespace rangewerks::tests
