// A workbook that was given a macro module and a marker, and lost the module again, is what it was.
#include <gmock/gmock.h>

#include "hosts/libreoffice_documents.h"
#include "hosts/libreoffice_under_test.h"
#include "hosts/temporary_folder.h"

namespace rangewerks::tests {
namespace {

constexpr const char* kMarker = "OstrelBrowseModule";

class LibreOfficeRoundTrip : public testing::TestWithParam<const char*> {
 protected:
  void SetUp() override {
    book_ = SharedOffice().NewWorkbook({"Ledger", "Data Sheet"});
    Let(Cells("A1"), "Value", 12.5);
    Let(Cells("A2"), "Value", "Zo\xC3\xAB");
    Let(Cells("A3"), "Formula", "=A1*2");
    Let(Cells("B1:B9"), "NumberFormat", "0.00");
    Let(GetObject(Cells("B1"), "Interior"), "Color", 0x00CCFF);
    Call(GetObject(Cells("B1:B9"), "Validation"), "Add", {6, 1, 8, "20"});
    AddName(GetObject(book_, "Names"), "Ledger__Code", "=Ledger!$B$1:$B$9");
    AddProperty("Owner", 4, "Zo\xC3\xAB");
  }
  void TearDown() override {
    for (const Variant& book : Elements(GetObject(SharedOffice().Application(), "Workbooks"))) {
      SharedOffice().Close(book.AsObject());
    }
  }

  Object Cells(const char* address) {
    return GetObject(GetObject(book_, "Sheets", {"Ledger"}), "Range", {address});
  }
  Object Properties() { return GetObject(book_, "CustomDocumentProperties"); }
  void AddProperty(const char* name, std::int32_t type, const Variant& value) {
    Call(Properties(), "Add", {name, false, type, value});
  }
  Object Components() { return GetObject(GetObject(book_, "VBProject"), "VBComponents"); }

  void AddBrowse() {
    const Object module = Call(Components(), "Add", {1}).AsObject();
    Let(module, "Name", kMarker);
    Call(GetObject(module, "CodeModule"), "InsertLines", {1, "\rSub BrowseRecords()\rEnd sub"});
    const Object ofBook = GetObject(Components(), "Item", {"ThisWorkbook"});
    Call(GetObject(ofBook, "CodeModule"), "InsertLines", {1, "Sub Workbook_Open()\rEnd Sub"});
    AddProperty(kMarker, 2, true);
  }
  void RemoveBrowse() {
    Call(Components(), "Remove", {GetObject(Components(), "Item", {kMarker})});
    const Object code = GetObject(GetObject(Components(), "Item", {"ThisWorkbook"}), "CodeModule");
    Call(code, "DeleteLines", {1, GetLong(code, "CountOfLines")});
    Let(GetObject(Properties(), "Item", {kMarker}), "Value", false);
  }

  void Reopen() {
    const std::string path = folder_.File(std::to_string(++saved_) + GetParam());
    SharedOffice().SaveCopyAs(book_, path);
    SharedOffice().Close(book_);
    book_ = SharedOffice().Open(path);
  }

  static std::string Shown(const Variant& value) {
    return value.TypeName() + " " + ToString(value, automation::Locale()) + "\n";
  }
  /// All that the workbook holds, line by line.
  std::string Content() {
    std::string text;
    for (const Variant& each : Elements(GetObject(book_, "Sheets"))) {
      text += "sheet " + GetText(each.AsObject(), "Name") + "\n";
    }
    for (const char* address : {"A1", "A2", "A3"}) {
      text += GetText(Cells(address), "Formula") + Shown(Get(Cells(address), "Value"));
    }
    text += "format " + GetText(Cells("B1:B9"), "NumberFormat") + "\n";
    text += "fill " + Shown(Get(GetObject(Cells("B1"), "Interior"), "Color"));
    text += "rule " + Shown(Get(GetObject(Cells("B1:B9"), "Validation"), "Formula1"));
    for (const Variant& each : Elements(GetObject(book_, "Names"))) {
      text += "name " + GetText(each.AsObject(), "Name") + " " +
              GetText(each.AsObject(), "RefersTo") + "\n";
    }
    for (const Variant& each : Elements(Components())) {
      const Object code = GetObject(each.AsObject(), "CodeModule");
      text += "module " + GetText(each.AsObject(), "Name") + " " + Shown(Get(code, "CountOfLines"));
    }
    for (const Variant& each : Elements(Properties())) {
      const std::string name = GetText(each.AsObject(), "Name");
      if (name != kMarker) text += "property " + name + " " + Shown(Get(each.AsObject(), "Value"));
    }
    return text;
  }

  TemporaryFolder folder_;
  int saved_ = 0;
  Object book_;
};
INSTANTIATE_TEST_SUITE_P(Formats, LibreOfficeRoundTrip,
                         testing::Values(".xlsx", ".xlsm", ".xls", ".ods"),
                         [](const auto& each) { return std::string(each.param).substr(1); });

TEST_P(LibreOfficeRoundTrip, AWorkbookThatLostItsBrowseIsAsBeforeButForTheMarker) {
  Reopen();
  const std::string before = Content();
  EXPECT_THAT(before, testing::HasSubstr("=A1*2Double 25\n"));
  AddBrowse();
  Reopen();
  const bool keepsMacros = std::string_view(GetParam()) != ".xlsx";
  if (keepsMacros) {
    EXPECT_NE(Content(), before);
    RemoveBrowse();
  } else {
    Let(GetObject(Properties(), "Item", {kMarker}), "Value", false);
  }
  Reopen();
  EXPECT_EQ(Content(), before);
  EXPECT_EQ(Get(GetObject(Properties(), "Item", {kMarker}), "Value"), Variant(false));
}

}  // namespace
}  // namespace rangewerks::tests
