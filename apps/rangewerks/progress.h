// How far a long run has come, for a person who waits at a terminal.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <ostream>

namespace rangewerks::apps {

/// One line that is written over and over. Nothing is written in the first second, more often than
/// ten times a second, or when the output isn't a terminal.
class Progress {
 public:
  using Clock = std::function<std::chrono::steady_clock::time_point()>;

  Progress(std::ostream& output, bool isTerminal, Clock clock = std::chrono::steady_clock::now);
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;
  ~Progress() { Clear(); }

  /// `what` is the word for what is counted.
  void Show(std::int32_t done, std::int32_t all, const char* what = "row");
  /// Takes the line away.
  void Clear();

 private:
  std::ostream& output_;
  bool isTerminal_;
  Clock clock_;
  std::chrono::steady_clock::time_point next_;
  bool isShown_ = false;
};

}  // namespace rangewerks::apps
