#include "hosts/workbook/failure.h"

#include "automation/error.h"

namespace rangewerks::hosts::workbook {
namespace {

using automation::Error;
using automation::ErrorNumber;

}  // namespace

void Refuse(const std::string& description) {
  throw Error(static_cast<std::int32_t>(ErrorNumber::ApplicationDefined), kSource, description);
}

void RefuseElement(const std::string& description) {
  throw Error(static_cast<std::int32_t>(ErrorNumber::SubscriptOutOfRange), kSource, description);
}

}  // namespace rangewerks::hosts::workbook
