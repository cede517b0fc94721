// The late-bound Testing: what a script needs to set a scene in the workbook in memory and to look
// at what became of it. No call on it is noted in the call log, and none is made to fail.
//
//   Set testing = application.Testing
//   testing.LogCalls = True
//   testing.ResetCalls
//   list.SetIfRangesExist
//   WScript.Echo testing.CallCount & " calls" & vbCrLf & testing.Calls
#pragma once

#include <cstdint>
#include <string>

#include "automation/member_table.h"
#include "hosts/workbook/host.h"

namespace rangewerks::hosts::workbook {

/// Host and CallLog tell what each member does and raises.
class Testing final : public automation::AutomationClass {
 public:
  explicit Testing(Host host) : host_(std::move(host)) {}

  const automation::MemberTable& Members() const override;

  bool get_LogCalls();
  void let_LogCalls(bool value);
  /// The lines with CR LF between them; empty when there are none.
  std::string get_Calls();
  /// Of all members, or of one such as "Range.Value".
  std::int32_t get_CallCount(const Variant& member);
  void ResetCalls();
  void FailCall(std::int32_t call, std::int32_t number, const std::string& description);
  void FailMember(const std::string& member, std::int32_t number, const std::string& description);
  void ClearFailures();

  void SetShownValue(const Object& cell, const Variant& value);
  void SetErrorValue(const Object& cell, std::int32_t number);
  void SetInternational(std::int32_t index, const Variant& value);
  void SetVersion(const std::string& version);
  bool get_TrustVBProject() const;
  void let_TrustVBProject(bool value);
  void SelectShape();

 private:
  Host host_;
};

}  // namespace rangewerks::hosts::workbook
