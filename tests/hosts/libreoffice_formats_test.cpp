// Formats, validation and conditional formats in this office: what files hold of them, what the
// office has its own ways in.
#include <gmock/gmock.h>

#include <com/sun/star/io/XInputStream.hpp>
#include <com/sun/star/lang/XMultiServiceFactory.hpp>
#include <com/sun/star/packages/zip/ZipFileAccess.hpp>
#include <com/sun/star/sheet/ConditionEntryType.hpp>
#include <com/sun/star/sheet/ConditionFormatOperator.hpp>
#include <com/sun/star/sheet/XCellRangeAddressable.hpp>
#include <com/sun/star/sheet/XConditionalFormats.hpp>
#include <com/sun/star/sheet/XSheetCellRangeContainer.hpp>
#include <com/sun/star/sheet/XSheetCellRanges.hpp>
#include <functional>

#include "hosts/libreoffice/conditions.h"
#include "hosts/libreoffice_documents.h"
#include "hosts/libreoffice_under_test.h"
#include "hosts/temporary_folder.h"
#include "platform/excel_format.h"
#include "support/error_of.h"

namespace rangewerks::tests {
namespace {

using testing::HasSubstr;

excel::Range Cells(const Object& sheet, const char* address) {
  return excel::Range(GetObject(sheet, "Range", {address}));
}

/// A column with everything that placing a range gives it.
void FormatColumn(const Object& sheet) {
  const excel::Range heading = Cells(sheet, "B1");
  heading.let_Value("Reference");
  heading.get_Font().let_Bold(true);
  heading.get_Interior().let_Color(0x80FFFF);
  heading.get_Borders(excel::xlEdgeBottom).let_LineStyle(excel::xlDouble);
  heading.get_Borders(excel::xlEdgeBottom).let_Weight(excel::xlThick);
  heading.get_Borders(excel::xlEdgeTop).let_LineStyle(excel::xlContinuous);
  heading.let_WrapText(true);

  const excel::Range column = Cells(sheet, "B2:B9");
  column.let_NumberFormat("0.00_ ;-0.00");
  column.let_HorizontalAlignment(excel::xlRight);
  column.get_Interior().let_Color(0x123456);
  column.get_Borders(excel::xlInsideHorizontal).let_Weight(excel::xlThin);
  column.get_EntireColumn().let_ColumnWidth(20);
  const excel::Validation rule = column.get_Validation();
  rule.Add(excel::xlValidateTextLength, excel::xlValidAlertStop, excel::xlLessEqual,
           std::int16_t{30});
  rule.let_ErrorMessage("Ref cannot have more than 30");
  rule.let_ErrorTitle("Input data error");
  rule.let_InputTitle("Ref");
  rule.let_InputMessage("Reference\nEnter up to 30 characters");
  column.get_FormatConditions().Add(excel::xlExpression, "=MOD(ROW(), 2)=0");
  column.get_FormatConditions(1).get_Interior().let_Color(0x80FF00);

  const excel::Range choice = Cells(sheet, "C2:C9");
  choice.let_NumberFormat("dd/mm/yyyy");
  choice.get_Validation().Add(excel::xlValidateList, excel::xlValidAlertStop, std::nullopt, "Y,N");
  choice.get_Validation().let_IgnoreBlank(false);
  const excel::Range tooltip = Cells(sheet, "D2:D9");
  tooltip.let_NumberFormat("0;_ ;-0");
  tooltip.get_Validation().Add(excel::xlValidateInputOnly);
  const excel::Range number = Cells(sheet, "E2:E9");
  number.get_Validation().Add(excel::xlValidateDecimal, excel::xlValidAlertStop, excel::xlGreater,
                              "-9999999999");
}

/// A member of a member: what a chain of late-bound calls gives.
Variant Part(const Object& object, const char* part, const char* member) {
  return Get(GetObject(object, part), member);
}

class LibreOfficeSavedFormats : public testing::TestWithParam<const char*> {
 protected:
  void TearDown() override {
    for (const Variant& book : Elements(GetObject(SharedOffice().Application(), "Workbooks"))) {
      SharedOffice().Close(book.AsObject());
    }
  }
  Object Reopened() {
    const Object made = SharedOffice().NewWorkbook({"Ledger"});
    FormatColumn(GetObject(made, "ActiveSheet"));
    const std::string path = folder_.File(std::string("book.") + GetParam());
    SharedOffice().SaveCopyAs(made, path);
    SharedOffice().Close(made);
    return GetObject(SharedOffice().Open(path), "ActiveSheet");
  }
  TemporaryFolder folder_;
};
INSTANTIATE_TEST_SUITE_P(Formats, LibreOfficeSavedFormats,
                         testing::Values("xlsx", "xlsm", "xls", "ods"),
                         [](const testing::TestParamInfo<const char*>& i) { return i.param; });

TEST_P(LibreOfficeSavedFormats, ASavedFileHasTheLooks) {
  const Object sheet = Reopened();
  const Object heading = Cells(sheet, "B1");
  EXPECT_EQ(Part(heading, "Font", "Bold"), Variant(true));
  EXPECT_EQ(Part(heading, "Interior", "Color"), Variant(0x80FFFF));
  EXPECT_EQ(Get(heading, "WrapText"), Variant(true));
  const Object below = GetObject(heading, "Borders", {9});
  EXPECT_EQ(GetLong(below, "LineStyle"), -4119);
  EXPECT_EQ(GetLong(below, "Weight"), 4);
  EXPECT_EQ(GetLong(GetObject(heading, "Borders", {8}), "LineStyle"), 1);
  EXPECT_EQ(GetLong(GetObject(heading, "Borders", {7}), "LineStyle"), -4142);

  const Object column = Cells(sheet, "B2:B9");
  EXPECT_EQ(GetLong(column, "HorizontalAlignment"), -4152);
  EXPECT_EQ(Part(column, "Interior", "Color"), Variant(0x123456));
  EXPECT_EQ(GetLong(GetObject(column, "Borders", {12}), "Weight"), 2);
  EXPECT_EQ(GetLong(GetObject(column, "Borders", {12}), "LineStyle"), 1);
  EXPECT_EQ(Get(column, "ColumnWidth"), Variant(20.0));
}

TEST_P(LibreOfficeSavedFormats, ASavedFileHasTheNumberFormats) {
  const Object sheet = Reopened();
  const bool isOds = std::string(GetParam()) == "ods";
  // The office's own format keeps a space as wide as a character only as a blank.
  EXPECT_EQ(GetText(Cells(sheet, "B2:B9"), "NumberFormat"),
            isOds ? "0.00\" \";-0.00" : "0.00_ ;-0.00");
  EXPECT_EQ(GetText(Cells(sheet, "C2:C9"), "NumberFormat"), "dd/mm/yyyy");
  EXPECT_EQ(GetText(Cells(sheet, "D2:D9"), "NumberFormat"),
            isOds ? "[>0]0;[<0]\" \";-0" : "0;_ ;-0");
}

TEST_P(LibreOfficeSavedFormats, ASavedFileHasTheRules) {
  const Object sheet = Reopened();
  const Object length = GetObject(Cells(sheet, "B2:B9"), "Validation");
  EXPECT_EQ(GetLong(length, "Type"), 6);
  EXPECT_EQ(GetLong(length, "AlertStyle"), 1);
  EXPECT_EQ(GetLong(length, "Operator"), 8);
  EXPECT_EQ(GetText(length, "Formula1"), "30");
  EXPECT_EQ(GetText(length, "ErrorMessage"), "Ref cannot have more than 30");
  EXPECT_EQ(GetText(length, "ErrorTitle"), "Input data error");
  EXPECT_EQ(GetText(length, "InputTitle"), "Ref");
  EXPECT_EQ(GetText(length, "InputMessage"), "Reference\nEnter up to 30 characters");
  const Object list = GetObject(Cells(sheet, "C2:C9"), "Validation");
  EXPECT_EQ(GetLong(list, "Type"), 3);
  EXPECT_EQ(GetText(list, "Formula1"), "Y,N");
  EXPECT_EQ(Get(list, "IgnoreBlank"), Variant(false));
  EXPECT_EQ(GetLong(GetObject(Cells(sheet, "D2:D9"), "Validation"), "Type"), 0);
  const Object number = GetObject(Cells(sheet, "E2:E9"), "Validation");
  EXPECT_EQ(GetLong(number, "Type"), 2);
  EXPECT_EQ(GetLong(number, "Operator"), 5);
  EXPECT_EQ(GetText(number, "Formula1"), "-9999999999");
}

TEST_P(LibreOfficeSavedFormats, ASavedFileHasTheConditionalFormats) {
  const Object sheet = Reopened();
  const excel::Range column = Cells(sheet, "B2:B9");
  const bool isXls = std::string(GetParam()) == "xls";  // keeps no blanks in formulas
  ASSERT_EQ(column.get_FormatConditions().get_Count(), 1);
  const Object condition = column.get_FormatConditions(1);
  EXPECT_EQ(GetText(condition, "Formula1"), isXls ? "=MOD(ROW(),2)=0" : "=MOD(ROW(), 2)=0");
  EXPECT_EQ(Part(condition, "Interior", "Color"), Variant(0x80FF00));

  const excel::Range other = Cells(sheet, "C2:C9");
  other.get_FormatConditions().Add(excel::xlExpression, "=ROW()=3");
  other.get_FormatConditions(1).get_Interior().let_Color(0x0000FF);
  column.get_FormatConditions(1).get_Interior().let_Color(0xFF0000);
  EXPECT_EQ(Part(column.get_FormatConditions(1), "Interior", "Color"), Variant(0xFF0000));
  EXPECT_EQ(Part(other.get_FormatConditions(1), "Interior", "Color"), Variant(0x0000FF));
}

// --- inside the file -----------------------------------------------------------------------------

class LibreOfficeFormatting : public testing::Test {
 protected:
  void TearDown() override { SharedOffice().Close(book_); }

  /// One part of a file of Office XML.
  std::string PartOf(const std::string& path, const char* name) {
    const auto archive = css::packages::zip::ZipFileAccess::createWithURL(
        BookOf(book_).OfSession().Context(), lo::UrlOf(path));
    const auto stream = lo::Extract<css::uno::Reference<css::io::XInputStream>>(
        archive->getByName(lo::ToUno(name)));
    std::string content;
    css::uno::Sequence<sal_Int8> bytes;
    while (stream->readBytes(bytes, 65536) > 0) {
      for (const sal_Int8 byte : lo::Elements(bytes)) content += static_cast<char>(byte);
    }
    return content;
  }

  TemporaryFolder folder_;
  Object book_ = SharedOffice().NewWorkbook({"Ledger"});
  Object sheet_ = GetObject(book_, "ActiveSheet");
};

TEST_F(LibreOfficeFormatting, TheFileOfOfficeXmlSaysWhatOtherProgramsRead) {
  FormatColumn(sheet_);
  const std::string path = folder_.File("book.xlsx");
  SharedOffice().SaveCopyAs(book_, path);
  const std::string sheet = PartOf(path, "xl/worksheets/sheet1.xml");
  const std::string styles = PartOf(path, "xl/styles.xml");

  EXPECT_THAT(sheet,
              HasSubstr("<conditionalFormatting sqref=\"B2:B9\"><cfRule type=\"expression\""));
  EXPECT_THAT(sheet, HasSubstr("dxfId=\"0\"><formula>MOD(ROW(), 2)=0</formula></cfRule>"));
  EXPECT_THAT(styles, HasSubstr("<dxf><fill><patternFill><bgColor rgb=\"FF00FF80\"/>"));

  EXPECT_THAT(sheet, HasSubstr("<dataValidations count=\"4\">"));
  EXPECT_THAT(sheet, HasSubstr("error=\"Ref cannot have more than 30\" errorStyle=\"stop\" "
                               "errorTitle=\"Input data error\" operator=\"lessThanOrEqual\" "
                               "prompt=\"Reference&#10;Enter up to 30 characters\" "
                               "promptTitle=\"Ref\""));
  EXPECT_THAT(sheet, HasSubstr("sqref=\"B2:B9\" type=\"textLength\"><formula1>30</formula1>"));
  EXPECT_THAT(sheet, HasSubstr("<dataValidation allowBlank=\"false\""));
  EXPECT_THAT(sheet,
              HasSubstr("sqref=\"C2:C9\" type=\"list\"><formula1>&quot;Y,N&quot;</formula1>"));
  EXPECT_THAT(sheet, HasSubstr("sqref=\"D2:D9\" type=\"none\">"));
  EXPECT_THAT(sheet,
              HasSubstr("sqref=\"E2:E9\" type=\"decimal\"><formula1>-9999999999</formula1>"));

  EXPECT_THAT(styles, HasSubstr("formatCode=\"0.00_ ;\\-0.00\""));
  EXPECT_THAT(styles, HasSubstr("formatCode=\"0;_ ;\\-0\""));
  EXPECT_THAT(styles, HasSubstr("formatCode=\"dd/mm/yyyy\""));
  EXPECT_THAT(styles, HasSubstr("<fgColor rgb=\"FFFFFF80\"/>"));
  EXPECT_THAT(styles, HasSubstr("<fgColor rgb=\"FF563412\"/>"));
  EXPECT_THAT(styles, HasSubstr("<top style=\"thin\"/><bottom style=\"double\"/>"));
  EXPECT_THAT(styles, HasSubstr("<alignment horizontal=\"right\""));
  EXPECT_THAT(styles, HasSubstr("wrapText=\"true\""));
  EXPECT_THAT(styles, HasSubstr("<font><b val=\"true\"/>"));
  EXPECT_THAT(sheet, HasSubstr("customWidth=\"true\" hidden=\"false\""));
}

TEST_F(LibreOfficeFormatting, AHiddenColumnIsHiddenInTheFile) {
  Let(Cells(sheet_, "B2"), "ColumnWidth", 0);
  const std::string path = folder_.File("book.xlsx");
  SharedOffice().SaveCopyAs(book_, path);
  EXPECT_THAT(PartOf(path, "xl/worksheets/sheet1.xml"), HasSubstr("hidden=\"true\""));
}

// --- what is refused -----------------------------------------------------------------------------

TEST_F(LibreOfficeFormatting, AFormulaThatTheLocaleDoesntReadIsRefused) {
  const excel::FormatConditions conditions = Cells(sheet_, "B2:B9").get_FormatConditions();
  for (const char* formula :
       {"=MOD(ROW(); 2)=0", "MOD(ROW(), 2)=0", "", "=", "=NOSUCH(1)", "=A1.5=2"}) {
    EXPECT_EQ(ErrorOf([&] { conditions.Add(excel::xlExpression, formula); }).Number(), 1004)
        << formula;
  }
  EXPECT_EQ(conditions.get_Count(), 0);
}

TEST_F(LibreOfficeFormatting, FormulasOfConditionsAndRulesFollowTheirCells) {
  const excel::Range column = Cells(sheet_, "B2:B9");
  column.get_FormatConditions().Add(excel::xlExpression, "=AND(B2>$A$1,C2<>\"a;b\")");
  EXPECT_EQ(GetText(column.get_FormatConditions(1), "Formula1"), "=AND(B2>$A$1,C2<>\"a;b\")");
  column.get_Validation().Add(excel::xlValidateList, excel::xlValidAlertStop, std::nullopt,
                              "=Ledger!$A$1:$A$3");
  EXPECT_EQ(GetText(column.get_Validation(), "Formula1"), "=Ledger!$A$1:$A$3");
}

TEST_F(LibreOfficeFormatting, TheElementsOfAListMayHoldQuotes) {
  const excel::Range cell = Cells(sheet_, "B2");
  cell.get_Validation().Add(excel::xlValidateList, excel::xlValidAlertStop, std::nullopt,
                            "5\" pipe, a;b");
  EXPECT_EQ(GetText(cell.get_Validation(), "Formula1"), "5\" pipe,a;b");
}

/// Everything that changes the looks or the rules of a cell that has one of each.
std::vector<std::function<void()>> Changes(const excel::Range& cell) {
  return {[=] { cell.let_NumberFormat("0.00"); },
          [=] { cell.let_HorizontalAlignment(excel::xlLeft); },
          [=] { cell.let_WrapText(true); },
          [=] { cell.get_Font().let_Bold(true); },
          [=] { cell.get_Interior().let_Color(1); },
          [=] { cell.get_Interior().let_ColorIndex(3); },
          [=] { cell.get_Borders(excel::xlEdgeTop).let_LineStyle(excel::xlContinuous); },
          [=] { cell.get_Borders(excel::xlEdgeTop).let_Weight(excel::xlThin); },
          [=] { cell.get_EntireColumn().let_ColumnWidth(5); },
          [=] { cell.get_EntireColumn().AutoFit(); },
          [=] { cell.get_Validation().let_InputTitle("x"); },
          [=] { cell.get_Validation().Delete(); },
          [=] { cell.get_FormatConditions().Add(excel::xlExpression, "=1=1"); },
          [=] { cell.get_FormatConditions(1).get_Interior().let_Color(1); },
          [=] { cell.get_FormatConditions().Delete(); },
          [=] { Call(cell.get_FormatConditions(1), "Delete"); }};
}

void GiveOneOfEach(const excel::Range& cell) {
  cell.get_Validation().Add(excel::xlValidateInputOnly);
  cell.get_FormatConditions().Add(excel::xlExpression, "=ROW()=3");
}

void ExpectUnchanged(const excel::Range& cell) {
  EXPECT_EQ(GetText(cell, "NumberFormat"), "General");
  EXPECT_EQ(GetLong(cell.get_Interior(), "ColorIndex"), -4142);
  EXPECT_EQ(GetText(cell.get_Validation(), "InputTitle"), "");
  EXPECT_EQ(cell.get_FormatConditions().get_Count(), 1);
}

TEST_F(LibreOfficeFormatting, LockedCellsOfAProtectedSheetCantBeFormatted) {
  const excel::Range cell = Cells(sheet_, "B2");
  GiveOneOfEach(cell);
  Protect(book_, 1);
  for (const auto& change : Changes(cell)) {
    const automation::Error error = ErrorOf(change);
    EXPECT_EQ(error.Number(), 1004);
    EXPECT_THAT(error.Description(), HasSubstr("the sheet is protected and the cells are locked"));
  }
  ExpectUnchanged(cell);
}

TEST_F(LibreOfficeFormatting, AWorkbookOpenedForReadingCantBeFormatted) {
  GiveOneOfEach(Cells(sheet_, "B2"));
  const std::string path = folder_.File("book.xlsx");
  SharedOffice().SaveCopyAs(book_, path);
  const Object opened = SharedOffice().Open(path, {.readOnly = true});
  const excel::Range cell = Cells(GetObject(opened, "ActiveSheet"), "B2");
  for (const auto& change : Changes(cell)) {
    const automation::Error error = ErrorOf(change);
    EXPECT_EQ(error.Number(), 1004);
    EXPECT_THAT(error.Description(), HasSubstr("the workbook was opened for reading only"));
  }
  ExpectUnchanged(cell);
  SharedOffice().Close(opened);
}

TEST_F(LibreOfficeFormatting, AConditionWithoutAFillIsSavedWithALookThatChangesNothing) {
  Cells(sheet_, "B2:B9").get_FormatConditions().Add(excel::xlExpression, "=ROW()=3");
  const std::string path = folder_.File("book.xlsx");
  SharedOffice().SaveCopyAs(book_, path);
  EXPECT_THAT(PartOf(path, "xl/styles.xml"), HasSubstr("<dxfs count=\"1\"><dxf></dxf></dxfs>"));
  EXPECT_THAT(PartOf(path, "xl/worksheets/sheet1.xml"), HasSubstr("dxfId=\"0\""));
  const Object opened = SharedOffice().Open(path);
  const excel::Range reopened = Cells(GetObject(opened, "ActiveSheet"), "B2:B9");
  EXPECT_EQ(Part(reopened.get_FormatConditions(1), "Interior", "ColorIndex"), Variant(-4142));
  SharedOffice().Close(opened);
}

TEST_F(LibreOfficeFormatting, AConditionThatIsHeldStaysTheOneOfItsCells) {
  Cells(sheet_, "B2:B20").get_FormatConditions().Add(excel::xlExpression, "=ROW()=3");
  const excel::Range part = Cells(sheet_, "B2:B9");
  const excel::FormatCondition held = part.get_FormatConditions(1);
  const excel::Interior fill = held.get_Interior();
  part.get_FormatConditions().Add(excel::xlExpression, "=ROW()=4");
  fill.let_Color(0x0000FF);
  EXPECT_EQ(GetText(held, "Formula1"), "=ROW()=3");
  EXPECT_EQ(Part(part.get_FormatConditions(1), "Interior", "Color"), Variant(0x0000FF));
  EXPECT_EQ(Part(Cells(sheet_, "B10").get_FormatConditions(1), "Interior", "Color"),
            Variant(0xFFFFFF));
  part.get_FormatConditions().Delete();
  const automation::Error gone = ErrorOf([&] { fill.let_Color(0x0000FF); });
  EXPECT_EQ(gone.Number(), 9) << gone.Description();
}

// --- conditional formats of other programs -------------------------------------------------------

/// Two formats that overlap in B5:B9, as a file can have them.
class LibreOfficeForeignConditions : public LibreOfficeFormatting {
 protected:
  void SetUp() override {
    PutFormat("B2:B9", "ROW()=3");
    PutFormat("B5:B12", "ROW()=7");
    const std::string path = folder_.File("foreign.xlsx");
    SharedOffice().SaveCopyAs(book_, path);
    SharedOffice().Close(book_);
    book_ = SharedOffice().Open(path);
    sheet_ = GetObject(book_, "ActiveSheet");
  }

 private:
  void PutFormat(const char* address, const char* formula) {
    const auto model = BookOf(book_).Model();
    const auto cells = Cells(sheet_, address).As<lo::Range>();
    const auto area =
        lo::As<css::sheet::XCellRangeAddressable>(cells->OnSheet()->Block(cells->Cells()));
    const auto ranges = lo::As<css::lang::XMultiServiceFactory>(model)->createInstance(
        lo::ToUno("com.sun.star.sheet.SheetCellRanges"));
    lo::As<css::sheet::XSheetCellRangeContainer>(ranges)->addRangeAddress(area->getRangeAddress(),
                                                                          false);
    const auto formats = lo::Property<css::uno::Reference<css::sheet::XConditionalFormats>>(
        lo::As<css::beans::XPropertySet>(cells->OnSheet()->Cells()), "ConditionalFormats");
    formats->createByRange(lo::As<css::sheet::XSheetCellRanges>(ranges));
    const auto all = formats->getConditionalFormats();
    const auto format = all[all.getLength() - 1];
    format->createEntry(css::sheet::ConditionEntryType::CONDITION, 0);
    const auto entry =
        lo::Extract<css::uno::Reference<css::beans::XPropertySet>>(format->getByIndex(0));
    entry->setPropertyValue(lo::ToUno("Operator"),
                            css::uno::Any(css::sheet::ConditionFormatOperator::EXPRESSION));
    entry->setPropertyValue(lo::ToUno("Formula1"), css::uno::Any(lo::ToUno(formula)));
  }
};

TEST_F(LibreOfficeForeignConditions, FormatsThatOverlapAreAllSeen) {
  const auto count = [&](const char* address) {
    return Cells(sheet_, address).get_FormatConditions().get_Count();
  };
  EXPECT_EQ(count("B2"), 1);
  EXPECT_EQ(count("B5"), 2);
  EXPECT_EQ(count("B12"), 1);
  EXPECT_EQ(count("B2:B12"), 2);
  EXPECT_EQ(GetText(Cells(sheet_, "B5").get_FormatConditions(2), "Formula1"), "=ROW()=7");
}

TEST_F(LibreOfficeForeignConditions, WhereTheyOverlapAnotherIsRefusedRatherThanOneLost) {
  const excel::Range cells = Cells(sheet_, "B5:B9");
  const automation::Error error =
      ErrorOf([&] { cells.get_FormatConditions().Add(excel::xlExpression, "=ROW()=8"); });
  EXPECT_EQ(error.Number(), 1004);
  EXPECT_EQ(error.Description(),
            "Ledger!$B$5:$B$9 has conditional formats that LibreOffice can't change without losing "
            "some. Delete them first.");
  EXPECT_EQ(cells.get_FormatConditions().get_Count(), 2);
  cells.get_FormatConditions(2).get_Interior().let_Color(0x80FF00);
  EXPECT_EQ(Part(cells.get_FormatConditions(2), "Interior", "Color"), Variant(0x80FF00));

  cells.get_FormatConditions().Delete();
  cells.get_FormatConditions().Add(excel::xlExpression, "=ROW()=8");
  EXPECT_EQ(cells.get_FormatConditions().get_Count(), 1);
  for (const char* rest : {"B2:B4", "B10:B12"}) {
    EXPECT_EQ(Cells(sheet_, rest).get_FormatConditions().get_Count(), 1) << rest;
  }
}

TEST_F(LibreOfficeFormatting, ConditionsTakenFromTheTopOfACellRangeAreGoneFromTheFileToo) {
  Cells(sheet_, "B2:C12").get_FormatConditions().Add(excel::xlExpression, "=ROW()=3");
  Cells(sheet_, "B2:B5").get_FormatConditions().Delete();
  Cells(sheet_, "C2:C5").get_FormatConditions().Add(excel::xlExpression, "=ROW()=4");
  const std::string path = folder_.File("book.xlsx");
  SharedOffice().SaveCopyAs(book_, path);
  const std::string sheet = PartOf(path, "xl/worksheets/sheet1.xml");
  EXPECT_THAT(sheet, HasSubstr("<conditionalFormatting sqref=\"B6:C12\">"));
  EXPECT_THAT(sheet, HasSubstr("<conditionalFormatting sqref=\"C2:C5\">"));
  const Object opened = SharedOffice().Open(path);
  const Object reopened = GetObject(opened, "ActiveSheet");
  EXPECT_EQ(Cells(reopened, "B5").get_FormatConditions().get_Count(), 0);
  EXPECT_EQ(Cells(reopened, "C5").get_FormatConditions().get_Count(), 2);
  EXPECT_EQ(Cells(reopened, "C6").get_FormatConditions().get_Count(), 1);
  SharedOffice().Close(opened);
}

TEST_F(LibreOfficeForeignConditions, AnotherFillLeavesTheRestOfTheLook) {
  auto& styles = BookOf(book_).Styles();
  const excel::Range cell = Cells(sheet_, "B2");
  const auto range = cell.As<lo::Range>();
  const std::string loud = styles.WithFill("Heading 1", 0x112233);
  lo::ConditionsOf({range->InBook(), range->OnSheet(), range->Cells()})
      .front()
      .parts.front()
      .Entry()
      ->setPropertyValue(lo::ToUno("StyleName"), css::uno::Any(lo::ToUno(loud)));
  cell.get_FormatConditions(1).get_Interior().let_Color(0x80FF00);
  const std::string path = folder_.File("loud.xlsx");
  SharedOffice().SaveCopyAs(book_, path);
  EXPECT_THAT(PartOf(path, "xl/styles.xml"), HasSubstr("<b val=\"1\"/>"));
}

}  // namespace
}  // namespace rangewerks::tests
