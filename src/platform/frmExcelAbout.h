// The about box. It can start the system information program.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "forms/form.h"
#include "forms/simple_controls.h"
#include "platform/system.h"

namespace rangewerks {

class frmExcelAbout final : public forms::Form {
 public:
  frmExcelAbout(forms::Toolkit& toolkit, std::shared_ptr<const platform::System> system);

  forms::PictureBox picIcon{
      *this, "picIcon", {.place = {240, 240, 540, 540}, .picture = forms::Picture::Product}};
  forms::Label lblTitle{*this,
                        "lblTitle",
                        {.place = {1020, 240, 4620, 480},
                         .text = "Application Title",
                         .useMnemonic = false,
                         .bold = true,
                         .fontSize = 14}};
  forms::TextBox txtVersion{*this, "txtVersion", {.place = {1020, 780, 4620, 285}, .locked = true}};
  forms::DividingLine Line1{*this, "Line1", {.place = {120, 1245, 5520, 15}}};
  forms::Label lblDescription{
      *this,
      "lblDescription",
      {.place = {1020, 1365, 4620, 1215}, .text = "App Description", .useMnemonic = false}};
  /// The other one of that name.
  forms::DividingLine SecondLine1{*this, "Line1", {.place = {120, 2700, 5520, 15}}};
  forms::Label lblDisclaimer{
      *this,
      "lblDisclaimer",
      {.place = {240, 2820, 3780, 1020}, .text = "Warning: ...", .useMnemonic = false}};
  forms::CommandButton cmdOK{
      *this,
      "cmdOK",
      {.place = {4140, 2820, 1500, 375}, .text = "OK", .isDefault = true, .isCancel = true}};
  forms::CommandButton cmdSysInfo{
      *this, "cmdSysInfo", {.place = {4140, 3315, 1500, 375}, .text = "&System Info..."}};

 private:
  void StartSysInfo();
  void StartSystemProgram() const;
  bool GetKeyValue(std::int32_t hRoot, const std::string& sKey, const std::string& sValueName,
                   std::string& sValue) const;

  std::shared_ptr<const platform::System> system_;
};

}  // namespace rangewerks
