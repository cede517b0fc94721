// Opening and saving: what comes back, and what is refused with which words.
#include <gmock/gmock.h>
#include <functional>

#include "hosts/libreoffice_documents.h"
#include "hosts/libreoffice_under_test.h"
#include "hosts/temporary_folder.h"
#include "platform/excel_constants.h"
#include "support/error_of.h"

namespace rangewerks::tests {
namespace {

using automation::Date;
using automation::Error;
using testing::HasSubstr;

constexpr double kLastDayOfJanuary2024 = 45322;

std::string LittleEndian(std::uint64_t number, int bytes) {
  std::string text;
  for (int i = 0; i < bytes; ++i) text += static_cast<char>(number >> (8 * i) & 0xFFU);
  return text;
}

std::uint32_t Checksum(std::string_view text) {
  std::uint32_t sum = 0xFFFFFFFFU;
  for (const char c : text) {
    sum ^= static_cast<unsigned char>(c);
    for (int i = 0; i < 8; ++i) sum = sum >> 1 ^ ((sum & 1U) != 0 ? 0xEDB88320U : 0U);
  }
  return ~sum;
}

/// A zip archive with one file that isn't compressed.
std::string StoredArchive(const std::string& name, const std::string& content) {
  const auto size = static_cast<std::uint32_t>(content.size());
  const std::string facts = LittleEndian(10, 2) + LittleEndian(0, 8) +
                            LittleEndian(Checksum(content), 4) + LittleEndian(size, 4) +
                            LittleEndian(size, 4) +
                            LittleEndian(static_cast<std::uint32_t>(name.size()), 4);
  const std::string file = LittleEndian(0x04034B50U, 4) + facts + name + content;
  const std::string entry = LittleEndian(0x02014B50U, 4) + LittleEndian(10, 2) + facts +
                            LittleEndian(0, 8) + LittleEndian(0, 6) + name;
  return file + entry + LittleEndian(0x06054B50U, 4) + LittleEndian(0, 4) + LittleEndian(1, 2) +
         LittleEndian(1, 2) + LittleEndian(static_cast<std::uint32_t>(entry.size()), 4) +
         LittleEndian(static_cast<std::uint32_t>(file.size()), 4) + LittleEndian(0, 2);
}

class LibreOfficeFiles : public testing::Test {
 protected:
  void TearDown() override {
    for (const Variant& book : Elements(GetObject(SharedOffice().Application(), "Workbooks"))) {
      SharedOffice().Close(book.AsObject());
    }
  }

  /// A workbook with a value of each kind in A1 to A5 of its only sheet, and a name.
  Object MakeBook() {
    Object book = SharedOffice().NewWorkbook({"Ledger"});
    const Object sheet = GetObject(book, "ActiveSheet");
    Let(GetObject(sheet, "Range", {"A1"}), "Value", 12.5);
    Let(GetObject(sheet, "Range", {"A2"}), "Value", "Zo\xC3\xAB");
    Let(GetObject(sheet, "Range", {"A3"}), "Value", Date{kLastDayOfJanuary2024});
    Let(GetObject(sheet, "Range", {"A4"}), "Value", true);
    Let(GetObject(sheet, "Range", {"A5"}), "Formula", "=1/0");
    AddName(GetObject(book, "Names"), "Ledger__Code", "=Ledger!$A$1:$A$5");
    return book;
  }

  std::string Saved(const char* name) {
    const Object book = MakeBook();
    SharedOffice().SaveCopyAs(book, folder_.File(name));
    SharedOffice().Close(book);
    return folder_.File(name);
  }

  /// What is said when the file can't be opened; empty when it can.
  static std::string Refusal(const std::string& path) {
    try {
      SharedOffice().Open(path);
    } catch (const Error& error) {
      EXPECT_EQ(error.Number(), 1004);
      EXPECT_EQ(error.Source(), "LibreOffice");
      return error.Description();
    }
    return {};
  }

  TemporaryFolder folder_;
};

class LibreOfficeFormats : public LibreOfficeFiles,
                           public testing::WithParamInterface<const char*> {};
INSTANTIATE_TEST_SUITE_P(Formats, LibreOfficeFormats,
                         testing::Values("book.xlsx", "book.xlsm", "book.xls", "book.ods",
                                         "B\xC3\xBC"
                                         "cher & Co #1.xlsx"));

TEST_P(LibreOfficeFormats, ACopyHoldsValuesOfEveryKindAndNames) {
  const std::string path = Saved(GetParam());
  const Object book = SharedOffice().Open(path);
  EXPECT_EQ(GetText(book, "FullName"), path);
  EXPECT_EQ(GetText(book, "Name"), GetParam());
  const Object sheet = GetObject(book, "Sheets", {"Ledger"});
  const Object cells = GetObject(sheet, "Range", {"Ledger__Code"});
  automation::Array expected(5, 1);
  expected.At(1, 1) = 12.5;
  expected.At(2, 1) = "Zo\xC3\xAB";
  expected.At(3, 1) = Date{kLastDayOfJanuary2024};
  expected.At(4, 1) = true;
  expected.At(5, 1) = automation::ErrorValue::FromNumber(2007);
  EXPECT_EQ(Get(cells, "Value"), Variant(expected));
  EXPECT_EQ(Get(GetObject(cells, "Item", {4}), "HasFormula"), Variant(false));
  EXPECT_EQ(Get(GetObject(cells, "Item", {4}), "Value"), Variant(true));
}

TEST_F(LibreOfficeFiles, AnOpenedWorkbookIsTheActiveOne) {
  const std::string path = Saved("book.xlsx");
  const Object book = SharedOffice().Open(path);
  SharedOffice().NewWorkbook({"Other"});
  EXPECT_EQ(SharedOffice().Open(path), book) << "it is open already";
  EXPECT_EQ(GetObject(SharedOffice().Application(), "ActiveWorkbook"), book);
}

TEST_F(LibreOfficeFiles, AMissingFileIsRefused) {
  EXPECT_EQ(Refusal(folder_.File("none.xlsx")),
            folder_.File("none.xlsx") + " can't be opened: there is no such file.");
}

TEST_F(LibreOfficeFiles, WhatIsNoSpreadsheetIsRefusedWhateverItIsCalled) {
  const std::string reason =
      " isn't a spreadsheet file, whatever its name says: it begins like neither an xlsx, an ods "
      "nor an xls file.";
  for (const auto& [name, content] :
       {std::pair{"text.xlsx", "a,b\n1,2\n"}, std::pair{"picture.xlsx", "\x89PNG\r\n\x1A\n"},
        std::pair{"page.xls", "<html><table><tr><td>1</td></tr></table></html>"},
        std::pair{"text.csv", "a,b\n1,2\n"}}) {
    const std::string path = folder_.Write(name, content);
    EXPECT_EQ(Refusal(path), path + reason);
  }
  const std::string empty = folder_.Write("empty.xlsx", "");
  EXPECT_EQ(Refusal(empty), empty + " is empty.");
}

TEST_F(LibreOfficeFiles, ADamagedArchiveIsRefused) {
  const std::string path = folder_.Write("broken.xlsx", std::string("PK\x03\x04", 4) + "garbage");
  EXPECT_THAT(Refusal(path), HasSubstr(path));
  std::string half;
  {
    std::ifstream whole(Saved("whole.xlsx"), std::ios::binary);
    half.assign(std::istreambuf_iterator<char>(whole), {});
  }
  EXPECT_THAT(Refusal(folder_.Write("half.xlsx", half.substr(0, half.size() / 2))),
              HasSubstr("half.xlsx"));
}

TEST_F(LibreOfficeFiles, APasswordIsAskedForByNobodyAndToldInstead) {
  const Object book = MakeBook();
  StoreAs(book, folder_.File("secret.xlsx"), "Calc MS Excel 2007 XML", {OfficeXmlPassword("abc")});
  StoreAs(book, folder_.File("secret.ods"), "calc8", {Password("abc")});
  StoreAs(book, folder_.File("secret.xls"), "MS Excel 97", {Password("abc")});
  for (const char* name : {"secret.xlsx", "secret.ods", "secret.xls"}) {
    EXPECT_EQ(
        Refusal(folder_.File(name)),
        folder_.File(name) + " is protected by a password. Remove the password and try again.");
  }
}

TEST_F(LibreOfficeFiles, ALockedFileIsRefusedWithItsOwner) {
  const std::string path = Saved("shared.xlsx");
  const std::string lock =
      folder_.Write(".~lock.shared.xlsx#", "Ann Lee,ann,desk7,01.02.2026 10:00,file:///home/ann;");
  EXPECT_EQ(Refusal(path), path +
                               " is locked: Ann Lee on desk7 has it open. Save and close it "
                               "there, or remove the file " +
                               lock + " if nobody has.");
  const Object book = SharedOffice().Open(path, {.evenIfLocked = true});
  EXPECT_EQ(GetText(book, "FullName"), path);
}

TEST_F(LibreOfficeFiles, ClearedCellsKeepTheirDataValidationInEveryFormat) {
  const auto column = [](const Object& book) {
    return GetObject(GetObject(book, "ActiveSheet"), "Range", {"A1:A3"});
  };
  for (const char* extension : {"xlsx", "xls", "ods"}) {
    const std::string filled = folder_.File(std::string("filled.") + extension);
    const std::string cleared = folder_.File(std::string("cleared.") + extension);
    const Object made = SharedOffice().NewWorkbook({"Ledger"});
    Let(column(made), "Value", "abc");
    Call(GetObject(column(made), "Validation"), "Add",
         {excel::xlValidateTextLength, excel::xlValidAlertStop, excel::xlLessEqual, 3});
    SharedOffice().SaveCopyAs(made, filled);

    const Object book = SharedOffice().Open(filled);
    Call(column(book), "ClearContents");
    SharedOffice().SaveCopyAs(book, cleared);
    SharedOffice().Close(book);

    const Object reopened = SharedOffice().Open(cleared);
    EXPECT_EQ(Get(column(reopened), "Value"), Variant(automation::Array(3, 1))) << extension;
    const Object rule = GetObject(column(reopened), "Validation");
    EXPECT_EQ(GetLong(rule, "Type"), 6) << extension;
    EXPECT_EQ(GetText(rule, "Formula1"), "3") << extension;
    SharedOffice().Close(reopened);
  }
}

TEST_F(LibreOfficeFiles, AWorkbookOpenedForReadingRefusesEveryChangeOfItsCells) {
  const Object book = SharedOffice().Open(Saved("book.xlsx"), {.readOnly = true});
  const Object cell = GetObject(GetObject(book, "ActiveSheet"), "Range", {"A1"});
  const std::string before = GetText(cell, "Formula");
  const std::vector<std::function<void()>> changes = {
      [&] { Let(cell, "Value", 99.0); },
      [&] { Let(cell, "Formula", "=1+1"); },
      [&] { Call(cell, "ClearContents"); },
  };
  for (const auto& change : changes) {
    const automation::Error error = ErrorOf(change);
    EXPECT_EQ(error.Number(), 1004);
    EXPECT_THAT(error.Description(), HasSubstr("the workbook was opened for reading only"));
  }
  EXPECT_EQ(GetText(cell, "Formula"), before);
}

TEST_F(LibreOfficeFiles, ACopyLeavesTheWorkbookAndTheFolderAsTheyWere) {
  const Object book = SharedOffice().Open(Saved("book.xlsx"));
  Let(GetObject(GetObject(book, "ActiveSheet"), "Range", {"A1"}), "Value", 99.0);
  Call(book, "SaveCopyAs", {folder_.File("copy.ods")});
  EXPECT_EQ(GetText(book, "FullName"), folder_.File("book.xlsx"));
  SharedOffice().Close(book);
  EXPECT_EQ(folder_.Count(), 2U) << "no file but the workbook and its copy";
  const Object old = SharedOffice().Open(folder_.File("book.xlsx"));
  EXPECT_EQ(Get(GetObject(GetObject(old, "ActiveSheet"), "Range", {"A1"}), "Value"), Variant(12.5));
}

TEST_F(LibreOfficeFiles, ACopyThatCantBeWrittenIsRefusedAndLeavesNothing) {
  const Object book = MakeBook();
  const auto refusal = [&](const std::string& path) {
    try {
      SharedOffice().SaveCopyAs(book, path);
    } catch (const Error& error) {
      return error.Description();
    }
    return std::string();
  };
  EXPECT_EQ(refusal(folder_.File("copy.csv")),
            folder_.File("copy.csv") +
                " can't be written: its extension is none of xlsx, xlsm, xls and ods.");
  EXPECT_EQ(refusal(folder_.File("none/copy.xlsx")), folder_.File("none/copy.xlsx") +
                                                         " can't be written: there is no folder " +
                                                         folder_.File("none") + ".");
  EXPECT_EQ(folder_.Count(), 0U);
}

TEST_F(LibreOfficeFiles, CallsOnAClosedWorkbookFail) {
  const Object book = MakeBook();
  const Object cell = GetObject(GetObject(book, "ActiveSheet"), "Range", {"A1"});
  SharedOffice().Close(book);
  for (const auto& [object, member] : {std::pair{book, "Name"}, std::pair{cell, "Value"}}) {
    EXPECT_EQ(ErrorNumberOf([&, &each = object, text = member] { Get(each, text); }), 1004);
  }
}

TEST_F(LibreOfficeFiles, AnotherDocumentUnderASpreadsheetsNameIsRefused) {
  const std::string path = folder_.Write(
      "letter.xlsx", StoredArchive("mimetype", "application/vnd.oasis.opendocument.text"));
  EXPECT_THAT(Refusal(path), HasSubstr(path));
}

}  // namespace
}  // namespace rangewerks::tests
