#include "hosts/libreoffice/menu_board.h"

#include <utility>

namespace rangewerks::hosts::libreoffice {

void MenuBoard::Show(std::vector<ShownEntry> entries) {
  const std::scoped_lock lock(mutex_);
  shown_ = std::move(entries);
}

std::vector<ShownEntry> MenuBoard::Shown() const {
  const std::scoped_lock lock(mutex_);
  return shown_;
}

void MenuBoard::Choose(std::int32_t id) {
  const std::scoped_lock lock(mutex_);
  chosen_.push_back(id);
  changed_.notify_all();
}

std::optional<std::int32_t> MenuBoard::TakeChoice(std::chrono::milliseconds wait) {
  std::unique_lock lock(mutex_);
  if (!changed_.wait_for(lock, wait, [this] { return !chosen_.empty(); })) return std::nullopt;
  const std::int32_t id = chosen_.front();
  chosen_.pop_front();
  return id;
}

}  // namespace rangewerks::hosts::libreoffice
