#include "errors/modErrorHandling.h"

#include <gtest/gtest.h>

#include "automation/error.h"
#include "support/error_of.h"

namespace rangewerks::tests {
namespace {

using automation::Error;
using namespace modErrorHandling;

Error Raised(std::string_view procedure) {
  return ErrorOf([&] { RaiseError(procedure); });
}

TEST(BuildErrorSource, AnEmptySourceYieldsTheProcedureTextAlone) {
  CurrentError() = {13, "", "Type mismatch", 0};
  EXPECT_EQ(BuildErrorSource("Add of Class Module X Line#:7"), "Add of Class Module X Line#:7");
}

TEST(BuildErrorSource, ASourceOfBlanksYieldsTheProcedureTextAlone) {
  CurrentError() = {13, "   ", "Type mismatch", 0};
  EXPECT_EQ(BuildErrorSource("P"), "P");
}

TEST(BuildErrorSource, TheProcedureStandsOnALineBeneathTheSource) {
  CurrentError() = {13, "first ", "Type mismatch", 0};
  EXPECT_EQ(BuildErrorSource("second"), "first \r\nsecond");
}

TEST(SaveError, KeepsOneErrorOnly) {
  CurrentError() = {1, "one", "first", 10};
  SaveError();
  CurrentError() = {2, "two", "second", 20};
  SaveError();
  CurrentError() = {};
  RestoreError();
  EXPECT_EQ(CurrentError().number, 2);
  EXPECT_EQ(CurrentError().source, "two");
  EXPECT_EQ(CurrentError().description, "second");
}

TEST(RestoreError, LeavesTheSavedLineOut) {
  CurrentError() = {5, "source", "words", 42};
  SaveError();
  CurrentError() = {9, "other", "others", 7};
  RestoreError();
  EXPECT_EQ(CurrentError().number, 5);
  EXPECT_EQ(CurrentError().line, 7);
}

TEST(RaiseError, TakesThePrefixFromTheSavedStateAndNotFromTheCurrentError) {
  CurrentError() = {5, "source", "words", 42};
  SaveError();
  CurrentError() = {9, "other", "others", 7};
  EXPECT_EQ(Raised("P").Source(), "Line No.: 42 source\r\nP");
}

TEST(RaiseError, ASavedLineOfZeroGivesNoPrefix) {
  CurrentError() = {5, "source", "words", 0};
  SaveError();
  const Error error = Raised("P");
  EXPECT_EQ(error.Source(), "source\r\nP");
  EXPECT_EQ(error.Number(), 5);
  EXPECT_EQ(error.Description(), "words");
}

TEST(RaiseError, AnEmptySourceAndALineGiveThePrefixBeforeTheProcedure) {
  CurrentError() = {5, "", "words", 3};
  SaveError();
  EXPECT_EQ(Raised("P Line#:3").Source(), "Line No.: 3 P Line#:3");
}

TEST(RaiseError, MakesWhatItRaisesTheCurrentError) {
  CurrentError() = {9, "Inner", "words", 4};
  SaveError();
  const Error raised = ErrorOf([] { RaiseError("Outer Line#:4"); });
  EXPECT_EQ(CurrentError().number, 9);
  EXPECT_EQ(CurrentError().source, raised.Source());
  EXPECT_EQ(CurrentError().source, "Line No.: 4 Inner\r\nOuter Line#:4");
  EXPECT_EQ(CurrentError().description, "words");
}

}  // namespace
}  // namespace rangewerks::tests
