#include "filesave/clsExcelFileSave.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "automation/conversions.h"
#include "hosts/temporary_folder.h"
#include "platform/basRegistry.h"
#include "support/error_of.h"
#include "support/fixed_system.h"
#include "support/matches_regex.h"

namespace rangewerks::tests {
namespace {

using automation::DateOf;
using automation::Error;
using automation::kApplicationErrorBase;
using automation::Variant;
using platform::Registry;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::StartsWith;

class ClsExcelFileSave : public ::testing::Test {
 protected:
  ClsExcelFileSave() {
    system->SetNow(DateOf(2031, 4, 5));
    system->RunAs("USR");
    save.let_RegSection("Journals");
    save.let_Identifier("ID");
  }

  std::string Expanded(const std::string& pattern) {
    save.let_Filename(pattern);
    save.ExpandFileName();
    return save.get_ExpandedName();
  }
  Error Refusal(const std::string& pattern) {
    save.let_Filename(pattern);
    return ErrorOf([&] { save.ExpandFileName(); });
  }
  void Store(const std::string& name, const platform::RegistryValue& value) const {
    system->Settings()->Write(Registry::kCurrentUser, kKey, name, value);
  }
  Variant Stored(const std::string& name) const {
    return basRegistry::ReadRegistryValue(*system->Settings(), Registry::kCurrentUser, kKey, name);
  }
  Error Invalid() const {
    return ErrorOf([&] { save.Validate(); });
  }

  const std::string kKey = "Software\\Ostrel\\SheetConnectors\\Journals\\File Save Settings";
  std::shared_ptr<FixedSystem> system = std::make_shared<FixedSystem>("");
  clsExcelFileSave save{system};
};

// --- the file's name -----------------------------------------------------------------------------

TEST_F(ClsExcelFileSave, ExpandsPatternsToTheseNames) {
  const std::vector<std::vector<std::string>> rows = {
      {"%i", "ID"},           {"%i-%m", "ID-04"},
      {"abc%y", "abc31"},     {"%d-%m-%y %i", "05-04-31 ID"},
      {"x%iy%mz", "xIDy04z"}, {"%i_%u_%y.xls", "ID_USR_31.xls"},
      {"%i%d", "ID05"},       {"%x", "%x"},
      {"%I", "%I"},           {"a%", "a%"},
      {"%d%", "05%"},         {"%d%d", "05"},
      {"%i%i", "ID"},         {"ID%i", "ID"},
      {"%i-%i", "ID-ID"},
  };
  for (const auto& row : rows) EXPECT_EQ(Expanded(row[0]), row[1]) << row[0];
}

TEST_F(ClsExcelFileSave, AnEmptyPatternGivesAnEmptyName) { EXPECT_EQ(Expanded(""), ""); }

TEST_F(ClsExcelFileSave, APatternWithoutPercentIsUsedUnchanged) {
  EXPECT_EQ(Expanded("journal i d.xls"), "journal i d.xls");
}

TEST_F(ClsExcelFileSave, CodesAreCaseSensitive) {
  EXPECT_EQ(Expanded("a%I%D%M%Y%U."), "a%I%D%M%Y%U.");
}

TEST_F(ClsExcelFileSave, TwoPercentsInFrontFailThroughTheProceduresThatTheyPass) {
  for (const char* pattern : {"%%", "%", "%%i"}) {
    const Error error = Refusal(pattern);
    EXPECT_EQ(error.Number(), 5) << pattern;
    EXPECT_EQ(error.Description(), "Invalid procedure call or argument");
    EXPECT_THAT(error.Source(),
                MatchesRegex("Line No\\.: [0-9]+ Line No\\.: [0-9]+ BreakIdentifiers of Class "
                             "Module clsExcelFileSave Line#:[0-9]+\r\nExpandFileName of Class "
                             "Module clsExcelFileSave Line#:[0-9]+"));
  }
}

TEST_F(ClsExcelFileSave, PercentsInARowFurtherOnAreKept) {
  EXPECT_EQ(Expanded("a%%i"), "a%ID");
  EXPECT_EQ(Expanded("%d%%"), "05%%");
}

TEST_F(ClsExcelFileSave, AnEmptyExpansionAddsNothing) {
  save.let_Identifier("");
  EXPECT_EQ(Expanded("%i"), "");
  EXPECT_EQ(Expanded("a%i%db"), "a05b");
  system->RunAs("");
  EXPECT_EQ(Expanded("a%u"), "a");
}

TEST_F(ClsExcelFileSave, AnIdentifierMayHoldCodesThatAreNotExpanded) {
  save.let_Identifier("%d");
  EXPECT_EQ(Expanded("a%i-%m"), "a%d-04");
}

TEST_F(ClsExcelFileSave, CharactersThatTakeSeveralBytesCountAsOne) {
  EXPECT_EQ(Expanded("%éü%i"), "%éüID");
  EXPECT_EQ(Expanded("é%é%é"), "é%é%é");
  EXPECT_EQ(Expanded("%é%é"), "%é");
}

TEST_F(ClsExcelFileSave, TheDateIsReadAnewAtEachCode) {
  Expanded("%d%m%y.");
  EXPECT_EQ(system->TimesAskedForNow(), 3);
}

TEST_F(ClsExcelFileSave, DayMonthAndYearHaveTwoDigits) {
  system->SetNow(DateOf(2005, 12, 31));
  EXPECT_EQ(Expanded("a%d%m%y."), "a311205.");
}

TEST_F(ClsExcelFileSave, AFolderThatEndsInABackslashGetsNoSecondOneAndAnyOtherGetsOne) {
  save.let_ExpandedName("name.xls");
  save.let_FilePath("c:\\");
  EXPECT_EQ(save.FullPath(), "c:\\name.xls");
  save.let_FilePath("c:\\journals");
  EXPECT_EQ(save.FullPath(), "c:\\journals\\name.xls");
  save.let_FilePath("");
  EXPECT_EQ(save.FullPath(), "\\name.xls");
}

// --- what is stored ------------------------------------------------------------------------------

TEST_F(ClsExcelFileSave, AMissingKeyYieldsTheFourDefaults) {
  save.let_DoSaveFile(true);
  save.let_PromptOnSave(true);
  save.GetSettingsFromRegistry();
  EXPECT_EQ(save.get_FilePath(), "c:\\");
  EXPECT_EQ(save.get_Filename(), "%i");
  EXPECT_FALSE(save.get_DoSaveFile());
  EXPECT_FALSE(save.get_PromptOnSave());
  EXPECT_THAT(system->Settings()->Reads(), Each(StartsWith(kKey + "|")));
}

TEST_F(ClsExcelFileSave, EmptyTextsReadAsTheDefaults) {
  for (const char* name : {"File", "Identifier", "DoSaveFile", "PromptOnSave"}) Store(name, "");
  save.GetSettingsFromRegistry();
  EXPECT_EQ(save.get_FilePath(), "c:\\");
  EXPECT_EQ(save.get_Filename(), "%i");
  EXPECT_FALSE(save.get_DoSaveFile());
  EXPECT_FALSE(save.get_PromptOnSave());
}

TEST_F(ClsExcelFileSave, FilePathIsStoredAsFileAndFilenameAsIdentifier) {
  save.let_FilePath("c:\\journals");
  save.let_Filename("%i-%y");
  save.let_DoSaveFile(true);
  save.SaveSettingsToRegistry();
  EXPECT_THAT(system->Settings()->Writes(),
              ElementsAre(kKey + "|File", kKey + "|Identifier", kKey + "|DoSaveFile",
                          kKey + "|PromptOnSave"));
  EXPECT_EQ(Stored("File"), Variant("c:\\journals"));
  EXPECT_EQ(Stored("Identifier"), Variant("%i-%y"));
  EXPECT_EQ(Stored("DoSaveFile"), Variant(std::int32_t{-1}));
  EXPECT_EQ(Stored("PromptOnSave"), Variant(std::int32_t{0}));

  clsExcelFileSave loaded(system);
  loaded.let_RegSection("Journals");
  loaded.GetSettingsFromRegistry();
  EXPECT_EQ(loaded.get_FilePath(), "c:\\journals");
  EXPECT_EQ(loaded.get_Filename(), "%i-%y");
  EXPECT_TRUE(loaded.get_DoSaveFile());
  EXPECT_FALSE(loaded.get_PromptOnSave());
  EXPECT_EQ(loaded.get_Identifier(), "");
}

TEST_F(ClsExcelFileSave, APatternThatIsEntirelyNumericGoesInAsANumber) {
  save.let_Filename("0042");
  save.SaveSettingsToRegistry();
  EXPECT_EQ(Stored("Identifier"), Variant(std::int32_t{42}));
  save.GetSettingsFromRegistry();
  EXPECT_EQ(save.get_Filename(), "42");
}

TEST_F(ClsExcelFileSave, APatternTooGreatForANumberIsDroppedAndTheRestIsStored) {
  save.let_FilePath("c:\\journals");
  save.let_Filename("20310405120000");
  save.let_PromptOnSave(true);
  save.SaveSettingsToRegistry();
  EXPECT_EQ(Stored("File"), Variant("c:\\journals"));
  EXPECT_EQ(Stored("Identifier"), Variant(""));
  EXPECT_EQ(Stored("PromptOnSave"), Variant(std::int32_t{-1}));
}

TEST_F(ClsExcelFileSave, AStoredSwitchThatIsNoBooleanKeepsTheOneItHas) {
  save.let_DoSaveFile(true);
  Store("DoSaveFile", "perhaps");
  Store("PromptOnSave", 2);
  save.GetSettingsFromRegistry();
  EXPECT_TRUE(save.get_DoSaveFile());
  EXPECT_TRUE(save.get_PromptOnSave());
}

TEST_F(ClsExcelFileSave, SectionsAreApart) {
  save.let_FilePath("c:\\journals");
  save.SaveSettingsToRegistry();
  save.let_RegSection("Invoices");
  save.GetSettingsFromRegistry();
  EXPECT_EQ(save.get_FilePath(), "c:\\");
}

TEST_F(ClsExcelFileSave, ACopyTakesAllButIdentifierAndSection) {
  clsExcelFileSave other(system);
  other.let_Filename("%i");
  other.let_FilePath("c:\\journals");
  other.let_PromptOnSave(true);
  other.let_DoSaveFile(true);
  other.let_ExpandedName("JNL");
  other.let_Identifier("other identifier");
  other.let_RegSection("other section");
  save.CopyFrom(other);
  EXPECT_EQ(save.get_Filename(), "%i");
  EXPECT_EQ(save.get_FilePath(), "c:\\journals");
  EXPECT_TRUE(save.get_PromptOnSave());
  EXPECT_TRUE(save.get_DoSaveFile());
  EXPECT_EQ(save.get_ExpandedName(), "JNL");
  EXPECT_EQ(save.get_Identifier(), "ID");
  EXPECT_EQ(save.get_RegSection(), "Journals");
}

// --- whether they can be used --------------------------------------------------------------------

TEST_F(ClsExcelFileSave, ValidateWithDoSaveFileFalsePassesWithEmptySettings) {
  EXPECT_NO_THROW(save.Validate());
}

TEST_F(ClsExcelFileSave, ValidateWithoutAFileNameOrAFolderRaisesThatItIsMissing) {
  save.let_DoSaveFile(true);
  const std::vector<std::vector<std::string>> rows = {{"", ""}, {"%i", ""}, {"", "c:\\"}};
  for (const auto& row : rows) {
    save.let_Filename(row[0]);
    save.let_FilePath(row[1]);
    EXPECT_EQ(Invalid().Number(), -2147221504);
    EXPECT_EQ(Invalid().Source(), "clsExcelFileSave");
    EXPECT_EQ(Invalid().Description(), "File name or file path missing");
  }
}

TEST_F(ClsExcelFileSave, ValidateOnAFolderThatIsntThereRaisesThatItIsNotFound) {
  const TemporaryFolder folder;
  save.let_DoSaveFile(true);
  save.let_Filename("%i");
  save.let_FilePath(folder.File("none"));
  EXPECT_EQ(Invalid().Number(), kApplicationErrorBase);
  EXPECT_EQ(Invalid().Source(), "clsExcelFileSave");
  EXPECT_EQ(Invalid().Description(), "File path not found or access denied");
}

TEST_F(ClsExcelFileSave, ValidateOnAPathThatNamesAFileRaisesThatItIsNotFound) {
  const TemporaryFolder folder;
  save.let_DoSaveFile(true);
  save.let_Filename("%i");
  save.let_FilePath(folder.Write("file", ""));
  EXPECT_EQ(Invalid().Description(), "File path not found or access denied");
}

TEST_F(ClsExcelFileSave, ValidateOnAFolderPasses) {
  const TemporaryFolder folder;
  save.let_DoSaveFile(true);
  save.let_Filename("%i");
  save.let_FilePath(folder.File(""));
  EXPECT_NO_THROW(save.Validate());
}

}  // namespace
}  // namespace rangewerks::tests
