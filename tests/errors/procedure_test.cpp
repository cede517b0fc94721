#include "errors/procedure.h"

#include <gtest/gtest.h>

#include "errors/attempt.h"
#include "errors/modErrorHandling.h"
#include "support/error_of.h"

namespace rangewerks::tests {
namespace {

using automation::Error;
using automation::ErrorNumber;

int Innermost(int failAt) {
  return Procedure("Innermost of Class Module T Line#:", [&](Line& at) {
    if (failAt == 0) throw Error(ErrorNumber::TypeMismatch);
    at();
    if (failAt == 1) throw Error(ErrorNumber::TypeMismatch);

    at();
    if (failAt == 2) throw Error(ErrorNumber::TypeMismatch);
    return 8;
  });
}

int Middle(int failAt) {
  return Procedure("Middle of Class Module T Line#:", [&](Line& at) {
    at();
    return Innermost(failAt);
  });
}

int Outermost(int failAt) {
  return Procedure("Outermost of Class Module T Line#:", [&](Line& at) {
    at();
    return Middle(failAt);
  });
}

Error Failure(int (*procedure)(int), int failAt) {
  return ErrorOf([&] { procedure(failAt); });
}

TEST(Procedure, ReturnsWhatItsBodyReturns) { EXPECT_EQ(Outermost(-1), 8); }

TEST(Procedure, PutsTheLineWithinTheProcedureDirectlyBehindTheLiteral) {
  EXPECT_EQ(Failure(Innermost, 1).Source(), "Line No.: 2 Innermost of Class Module T Line#:2");
  EXPECT_EQ(Failure(Innermost, 2).Source(), "Line No.: 5 Innermost of Class Module T Line#:5");
}

TEST(Procedure, ReportsLineZeroWithoutAPrefixBeforeTheFirstMark) {
  EXPECT_EQ(Failure(Innermost, 0).Source(), "Innermost of Class Module T Line#:0");
}

TEST(Procedure, CanHaveATextWithoutItsLine) {
  const Error error = ErrorOf([] {
    ProcedureWithoutLine("Bare of Class Module T", [](Line& at) {
      at();
      throw Error(ErrorNumber::TypeMismatch);
    });
  });
  EXPECT_EQ(error.Source(), "Line No.: 1 Bare of Class Module T");
}

TEST(Procedure, RepeatsTheLinePrefixAtEveryLevelInnermostLast) {
  EXPECT_EQ(Failure(Outermost, 2).Source(),
            "Line No.: 1 Line No.: 1 Line No.: 5 Innermost of Class Module T Line#:5\r\n"
            "Middle of Class Module T Line#:1\r\n"
            "Outermost of Class Module T Line#:1");
}

TEST(Procedure, KeepsNumberAndDescription) {
  const Error error = Failure(Outermost, 1);
  EXPECT_EQ(error.Number(), 13);
  EXPECT_EQ(error.Description(), "Type mismatch");
}

TEST(Procedure, LeavesThePassedErrorInTheSavedSlot) {
  Failure(Middle, 1);
  modErrorHandling::RestoreError();
  EXPECT_EQ(modErrorHandling::CurrentError().source,
            "Line No.: 2 Innermost of Class Module T Line#:2");
}

TEST(Procedure, LetsAnExceptionThatIsNoErrorPassUntouched) {
  const auto run = [] { Procedure("P", [](Line&) { throw 7; }); };
  EXPECT_THROW(run(), int);
}

TEST(Attempt, TellsWhetherTheStepSucceeded) {
  int steps = 0;
  EXPECT_TRUE(Attempt([&] { ++steps; }));
  EXPECT_FALSE(Attempt([&] {
    ++steps;
    throw Error(ErrorNumber::Overflow);
  }));
  EXPECT_EQ(steps, 2);
}

}  // namespace
}  // namespace rangewerks::tests
