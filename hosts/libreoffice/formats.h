// The number formats of one document: what kind of value a cell shows.
#pragma once

#include <com/sun/star/frame/XModel.hpp>
#include <com/sun/star/uno/XComponentContext.hpp>
#include <com/sun/star/util/XNumberFormats.hpp>
#include <com/sun/star/util/XNumberFormatter.hpp>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "hosts/libreoffice/sheet.h"

namespace rangewerks::hosts::libreoffice {

/// As far as the value of a cell depends on its format.
enum class FormatKind {
  General,
  Text,     ///< what is entered stays text
  Date,     ///< a date, a time, or both
  Boolean,  ///< 1 shows as true
  Other,
};

/// Formats are known by keys, which stay the same as long as the document is open; so what has been
/// asked once is kept.
class Formats {
 public:
  Formats(const Reference<css::frame::XModel>& model,
          const Reference<css::uno::XComponentContext>& context);

  FormatKind KindOf(std::int32_t key);
  /// What a shown text looks like when it is read back: how a formula without a format of its own
  /// shows its result. A number is Other.
  FormatKind KindOfShown(const std::string& shown);

  /// What a typed word means that stands for true or false in the office's language, such as
  /// "WAHR".
  std::optional<bool> BooleanOf(const std::string& word);

  /// The format as text in English notation, and the key of such a text, made when it is new.
  /// Raises 1004 for a text that is no format. An empty text is "General".
  std::string TextOf(std::int32_t key);
  std::int32_t KeyOf(const std::string& text);

 private:
  const Reference<css::util::XNumberFormats>& All();
  const Reference<css::util::XNumberFormatter>& Reader();

  Reference<css::frame::XModel> model_;
  Reference<css::uno::XComponentContext> context_;
  Reference<css::util::XNumberFormats> all_;
  Reference<css::util::XNumberFormatter> reader_;
  std::unordered_map<std::int32_t, FormatKind> kinds_;
  std::unordered_map<std::string, std::int32_t> keys_;
  std::string trueWord_;
  std::string falseWord_;
};

/// The key of the format that a cell, or the first cell of a block, has.
std::int32_t FormatKeyOf(const Reference<css::uno::XInterface>& cells);
void PutFormatKey(const Reference<css::uno::XInterface>& cells, std::int32_t key);

/// Parts of a block, and the format that all cells of each part have.
struct FormattedArea {
  Area area;  ///< on the sheet
  std::int32_t key;
};
/// Covers the whole block, in as few calls as it has different formats.
std::vector<FormattedArea> FormatsOf(Sheet& sheet, const Area& area);

}  // namespace rangewerks::hosts::libreoffice
