// A variable of the environment for the length of a test. POSIX only.
#pragma once

#include <cstdlib>
#include <optional>
#include <string>

namespace rangewerks::tests {

class Setting {
 public:
  /// Null takes the variable out.
  Setting(const char* name, const char* value) : name_(name) {
    if (const char* before = std::getenv(name)) before_ = before;
    Put(value);
  }
  Setting(const Setting&) = delete;
  Setting& operator=(const Setting&) = delete;
  ~Setting() { Put(before_ ? before_->c_str() : nullptr); }

 private:
  void Put(const char* value) const {
    if (value != nullptr) {
      setenv(name_, value, 1);
    } else {
      unsetenv(name_);
    }
  }

  const char* name_;
  std::optional<std::string> before_;
};

}  // namespace rangewerks::tests
