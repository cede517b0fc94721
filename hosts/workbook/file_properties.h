// The custom document properties of a workbook in its file.
#pragma once

#include "hosts/workbook/document_property.h"
#include "hosts/workbook/json_entry.h"

namespace rangewerks::hosts::workbook {

/// Reads the list of properties. Raises 1004 with the place for what a property can't be.
DocumentPropertyList ReadFileProperties(const JsonEntry& entry);
/// The list that ReadFileProperties reads.
nlohmann::ordered_json JsonOfProperties(const DocumentPropertyList& properties);

}  // namespace rangewerks::hosts::workbook
