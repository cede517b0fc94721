// A registry in memory that a test can look into.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <tuple>
#include <vector>

#include "automation/text.h"
#include "platform/registry.h"

namespace rangewerks::tests {

class MemoryRegistry final : public platform::Registry {
 public:
  using Value = platform::RegistryValue;

  Reading Read(std::int32_t root, const std::string& key, const std::string& name) const override {
    reads_.push_back(key + "|" + name);
    const auto found = values_.find(PlaceOf(root, key, name));
    if (found == values_.end()) return {kNotFound, std::nullopt};
    return {kSuccess, found->second};
  }
  std::int32_t Write(std::int32_t root, const std::string& key, const std::string& name,
                     const Value& value) override {
    writes_.push_back(key + "|" + name);
    if (status_ == kSuccess) values_[PlaceOf(root, key, name)] = value;
    return status_;
  }
  RawReading ReadWithFullAccess(std::int32_t root, const std::string& key, const std::string& name,
                                std::size_t limit) const override {
    reads_.push_back(key + "|" + name);
    const auto found = raw_.find(PlaceOf(root, key, name));
    if (found == raw_.end()) return {};
    if (found->second.bytes.size() > limit) return {.status = kMoreData};
    return found->second;
  }

  /// A value as the system stores it, which only ReadWithFullAccess finds.
  void PutRaw(std::int32_t root, const std::string& key, const std::string& name,
              std::uint32_t type, const std::string& bytes) {
    raw_[PlaceOf(root, key, name)] = {kSuccess, type, bytes};
  }
  /// A value of a type that is neither text nor number.
  void PutOfAnotherType(const std::string& key, const std::string& name) {
    values_[PlaceOf(kCurrentUser, key, name)] = std::nullopt;
  }
  /// From now on each write ends with this status, and stores nothing unless it's 0.
  void AnswerWritesWith(std::int32_t status) { status_ = status; }

  /// What was asked for since the start or the last call of Forget: "key|name".
  const std::vector<std::string>& Reads() const { return reads_; }
  const std::vector<std::string>& Writes() const { return writes_; }
  void Forget() {
    reads_.clear();
    writes_.clear();
  }
  std::size_t Size() const { return values_.size(); }

 private:
  using Place = std::tuple<std::int32_t, std::string, std::string>;

  static constexpr std::int32_t kMoreData = 234;

  static Place PlaceOf(std::int32_t root, const std::string& key, const std::string& name) {
    std::string parts;
    for (const char c : key + '\\') {
      if (c != '\\' || !parts.ends_with('\\')) parts += c;
    }
    return {root, automation::FoldCase(parts), automation::FoldCase(name)};
  }

  std::map<Place, std::optional<Value>> values_;
  std::map<Place, RawReading> raw_;
  mutable std::vector<std::string> reads_;
  std::vector<std::string> writes_;
  std::int32_t status_ = kSuccess;
};

}  // namespace rangewerks::tests
