// Runs the program in a folder of its own that has a workbook and an interface file.
#pragma once

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace rangewerks::apps {

struct Outcome {
  int status = -1;
  std::string output;
  std::string messages;
};

inline constexpr const char* kBook = R"({
  "sheets": [
    {"name": "2024 Q1",
     "cells": {"B1": "JNL-7", "B2": {"date": "2024-01-31"}},
     "rows": {"at": "A5", "values": [["4000", 1250.5], ["4010", -7]]}},
    {"name": "Bad cells", "cells": {"A1": "twelve", "A2": 1, "A3": {"error": "#DIV/0!"}}},
    {"name": "Empty"}],
  "names": {
    "_2024_Q1__batch": "='2024 Q1'!$B$1",
    "_2024_Q1__posting_date": "='2024 Q1'!$B$2",
    "_2024_Q1__code": "='2024 Q1'!$A$5:$A$6",
    "_2024_Q1__amount": "='2024 Q1'!$B$5:$B$6",
    "Bad_cells__amount": "='Bad cells'!$A$1:$A$3"}
})";

inline constexpr const char* kInterface = R"({
  "SheetRangeNames": true,
  "ranges": [
    {"RangeName": "batch", "DetailIndicator": "H", "RangeDataType": "rdtString"},
    {"RangeName": "posting_date", "DetailIndicator": "H", "RangeDataType": "rdtDate"},
    {"RangeName": "code", "DetailIndicator": "D", "RangeDataType": "rdtString"},
    {"RangeName": "amount", "DetailIndicator": "D", "RangeDataType": "rdtDouble",
     "Description": "Amount"}]
})";

class CommandLine : public ::testing::Test {
 protected:
  CommandLine() {
    std::string pattern = (std::filesystem::temp_directory_path() / "rangewerks-XXXXXX").string();
    folder_ = mkdtemp(pattern.data());
    Write("book.json", kBook);
    Write("interface.json", kInterface);
  }
  ~CommandLine() override { std::filesystem::remove_all(folder_); }

  void Write(const std::string& name, const std::string& text) const {
    std::ofstream(folder_ / name) << text;
  }
  std::filesystem::path File(const std::string& name) const { return folder_ / name; }
  std::string Text(const std::string& name) const {
    std::ifstream file(folder_ / name);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  /// Runs the program in a folder with the two files above; `arguments` are the shell's. Settings
  /// are those of the folder.
  Outcome Run(const std::string& arguments) const {
    const std::string command = "cd '" + folder_.string() +
                                "' && { XDG_CONFIG_HOME=\"$PWD\" LC_ALL=C '" RANGEWERKS_PROGRAM
                                "' " +
                                arguments + "; } >.output 2>.messages </dev/null";
    const int status = std::system(command.c_str());
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, Text(".output"), Text(".messages")};
  }
  /// That the call is refused in these words, and that nothing is written.
  void ExpectRefusal(const std::string& arguments, const std::string& messages) const {
    const Outcome outcome = Run(arguments);
    EXPECT_EQ(outcome.status, 2) << arguments;
    EXPECT_EQ(outcome.output, "") << arguments;
    EXPECT_EQ(outcome.messages, messages) << arguments;
  }

 private:
  std::filesystem::path folder_;
};

}  // namespace rangewerks::apps
