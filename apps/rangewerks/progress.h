// How far a long run has come, for a person who waits at a terminal.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <ostream>
#include <string>

namespace rangewerks::apps {

/// One line that is written over and over; nothing is written when the output isn't a terminal.
class Progress {
 public:
  using Clock = std::function<std::chrono::steady_clock::time_point()>;

  Progress(std::ostream& output, bool isTerminal, Clock clock = std::chrono::steady_clock::now);
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;
  ~Progress() { Clear(); }

  /// `what` is the word for what is counted. Not shown in the first second, nor more often than ten
  /// times a second.
  void Show(std::int32_t done, std::int32_t all, const char* what = "row");
  /// What is being done now, for a step that can't tell how far it has come. Shown at once: until
  /// the step is over there is no other chance.
  void Say(const std::string& doing);
  /// Takes the line away.
  void Clear();

 private:
  void Write(const std::string& line);

  std::ostream& output_;
  bool isTerminal_;
  Clock clock_;
  std::chrono::steady_clock::time_point next_;
  bool isShown_ = false;
};

}  // namespace rangewerks::apps
