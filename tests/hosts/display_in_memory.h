// A display without a screen, for what shows windows.
#pragma once

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>

namespace rangewerks::tests {

/// Runs Xvfb for as long as it lives; DISPLAY names it meanwhile.
class DisplayInMemory {
 public:
  DisplayInMemory() {
    server_ = popen(
        "echo $$; exec Xvfb -displayfd 1 -screen 0 1000x700x24 -nolisten tcp -noreset 2>/dev/null",
        "r");
    process_ = std::atoi(Line().c_str());
    number_ = Line();
    if (!IsThere()) return;
    if (const char* before = std::getenv("DISPLAY")) before_ = before;
    setenv("DISPLAY", (":" + number_).c_str(), 1);
  }
  DisplayInMemory(const DisplayInMemory&) = delete;
  DisplayInMemory& operator=(const DisplayInMemory&) = delete;
  ~DisplayInMemory() {
    if (IsThere()) {
      kill(process_, SIGTERM);
      before_.empty() ? unsetenv("DISPLAY") : setenv("DISPLAY", before_.c_str(), 1);
    }
    pclose(server_);
  }

  /// False when Xvfb isn't installed or doesn't start.
  bool IsThere() const { return !number_.empty(); }

 private:
  std::string Line() {
    std::string line;
    for (int c = std::fgetc(server_); c != EOF && c != '\n'; c = std::fgetc(server_)) {
      line += static_cast<char>(c);
    }
    return line;
  }

  FILE* server_ = nullptr;
  pid_t process_ = 0;
  std::string number_;
  std::string before_;
};

}  // namespace rangewerks::tests
