#include "hosts/libreoffice/office_object.h"

namespace rangewerks::hosts::libreoffice {

void RequireOpen(const Book& book) {
  if (book.closed) Fail("The workbook has been closed");
}

void RequireThere(const Sheet& sheet) {
  RequireOpen(sheet.OfBook());
  if (sheet.deleted) Fail("The sheet has been deleted");
}

}  // namespace rangewerks::hosts::libreoffice
