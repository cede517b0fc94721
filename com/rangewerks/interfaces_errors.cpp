// The slots of what tells of failures, in the order of their member tables.
#include <rangewerks.h>

#include "com/rangewerks/interfaces.h"

namespace rangewerks::com {

DualInterface ErrorMessageBoxInterface() {
  using I = ::_ErrorMessageBox;
  return MakeDualInterface<I, &I::get_ErrorMessage, &I::put_ErrorMessage, &I::get_ErrorNumber,
                           &I::put_ErrorNumber, &I::get_ExtraMessage, &I::put_ExtraMessage,
                           &I::DisplayMessage, &I::DisplayErrMessage>("ErrorMessageBox");
}

DualInterface ErrL100JrnInterface() { return MakeDualInterface<::_errL100Jrn>("errL100Jrn"); }

DualInterface ErrorListInterface() {
  using I = ::_clsErrorList;
  return MakeDualInterface<I, &I::get_ErrorCount, &I::get_WarningCount, &I::get_KeyRange,
                           &I::putref_KeyRange, &I::ClearList, &I::ResetList, &I::AddError,
                           &I::DisplayList, &I::Add>("clsErrorList");
}

}  // namespace rangewerks::com
