#include "hosts/libreoffice/failure.h"

#include "automation/error.h"
#include "hosts/libreoffice/uno.h"

namespace rangewerks::hosts::libreoffice {
namespace {

using automation::Error;
using automation::ErrorNumber;

std::string WordsOf(const css::uno::Exception& failure) {
  const std::string message = ToUtf8(failure.Message);
  return message.empty() ? "LibreOffice gives no reason." : message;
}

}  // namespace

void Fail(const std::string& description) {
  throw Error(static_cast<std::int32_t>(ErrorNumber::ApplicationDefined), kErrorSource,
              description);
}

void FailElement(const std::string& description) {
  throw Error(static_cast<std::int32_t>(ErrorNumber::SubscriptOutOfRange), kErrorSource,
              description);
}

void RaiseAsError(const std::string& what) {
  try {
    throw;
  } catch (const css::lang::DisposedException&) {
    Fail(what + " failed: LibreOffice has ended, or the workbook has been closed.");
  } catch (const css::container::NoSuchElementException& failure) {
    Fail(what + " failed: there is no such element. " + WordsOf(failure));
  } catch (const css::uno::Exception& failure) {
    Fail(what + " failed: " + WordsOf(failure));
  }
}

}  // namespace rangewerks::hosts::libreoffice
