#include "apps/rangewerks/save_target.h"

#include <algorithm>
#include <random>
#include <system_error>

#include "apps/rangewerks/closest_word.h"
#include "apps/rangewerks/failure.h"
#include "automation/text.h"

namespace rangewerks::apps {

namespace {

namespace fs = std::filesystem;

bool IsSameFile(const fs::path& first, const fs::path& second) {
  std::error_code ignored;
  return fs::equivalent(first, second, ignored);
}

void RequireExtension(const std::string& path, HostKind host) {
  const std::string extension = fs::path(path).extension().string();
  const auto written = WrittenBy(host);
  if (std::ranges::any_of(written, [&](std::string_view known) {
        return automation::EqualText(known, extension);
      })) {
    return;
  }
  throw Failure(path + ": this workbook can be saved as " + OneOf(written) +
                "; give the file such an extension");
}

void RequireFolder(const std::string& path) {
  std::error_code ignored;
  const fs::path folder = fs::absolute(path).parent_path();
  if (!fs::is_directory(folder, ignored)) {
    throw Failure(path + ": there is no folder " + folder.string() + "; make it first");
  }
}

/// A file that is removed unless it has been put elsewhere.
class FileAside {
 public:
  explicit FileAside(fs::path path) : path_(std::move(path)) {}
  FileAside(const FileAside&) = delete;
  FileAside& operator=(const FileAside&) = delete;
  ~FileAside() {
    std::error_code ignored;
    fs::remove(path_, ignored);
  }
  const fs::path& Path() const { return path_; }

 private:
  fs::path path_;
};

/// Beside the target, so that a rename can't fail for want of room, with its extension.
fs::path AsideOf(const fs::path& target) {
  return target.parent_path() /
         ("." + target.stem().string() + "-" + std::to_string(std::random_device{}()) +
          target.extension().string());
}

}  // namespace

SaveTarget::SaveTarget(const SaveOptions& options, const SheetOptions& workbook) {
  if (options.copy.empty() && !options.inPlace) {
    throw Failure("say where to save: --save COPY for a new file, or --in-place");
  }
  shown_ = options.copy.empty() ? workbook.book : options.copy;
  const bool isBook = IsSameFile(shown_, workbook.book);
  if (options.inPlace && !isBook) {
    throw Failure(shown_ + ": this isn't the workbook's own file; leave out --in-place or --save");
  }
  RequireExtension(shown_, workbook.Host());
  RequireFolder(shown_);
  if (isBook && !options.inPlace) {
    throw Failure(shown_ +
                  ": this is the workbook's own file; give another one, or say --in-place to "
                  "replace it");
  }
  std::error_code ignored;
  if (fs::is_directory(shown_, ignored)) throw Failure(shown_ + ": this is a folder");
  mayReplace_ = options.inPlace || options.overwrite;
  if (fs::exists(shown_, ignored) && !mayReplace_) {
    throw Failure(shown_ +
                  ": this file is there already; give another one, or say --overwrite to replace "
                  "it");
  }
  // A link is written through: its file is replaced, not the link.
  target_ = fs::weakly_canonical(shown_);
}

void SaveTarget::Write(const std::function<void(const std::string&)>& save) const {
  const FileAside aside(AsideOf(target_));
  save(aside.Path().string());
  PutInPlace(aside.Path());
}

void SaveTarget::PutInPlace(const fs::path& aside) const {
  std::error_code failure;
  if (!mayReplace_) {
    // Unlike a rename, a link never takes the place of a file that has appeared meanwhile.
    fs::create_hard_link(aside, target_, failure);
    if (!failure) return;
    if (failure == std::errc::file_exists) {
      throw Failure(shown_ + ": this file has appeared meanwhile and stays as it is");
    }
    failure.clear();  // a file system without links
  } else if (fs::exists(target_, failure)) {
    fs::permissions(aside, fs::status(target_).permissions(), failure);
    failure.clear();
  }
  fs::rename(aside, target_, failure);
  if (failure) throw Failure(shown_ + ": the file can't be written: " + failure.message());
}

}  // namespace rangewerks::apps
