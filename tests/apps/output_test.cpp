#include "apps/rangewerks/output.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "apps/sample_posting.h"

namespace rangewerks::apps {
namespace {

using tests::SamplePosting;

TEST(TableOutput, ShowsHeaderRowsAndBadCellsAligned) {
  EXPECT_EQ(TableOf("journal.xlsx", SamplePosting()), R"(Workbook  journal.xlsx
Sheet     2024 Q1
Names     _2024_Q1__<range>  (sheet scheme)

Header
  batch         JNL-7
  posting_date  2024-01-31

Detail: 2 rows
  row  details      amount  reverse
  ───  ──────────  ───────  ───────
    1  Rent, "Q1"  1250.50  yes
    2  !2               !1

Declared, but not on this sheet
  project  looked for as _2024_Q1__project  (declared as mandatory)

Bad cells: 2
  mark  cell  range    row  holds  error                     what is wrong
  ────  ────  ───────  ───  ─────  ────────────────────────  ───────────────────────────────────────
  !1    B6    amount     2  12,5x  -2147216004 (0x8004157C)  Invalid data in range 'Amount' (amount)
  !2    ?     details    2         1004                      The cell is\r\nlocked
)");
}

TEST(TableOutput, SaysWhenNoCellIsBad) {
  PostingRead posting = SamplePosting();
  posting.badCells.clear();
  posting.rows.pop_back();
  const std::string table = TableOf("journal.xlsx", posting);
  EXPECT_TRUE(table.ends_with("\nNo bad cells.\n")) << table;
  EXPECT_NE(table.find("\nDetail: 1 row\n"), std::string::npos) << table;
}

TEST(TableOutput, ShowsANumberWithTheDecimalPlacesOfItsRange) {
  PostingRead posting = SamplePosting();
  posting.ranges[4].decimalPlaces = 4;
  posting.rows.resize(1);
  const auto shown = [&](double value) {
    posting.rows[0].values[1].value = value;
    return TableOf("b", posting);
  };
  EXPECT_NE(shown(3).find(" 3.0000 "), std::string::npos);
  EXPECT_NE(shown(0.123456).find(" 0.123456 "), std::string::npos);
  EXPECT_NE(shown(1e20).find(" 1e+20 "), std::string::npos);
  posting.ranges[4].decimalPlaces = 0;
  EXPECT_NE(shown(3).find(" 3 "), std::string::npos);
}

TEST(JsonOutput, HasEverything) {
  EXPECT_EQ(JsonOf("journal.xlsx", SamplePosting()), R"json({
  "book": "journal.xlsx",
  "sheet": "2024 Q1",
  "ranges": {
    "batch": {
      "exists": true,
      "address": "B1",
      "rows": 1,
      "acts_as_header": true
    },
    "posting_date": {
      "exists": true,
      "address": "B2",
      "rows": 1,
      "acts_as_header": true
    },
    "project": {
      "exists": false,
      "address": null,
      "rows": 0,
      "acts_as_header": true
    },
    "details": {
      "exists": true,
      "address": "A5:A6",
      "rows": 2,
      "acts_as_header": false
    },
    "amount": {
      "exists": true,
      "address": "B5:B6",
      "rows": 2,
      "acts_as_header": false
    },
    "reverse": {
      "exists": true,
      "address": "C5",
      "rows": 1,
      "acts_as_header": false
    }
  },
  "header": {
    "batch": {
      "found": true,
      "value": "JNL-7"
    },
    "posting_date": {
      "found": true,
      "value": "2024-01-31"
    },
    "project": {
      "found": false,
      "value": null
    }
  },
  "rows": [
    {
      "row": 1,
      "values": {
        "details": {
          "found": true,
          "value": "Rent, \"Q1\""
        },
        "amount": {
          "found": true,
          "value": 1250.5
        },
        "reverse": {
          "found": true,
          "value": true
        }
      }
    },
    {
      "row": 2,
      "values": {
        "details": {
          "found": false,
          "value": null
        },
        "amount": {
          "found": false,
          "value": null
        },
        "reverse": {
          "found": false,
          "value": null
        }
      }
    }
  ],
  "errors": [
    {
      "range": "amount",
      "row": 2,
      "address": "B6",
      "number": -2147216004,
      "description": "Invalid data in range 'Amount' (amount)",
      "source": "GetValRange of Class Module clsInterfaceRangeList Line#:12"
    },
    {
      "range": "details",
      "row": 2,
      "address": null,
      "number": 1004,
      "description": "The cell is\r\nlocked",
      "source": "Host"
    }
  ]
}
)json");
}

TEST(JsonOutput, WritesNumbersSoThatTheyReadBackTheSame) {
  PostingRead posting = SamplePosting();
  for (const double value : {0.1, 0.1 + 0.2, 1e300, -12345678.91, 4503599627370497.5}) {
    posting.rows[0].values[1].value = value;
    const auto read = nlohmann::json::parse(JsonOf("b", posting));
    EXPECT_EQ(read["rows"][0]["values"]["amount"]["value"].get<double>(), value);
  }
}

TEST(JsonOutput, ReplacesBytesThatAreNoText) {
  PostingRead posting = SamplePosting();
  posting.header[0].value = std::string("a\xFF");
  const auto read = nlohmann::json::parse(JsonOf("b", posting));
  EXPECT_EQ(read["header"]["batch"]["value"], "a\xEF\xBF\xBD");
}

TEST(CsvOutput, RepeatsTheHeaderOnEveryRow) {
  EXPECT_EQ(CsvOf(SamplePosting()),
            "row,batch,posting_date,project,details,amount,reverse\n"
            "1,JNL-7,2024-01-31,,\"Rent, \"\"Q1\"\"\",1250.5,true\n"
            "2,JNL-7,2024-01-31,,,,\n");
}

TEST(CsvOutput, HasOneLineForAPostingWithoutRows) {
  PostingRead posting = SamplePosting();
  posting.rows.clear();
  EXPECT_EQ(CsvOf(posting),
            "row,batch,posting_date,project,details,amount,reverse\n"
            ",JNL-7,2024-01-31,,,,\n");
}

TEST(BadCellLines, TellPlaceRangeRowAndWords) {
  EXPECT_EQ(BadCellLinesOf(SamplePosting()),
            "B6: amount, row 2: Invalid data in range 'Amount' (amount) [-2147216004 "
            "(0x8004157C)]\n"
            "?: details, row 2: The cell is\\r\\nlocked [1004]\n");
}

}  // namespace
}  // namespace rangewerks::apps
