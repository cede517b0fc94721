#include "hosts/workbook/testing.h"

namespace rangewerks::hosts::workbook {

using automation::MemberTable;

const MemberTable& Testing::Members() const {
  using C = Testing;
  static const MemberTable table =
      MemberTable::For<C>("Testing")
          .Get(1, "LogCalls", &C::get_LogCalls, "Whether each call is written down in Calls.")
          .Let(1, "LogCalls", &C::let_LogCalls, "Whether each call is written down in Calls.")
          .Get(2, "Calls", &C::get_Calls, "A line for each call since ResetCalls, oldest first.")
          .Get(3, "CallCount", &C::get_CallCount, {{"Member", Variant::Missing()}},
               "Number of calls since ResetCalls, of all members or of one, \"Range.Value\".")
          .Method(4, "ResetCalls", &C::ResetCalls, {}, "Forgets the calls made so far.")
          .Method(5, "FailCall", &C::FailCall, {{"Call"}, {"Number"}, {"Description"}},
                  "Makes one call fail: 1 is the next, 2 the one after it.")
          .Method(6, "FailMember", &C::FailMember, {{"Member"}, {"Number"}, {"Description"}},
                  "Makes every call of a member fail until ClearFailures.")
          .Method(7, "ClearFailures", &C::ClearFailures, {}, "Takes back all requested failures.")
          .Method(8, "SetShownValue", &C::SetShownValue, {{"Range"}, {"Value"}},
                  "What a cell with a formula shows.")
          .Method(9, "SetErrorValue", &C::SetErrorValue, {{"Range"}, {"Number"}},
                  "Makes a cell hold an error, 2007 for a division by zero.")
          .Method(10, "SetInternational", &C::SetInternational, {{"Index"}, {"Value"}},
                  "What Application.International tells.")
          .Method(11, "SetVersion", &C::SetVersion, {{"Version"}},
                  "What Application.Version tells.")
          .Get(12, "TrustVBProject", &C::get_TrustVBProject,
               "Whether access to the macro project is trusted.")
          .Let(12, "TrustVBProject", &C::let_TrustVBProject,
               "Whether access to the macro project is trusted.")
          .Method(13, "SelectShape", &C::SelectShape, {},
                  "Makes the selection a drawn shape until cells are selected.");
  return table;
}

// --- calls and failures --------------------------------------------------------------------------

bool Testing::get_LogCalls() { return host_.Calls().IsLogging(); }
void Testing::let_LogCalls(bool value) { host_.Calls().LogCalls(value); }

std::string Testing::get_Calls() {
  std::string text;
  for (const std::string& line : host_.Calls().Lines()) {
    if (!text.empty()) text += "\r\n";
    text += line;
  }
  return text;
}

std::int32_t Testing::get_CallCount(const Variant& member) {
  const CallLog& calls = host_.Calls();
  return static_cast<std::int32_t>(
      member.IsMissing() ? calls.Count()
                         : calls.Count(automation::ToString(member, automation::Locale())));
}

void Testing::ResetCalls() { host_.Calls().Reset(); }

void Testing::FailCall(std::int32_t call, std::int32_t number, const std::string& description) {
  if (call < 1) throw automation::Error(automation::ErrorNumber::InvalidProcedureCall);
  host_.Calls().FailCall(static_cast<std::size_t>(call), number, description);
}

void Testing::FailMember(const std::string& member, std::int32_t number,
                         const std::string& description) {
  host_.Calls().FailMember(member, number, description);
}

void Testing::ClearFailures() { host_.Calls().ClearFailures(); }

// --- the scene -----------------------------------------------------------------------------------

void Testing::SetShownValue(const Object& cell, const Variant& value) {
  host_.SetShownValue(cell, value);
}

void Testing::SetErrorValue(const Object& cell, std::int32_t number) {
  host_.SetErrorValue(cell, number);
}

void Testing::SetInternational(std::int32_t index, const Variant& value) {
  host_.SetInternational(index, value);
}

void Testing::SetVersion(const std::string& version) { host_.SetVersion(version); }
bool Testing::get_TrustVBProject() const { return host_.TrustsVBProject(); }
void Testing::let_TrustVBProject(bool value) { host_.TrustVBProject(value); }
void Testing::SelectShape() { host_.SelectShape(); }

}  // namespace rangewerks::hosts::workbook
