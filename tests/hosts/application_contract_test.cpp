// The application, its workbooks and its sheets.
#include "hosts/contract.h"

namespace rangewerks::tests {
namespace {

constexpr std::int32_t kNoSuchMember = 438;

class ApplicationContract : public HostContract {};
CONTRACT_FOR_ALL_HOSTS(ApplicationContract);

TEST_P(ApplicationContract, ObjectsTellTheirClassNames) {
  Call(Cells("B2"), "Select");
  EXPECT_EQ(Application().TypeName(), "Application");
  EXPECT_EQ(book_.TypeName(), "Workbook");
  EXPECT_EQ(sheet_.TypeName(), "Worksheet");
  EXPECT_EQ(Names().TypeName(), "Names");
  EXPECT_EQ(AddName(Names(), "Code", "=Sheet1!$A$1").TypeName(), "Name");
  EXPECT_EQ(Cells("A1").TypeName(), "Range");
  EXPECT_EQ(GetObject(Application(), "Selection").TypeName(), "Range");
}

TEST_P(ApplicationContract, AMemberThatAnObjectLacksIsError438) {
  for (const Object& object : {Application(), book_, sheet_, Names(), Cells("A1"),
                               AddName(Names(), "Code", "=Sheet1!$A$1")}) {
    EXPECT_EQ(ErrorNumberOf([&] { Get(object, "NoSuchThing"); }), kNoSuchMember)
        << object.TypeName();
    EXPECT_EQ(ErrorNumberOf([&] { Let(object, "NoSuchThing", 1.0); }), kNoSuchMember)
        << object.TypeName();
    EXPECT_EQ(ErrorNumberOf([&] { Call(object, "NoSuchThing"); }), kNoSuchMember)
        << object.TypeName();
  }
}

TEST_P(ApplicationContract, MemberNamesAreFoundInAnyCase) {
  EXPECT_EQ(GetText(Cells("c3"), "ADDRESS"), "$C$3");
}

TEST_P(ApplicationContract, TheNewWorkbookIsActiveAndItsFirstSheetIsInFront) {
  EXPECT_EQ(GetObject(Application(), "ActiveWorkbook").TypeName(), "Workbook");
  EXPECT_EQ(GetText(GetObject(Application(), "ActiveSheet"), "Name"), "Sheet1");
}

TEST_P(ApplicationContract, SelectBringsASheetToTheFront) {
  Call(dataSheet_, "Select");
  EXPECT_EQ(GetText(GetObject(Application(), "ActiveSheet"), "Name"), "Data Sheet");
}

TEST_P(ApplicationContract, SheetsFindsASheetByNameInAnyCase) {
  EXPECT_EQ(GetText(Sheet("data sheet"), "Name"), "Data Sheet");
}

TEST_P(ApplicationContract, SheetsFailsForASheetThatIsNotThere) {
  EXPECT_TRUE(Fails([&] { Sheet("Sheet9"); }));
}

TEST_P(ApplicationContract, ASheetKnowsItsWorkbookAndEverythingKnowsTheApplication) {
  EXPECT_EQ(GetObject(sheet_, "Parent").TypeName(), "Workbook");
  EXPECT_EQ(GetObject(sheet_, "Application").TypeName(), "Application");
  EXPECT_EQ(GetObject(GetObject(sheet_, "Parent"), "Application").TypeName(), "Application");
}

TEST_P(ApplicationContract, NamesOfTheApplicationAreThoseOfTheActiveWorkbook) {
  AddName(Names(), "First", "=Sheet1!$A$1");
  const Object second = host_->NewWorkbook({"Sheet1"});
  AddName(GetObject(second, "Names"), "Second", "=Sheet1!$A$1");
  const auto names = Elements(GetObject(Application(), "Names"));
  ASSERT_EQ(names.size(), 1U);
  EXPECT_EQ(GetText(names.front().AsObject(), "Name"), "Second");
  EXPECT_EQ(GetLong(Names(), "Count"), 1) << "the first workbook keeps its own";
}

TEST_P(ApplicationContract, ALetOfTheSheetNameRenamesTheSheet) {
  Let(sheet_, "Name", "2024 Q1");
  EXPECT_EQ(GetText(sheet_, "Name"), "2024 Q1");
  EXPECT_EQ(GetText(Sheet("2024 Q1"), "Name"), "2024 Q1");
}

TEST_P(ApplicationContract, DefinedNamesFollowARenamedSheet) {
  const Object name = AddName(Names(), "Code", "=Sheet1!$C$3:$C$5");
  Let(sheet_, "Name", "2024 Q1");
  const Object cells = GetObject(name, "RefersToRange");
  EXPECT_EQ(GetText(GetObject(cells, "Parent"), "Name"), "2024 Q1");
  EXPECT_EQ(GetText(cells, "Address"), "$C$3:$C$5");
}

TEST_P(ApplicationContract, ASheetNameThatTheHostRefusesFailsAndTheSheetKeepsItsName) {
  const std::string tooLong(32, 'x');
  for (const std::string& name :
       {std::string(), tooLong, std::string("a/b"), std::string("a\\b"), std::string("a?b"),
        std::string("a*b"), std::string("a[b"), std::string("a]b"), std::string("a:b"),
        std::string("DATA SHEET")}) {
    EXPECT_TRUE(Fails([&] { Let(sheet_, "Name", name); })) << name;
    EXPECT_EQ(GetText(sheet_, "Name"), "Sheet1") << name;
  }
}

TEST_P(ApplicationContract, ASheetNameOf31CharactersIsTaken) {
  const std::string name(31, 'x');
  Let(sheet_, "Name", name);
  EXPECT_EQ(GetText(sheet_, "Name"), name);
}

TEST_P(ApplicationContract, IntersectGivesTheCommonArea) {
  const Object common =
      Call(Application(), "Intersect", {Cells("A1:C5"), Cells("B4:D9")}).AsObject();
  EXPECT_EQ(GetText(common, "Address"), "$B$4:$C$5");
  EXPECT_EQ(GetText(GetObject(common, "Parent"), "Name"), "Sheet1");
}

TEST_P(ApplicationContract, IntersectGivesNothingWhenTheAreasDoNotOverlap) {
  EXPECT_EQ(Call(Application(), "Intersect", {Cells("A1:A5"), Cells("B1:B5")}), Variant(Object()));
}

TEST_P(ApplicationContract, IntersectFailsForCellsOfDifferentSheets) {
  EXPECT_TRUE(Fails([&] {
    Call(Application(), "Intersect", {Cells("A1"), Cells(dataSheet_, "A1")});
  }));
}

TEST_P(ApplicationContract, InternationalTellsSeparatorsAsTextAndTheDateOrderAsNumber) {
  EXPECT_EQ(GetText(Application(), "International", {3}).size(), 1U);
  EXPECT_EQ(GetText(Application(), "International", {5}).size(), 1U);
  const std::int32_t order =
      ToLong(Get(Application(), "International", {32}), automation::Locale());
  EXPECT_GE(order, 0);
  EXPECT_LE(order, 2);
}

TEST_P(ApplicationContract, TheApplicationGivesTheCellsOfTheSheetInFront) {
  Call(dataSheet_, "Select");
  Let(GetObject(Application(), "Range", {"B2"}), "Value", 5.0);
  Application().Let(automation::Member("Cells"), {3, 2}, 6.0);
  EXPECT_EQ(GetText(Cells(dataSheet_, "B2"), "Formula"), "5");
  EXPECT_EQ(GetText(Cells(dataSheet_, "B3"), "Formula"), "6");
  EXPECT_EQ(GetText(Cells("B2"), "Formula"), "");
}

}  // namespace
}  // namespace rangewerks::tests
