#include "errors/frmErrMessage.h"

#include <utility>

#include "automation/conversions.h"
#include "errors/frmErrorDesc.h"

namespace rangewerks {

frmErrMessage::frmErrMessage(forms::Toolkit& toolkit,
                             std::shared_ptr<const platform::System> system)
    : Form(toolkit, "frmErrMessage",
           {.caption = "An Error Has Occurred",
            .innerWidth = 6600,
            .innerHeight = 4440,
            .fontName = "Tahoma",
            .fontSize = 8}),
      system_(std::move(system)) {
  cmdShowDetail.Click = [this] { SetDetailVisible(!txtExtra.get_Visible()); };
  cmdEmail.Click = [this] { cmdEmail_Click(); };
  cmdOK.Click = [this] { Unload(); };
}

void frmErrMessage::Form_Load() {
  fullHeight_ = static_cast<std::int32_t>(automation::RoundHalfEven(get_Height(), 0));
  SetDetailVisible(false);
}

void frmErrMessage::SetDetailVisible(bool bShow) {
  double height = fullHeight_;
  if (!bShow) height -= txtExtra.get_Height() + txtErrorNumber.get_Height();
  let_Height(height);
  txtErrorNumber.let_Visible(bShow);
  txtExtra.let_Visible(bShow);
  cmdShowDetail.let_Caption(bShow ? "Hide Detail" : "Show Detail");
}

void frmErrMessage::cmdEmail_Click() {
  const auto form = std::make_shared<frmErrorDesc>(Desktop(), system_);
  form->let_ErrorMessageText(txtMainMessage.get_Text());
  form->let_ExtraMessageText(txtExtra.get_Text());
  form->let_ErrorNumberText(txtErrorNumber.get_Text());
  form->Show(forms::Modality::Modal);
}

}  // namespace rangewerks
