#include "apps/rangewerks/progress.h"

#include <utility>

namespace rangewerks::apps {

using namespace std::chrono_literals;

Progress::Progress(std::ostream& output, bool isTerminal, Clock clock)
    : output_(output), isTerminal_(isTerminal), clock_(std::move(clock)), next_(clock_() + 1s) {}

void Progress::Show(std::int32_t done, std::int32_t all, const char* what) {
  if (!isTerminal_ || clock_() < next_) return;
  Write(std::string(what) + ' ' + std::to_string(done) + " of " + std::to_string(all));
}

void Progress::Say(const std::string& doing) { Write(doing); }

void Progress::Write(const std::string& line) {
  if (!isTerminal_) return;
  next_ = clock_() + 100ms;
  isShown_ = true;
  output_ << "\rrangewerks: " << line << "\x1b[K" << std::flush;
}

void Progress::Clear() {
  if (std::exchange(isShown_, false)) output_ << "\r\x1b[K" << std::flush;
}

}  // namespace rangewerks::apps
