// What a class's member table says, one text for each entry.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "automation/member_table.h"

namespace rangewerks::tests {

/// Identifier, role, name and arguments: `6 call AddError(lLineNumber, Err, bIsWarning = False)`.
/// Each entry has to have a help string.
inline std::vector<std::string> MemberTexts(const automation::AutomationClass& object) {
  std::vector<std::string> texts;
  for (const automation::MemberInfo& entry : object.Members().Entries()) {
    std::string arguments;
    for (const automation::ArgumentInfo& argument : entry.arguments) {
      arguments += (arguments.empty() ? "" : ", ") + argument.name.Name();
      if (!argument.defaultValue) continue;
      arguments += " = " + ToString(*argument.defaultValue, automation::Locale());
    }
    texts.push_back(std::to_string(entry.id) + " " + KindName(entry.kind) + " " +
                    entry.name.Name() +
                    (entry.kind == automation::CallKind::Call ? "(" + arguments + ")" : ""));
    EXPECT_FALSE(entry.help.empty()) << texts.back();
  }
  return texts;
}

}  // namespace rangewerks::tests
