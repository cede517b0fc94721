#include "automation/dispatch.h"

#include <algorithm>
#include <utility>

#include "automation/error.h"

namespace rangewerks::automation {

const char* KindName(CallKind kind) {
  switch (kind) {
    case CallKind::Get:
      return "get";
    case CallKind::Let:
      return "let";
    case CallKind::Set:
      return "set";
    case CallKind::Call:
      break;
  }
  return "call";
}

Argument Argument::Reference(Variant& variable) {
  Argument argument;
  argument.target_ = &variable;
  return argument;
}

void Argument::Assign(Variant value) const {
  if (target_ != nullptr) *target_ = std::move(value);
}

bool SnapshotEnumerator::Next(Variant& element) {
  if (position_ == elements_.size()) return false;
  element = std::move(elements_[position_++]);
  return true;
}

std::unique_ptr<Enumerator> Dispatch::Enumerate() { throw Error(ErrorNumber::NotACollection); }

// Overrides keep the handler, so it is taken by value.
// NOLINTNEXTLINE(performance-unnecessary-value-param)
Connection Dispatch::Connect(EventHandler /*handler*/) { throw Error(ErrorNumber::NoSuchEvents); }

struct EventSource::Handlers {
  std::vector<std::shared_ptr<EventHandler>> connected;
};

Connection EventSource::Connect(EventHandler handler) {
  if (!handlers_) handlers_ = std::make_shared<Handlers>();
  auto shared = std::make_shared<EventHandler>(std::move(handler));
  handlers_->connected.push_back(shared);
  return Connection([handlers = std::weak_ptr(handlers_), shared] {
    if (const auto alive = handlers.lock()) std::erase(alive->connected, shared);
  });
}

void EventSource::Raise(Member event, std::span<const Argument> arguments) const {
  if (!handlers_) return;
  const auto all = handlers_->connected;  // a handler may disconnect itself or another
  const auto handlers = handlers_;        // or drop the source
  for (const auto& handler : all) {
    const auto& now = handlers->connected;
    if (std::find(now.begin(), now.end(), handler) != now.end()) (*handler)(event, arguments);
  }
}

Connection& Connection::operator=(Connection&& other) noexcept {
  if (this != &other) {
    Disconnect();
    disconnect_ = std::exchange(other.disconnect_, {});
  }
  return *this;
}

void Connection::Disconnect() {
  if (const auto disconnect = std::exchange(disconnect_, {})) disconnect();
}

}  // namespace rangewerks::automation
