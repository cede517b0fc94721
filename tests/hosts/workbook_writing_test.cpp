// Workbooks written to plain files, and read again.
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "hosts/late_calls.h"
#include "hosts/temporary_folder.h"
#include "hosts/workbook/host.h"
#include "support/error_of.h"

namespace rangewerks::tests {
namespace {

using automation::Date;
using automation::ErrorValue;
using hosts::workbook::Host;

class WorkbookWriting : public testing::Test {
 protected:
  std::string File(const char* name) const { return folder_.File(name); }
  static std::string TextOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  static Object Cell(const Object& book, const char* sheet, const char* address) {
    return GetObject(GetObject(book, "Sheets", {sheet}), "Range", {address});
  }

  TemporaryFolder folder_;
  Host host_;
};

TEST_F(WorkbookWriting, WritesAFileThatTellsTheWholeWorkbook) {
  const Object book = host_.AddWorkbook("Ledger", {"2024 Q1", "Notes"});
  host_.SetInternational(32, 1);
  host_.SetInternational(3, ",");
  const auto cell = [&](const char* address) { return Cell(book, "2024 Q1", address); };
  Let(cell("B2"), "Value", 12.5);
  Let(cell("A10"), "Value", "text");
  Let(cell("AA1"), "Value", true);
  Let(cell("B3"), "NumberFormat", "@");
  Let(cell("B3"), "Value", "007");
  Let(cell("B4"), "Value", Date{45322});
  Let(cell("B5"), "Value", Date{45322.75});
  host_.SetErrorValue(cell("B6"), 2007);
  Let(cell("B7"), "Formula", "=B2*2");
  host_.SetShownValue(cell("B7"), 25.0);
  Let(cell("B8"), "Formula", "=NOW()");
  Let(cell("B9"), "NumberFormat", "0.00");
  AddName(GetObject(book, "Names"), "code", "='2024 Q1'!$B$2:$B$9");
  host_.DefineConstant(book, "rate", "=0.2");
  Call(GetObject(book, "Sheets", {"Notes"}), "Activate");

  host_.SaveCopyAs(book, File("ledger.json"));
  EXPECT_EQ(TextOf(File("ledger.json")), R"json({
 "international": {
  "date_order": "day_first",
  "decimal_separator": ","
 },
 "sheets": [
  {
   "name": "2024 Q1",
   "cells": {
    "AA1": true,
    "B2": 12.5,
    "B3": "007",
    "B4": {
     "date": "2024-01-31"
    },
    "B5": {
     "value": 45322.75
    },
    "B6": {
     "error": "#DIV/0!"
    },
    "B7": {
     "formula": "=B2*2",
     "shown": 25.0
    },
    "B8": {
     "formula": "=NOW()"
    },
    "A10": "text"
   },
   "formats": [
    {
     "at": "B3",
     "number": "@"
    },
    {
     "at": "B4",
     "number": "m/d/yyyy"
    },
    {
     "at": "B5",
     "number": "m/d/yyyy h:mm"
    },
    {
     "at": "B9",
     "number": "0.00"
    }
   ]
  },
  {
   "name": "Notes"
  }
 ],
 "names": {
  "code": "='2024 Q1'!$B$2:$B$9",
  "rate": "=0.2"
 },
 "active_sheet": "Notes"
}
)json");
}

TEST_F(WorkbookWriting, WhatWasWrittenReadsAsTheSameWorkbook) {
  const Object book = host_.AddWorkbook("Ledger", {"Sheet1"});
  const auto cell = [&](const char* address) { return Cell(book, "Sheet1", address); };
  Let(cell("A1"), "Value", 0.1 + 0.2);
  Let(cell("A2"), "Value", 1e300);
  Let(cell("A3"), "Value", Date{45322.123456789});
  Let(cell("A4"), "NumberFormat", "dd/mm/yyyy");
  Let(cell("A4"), "Value", Date{45322});
  host_.SetErrorValue(cell("A5"), 2042);
  Let(cell("A6"), "Formula", "=A1");
  host_.SetShownValue(cell("A6"), "");
  Let(cell("A7"), "Formula", "=A1/0");
  host_.SetShownValue(cell("A7"), ErrorValue::FromNumber(2007));
  Let(cell("A8"), "Value", "line\none \"quoted\" £");
  AddName(GetObject(book, "Names"), "Sheet1!local", "=Sheet1!$A$1");
  host_.SaveCopyAs(book, File("first.json"));

  Host other;
  const Object read = other.Open(File("first.json"));
  const auto again = [&](const char* address) { return Cell(read, "Sheet1", address); };
  for (const char* address : {"A1", "A2", "A3", "A4", "A5", "A6", "A7", "A8", "A9"}) {
    EXPECT_EQ(Get(again(address), "Value"), Get(cell(address), "Value")) << address;
    EXPECT_EQ(Get(again(address), "Formula"), Get(cell(address), "Formula")) << address;
    EXPECT_EQ(Get(again(address), "NumberFormat"), Get(cell(address), "NumberFormat")) << address;
  }
  EXPECT_EQ(GetText(GetObject(read, "Names", {"Sheet1!local"}), "RefersTo"), "=Sheet1!$A$1");

  other.SaveCopyAs(read, File("second.json"));
  EXPECT_EQ(TextOf(File("second.json")), TextOf(File("first.json")));
}

TEST_F(WorkbookWriting, KeepsAReferenceThatIsDead) {
  const Object book = host_.AddWorkbook("Ledger", {"Sheet1", "Gone"});
  AddName(GetObject(book, "Names"), "lost", "=Gone!$A$1");
  Call(GetObject(book, "Sheets", {"Gone"}), "Delete");
  host_.SaveCopyAs(book, File("ledger.json"));
  const Object read = Host().Open(File("ledger.json"));
  EXPECT_EQ(GetText(GetObject(read, "Names", {"lost"}), "RefersTo"), "=#REF!$A$1");
}

TEST_F(WorkbookWriting, SavesACopyForCallersByNameAndKeepsTheNameOfTheOpenWorkbook) {
  const Object book = host_.AddWorkbook("Ledger", {"Sheet1"});
  Let(GetObject(GetObject(book, "ActiveSheet"), "Range", {"A1"}), "Value", "posted");
  Call(book, "SaveCopyAs", {File("copy.xls")});
  EXPECT_EQ(GetText(book, "FullName"), "Ledger");
  const Object copy = host_.Open(File("copy.xls"));
  EXPECT_EQ(GetText(GetObject(GetObject(copy, "ActiveSheet"), "Range", {"A1"}), "Value"), "posted");
}

TEST_F(WorkbookWriting, SaysWhenTheFileCannotBeWritten) {
  const Object book = host_.AddWorkbook("Ledger", {"Sheet1"});
  const std::string path = File("nowhere/ledger.json");
  const auto error = ErrorOf([&] { host_.SaveCopyAs(book, path); });
  EXPECT_EQ(error.Number(), 1004);
  EXPECT_EQ(error.Description(),
            path + ": the file can't be written; check the path and its rights");
}

}  // namespace
}  // namespace rangewerks::tests
