#include "hosts/libreoffice/formulas.h"

#include <algorithm>
#include <com/sun/star/lang/XMultiServiceFactory.hpp>
#include <com/sun/star/sheet/AddressConvention.hpp>
#include <com/sun/star/sheet/FormulaToken.hpp>

#include "hosts/libreoffice/failure.h"

namespace rangewerks::hosts::libreoffice {
namespace {

/// Operation codes that stand for a value, and for a text that is neither a name nor a reference.
constexpr std::int32_t kPushCode = 0;
constexpr std::int32_t kUnknownCode = 14;
/// The operation code of the separator between the rows of an array; within one it isn't told.
constexpr std::int32_t kRowSeparatorCode = 27;

bool HasLostValue(const Tokens& tokens) {
  const auto all = Elements(tokens);
  return std::any_of(all.begin(), all.end(), [](const css::sheet::FormulaToken& token) {
    return token.OpCode == kPushCode && !token.Data.hasValue();
  });
}

/// A reference to a sheet that doesn't exist comes as an unknown text with "!".
bool HasUnknownReference(const Tokens& tokens) {
  const auto all = Elements(tokens);
  return std::any_of(all.begin(), all.end(), [](const css::sheet::FormulaToken& token) {
    OUString text;
    return token.OpCode == kUnknownCode && (token.Data >>= text) && text.indexOf('!') >= 0;
  });
}

std::string Quoted(const std::string& sheet) {
  std::string quoted = "'";
  for (const char c : sheet) {
    quoted += c;
    if (c == '\'') quoted += c;
  }
  return quoted + "'";
}

/// The sheet's name at the start of `text`, which is taken off with the dot behind it.
std::optional<std::string> TakeSheet(std::string_view& text) {
  std::string sheet;
  if (!text.starts_with('\'')) {
    const std::size_t dot = text.find('.');
    if (dot == std::string_view::npos) return std::nullopt;
    sheet = text.substr(0, dot);
    text.remove_prefix(dot + 1);
    return sheet;
  }
  for (std::size_t i = 1; i < text.size(); ++i) {
    if (text[i] == '\'') {
      ++i;
      if (i == text.size()) break;
      if (text[i] != '\'') {
        if (text[i] != '.') break;
        text.remove_prefix(i + 1);
        return sheet;
      }
    }
    sheet += text[i];
  }
  return std::nullopt;
}

}  // namespace

Formulas::Parser Formulas::MakeParser(std::int16_t convention) const {
  const auto parser =
      As<css::sheet::XFormulaParser>(As<css::lang::XMultiServiceFactory>(model_)->createInstance(
          ToUno("com.sun.star.sheet.FormulaParser")));
  const auto settings = As<css::beans::XPropertySet>(parser);
  settings->setPropertyValue(ToUno("FormulaConvention"), Any(convention));
  settings->setPropertyValue(ToUno("CompileEnglish"), Any(true));
  return parser;
}

const Formulas::Parser& Formulas::Excel() {
  // Of the two Excel conventions the one of its files: only that one knows TRUE and FALSE.
  if (!excel_.is()) excel_ = MakeParser(css::sheet::AddressConvention::XL_OOX);
  return excel_;
}

const Formulas::Parser& Formulas::Native() {
  if (!native_.is()) native_ = MakeParser(css::sheet::AddressConvention::OOO);
  return native_;
}

Tokens Formulas::Read(const std::string& formula, const css::table::CellAddress& place) {
  const Tokens tokens = Excel()->parseFormula(ToUno(formula), place);
  if (!tokens.hasElements()) Fail("=" + formula + " is no formula");
  if (HasLostValue(tokens)) {
    Fail("=" + formula + " can't be entered: LibreOffice doesn't take an error value in a formula");
  }
  if (HasUnknownReference(tokens)) {
    Fail("=" + formula + " can't be entered: it refers to a sheet that doesn't exist");
  }
  return tokens;
}

std::string Formulas::Write(const Tokens& tokens, const css::table::CellAddress& place) {
  return ToUtf8(Excel()->printFormula(tokens, place));
}

Tokens Formulas::ReadNative(const std::string& formula, const css::table::CellAddress& place) {
  return Native()->parseFormula(ToUno(formula), place);
}

std::string Formulas::WriteNative(const Tokens& tokens, const css::table::CellAddress& place) {
  return ToUtf8(Native()->printFormula(tokens, place));
}

void RequireUnderstood(const Tokens& tokens, const std::string& text) {
  const auto all = Elements(tokens);
  const bool isStrange =
      std::any_of(all.begin(), all.end(), [](const css::sheet::FormulaToken& token) {
        return token.OpCode == kUnknownCode || token.OpCode == kRowSeparatorCode;
      });
  if (isStrange) Fail("LibreOffice doesn't understand the formula " + text);
}

std::string NativeReference(const SheetArea& reference) {
  return "$" + Quoted(reference.sheet) + "." + AddressOf(reference.area);
}

std::optional<SheetArea> ReadNativeReference(const std::string& content) {
  std::string_view rest = content;
  if (!rest.starts_with('$')) return std::nullopt;
  rest.remove_prefix(1);
  auto sheet = TakeSheet(rest);
  if (!sheet) return std::nullopt;
  const auto area = ParseAddress(rest);
  // Relative references and the like are for the office to resolve.
  if (!area || AddressOf(*area) != rest) return std::nullopt;
  return SheetArea{std::move(*sheet), *area};
}

}  // namespace rangewerks::hosts::libreoffice
