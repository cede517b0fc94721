// The file that a changed workbook is saved to.
#pragma once

#include <filesystem>
#include <functional>
#include <string>

#include "apps/rangewerks/command.h"

namespace rangewerks::apps {

struct SaveOptions {
  std::string copy;        ///< path of the file to be written
  bool inPlace = false;    ///< the workbook's own file is to be replaced
  bool overwrite = false;  ///< a file that is there already may be replaced
};

class SaveTarget {
 public:
  /// Raises Failure unless exactly one file is named, its extension is one that the host writes,
  /// its folder is there, and it may be written: the workbook's own file only in place, another
  /// that is there already only when it may be overwritten.
  SaveTarget(const SaveOptions& options, const SheetOptions& workbook);

  /// As the caller has named it.
  std::string Path() const { return shown_; }
  /// Has `save` write a file beside the target, and puts that in its place: the target appears
  /// whole or not at all. Raises Failure when it can't be put there, and what `save` raises.
  void Write(const std::function<void(const std::string& path)>& save) const;

 private:
  void PutInPlace(const std::filesystem::path& aside) const;

  std::string shown_;
  std::filesystem::path target_;
  bool mayReplace_ = false;
};

}  // namespace rangewerks::apps
