// The document properties of a workbook in memory, beyond what every host does.
#include <gmock/gmock.h>

#include <limits>

#include "hosts/late_calls.h"
#include "hosts/workbook/host.h"
#include "support/error_of.h"

namespace rangewerks::tests {
namespace {

using automation::Date;
using automation::Error;
using automation::Member;
using hosts::workbook::Host;

constexpr std::int32_t kRefused = 1004;
constexpr std::int32_t kSubscriptOutOfRange = 9;
constexpr std::int32_t kTypeMismatch = 13;

class WorkbookDocumentProperties : public testing::Test {
 protected:
  Object Add(const std::string& name, std::int32_t type, const Variant& value) {
    return Call(properties_, "Add", {name, false, type, value}).AsObject();
  }
  Object Item(const Variant& index) { return GetObject(properties_, "Item", {index}); }
  std::string WordsOfAdding(const std::string& name, std::int32_t type, const Variant& value) {
    return ErrorOf([&] { Add(name, type, value); }).Description();
  }

  Host host_;
  Object book_ = host_.AddWorkbook("Ledger", {"Sheet1"});
  Object properties_ = GetObject(book_, "CustomDocumentProperties");
};

TEST_F(WorkbookDocumentProperties, ValuesHaveTheTypeThatTheyWereAddedWith) {
  EXPECT_EQ(Get(Add("a", 1, "7"), "Value"), Variant(std::int32_t{7}));
  EXPECT_EQ(Get(Add("b", 2, 1), "Value"), Variant(true));
  EXPECT_EQ(Get(Add("c", 3, Date{45322.5}), "Value"), Variant(Date{45322.5}));
  EXPECT_EQ(Get(Add("d", 4, 7), "Value"), Variant("7"));
  EXPECT_EQ(Get(Add("e", 5, 7), "Value"), Variant(7.0));
  EXPECT_EQ(GetLong(Item("C"), "Type"), 3);
  EXPECT_EQ(GetText(Item(4), "Name"), "d");
  EXPECT_EQ(Get(Item(4), "LinkToContent"), Variant(false));
}

TEST_F(WorkbookDocumentProperties, ALetConvertsToTheTypeThatIsThere) {
  Add("a", 2, true);
  Let(Item("a"), "Value", 0);
  EXPECT_EQ(Get(Item("a"), "Value"), Variant(false));
  EXPECT_EQ(ErrorNumberOf([&] { Let(Item("a"), "Value", "perhaps"); }), kTypeMismatch);
  EXPECT_EQ(Get(Item("a"), "Value"), Variant(false));
}

TEST_F(WorkbookDocumentProperties, ALetOfTheCollectionWritesTheItemsValue) {
  Add("a", 2, true);
  properties_.Let(Member::Default(), {"a"}, false);
  EXPECT_EQ(Get(Item("a"), "Value"), Variant(false));
  properties_.Let(Member("Item"), {1}, true);
  EXPECT_EQ(Get(Item("a"), "Value"), Variant(true));
  EXPECT_EQ(ErrorNumberOf([&] { properties_.Let(Member("Item"), {"b"}, true); }),
            kSubscriptOutOfRange);
}

TEST_F(WorkbookDocumentProperties, TheWorkbookGivesOneAtOnce) {
  Add("a", 2, true);
  EXPECT_EQ(GetText(GetObject(book_, "CustomDocumentProperties", {"A"}), "Name"), "a");
}

TEST_F(WorkbookDocumentProperties, DatesAreKeptToTheSecond) {
  const Variant kept = Get(Add("a", 3, Date{45322 + 1.4 / 86400}), "Value");
  EXPECT_EQ(kept, Variant(Date{45322 + 1.0 / 86400}));
}

TEST_F(WorkbookDocumentProperties, WhatAPropertyCanNotBeIsRefusedInWords) {
  Add("a", 2, true);
  EXPECT_EQ(WordsOfAdding("A", 2, true), "There is a document property \"A\" already");
  EXPECT_EQ(WordsOfAdding("", 2, true), "A document property can't be without a name");
  EXPECT_EQ(WordsOfAdding("b", 6, true),
            "A document property is of the type 1 (number), 2 (boolean), 3 (date), 4 (text) or 5 "
            "(number with decimals), not 6");
  EXPECT_EQ(WordsOfAdding("b", 4, std::string(256, 'x')),
            "The document property \"b\" can't hold 256 characters, 255 are the most");
  EXPECT_EQ(WordsOfAdding("b", 3, Date{-1}),
            "The document property \"b\" can't hold a date before 30 December 1899");
  EXPECT_EQ(WordsOfAdding("b", 5, std::numeric_limits<double>::infinity()),
            "The document property \"b\" can't hold a number without end");
  EXPECT_EQ(ErrorOf([&] {
              Call(properties_, "Add", {"b", true, 2, true});
            }).Description(),
            "The document property \"b\" can't be linked to content");
  EXPECT_EQ(ErrorOf([&] {
              Call(properties_, "Add", {"b", false});
            }).Description(),
            "The document property \"b\" needs a Type and a Value");
  EXPECT_EQ(GetLong(properties_, "Count"), 1);
}

TEST_F(WorkbookDocumentProperties, WhatIsNotThereIsError9) {
  const Error error = ErrorOf([&] { Item("a"); });
  EXPECT_EQ(error.Number(), kSubscriptOutOfRange);
  EXPECT_EQ(error.Description(), "Workbook \"Ledger\" has no document property \"a\"");
  EXPECT_EQ(ErrorOf([&] { Item(1); }).Description(),
            "Workbook \"Ledger\" has no document property number 1 among its 0");
}

TEST_F(WorkbookDocumentProperties, ADeletedPropertyIsRefusedEverything) {
  const Object property = Add("a", 2, true);
  Call(property, "Delete");
  const Error error = ErrorOf([&] { Get(property, "Value"); });
  EXPECT_EQ(error.Number(), kRefused);
  EXPECT_EQ(error.Description(), "The document property \"a\" has been deleted");
  Add("a", 1, 5);
  EXPECT_EQ(Get(Item("a"), "Value"), Variant(std::int32_t{5}));
}

}  // namespace
}  // namespace rangewerks::tests
