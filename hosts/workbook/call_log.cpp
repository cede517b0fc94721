#include "hosts/workbook/call_log.h"

#include "automation/conversions.h"
#include "automation/error.h"
#include "hosts/workbook/failure.h"

namespace rangewerks::hosts::workbook {
namespace {

using automation::Argument;
using automation::Error;
using automation::ErrorNumber;
using automation::ErrorValue;
using automation::Invocation;
using automation::Kind;
using automation::Member;
using automation::Variant;

Member WalkMember() {
  static const Member member("enumerate");
  return member;
}

std::string Quoted(const std::string& text) {
  std::string quoted = "\"";
  for (const char c : text) {
    quoted += c;
    if (c == '"') quoted += c;
  }
  return quoted + "\"";
}

std::string Shown(const Variant& value) {
  switch (value.GetKind()) {
    case Kind::Empty:
    case Kind::Null:
      return value.TypeName();
    case Kind::String:
      return Quoted(*value.TryGet<std::string>());
    case Kind::Date:
      return "#" + IsoDate(*value.TryGet<automation::Date>()) + "#";
    case Kind::Error:
      if (value.IsMissing()) return "(omitted)";
      return "Error " + std::to_string(value.TryGet<ErrorValue>()->Number());
    case Kind::Object:
      return value.TypeName();
    case Kind::Array:
      return "Array(" + std::to_string(value.AsArray().Rows()) + ", " +
             std::to_string(value.AsArray().Columns()) + ")";
    case Kind::Boolean:
    case Kind::Integer:
    case Kind::Long:
    case Kind::Double:
      break;
  }
  return ToString(value, automation::Locale());
}

std::string LineOf(Member type, const Invocation& call) {
  std::string line = type.Name() + "." + call.member.Name() + " " + KindName(call.kind);
  const char* separator = " ";
  for (const Argument& argument : call.positional) {
    line += separator + Shown(argument.Value());
    separator = ", ";
  }
  for (const auto& [name, argument] : call.named) {
    line += separator + name.Name() + ":=" + Shown(argument.Value());
    separator = ", ";
  }
  return line;
}

}  // namespace

CallLog::Key CallLog::KeyOf(Member type, Member member) {
  return (Key{type.Id()} << 32U) | member.Id();
}

CallLog::Key CallLog::KeyOf(std::string_view member) {
  const std::size_t mark = member.find_first_of(". ");
  if (mark == std::string_view::npos) {
    throw Error(ErrorNumber::InvalidProcedureCall,
                "\"" + std::string(member) + "\" doesn't name a type and its member");
  }
  return KeyOf(Member(member.substr(0, mark)), Member(member.substr(mark + 1)));
}

std::size_t CallLog::Count(std::string_view member) const {
  const auto found = counts_.find(KeyOf(member));
  return found == counts_.end() ? 0 : found->second;
}

void CallLog::Reset() {
  lines_.clear();
  count_ = 0;
  counts_.clear();
}

void CallLog::FailCall(std::size_t n, std::int32_t number, std::string description) {
  if (n == 0) throw Error(ErrorNumber::InvalidProcedureCall);
  callFailures_.insert_or_assign(made_ + n, Failure{number, std::move(description)});
}

void CallLog::FailMember(std::string_view member, std::int32_t number, std::string description) {
  memberFailures_.insert_or_assign(KeyOf(member), Failure{number, std::move(description)});
}

void CallLog::ClearFailures() {
  callFailures_.clear();
  memberFailures_.clear();
}

bool CallLog::Announce() {
  if (!watcher_) return true;
  if (watching_) return false;
  watching_ = true;
  watcher_();
  watching_ = false;
  return true;
}

void CallLog::Note(Member type, const Invocation& call) {
  if (!Announce()) return;
  if (logging_) lines_.push_back(LineOf(type, call));
  NoteKey(KeyOf(type, call.member));
}

void CallLog::NoteWalk(Member type) {
  if (!Announce()) return;
  if (logging_) lines_.push_back(type.Name() + " enumerate");
  NoteKey(KeyOf(type, WalkMember()));
}

void CallLog::NoteKey(Key key) {
  ++count_;
  ++made_;
  ++counts_[key];
  RaiseRequested(key);
}

void CallLog::RaiseRequested(Key key) {
  if (!callFailures_.empty()) {
    if (const auto failure = callFailures_.extract(made_)) {
      throw Error(failure.mapped().number, kSource, failure.mapped().description);
    }
  }
  if (memberFailures_.empty()) return;
  if (const auto failure = memberFailures_.find(key); failure != memberFailures_.end()) {
    throw Error(failure->second.number, kSource, failure->second.description);
  }
}

}  // namespace rangewerks::hosts::workbook
