// An entry of a JSON file that knows its place, so that whatever is wrong with it can be told with
// the file, the place, what was found and what was expected.
#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <utility>
#include <vector>

#include "automation/error.h"

namespace rangewerks::hosts::workbook {

/// Raises 1004: "book.json: /sheets/0/name: found a number, expected a text".
class JsonEntry {
 public:
  using Json = nlohmann::json;

  /// The outermost entry of a file's text. Raises 1004 with line and column when the text isn't
  /// JSON or names a key twice in one object.
  class File;

  const Json& Value() const noexcept { return *value_; }
  /// The place as a JSON pointer; "/" for the outermost entry.
  std::string Place() const { return pointer_.empty() ? "/" : pointer_; }

  bool Has(const char* key) const { return value_->contains(key); }
  /// The entry under a key. Raises 1004 when there is none.
  JsonEntry At(const std::string& key) const;
  /// The entries of an object with their keys, of an array. Raise 1004 for anything else.
  std::vector<std::pair<std::string, JsonEntry>> Members() const;
  std::vector<JsonEntry> Elements() const;
  /// The text. Raises 1004 for anything else.
  std::string Text() const;
  /// The number, true or false. Raise 1004 for anything else.
  double Number() const;
  bool Boolean() const;

  /// Raises 1004 unless the entry is an object whose keys are all among these.
  void RequireKeys(std::initializer_list<const char*> keys) const;
  /// Raises 1004: found this entry, expected that.
  [[noreturn]] void FailExpecting(const std::string& expected) const;
  /// Raises 1004 with these words behind file and place.
  [[noreturn]] void Fail(const std::string& words) const;
  /// Carries `step` out, and puts file and place in front of the words of whatever it raises.
  template <class Step>
  auto Do(Step step) const {
    try {
      return step();
    } catch (const automation::Error& error) {
      Fail(error.Description());
    }
  }

 private:
  JsonEntry(const std::string* path, const Json* value, std::string pointer)
      : path_(path), value_(value), pointer_(std::move(pointer)) {}

  const std::string* path_;
  const Json* value_;
  std::string pointer_;
};

/// The parsed text of one file; its entries refer to it.
class JsonEntry::File {
 public:
  File(std::string path, const std::string& text);
  JsonEntry Root() const { return {&path_, &root_, {}}; }

 private:
  std::string path_;
  Json root_;
};

}  // namespace rangewerks::hosts::workbook
