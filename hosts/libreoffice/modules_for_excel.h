// Macro modules on their way into a file of Excel's.
#pragma once

#include <com/sun/star/container/XNameContainer.hpp>
#include <vector>

#include "hosts/libreoffice/book.h"

namespace rangewerks::hosts::libreoffice {

/// While this lives the modules are as the office writes them best to a file of Excel's: it ends
/// each with one line more than it has, and knows the project by a name that other files don't
/// keep.
class ModulesForExcelFile {
 public:
  explicit ModulesForExcelFile(Book& book);
  ModulesForExcelFile(const ModulesForExcelFile&) = delete;
  ModulesForExcelFile& operator=(const ModulesForExcelFile&) = delete;
  /// What can't be put back, because the office has ended, isn't.
  ~ModulesForExcelFile();

 private:
  struct Shortened {
    OUString name;
    OUString text;
  };
  Reference<css::container::XNameContainer> library_;
  std::vector<Shortened> shortened_;
};

}  // namespace rangewerks::hosts::libreoffice
