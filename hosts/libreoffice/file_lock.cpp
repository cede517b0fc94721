#include "hosts/libreoffice/file_lock.h"

#include <fstream>
#include <vector>

namespace rangewerks::hosts::libreoffice {
namespace {

/// The parts of a lock file: full name, login, computer, time, profile; separated by commas, each
/// comma that is part of a text behind a backslash.
std::vector<std::string> ReadParts(std::istream& file) {
  std::vector<std::string> parts(1);
  char c = 0;
  while (file.get(c) && c != ';') {
    if (c == '\\') {
      if (file.get(c)) parts.back() += c;
    } else if (c == ',') {
      parts.emplace_back();
    } else {
      parts.back() += c;
    }
  }
  return parts;
}

}  // namespace

std::filesystem::path LockFileOf(const std::filesystem::path& document) {
  return document.parent_path() / (".~lock." + document.filename().string() + "#");
}

std::optional<std::string> LockOwnerOf(const std::filesystem::path& document) {
  std::ifstream file(LockFileOf(document));
  if (!file) return std::nullopt;
  auto parts = ReadParts(file);
  parts.resize(3);
  std::string owner = parts[0].empty() ? parts[1] : parts[0];
  if (owner.empty()) owner = "somebody";
  if (!parts[2].empty()) owner += " on " + parts[2];
  return owner;
}

}  // namespace rangewerks::hosts::libreoffice
