// What is shown, in words. Private to this folder's sources.
//
//   Form: Error List
//     List of Errors below.
//     5, , , No such nominal code
#pragma once

#include <string>
#include <vector>

#include "forms/form.h"

namespace rangewerks::desktops {

/// `kind`, a colon and the title on a line, each line of the texts indented below it. Empty texts
/// are left out.
std::string ShownTexts(const std::string& kind, const std::string& title,
                       const std::vector<std::string>& texts);

/// A form's caption with the texts of all controls that a person would see, those of a tree, a list
/// or a grid line by line.
std::string TextsOf(const forms::Form& form);

}  // namespace rangewerks::desktops
