#include "platform/clsExcelAbout.h"

#include "platform/frmExcelAbout.h"

namespace rangewerks {

void clsExcelAbout::Show() {
  auto& form = toolkit_->Shared<frmExcelAbout>(system_);
  form.let_Caption("About " + productName_);
  form.lblTitle.let_Caption(productName_);
  form.txtVersion.let_Text(version_);
  form.lblDisclaimer.let_Caption(disclaimer_);
  form.lblDescription.let_Caption(description_);
  form.Show(forms::Modality::Modal);
}

const automation::MemberTable& clsExcelAbout::Members() const {
  using C = clsExcelAbout;
  static const char* const kDescription = "What the product does.";
  static const char* const kDisclaimer = "The warning at the foot of the box.";
  static const char* const kCopyright = "Whose the product is; not shown.";
  static const char* const kProductName = "The product's name.";
  static const char* const kVersion = "The product's version, as text.";
  static const automation::MemberTable table =
      automation::MemberTable::For<C>("clsExcelAbout")
          .Get(1, "Description", &C::get_Description, kDescription)
          .Let(1, "Description", &C::let_Description, kDescription)
          .Get(2, "Disclaimer", &C::get_Disclaimer, kDisclaimer)
          .Let(2, "Disclaimer", &C::let_Disclaimer, kDisclaimer)
          .Get(3, "Copyright", &C::get_Copyright, kCopyright)
          .Let(3, "Copyright", &C::let_Copyright, kCopyright)
          .Get(4, "ProductName", &C::get_ProductName, kProductName)
          .Let(4, "ProductName", &C::let_ProductName, kProductName)
          .Get(5, "Version", &C::get_Version, kVersion)
          .Let(5, "Version", &C::let_Version, kVersion)
          .Method(6, "Show", &C::Show, {}, "Shows the about box until the person closes it.");
  return table;
}

}  // namespace rangewerks
