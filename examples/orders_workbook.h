// The example order form: plain workbook names with a prefix.
#pragma once

#include <string>

#include "hosts/libreoffice/office.h"

namespace rangewerks::examples {

void WriteOrders(hosts::libreoffice::Office& office, const std::string& path);

}  // namespace rangewerks::examples
