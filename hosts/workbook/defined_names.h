// The defined names of one workbook.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <variant>
#include <vector>

#include "automation/text.h"
#include "hosts/common/area.h"

namespace rangewerks::hosts::workbook {

struct Book;
struct Sheet;
using SheetPointer = std::shared_ptr<Sheet>;

/// Cells of one sheet. The sheet may have been deleted.
struct Reference {
  SheetPointer sheet;
  Area area;
  friend bool operator==(const Reference&, const Reference&) = default;
};

/// What a name stands for: cells, or a text such as "=12.5" that isn't looked into.
using NameContent = std::variant<Reference, std::string>;

/// One defined name. Belongs to a sheet when it has one in `scope`.
struct DefinedName {
  std::string name;  ///< without the sheet
  SheetPointer scope;
  NameContent content;
  bool deleted = false;

  /// The name as the object model tells it: with "Sheet1!" in front when it belongs to a sheet.
  std::string FullName() const;
  /// The cells, or null for a constant, a formula and a dead reference.
  const Reference* Cells() const;
};
using NamePointer = std::shared_ptr<DefinedName>;

/// The names of a workbook, unique by their full text without regard to case.
class DefinedNames {
 public:
  /// The name of that full text ("x", "Sheet1!x", "'Sheet1'!x"), or null.
  NamePointer Find(std::string_view fullName) const;
  /// The name that belongs to that sheet, or null.
  NamePointer FindOf(const Sheet& sheet, std::string_view name) const;

  /// Defines a name, or gives a new content to the one that exists.
  NamePointer Define(std::string name, SheetPointer scope, NameContent content);
  /// Renames in place. The new name must be free, or be the name's own in other case.
  void Rename(const NamePointer& name, const std::string& newName);
  void Remove(const NamePointer& name);
  /// Removes the names that belong to the sheet.
  void RemoveOf(const Sheet& sheet);
  /// Carries out `rename`, which changes the sheet's name, and keeps its names findable.
  void WhileRenaming(const Sheet& sheet, const std::function<void()>& rename);

  std::size_t Count() const noexcept { return inOrder_.size(); }
  /// All names, sorted by full text without regard to case; those of one sheet.
  std::vector<NamePointer> All() const;
  std::vector<NamePointer> AllOf(const Sheet& sheet) const;

 private:
  struct Before {
    bool operator()(const std::string& left, const std::string& right) const {
      return automation::CompareText(left, right) < 0;
    }
  };
  using InOrder = std::map<std::string, NamePointer, Before>;

  NamePointer Lookup(std::string_view key) const;
  void Insert(const NamePointer& name);
  void Erase(const NamePointer& name);

  InOrder inOrder_;
  /// The same names for a quick look-up; the keys are those of inOrder_.
  std::unordered_map<std::string_view, NamePointer, automation::FoldedHash, automation::FoldedEqual>
      byName_;
  std::size_t ofSheets_ = 0;  // most workbooks have none, and needn't be asked for them
};

/// Reads what a name is to stand for: "=Sheet1!$A$1:$A$3" with or without "$" is a reference, cells
/// without a sheet lie on the active one; anything else that begins with "=" is kept as it is, and
/// other texts are constants: "abc" is ="abc". Raises 1004 for a sheet that isn't there.
NameContent ParseContent(const Book& book, const std::string& text);
/// The text of a content: "=Sheet1!$A$1:$A$3", "=#REF!$A$1" when the sheet is gone.
std::string ContentText(const NameContent& content);

}  // namespace rangewerks::hosts::workbook
