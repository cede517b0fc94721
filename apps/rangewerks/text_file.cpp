#include "apps/rangewerks/text_file.h"

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>

#include "apps/rangewerks/failure.h"

namespace rangewerks::apps {

std::string ReadTextFile(const std::string& path, const std::string& kind) {
  std::error_code ignored;
  if (std::filesystem::is_directory(path, ignored)) {
    throw Failure(path + ": this is a folder; give the " + kind + " itself");
  }
  std::ifstream file(path, std::ios::binary);
  if (!file) {
    throw Failure(path + ": can't open the " + kind + ": " +
                  std::generic_category().message(errno));
  }
  std::string text{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  if (file.bad()) throw Failure(path + ": can't read the " + kind + " to its end");
  return text;
}

}  // namespace rangewerks::apps
