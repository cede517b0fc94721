// The small files that spreadsheet programs leave beside a workbook while they have it open.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace rangewerks::hosts::libreoffice {

/// The file by which LibreOffice locks a document: ".~lock.NAME#" in the same folder.
std::filesystem::path LockFileOf(const std::filesystem::path& document);

/// Who has locked the document: the user and the computer as the lock file tells them, "somebody"
/// when it tells nothing. None when there is no lock.
std::optional<std::string> LockOwnerOf(const std::filesystem::path& document);

}  // namespace rangewerks::hosts::libreoffice
