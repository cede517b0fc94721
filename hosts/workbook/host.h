// A workbook in memory that answers to the spreadsheet object model late-bound, as a spreadsheet
// program would: for tests, for batch work on plain files, and for trying the library out.
//
//   hosts::workbook::Host host;
//   Object book = host.AddWorkbook("Ledger", {"Sheet1", "Data Sheet"});
//   excel::Worksheet sheet(host.Application().Get(Member("ActiveSheet")).AsObject());
//   sheet.get_Range("A1").let_Value(12.5);
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "automation/locale.h"
#include "automation/object.h"
#include "automation/variant.h"
#include "hosts/workbook/call_log.h"

namespace rangewerks::hosts::workbook {

using automation::Object;
using automation::Variant;

struct Session;

/// One spreadsheet program with its workbooks; late-bound callers reach the rest of it as
/// Application.Testing. Objects that it has handed out keep working after it
/// is gone. Used from one thread. What it refuses it raises as error 1004 with source "Workbook"
/// (an element that Sheets or Workbooks lack as 9), and words that say what and where.
class Host {
 public:
  /// A program without workbooks. Rules and limits, compared with Excel:
  ///
  /// - A sheet has 1,048,576 rows and 16,384 columns; cells that hold nothing cost nothing. A Range
  ///   is one rectangle. Reading or writing more than 16,777,216 cells at once raises 7.
  /// - Names are enumerated sorted by their full text without regard to case, so those of a sheet,
  ///   such as Sheet1!x, stand at the sheet's name. References in a RefersTo are always taken as
  ///   absolute. A reference of several areas is kept as text and refers to no range.
  /// - A text that is assigned to Value is read as typed: a number, percentage, date or time of the
  ///   host's locale, TRUE, FALSE, an error such as #N/A, a formula behind "="; a leading
  ///   apostrophe keeps it text, as does the format "@", under which numbers, too, become texts.
  ///   Fractions
  ///   ("1 1/2") and formulas that begin with "+" or "-" stay texts. Other kinds are kept: integers
  ///   as double, an error value as it is; empty, null and "" clear the cell.
  /// - A date is a number under a date format, so a number written over a date reads as a date
  /// until
  ///   the format changes. A cell without a format gets m/d/yyyy, with a time h:mm behind or
  ///   h:mm:ss alone. Days are counted as automation dates are; dates before 30 December 1899 are
  ///   refused.
  /// - Formulas aren't checked or calculated: they show what SetShownValue gave, and are empty
  ///   until then. Nothing adjusts the references in their text.
  /// - Formats, lines, validation rules and conditional formats are kept and told; nothing comes of
  ///   them: entries aren't checked, nor conditions calculated. AutoFit counts characters.
  /// - Macros are kept as text and never run; menu entries do nothing but tell whoever is connected
  ///   to them.
  /// - Not there: multiple selections, protection, insertion and deletion of cells, and all of the
  ///   object model that isn't listed in docs/hosts.md; such members raise 438.
  Host();
  /// Another hold on a program, for the objects that it hands out.
  explicit Host(std::shared_ptr<Session> session);
  ~Host();
  Host(Host&&) noexcept;
  Host& operator=(Host&&) noexcept;

  Object Application() const;
  /// A new workbook, which becomes the active one with its first sheet in front. Raises 1004 for a
  /// name that is open already, for no sheets, and for sheet names that can't be.
  Object AddWorkbook(const std::string& name, const std::vector<std::string>& sheets);
  /// Reads a workbook from a file as docs/workbook-file.md tells; it becomes the active one, under
  /// the file's name. Raises 53 when the file can't be read, and 1004 with the file, the place in
  /// it, what was found and what was expected; then no workbook is added.
  Object Open(const std::string& path);
  /// Writes a workbook to a file that Open reads as the same workbook. Raises 1004 when it can't be
  /// written; it may then be there in part.
  void SaveCopyAs(const Object& workbook, const std::string& path) const;

  // --- what the object model can't set -----------------------------------------------------------

  /// What a cell with a formula shows. Raises 1004 for a cell without one.
  void SetShownValue(const Object& cell, const Variant& value);
  /// Makes a cell hold an error, 2007 for a division by zero and so on.
  void SetErrorValue(const Object& cell, std::int32_t number);
  /// Defines a name of the workbook whose content isn't looked into, such as "=12.5".
  void DefineConstant(const Object& workbook, const std::string& name, const std::string& content);
  /// Makes Application.International answer with any value. Separators as text and the date order
  /// as 0, 1 or 2 also change CurrentLocale, and thereby how typed texts are read.
  void SetInternational(std::int32_t index, const Variant& value);
  /// What Application.Version tells; "16.0" at first.
  void SetVersion(const std::string& version);
  /// Whether Workbook.VBProject answers, as in a program that trusts access to macros; else, and at
  /// first, it is refused with 1004.
  void TrustVBProject(bool trusted);
  bool TrustsVBProject() const;
  /// Makes Application.Selection a drawn rectangle until cells of the sheet in front are selected.
  /// Raises 1004 when no workbook is open.
  void SelectShape();
  /// The locale under which typed texts are read: that of the process until a file or
  /// SetInternational has changed something.
  automation::Locale CurrentLocale() const;

  /// Every late-bound call on the host's objects.
  CallLog& Calls();

 private:
  std::shared_ptr<Session> session_;
};

}  // namespace rangewerks::hosts::workbook
