// What passes between the menu as callers see it and the office that shows it.
#pragma once

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace rangewerks::hosts::libreoffice {

/// One entry that the office is to add to the menu.
struct ShownEntry {
  std::int32_t id;
  std::string caption;
  std::string before;  ///< the office's command whose entry follows; empty at the end
};

/// The office asks and tells on threads of the connection, callers on theirs.
class MenuBoard {
 public:
  void Show(std::vector<ShownEntry> entries);
  std::vector<ShownEntry> Shown() const;

  /// A person has chosen the entry.
  void Choose(std::int32_t id);
  /// The entry that was chosen longest ago and not taken yet. Waits for one at most that long.
  std::optional<std::int32_t> TakeChoice(std::chrono::milliseconds wait);

 private:
  mutable std::mutex mutex_;
  std::condition_variable changed_;
  std::vector<ShownEntry> shown_;
  std::deque<std::int32_t> chosen_;
};

}  // namespace rangewerks::hosts::libreoffice
