// The colour panel as callers by name see it: a control that other programs put on their own forms.
#pragma once

#include <memory>
#include <string>
#include <utility>

#include "automation/member_table.h"
#include "sheetbuild/ctlColourPallet.h"

namespace rangewerks {

/// Hands every member on to a panel, which it shares.
class ColourPalletObject final : public automation::AutomationClass {
 public:
  explicit ColourPalletObject(std::shared_ptr<ctlColourPallet> panel) : panel_(std::move(panel)) {}

  const automation::MemberTable& Members() const override;
  ctlColourPallet& Panel() const { return *panel_; }

  std::int32_t get_HeadingColour() const { return panel_->get_HeadingColour(); }
  void let_HeadingColour(std::int32_t value) { panel_->let_HeadingColour(value); }
  std::int32_t get_ColumnColour() const { return panel_->get_ColumnColour(); }
  void let_ColumnColour(std::int32_t value) { panel_->let_ColumnColour(value); }
  void LoadColours() { panel_->LoadColours(); }
  void NameOfTheFrame(const std::string& text) { panel_->NameOfTheFrame(text); }
  void EnableControl(bool flag) { panel_->EnableControl(flag); }
  void EnableTxtClmColour(bool flag) { panel_->EnableTxtClmColour(flag); }
  void EnableTxtHeadColour(bool flag) { panel_->EnableTxtHeadColour(flag); }
  void Framelength(std::int16_t length) { panel_->Framelength(length); }

 private:
  std::shared_ptr<ctlColourPallet> panel_;
};

}  // namespace rangewerks
