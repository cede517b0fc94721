// How the cells of a sheet look and what may be entered into them, for a workbook file.
#pragma once

#include <nlohmann/json.hpp>
#include <string>

#include "hosts/workbook/model.h"

namespace rangewerks::hosts::workbook {

/// The address without "$".
std::string PlainAddressOf(const Area& area);
/// Adds the keys that ReadSheetFormats reads, each where the sheet has some of it.
void AddSheetFormats(nlohmann::ordered_json& entry, const Sheet& sheet);

}  // namespace rangewerks::hosts::workbook
