// One open workbook, and the session with the office that it belongs to.
#pragma once

#include <com/sun/star/container/XIndexAccess.hpp>
#include <com/sun/star/frame/XController.hpp>
#include <com/sun/star/frame/XDesktop2.hpp>
#include <com/sun/star/frame/XModel.hpp>
#include <com/sun/star/sheet/XSpreadsheets.hpp>
#include <com/sun/star/uno/XComponentContext.hpp>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "automation/locale.h"
#include "hosts/libreoffice/cell_styles.h"
#include "hosts/libreoffice/formats.h"
#include "hosts/libreoffice/formulas.h"
#include "hosts/libreoffice/sheet.h"

namespace rangewerks::hosts::libreoffice {

class CellMenu;
class Session;

/// The sheets, names, formats and styles of one document.
class Book {
 public:
  /// `path` is empty for a workbook that has no file.
  Book(Session* session, const Reference<css::frame::XModel>& model, std::string path);

  Session& OfSession() const noexcept { return *session_; }
  const Reference<css::frame::XModel>& Model() const noexcept { return model_; }
  const std::string& Path() const noexcept { return path_; }
  /// The file's name without its folder, or the title of a workbook without a file.
  std::string Name() const;

  std::int32_t SheetCount() const;
  /// From 1. Raises 9 when there is none.
  SheetPointer SheetAt(std::int32_t position);
  /// Without regard to case; null when there is none.
  SheetPointer FindSheet(const std::string& name);
  SheetPointer ActiveSheet();
  void Activate(const SheetPointer& sheet);
  void Remove(const SheetPointer& sheet);

  const Reference<css::sheet::XSpreadsheets>& Sheets() const noexcept { return sheets_; }
  /// The names for all sheets.
  const Reference<css::sheet::XNamedRanges>& Names();
  const Reference<css::frame::XController>& Controller();
  Formats& NumberFormats() noexcept { return formats_; }
  Formulas& FormulaTexts() noexcept { return formulas_; }
  CellStyles& Styles() noexcept { return styles_; }
  /// Days from 30 December 1899 to the day that this document counts from.
  double FirstDay();

  /// Whether the file was opened without leave to change it; the office then drops some changes in
  /// silence and carries others out.
  bool IsReadOnly() const noexcept { return isReadOnly_; }

  void Close();
  bool closed = false;
  std::weak_ptr<automation::Dispatch> face;

 private:
  SheetPointer Known(const Reference<css::sheet::XSpreadsheet>& cells);

  Session* session_;
  Reference<css::frame::XModel> model_;
  std::string path_;
  bool isReadOnly_;
  Reference<css::sheet::XSpreadsheets> sheets_;
  Reference<css::container::XIndexAccess> inOrder_;
  Reference<css::sheet::XNamedRanges> names_;
  Reference<css::frame::XController> controller_;
  Formats formats_;
  Formulas formulas_;
  CellStyles styles_;
  std::optional<double> firstDay_;
  std::vector<SheetPointer> known_;
};

using BookPointer = std::shared_ptr<Book>;

/// One office, and the workbooks that were opened in it through this library. It doesn't care on
/// which side of a bridge it stands.
class Session : public std::enable_shared_from_this<Session> {
 public:
  /// With `visible`, workbooks have windows that a person sees.
  Session(const Reference<css::uno::XComponentContext>& context, bool visible);
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;
  ~Session();

  const Reference<css::uno::XComponentContext>& Context() const noexcept { return context_; }
  const Reference<css::frame::XDesktop2>& Desktop() const noexcept { return desktop_; }
  const std::vector<BookPointer>& Books() const noexcept { return books_; }
  /// The workbook in front. Raises 1004 when none is open.
  const BookPointer& ActiveBook() const;
  bool HasActiveBook() const noexcept { return active_ != nullptr; }
  void Activate(const BookPointer& book) { active_ = book; }
  BookPointer Add(const Reference<css::frame::XModel>& model, const std::string& path);
  void Close(const BookPointer& book);

  bool IsVisible() const noexcept { return isVisible_; }
  /// The menu of the cells, read from the office when first asked for.
  CellMenu& Menu();

  /// How the office writes numbers and dates.
  const automation::Locale& OfficeLocale();

  std::weak_ptr<automation::Dispatch> face;

 private:
  Reference<css::uno::XComponentContext> context_;
  Reference<css::frame::XDesktop2> desktop_;
  std::vector<BookPointer> books_;
  BookPointer active_;
  bool isVisible_;
  std::optional<automation::Locale> locale_;
  std::unique_ptr<CellMenu> menu_;
};

using SessionPointer = std::shared_ptr<Session>;

}  // namespace rangewerks::hosts::libreoffice
