#include "hosts/libreoffice/defined_names.h"

#include <algorithm>
#include <com/sun/star/lang/IllegalArgumentException.hpp>
#include <com/sun/star/sheet/XCellRangeAddressable.hpp>
#include <com/sun/star/sheet/XCellRangeReferrer.hpp>
#include <com/sun/star/sheet/XFormulaTokens.hpp>
#include <com/sun/star/sheet/XSheetCellRange.hpp>

#include "automation/text.h"
#include "hosts/common/name_rules.h"
#include "hosts/libreoffice/failure.h"

namespace rangewerks::hosts::libreoffice {
namespace {

/// Where references of a name are counted from that aren't absolute.
const css::table::CellAddress kFirstCell(0, 0, 0);
constexpr const char* kBuiltInPrefix = "_xlnm.";
constexpr const char* kDeadReference = "#REF!";

std::string TextConstant(const std::string& text) {
  std::string constant = "\"";
  for (const char c : text) {
    constant += c;
    if (c == '"') constant += c;
  }
  return constant + "\"";
}

void RequireGoodName(const std::string& name) {
  if (const std::string fault = FaultOfName(name); !fault.empty()) {
    Fail("\"" + name + "\" can't be a name: " + fault);
  }
}

/// The office has rules of its own, and is asked for its opinion by creating.
void Create(const Reference<css::sheet::XNamedRanges>& names, const std::string& name,
            const std::string& content) {
  try {
    names->addNewByName(ToUno(name), ToUno(content), kFirstCell, 0);
  } catch (const css::uno::RuntimeException&) {
    if (names->hasByName(ToUno(name))) throw;
    Fail("\"" + name +
         "\" can't be a name in LibreOffice: a name there consists of letters, digits and \"_\", "
         "doesn't begin with a digit and doesn't look like a cell's address");
  }
}

}  // namespace

DefinedName::DefinedName(Book& book, SheetPointer scope, std::string text)
    : book_(&book), scope_(std::move(scope)), text_(std::move(text)) {}

const Reference<css::sheet::XNamedRanges>& DefinedName::Container() const {
  return scope_ ? scope_->Names() : book_->Names();
}

const Reference<css::sheet::XNamedRange>& DefinedName::Required() {
  if (!Load()) Fail("The name \"" + text_ + "\" has been deleted or renamed");
  return range_;
}

bool DefinedName::Load() {
  if (range_.is()) return true;
  try {
    range_ = Extract<Reference<css::sheet::XNamedRange>>(Container()->getByName(ToUno(text_)));
    return true;
  } catch (const css::container::NoSuchElementException&) {
    return false;
  }
}

bool DefinedName::Exists() const { return Container()->hasByName(ToUno(text_)); }

std::string DefinedName::FullText() {
  if (!textIsExact_) {  // it was found without regard to case
    text_ = ToUtf8(As<css::container::XNamed>(Required())->getName());
    const auto all = Container()->getElementNames();
    for (const OUString& each : Elements(all)) {
      const std::string exact = ToUtf8(each);
      if (automation::EqualText(exact, text_)) text_ = exact;
    }
    textIsExact_ = true;
  }
  return scope_ ? QuotedSheetName(scope_->Name()) + "!" + text_ : text_;
}

std::string DefinedName::Content() {
  const auto& range = Required();
  try {
    return ToUtf8(range->getContent());
  } catch (const css::lang::DisposedException&) {
    throw;
  } catch (const css::uno::RuntimeException&) {
    Fail("The name \"" + text_ + "\" has been deleted or renamed");
  }
}

std::string DefinedName::RefersTo() {
  const std::string content = Content();
  if (const auto reference = ReadNativeReference(content)) {
    return "=" + QuotedSheetName(reference->sheet) + "!" + AddressOf(reference->area);
  }
  if (content.find(kDeadReference) != std::string::npos) return std::string("=") + kDeadReference;
  const std::string text = book_->FormulaTexts().Write(
      As<css::sheet::XFormulaTokens>(Required())->getTokens(), kFirstCell);
  return "=" + (text.empty() ? content : text);
}

std::optional<Reached> DefinedName::Cells() {
  const std::string content = Content();
  // The office still answers with cells after theirs have been deleted.
  if (content.find(kDeadReference) != std::string::npos) return std::nullopt;
  const auto reference = ReadNativeReference(content);
  if (!reference) return Resolve();
  SheetPointer sheet = book_->FindSheet(reference->sheet);
  if (!sheet) return std::nullopt;
  return Reached{std::move(sheet), reference->area};
}

std::optional<Reached> DefinedName::Resolve() {
  const auto cells = As<css::sheet::XCellRangeReferrer>(Required())->getReferredCells();
  if (!cells.is()) return std::nullopt;
  const auto address = As<css::sheet::XCellRangeAddressable>(cells)->getRangeAddress();
  return Reached{book_->SheetAt(address.Sheet + 1), AreaOf(address)};
}

void DefinedName::PutContent(const std::string& content) { Required()->setContent(ToUno(content)); }

void DefinedName::Rename(const std::string& text) {
  RequireGoodName(text);
  const auto& names = Container();
  const bool onlyCase = automation::EqualText(text, text_);
  if (!onlyCase) {
    if (names->hasByName(ToUno(text))) {
      Fail("The name \"" + FullText() + "\" can't become \"" + text +
           "\": there is a name of that text");
    }
    // Renaming itself takes everything: whether the office likes the text is found out first.
    Create(names, text, Content());
    names->removeByName(ToUno(text));
  }
  As<css::container::XNamed>(Required())->setName(ToUno(text));
  text_ = text;
  textIsExact_ = true;
}

void DefinedName::Delete() {
  try {
    Container()->removeByName(ToUno(text_));
  } catch (const css::lang::DisposedException&) {
    throw;
  } catch (const css::uno::RuntimeException&) {
    Fail("The name \"" + text_ + "\" has been deleted or renamed already");
  }
  range_.clear();
}

std::optional<DefinedName> FindName(Book& book, const SheetPointer& scope,
                                    const std::string& text) {
  SheetAndRest parts{{}, text, false};
  if (text.find('!') != std::string::npos) parts = SplitSheet(text);
  SheetPointer sheet = parts.hasSheet ? book.FindSheet(parts.sheet) : scope;
  if (parts.hasSheet && !sheet) return std::nullopt;
  DefinedName name(book, std::move(sheet), parts.rest);
  if (!name.Load()) return std::nullopt;
  return name;
}

std::vector<DefinedName> NamesIn(Book& book, const SheetPointer& scope) {
  std::vector<DefinedName> names;
  const auto texts = (scope ? scope->Names() : book.Names())->getElementNames();
  for (const OUString& each : Elements(texts)) {
    std::string text = ToUtf8(each);
    if (text.starts_with(kBuiltInPrefix)) continue;
    names.emplace_back(book, scope, std::move(text));
    names.back().textIsExact_ = true;
  }
  return names;
}

std::vector<DefinedName> AllNames(Book& book, const SheetPointer& scope) {
  std::vector<DefinedName> names = NamesIn(book, scope);
  if (!scope) {
    const std::int32_t sheets = book.SheetCount();
    for (std::int32_t i = 1; i <= sheets; ++i) {
      for (DefinedName& name : NamesIn(book, book.SheetAt(i))) names.push_back(std::move(name));
    }
  }
  std::vector<std::pair<std::string, std::size_t>> order;
  for (std::size_t i = 0; i < names.size(); ++i) order.emplace_back(names[i].FullText(), i);
  std::sort(order.begin(), order.end(), [](const auto& left, const auto& right) {
    return automation::CompareText(left.first, right.first) < 0;
  });
  std::vector<DefinedName> sorted;
  sorted.reserve(names.size());
  for (const auto& [text, index] : order) sorted.push_back(std::move(names[index]));
  return sorted;
}

DefinedName DefineName(Book& book, SheetPointer scope, const std::string& given,
                       const std::string& content) {
  SheetAndRest parts = SplitSheet(WithoutTrailingBlank(given));
  if (parts.hasSheet) {
    scope = book.FindSheet(parts.sheet);
    if (!scope) Fail("There is no sheet \"" + parts.sheet + "\" for the name \"" + given + "\"");
  }
  RequireGoodName(parts.rest);
  DefinedName name(book, scope, parts.rest);
  if (name.Exists()) {
    name.PutContent(content);
  } else {
    Create(scope ? scope->Names() : book.Names(), parts.rest, content);
  }
  return name;
}

std::string NativeContent(Book& book, const std::string& text) {
  if (!text.starts_with('=')) return TextConstant(text);
  const std::string formula = text.substr(1);
  const SheetAndRest parts = SplitSheet(formula);
  const auto area = ParseAddress(parts.rest);
  if (area) {
    const SheetPointer sheet = parts.hasSheet ? book.FindSheet(parts.sheet) : book.ActiveSheet();
    if (sheet) return NativeReference({sheet->Name(), *area});
    if (parts.sheet != "#REF") {
      Fail("Workbook \"" + book.Name() + "\" has no sheet \"" + parts.sheet + "\" for " + text);
    }
  }
  if (formula.starts_with("#REF!")) return kDeadReference;
  Formulas& formulas = book.FormulaTexts();
  return formulas.WriteNative(formulas.Read(formula, kFirstCell), kFirstCell);
}

}  // namespace rangewerks::hosts::libreoffice
