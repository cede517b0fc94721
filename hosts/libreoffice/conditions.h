// The conditional formats of a sheet, seen through the office's interfaces.
#pragma once

#include <com/sun/star/sheet/XConditionEntry.hpp>
#include <com/sun/star/sheet/XConditionalFormat.hpp>
#include <string>
#include <vector>

#include "hosts/libreoffice/cells_part.h"

namespace rangewerks::hosts::libreoffice {

/// One condition as callers see it. The office keeps conditions as formats, each the list of those
/// that the same cells have; so one that was given to cells of which some had others before stands
/// in several.
struct Condition {
  struct Part {
    Reference<css::sheet::XConditionalFormat> format;
    std::int32_t position;    ///< in the format, from 0
    std::vector<Area> areas;  ///< of the format

    Reference<css::beans::XPropertySet> Entry() const;
  };
  std::vector<Part> parts;
  std::int32_t kind;  ///< of ConditionEntryType
};

/// All that any of the cells has, in the order of their adding. Quick for cells that have none;
/// otherwise every format of the sheet has to be looked at.
std::vector<Condition> ConditionsOf(const CellBlock& cells);

/// One condition of cells by its position among theirs, from 1. What was found is kept for as long
/// as it is still so.
class FoundCondition {
 public:
  FoundCondition(CellBlock cells, std::int32_t position)
      : cells_(std::move(cells)), position_(position) {}

  const CellBlock& Cells() const noexcept { return cells_; }
  /// Raises 9 when there is none.
  const Condition& Get();
  /// The same, and raises 1004 for a conditional format of another kind: a scale of colours.
  const Condition& GetPlain();

 private:
  CellBlock cells_;
  std::int32_t position_;
  std::optional<Condition> found_;
};

/// Adds one behind those that the cells have, with a formula in the office's notation as of the
/// first cell, and returns its position among them, from 1. Raises 1004 when the cells have
/// conditions that the office would drop then.
std::int32_t AddCondition(const CellBlock& cells, const std::string& formula);

/// Takes all conditions from the cells; other cells keep theirs.
void ClearConditions(const CellBlock& cells);

/// Takes one from the cells.
void RemoveCondition(const CellBlock& cells, const Condition& condition);

}  // namespace rangewerks::hosts::libreoffice
