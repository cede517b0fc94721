// Formulas in the object model's notation: "SUM(A1,B1)", "Sheet1!$A$1:$A$3".
#pragma once

#include <com/sun/star/frame/XModel.hpp>
#include <com/sun/star/sheet/XFormulaParser.hpp>
#include <com/sun/star/sheet/XFormulaTokens.hpp>
#include <optional>
#include <string>

#include "hosts/common/area.h"
#include "hosts/libreoffice/uno.h"

namespace rangewerks::hosts::libreoffice {

using Tokens = Sequence<css::sheet::FormulaToken>;

/// Translates between the two notations of one document. Formulas are without their "=".
class Formulas {
 public:
  explicit Formulas(const Reference<css::frame::XModel>& model) : model_(model) {}

  /// Reads a formula of the cell at `place`. Raises 1004 when it isn't one that the office
  /// understands as it is meant: an error value inside it, or a sheet that doesn't exist.
  Tokens Read(const std::string& formula, const css::table::CellAddress& place);
  std::string Write(const Tokens& tokens, const css::table::CellAddress& place);
  /// The same in the office's own notation.
  Tokens ReadNative(const std::string& formula, const css::table::CellAddress& place);
  std::string WriteNative(const Tokens& tokens, const css::table::CellAddress& place);

 private:
  using Parser = Reference<css::sheet::XFormulaParser>;
  Parser MakeParser(std::int16_t convention) const;
  const Parser& Excel();
  const Parser& Native();

  Reference<css::frame::XModel> model_;
  Parser excel_;
  Parser native_;
};

/// Raises 1004 when the office reads something in the formula as neither a name, a function nor a
/// reference, or as a separator out of place. `text` is the formula as it was given.
void RequireUnderstood(const Tokens& tokens, const std::string& text);

/// A reference to cells of one sheet, as names hold it.
struct SheetArea {
  std::string sheet;
  Area area;
};

/// "$'Data Sheet'.$B$2:$B$5": the office's notation for the content of a name.
std::string NativeReference(const SheetArea& reference);
/// Reads exactly what NativeReference writes; none for any other content.
std::optional<SheetArea> ReadNativeReference(const std::string& content);

}  // namespace rangewerks::hosts::libreoffice
