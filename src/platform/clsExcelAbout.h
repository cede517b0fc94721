// The about box of an interface, from the texts that the interface sets.
//
//   clsExcelAbout about(toolkit, system);
//   about.let_ProductName("Journals");
//   about.let_Version("2.1");
//   about.Show();
#pragma once

#include <memory>
#include <string>

#include "automation/member_table.h"
#include "forms/toolkit.h"
#include "platform/system.h"

namespace rangewerks {

class clsExcelAbout final : public automation::AutomationClass {
 public:
  clsExcelAbout(std::shared_ptr<forms::Toolkit> toolkit,
                std::shared_ptr<const platform::System> system)
      : toolkit_(std::move(toolkit)), system_(std::move(system)) {}

  const automation::MemberTable& Members() const override;

  const std::string& get_Description() const { return description_; }
  void let_Description(const std::string& value) { description_ = value; }
  const std::string& get_Disclaimer() const { return disclaimer_; }
  void let_Disclaimer(const std::string& value) { disclaimer_ = value; }
  /// Kept, but shown nowhere.
  const std::string& get_Copyright() const { return copyright_; }
  void let_Copyright(const std::string& value) { copyright_ = value; }
  const std::string& get_ProductName() const { return productName_; }
  void let_ProductName(const std::string& value) { productName_ = value; }
  const std::string& get_Version() const { return version_; }
  void let_Version(const std::string& value) { version_ = value; }

  /// Shows the box and returns when the person has closed it.
  void Show();

 private:
  std::shared_ptr<forms::Toolkit> toolkit_;
  std::shared_ptr<const platform::System> system_;
  std::string description_;
  std::string disclaimer_;
  std::string copyright_;
  std::string productName_;
  std::string version_;
};

}  // namespace rangewerks
