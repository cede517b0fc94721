// Browses given to workbooks in LibreOffice and taken from them, looked for in the saved files.
#ifdef RANGEWERKS_LIBREOFFICE

#include "apps/command_line.h"

namespace rangewerks::apps {
namespace {

class OfficeBrowse : public CommandLine, public testing::WithParamInterface<const char*> {
 protected:
  std::string Book() const { return std::string("browsed") + GetParam(); }
  /// The three answers that a command gives about the saved workbook.
  void ExpectAnswers(const Outcome& outcome, int status, const std::string& property,
                     const std::string& openMacro, const std::string& behind) const {
    EXPECT_EQ(outcome.status, status);
    EXPECT_EQ(outcome.messages, "");
    EXPECT_EQ(outcome.output, "Workbook               " + shown_ +
                                  "\nComponent              OstrelBrowseModule"
                                  "\nDocument property      " +
                                  property +
                                  "\nBrowse module          no"
                                  "\nMenu entry on opening  " +
                                  openMacro + "\n" + behind);
  }
  Outcome Browse(const std::string& book, const std::string& arguments) {
    shown_ = book;
    return Run("browse '" + book + "' " + arguments);
  }

 private:
  std::string shown_;
};

std::string NameOf(const testing::TestParamInfo<const char*>& format) {
  return std::string(format.param).substr(1);
}

constexpr const char* kForm = RANGEWERKS_EXAMPLES "/journal-form.xlsx";

class OfficeBrowseByProperty : public OfficeBrowse {};
INSTANTIATE_TEST_SUITE_P(Formats, OfficeBrowseByProperty, testing::Values(".xlsx", ".ods"), NameOf);

TEST_P(OfficeBrowseByProperty, TheMarkIsKeptInTheFileUntilItIsTakenAway) {
  const std::string saved = "Saved to: " + Book() + "\n";
  ExpectAnswers(Browse(kForm, "--add --save " + Book()), 0, "yes", "no", saved);
  ExpectAnswers(Browse(Book(), "--status"), 0, "yes", "no", "");
  ExpectAnswers(Browse(Book(), "--remove --in-place"), 0, "no", "no", saved);
  ExpectAnswers(Browse(Book(), "--status"), 1, "no", "no", "");
}

class OfficeBrowseByMacro : public OfficeBrowse {};
INSTANTIATE_TEST_SUITE_P(Formats, OfficeBrowseByMacro, testing::Values(".xlsm", ".ods"), NameOf);

TEST_P(OfficeBrowseByMacro, TheMacroIsKeptInTheFileUntilItIsTakenAway) {
  const std::string saved = "Saved to: " + Book() + "\n";
  ExpectAnswers(Browse(kForm, "--add --method macro --save " + Book()), 0, "no", "yes", saved);
  ExpectAnswers(Browse(Book(), "--status"), 1, "no", "yes", "");
  ExpectAnswers(Browse(Book(), "--remove --method macro --in-place"), 0, "no", "no", saved);
  ExpectAnswers(Browse(Book(), "--status"), 1, "no", "no", "");
}

TEST_P(OfficeBrowseByMacro, TheMacroIsWrittenAnewOverItsEmptyFrame) {
  const std::string saved = "Saved to: " + Book() + "\n";
  Browse(kForm, "--add --method macro --save " + Book());
  Browse(Book(), "--remove --method macro --in-place");
  ExpectAnswers(Browse(Book(), "--add --method macro --in-place"), 0, "no", "yes", saved);
}

class OfficeBrowseOfMacros : public CommandLine {};

TEST_F(OfficeBrowseOfMacros, AFileThatHoldsNoMacrosIsRefusedForAWorkbookWithSome) {
  Run(std::string("browse '") + kForm + "' --add --method macro --save macros.xlsm");
  ExpectRefusal("browse macros.xlsm --add --save out.xlsx",
                "rangewerks: out.xlsx: files of this kind hold no macros, and the workbook's would "
                "be lost; save to .xlsm or .xls\n");
  EXPECT_FALSE(std::filesystem::exists(File("out.xlsx")));
}

}  // namespace
}  // namespace rangewerks::apps

#endif
