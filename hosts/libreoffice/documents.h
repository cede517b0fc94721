// Opening, making and saving documents.
#pragma once

#include <string>
#include <vector>

#include "hosts/libreoffice/book.h"
#include "hosts/libreoffice/office.h"

namespace rangewerks::hosts::libreoffice {

/// As Office::Open.
BookPointer OpenDocument(Session& session, const std::string& path, OpenOptions options);
/// As Office::NewWorkbook.
BookPointer NewDocument(Session& session, const std::vector<std::string>& sheets);

/// As Office::SaveCopyAs.
void SaveDocumentCopy(Book& book, const std::string& path);
/// Writes the document to the file that it came from.
void SaveDocument(Book& book);

/// The address under which the office knows a file.
OUString UrlOf(const std::string& path);

}  // namespace rangewerks::hosts::libreoffice
