// The defined names of a workbook and of its sheets, as the model sees them.
#pragma once

#include <com/sun/star/sheet/XNamedRange.hpp>
#include <com/sun/star/sheet/XNamedRanges.hpp>
#include <optional>
#include <string>
#include <vector>

#include "automation/variant.h"
#include "hosts/libreoffice/book.h"

namespace rangewerks::hosts::libreoffice {

/// Cells that a name refers to.
struct Reached {
  SheetPointer sheet;
  Area area;
};

/// One name. The office finds names by their text, so a name that is renamed through another object
/// is lost to this one.
class DefinedName {
 public:
  /// `scope` is null for a name of all sheets. The name needn't exist.
  DefinedName(Book& book, SheetPointer scope, std::string text);

  const SheetPointer& Scope() const noexcept { return scope_; }
  bool Exists() const;
  /// As Exists, and keeps what was found: the call to the office that every use needs anyway.
  bool Load();
  /// With the sheet and "!" in front when it is a name of one sheet.
  std::string FullText();
  /// The content in the office's notation.
  std::string Content();
  /// The content with "=" in front, in the object model's notation.
  std::string RefersTo();
  /// The cells; none for constants, formulas, several areas, and references to deleted cells.
  std::optional<Reached> Cells();

  void PutContent(const std::string& content);
  void Rename(const std::string& text);
  void Delete();

 private:
  const Reference<css::sheet::XNamedRanges>& Container() const;
  const Reference<css::sheet::XNamedRange>& Required();
  std::optional<Reached> Resolve();

  Book* book_;
  SheetPointer scope_;
  std::string text_;
  bool textIsExact_ = false;
  Reference<css::sheet::XNamedRange> range_;

  friend std::vector<DefinedName> NamesIn(Book& book, const SheetPointer& scope);
};

/// The name of that text, "Sheet1!Local" included, without regard to case. With a `scope` a plain
/// text is looked for among that sheet's names only.
std::optional<DefinedName> FindName(Book& book, const SheetPointer& scope, const std::string& text);

/// All names of a sheet, or with none of all sheets and of each, ordered by their full texts
/// without regard to case. Names that the office keeps for itself (print areas, filters) aren't
/// among them.
std::vector<DefinedName> AllNames(Book& book, const SheetPointer& scope);

/// Creates a name or gives it another content. `given` may have a sheet in front and one blank
/// behind. Raises 1004 when a name can't be called that.
DefinedName DefineName(Book& book, SheetPointer scope, const std::string& given,
                       const std::string& content);

/// A text such as "=Sheet1!$A$1:$A$3", in the office's notation; a text without "=" is a constant.
std::string NativeContent(Book& book, const std::string& text);

}  // namespace rangewerks::hosts::libreoffice
