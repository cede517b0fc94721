// The office as a process of the operating system. Knows nothing of UNO.
//
//   OfficeProcess process;
//   ... connect to the pipe process.PipeName() ...
//   process.WaitForEnd(std::chrono::seconds(5));
#pragma once

#include <sys/types.h>

#include <chrono>
#include <filesystem>
#include <string>

namespace rangewerks::hosts::libreoffice {

/// A file descriptor that is closed with its owner.
class FileDescriptor {
 public:
  explicit FileDescriptor(int descriptor) : descriptor_(descriptor) {}
  FileDescriptor(FileDescriptor&& other) noexcept;
  FileDescriptor& operator=(FileDescriptor&& other) noexcept;
  ~FileDescriptor() { Close(); }

  int Get() const noexcept { return descriptor_; }
  void Close();

 private:
  int descriptor_;
};

/// An office, headless unless it is asked to be visible, with a profile folder and a pipe of its
/// own, so that neither the user's office nor another program's is touched.
///
/// A supervising shell holds the other end of a pipe to this process. When that pipe closes, be it
/// in the destructor or because this process died in whatever way, the shell kills the office with
/// all its children and removes the profile.
class OfficeProcess {
 public:
  /// Starts; doesn't wait until the office can be talked to. Raises 1004 when it can't be started.
  /// With `visible` it shows windows, on the display that DISPLAY names.
  explicit OfficeProcess(const std::filesystem::path& programFolder, bool visible = false);
  OfficeProcess(const OfficeProcess&) = delete;
  OfficeProcess& operator=(const OfficeProcess&) = delete;
  ~OfficeProcess();

  /// The pipe on which the office accepts connections.
  const std::string& PipeName() const noexcept { return pipeName_; }
  /// Where the profile lies. Gone once the office has ended.
  const std::filesystem::path& Folder() const noexcept { return folder_; }
  /// What the office has written to its standard output and error so far.
  std::string Output() const;

  /// True while the office runs.
  bool IsRunning();
  /// Waits until the office has ended and its folder is gone. False when it hasn't by then.
  bool WaitForEnd(std::chrono::milliseconds limit);

 private:
  std::filesystem::path folder_;
  std::string pipeName_;
  FileDescriptor output_;
  FileDescriptor lifeline_;
  pid_t supervisor_ = 0;  // 0 once it has been waited for
};

/// The folder of the installed office's programs. Raises 1004, saying what to install, when there
/// is none.
std::filesystem::path FindProgramFolder();

}  // namespace rangewerks::hosts::libreoffice
