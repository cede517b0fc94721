// Whether a workbook has a right-click browse, and giving it one.
#pragma once

#include <string>

#include "platform/excel.h"

namespace rangewerks::apps {

enum class BrowseMethod {
  Property,  ///< a document property marks the workbook
  Macro,     ///< a Workbook_Open of the workbook adds the menu entry
};

/// What a workbook has of a browse. Macros of which the program gives nothing away are unknown.
struct BrowseFacts {
  enum class Answer { No, Yes, Unknown };

  Answer property = Answer::No;   ///< the document property is there and true
  Answer module = Answer::No;     ///< the module with the browse macro is there
  Answer openMacro = Answer::No;  ///< Workbook_Open adds the menu entry

  /// Whether posting programs take the workbook for one with a browse.
  bool Any() const { return property == Answer::Yes || module == Answer::Yes; }
};

/// Asks the workbook. `component` names the property and the module. Raises the program's error
/// when it can't tell the document properties.
BrowseFacts BrowseFactsOf(const excel::Workbook& workbook, const std::string& component);

/// The first line of Workbook_Open that no browse has written; empty when there is none. Adding a
/// browse by macro loses it. Raises the program's error.
std::string LineOfItsOwn(const excel::Workbook& workbook);
/// Whether any module has a line that isn't blank. Raises the program's error.
bool HasMacros(const excel::Workbook& workbook);

/// Gives the workbook a browse. Raises the program's error.
void AddBrowse(const excel::Workbook& workbook, const std::string& component, BrowseMethod method);
/// Takes a browse of that method from the workbook, whichever menu text it was added with.
void RemoveBrowse(const excel::Workbook& workbook, const std::string& component,
                  BrowseMethod method);

}  // namespace rangewerks::apps
