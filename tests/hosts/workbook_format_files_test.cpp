// How cells look and what may be entered into them, in workbook files.
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "hosts/late_calls.h"
#include "hosts/temporary_folder.h"
#include "hosts/workbook/host.h"
#include "support/error_of.h"

namespace rangewerks::tests {
namespace {

using automation::Member;
using hosts::workbook::Host;

/// A sheet with one range of each kind, its heading above, as it stands in a file.
constexpr const char* kPlaced = R"json({
 "sheets": [
  {
   "name": "Sheet1",
   "cells": {
    "B2": "Amount"
   },
   "formats": [
    {
     "at": "E:E",
     "number": "@"
    },
    {
     "at": "B2",
     "wrap": true,
     "bold": true,
     "fill": "#C0FFEE"
    },
    {
     "at": "B3:C9",
     "number": "0.00_ ;-0.00",
     "align": "right",
     "fill": "#80FF00"
    }
   ],
   "lines": [
    {
     "at": "B3:C3",
     "top": "double"
    },
    {
     "at": "B4:C9",
     "top": "thin"
    },
    {
     "at": "A1048576",
     "bottom": "hairline"
    },
    {
     "at": "XFD1:XFD2",
     "right": "thick"
    },
    {
     "at": "B3:B9",
     "left": "medium"
    }
   ],
   "widths": {
    "B:C": 12.5,
    "D:D": 0.0
   },
   "validation": [
    {
     "at": "B3:B9",
     "type": "text_length",
     "operator": "less_equal",
     "formula": "30",
     "error_title": "Input data error",
     "error_message": "Ref cannot have more than 30",
     "input_title": "Ref",
     "input_message": "Reference\nEnter up to 30 characters"
    },
    {
     "at": "C3:C9",
     "type": "list",
     "alert": "warning",
     "formula": "Y,N",
     "ignore_blank": false
    },
    {
     "at": "D3:D9",
     "type": "input_only"
    }
   ],
   "conditional_formats": [
    {
     "at": [
      "B3:C4",
      "B6:C9"
     ],
     "formula": "=MOD(ROW(), 2)=0",
     "fill": "#0000FF"
    },
    {
     "at": "B3:B9",
     "formula": "=ROW()=3"
    }
   ]
  }
 ],
 "active_sheet": "Sheet1"
}
)json";

class WorkbookFormatFile : public testing::Test {
 protected:
  static std::string TextOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  Object Open(const std::string& text) {
    book_ = host_.Open(folder_.Write("ledger.json", text));
    return book_;
  }
  /// A file with one sheet that has these entries besides its name.
  static std::string FileWith(const std::string& entries) {
    return R"({"sheets": [{"name": "Sheet1", )" + entries + "}]}";
  }
  Object Cells(const char* address) {
    return GetObject(GetObject(book_, "ActiveSheet"), "Range", {address});
  }
  std::int32_t Line(const char* address, std::int32_t index, const char* member) {
    return GetLong(GetObject(Cells(address), "Borders", {index}), member);
  }
  /// The words about a wrong file, behind its path and the place of the sheet.
  std::string Fault(const std::string& entries) {
    const automation::Error error = ErrorOf([&] { Open(FileWith(entries)); });
    EXPECT_EQ(error.Number(), 1004);
    const std::string start = folder_.File("ledger.json") + ": /sheets/0";
    EXPECT_EQ(error.Description().substr(0, start.size()), start);
    return error.Description().substr(std::min(start.size(), error.Description().size()));
  }

  TemporaryFolder folder_;
  Host host_;
  Object book_;
};

TEST_F(WorkbookFormatFile, IsReadAsTheObjectModelTellsIt) {
  Open(kPlaced);
  EXPECT_EQ(Get(GetObject(Cells("B2"), "Font"), "Bold"), Variant(true));
  EXPECT_EQ(Get(Cells("B2"), "WrapText"), Variant(true));
  EXPECT_EQ(GetLong(GetObject(Cells("B2"), "Interior"), "Color"), 0xEEFFC0);
  EXPECT_EQ(GetText(Cells("B3:C9"), "NumberFormat"), "0.00_ ;-0.00");
  EXPECT_EQ(GetLong(Cells("B3:C9"), "HorizontalAlignment"), -4152);
  EXPECT_EQ(GetText(Cells("E1048576"), "NumberFormat"), "@");
  EXPECT_EQ(Line("B2:C2", 9, "LineStyle"), -4119);
  EXPECT_EQ(Line("B3:C9", 12, "Weight"), 2);
  EXPECT_EQ(Line("A3:A9", 10, "Weight"), -4138);
  EXPECT_EQ(Line("A1048576", 9, "Weight"), 1);
  EXPECT_EQ(Line("XFD1:XFD2", 10, "Weight"), 4);
  EXPECT_EQ(Get(Cells("B1:C1"), "ColumnWidth"), Variant(12.5));
  EXPECT_EQ(Get(Cells("D1"), "ColumnWidth"), Variant(0.0));
  const Object rule = GetObject(Cells("B3:B9"), "Validation");
  EXPECT_EQ(GetLong(rule, "Type"), 6);
  EXPECT_EQ(GetLong(rule, "Operator"), 8);
  EXPECT_EQ(GetText(rule, "Formula1"), "30");
  EXPECT_EQ(GetText(rule, "InputMessage"), "Reference\nEnter up to 30 characters");
  const Object list = GetObject(Cells("C3:C9"), "Validation");
  EXPECT_EQ(GetLong(list, "AlertStyle"), 2);
  EXPECT_EQ(Get(list, "IgnoreBlank"), Variant(false));
  EXPECT_EQ(GetLong(GetObject(Cells("B3:C9"), "FormatConditions"), "Count"), 2);
  EXPECT_EQ(GetLong(GetObject(Cells("B5"), "FormatConditions"), "Count"), 1);
  const Object banding = GetObject(Cells("C6"), "FormatConditions", {1});
  EXPECT_EQ(GetText(banding, "Formula1"), "=MOD(ROW(), 2)=0");
  EXPECT_EQ(GetLong(GetObject(banding, "Interior"), "Color"), 0xFF0000);
}

TEST_F(WorkbookFormatFile, IsWrittenAsItWasRead) {
  host_.SaveCopyAs(Open(kPlaced), folder_.File("copy.json"));
  EXPECT_EQ(TextOf(folder_.File("copy.json")), kPlaced);
}

TEST_F(WorkbookFormatFile, HasWhatTheObjectModelMade) {
  book_ = host_.AddWorkbook("Ledger", {"Sheet1"});
  Let(Cells("B3:B4"), "NumberFormat", "0.00");
  for (const std::int32_t index : {7, 8, 9, 10}) {
    Let(GetObject(Cells("B3:B4"), "Borders", {index}), "LineStyle", 1);
  }
  Call(GetObject(Cells("B3:B4"), "Validation"), "Add", {1, 1, 5, "-9999999999"});
  host_.SaveCopyAs(book_, folder_.File("copy.json"));
  EXPECT_EQ(TextOf(folder_.File("copy.json")), R"json({
 "sheets": [
  {
   "name": "Sheet1",
   "formats": [
    {
     "at": "B3:B4",
     "number": "0.00"
    }
   ],
   "lines": [
    {
     "at": "B3",
     "top": "thin"
    },
    {
     "at": "B5",
     "top": "thin"
    },
    {
     "at": "B3:C4",
     "left": "thin"
    }
   ],
   "validation": [
    {
     "at": "B3:B4",
     "type": "whole_number",
     "operator": "greater",
     "formula": "-9999999999"
    }
   ]
  }
 ],
 "active_sheet": "Sheet1"
}
)json");
}

TEST_F(WorkbookFormatFile, TakesLaterFormatsOverEarlierOnesAndThoseOfCellsOverAll) {
  Open(FileWith(R"("formats": [{"at": "B:B", "number": "0.00", "bold": true},
                               {"at": "B2:B3", "number": "dd/mm/yyyy"},
                               {"at": "B4", "number": "general"}],
                   "cells": {"B2": {"date": "2024-01-31"}, "B3": {"value": 5, "format": "0"}})"));
  EXPECT_EQ(GetText(Cells("B1"), "NumberFormat"), "0.00");
  EXPECT_EQ(GetText(Cells("B2"), "NumberFormat"), "dd/mm/yyyy");
  EXPECT_EQ(GetText(Cells("B3"), "NumberFormat"), "0");
  EXPECT_EQ(GetText(Cells("B4"), "NumberFormat"), "General");
  EXPECT_EQ(Get(GetObject(Cells("B1:B9"), "Font"), "Bold"), Variant(true));
}

TEST_F(WorkbookFormatFile, MayTellLinesOnAllSidesOfItsCells) {
  Open(FileWith(R"("lines": [{"at": "B2:C3", "left": "thin", "right": "thick", "top": "double",
                              "bottom": "hairline"}])"));
  EXPECT_EQ(Line("B2:B3", 7, "Weight"), 2);
  EXPECT_EQ(Line("C2:C3", 10, "Weight"), 4);
  EXPECT_EQ(Line("B2:C2", 8, "LineStyle"), -4119);
  EXPECT_EQ(Line("B3:C3", 9, "Weight"), 1);
}

TEST_F(WorkbookFormatFile, ThatIsWrongIsToldWithItsPlace) {
  const auto expectFault = [&](const std::string& entries, const std::string& words) {
    EXPECT_EQ(Fault(entries), words) << entries;
  };
  expectFault(R"("formats": 5)", "/formats: found 5, expected an array");
  expectFault(R"("formats": [{"number": "0"}])", R"(/formats/0: the key "at" is missing)");
  expectFault(R"("formats": [{"at": "B0"}])",
              R"(/formats/0/at: found "B0", expected the address of cells, such as "B2:B9")");
  expectFault(
      R"("formats": [{"at": "B2", "colour": 1}])",
      R"(/formats/0: found the key "colour", expected only "at", "number", "align", "wrap", )"
      R"("bold", "fill")");
  expectFault(R"("formats": [{"at": "B2", "align": "middle"}])",
              R"(/formats/0/align: found "middle", expected "left", "center" or "right")");
  expectFault(R"("formats": [{"at": "B2", "bold": "yes"}])",
              R"(/formats/0/bold: found "yes", expected true or false)");
  for (const char* color : {"red", "#12345", "#GG0000", "#1234567"}) {
    expectFault(R"("formats": [{"at": "B2", "fill": ")" + std::string(color) + R"("}])",
                R"(/formats/0/fill: found ")" + std::string(color) +
                    R"(", expected a colour such as "#FF8000": red, green, blue)");
  }
  expectFault(R"("lines": [{"at": "B2", "top": "dotted"}])",
              R"(/lines/0/top: found "dotted", expected "hairline", "thin", "medium", "thick" or )"
              R"("double")");
  expectFault(R"("widths": {"B2": 5})",
              R"(/widths/B2: found "B2", expected whole columns, such as "B:B")");
  expectFault(R"("widths": {"B:B": 256})",
              "/widths/B:B: found 256, expected a width from 0 to 255 characters");
  expectFault(R"("widths": {"B:B": "wide"})", R"(/widths/B:B: found "wide", expected a number)");
  expectFault(R"("validation": [{"at": "B2", "type": "date"}])",
              R"(/validation/0/type: found "date", expected "input_only", "whole_number", )"
              R"("decimal", "list" or "text_length")");
  expectFault(R"("validation": [{"at": "B2", "type": "list"}])",
              R"(/validation/0: the key "formula" is missing)");
  expectFault(R"("validation": [{"at": "B2", "type": "decimal", "formula": "1"}])",
              R"(/validation/0: the key "operator" is missing)");
  expectFault(R"("validation": [{"at": "B2", "type": "list", "formula": " "}])",
              "/validation/0: A validation of the type 3 needs Formula1");
  expectFault(R"("validation": [{"at": "B2:B9", "type": "input_only"},
                                {"at": "B5", "type": "input_only"}])",
              "/validation/1: Cells of $B$5 have a validation already");
  expectFault(R"("validation": [{"at": "B2", "type": "input_only", "input_title": ")" +
                  std::string(33, 'x') + R"("}])",
              "/validation/0: The InputTitle of a validation can't have more than 32 characters");
  expectFault(R"("conditional_formats": [{"at": "B2", "formula": "ROW()=3"}])",
              R"(/conditional_formats/0/formula: A condition is a formula that begins with "=", )"
              R"(not "ROW()=3")");
  expectFault(R"("conditional_formats": [{"at": [], "formula": "=ROW()=3"}])",
              "/conditional_formats/0/at: found an array of 0 entries, expected at least one "
              "address");
  expectFault(R"("conditional_formats": [{"at": ["B2", 5], "formula": "=ROW()=3"}])",
              "/conditional_formats/0/at/1: found 5, expected a text");
}

}  // namespace
}  // namespace rangewerks::tests
