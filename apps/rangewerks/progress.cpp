#include "apps/rangewerks/progress.h"

#include <utility>

namespace rangewerks::apps {

using namespace std::chrono_literals;

Progress::Progress(std::ostream& output, bool isTerminal, Clock clock)
    : output_(output), isTerminal_(isTerminal), clock_(std::move(clock)), next_(clock_() + 1s) {}

void Progress::Show(std::int32_t done, std::int32_t all, const char* what) {
  if (!isTerminal_) return;
  const auto now = clock_();
  if (now < next_) return;
  next_ = now + 100ms;
  isShown_ = true;
  output_ << "\rrangewerks: " << what << ' ' << done << " of " << all << "\x1b[K" << std::flush;
}

void Progress::Clear() {
  if (std::exchange(isShown_, false)) output_ << "\r\x1b[K" << std::flush;
}

}  // namespace rangewerks::apps
