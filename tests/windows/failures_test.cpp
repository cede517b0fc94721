#include "com/bridge/failures.h"

#include <gmock/gmock.h>

#include <stdexcept>

#include "com/bridge/owners.h"
#include "com/bridge/text.h"

namespace rangewerks::tests {
namespace {

using automation::Error;
using com::NumberOf;
using com::ResultOf;

constexpr auto Result(std::uint32_t bits) { return static_cast<HRESULT>(bits); }

TEST(Failures, RunTimeErrorsAndResultsAreOneAnother) {
  EXPECT_EQ(ResultOf(13), Result(0x800A000D));
  EXPECT_EQ(ResultOf(1004), Result(0x800A03EC));
  EXPECT_EQ(ResultOf(65535), Result(0x800AFFFF));
  EXPECT_EQ(ResultOf(static_cast<std::int32_t>(0x80040000U)), Result(0x80040000));
  for (const std::int32_t number : {1, 5, 13, 438, 1004, 65535}) {
    EXPECT_EQ(NumberOf(ResultOf(number)), number);
  }
  EXPECT_EQ(NumberOf(Result(0x80040200)), static_cast<std::int32_t>(0x80040200U));
}

TEST(Failures, ANumberThatNoResultCanCarryIsStillAFailure) {
  EXPECT_EQ(ResultOf(0), Result(0x800A0005));
  EXPECT_EQ(ResultOf(65536), Result(0x800A0005));
}

TEST(Failures, ResultsOfTheAutomationCallsHaveTheirRunTimeErrors) {
  EXPECT_EQ(NumberOf(DISP_E_MEMBERNOTFOUND), 438);
  EXPECT_EQ(NumberOf(DISP_E_UNKNOWNNAME), 438);
  EXPECT_EQ(NumberOf(DISP_E_TYPEMISMATCH), 13);
  EXPECT_EQ(NumberOf(DISP_E_OVERFLOW), 6);
  EXPECT_EQ(NumberOf(DISP_E_BADINDEX), 9);
  EXPECT_EQ(NumberOf(DISP_E_BADPARAMCOUNT), 450);
  EXPECT_EQ(NumberOf(DISP_E_PARAMNOTOPTIONAL), 449);
  EXPECT_EQ(NumberOf(DISP_E_PARAMNOTFOUND), 448);
  EXPECT_EQ(NumberOf(E_OUTOFMEMORY), 7);
  EXPECT_EQ(NumberOf(E_INVALIDARG), 5);
  EXPECT_EQ(NumberOf(E_NOTIMPL), 445);
  EXPECT_EQ(NumberOf(REGDB_E_CLASSNOTREG), 429);
}

TEST(Failures, AFailureOutsideItsCallHasTheStandardWords) {
  const Error error = com::FailureOf(DISP_E_TYPEMISMATCH);
  EXPECT_EQ(error.Number(), 13);
  EXPECT_EQ(error.Description(), "Type mismatch");
  EXPECT_FALSE(com::FailureOf(E_ACCESSDENIED).Description().empty());
}

TEST(Failures, TheErrorObjectTellsSourceAndDescription) {
  HRESULT result = S_OK;
  try {
    throw Error(1004, "First Line#:12\r\nSecond", "Nein: ü");
  } catch (...) {
    result = com::ReportCurrentException();
  }
  EXPECT_EQ(result, Result(0x800A03EC));
  com::Pointer<IErrorInfo> info;
  ASSERT_EQ(GetErrorInfo(0, info.Receive()), S_OK);
  com::Bstr source;
  com::Bstr description;
  info->GetSource(source.Receive());
  info->GetDescription(description.Receive());
  EXPECT_EQ(source.Text(), "First Line#:12\r\nSecond");
  EXPECT_EQ(description.Text(), "Nein: ü");
}

TEST(Failures, AnExceptionThatIsNoErrorIsToldToo) {
  EXCEPINFO exception{};
  try {
    throw std::runtime_error("broken");
  } catch (...) {
    EXPECT_EQ(com::DescribeCurrentException(&exception), DISP_E_EXCEPTION);
  }
  EXPECT_EQ(exception.scode, E_FAIL);
  EXPECT_EQ(com::FailureOf(DISP_E_EXCEPTION, exception).Description(), "broken");
}

TEST(Failures, AnExceptionWithoutACodeStillHasANumber) {
  EXCEPINFO exception{};
  exception.bstrDescription = com::ToBstr("broken");
  const Error error = com::FailureOf(DISP_E_EXCEPTION, exception);
  EXPECT_EQ(error.Number(), DISP_E_EXCEPTION);
  EXPECT_EQ(error.Description(), "broken");
}

}  // namespace
}  // namespace rangewerks::tests
