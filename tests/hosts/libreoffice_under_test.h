// The one office that all tests of this program share: starting it takes about a second.
#pragma once

#include "hosts/libreoffice/office.h"

namespace rangewerks::tests {

/// Started when first asked for, ended after the last test.
hosts::libreoffice::Office& SharedOffice();

}  // namespace rangewerks::tests
