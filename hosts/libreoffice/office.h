// LibreOffice Calc as a spreadsheet program that is driven by name, like any other host.
//
//   Office office;
//   Object book = office.Open("ledger.xlsx");
//   Object sheet = book.Get(Member("Sheets"), {"Ledger"}).AsObject();
//   office.SaveCopyAs(book, "copy.ods");
//
// What this host can't do is listed in docs/hosts.md.
#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "automation/object.h"

namespace rangewerks::hosts::libreoffice {

struct OpenOptions {
  /// Leaves no lock on the file while it is open here.
  bool readOnly = false;
  /// Opens, for reading only, also a file that somebody else has open: as it was last saved.
  bool evenIfLocked = false;
};

struct OfficeOptions {
  /// Shows windows, on the display that DISPLAY names, instead of running headless.
  bool visible = false;
};

/// An entry added to the menu of the cells, as it was when a person chose it.
struct MenuChoice {
  std::string caption;  ///< with "&" in front of the access key
  std::string tag;
  std::string onAction;  ///< name of a macro, which isn't run
};

/// A private office process, started headless unless asked otherwise on a pipe of its own with its
/// own profile folder: no other office is touched. It ends with this object, and also when the
/// program dies. Objects that came from it may live on, but each call on them then raises 1004.
///
/// It must have ended before main returns: a static Office would outlive what it needs.
///
/// All calls come from one thread. Everything raises 1004, with what failed, where, and if possible
/// what to do.
class Office {
 public:
  /// Starts, which takes about a second. The office reads and writes numbers and dates in the
  /// locale of the process's environment (LC_ALL and its like).
  explicit Office(OfficeOptions options = {});
  Office(const Office&) = delete;
  Office& operator=(const Office&) = delete;
  ~Office();

  /// The office as the object model's Application.
  automation::Object Application();
  /// Opens an xlsx, xlsm, xls or ods file; it becomes the active workbook. A file that is open here
  /// already is brought to the front. Macros don't run.
  automation::Object Open(const std::string& path, OpenOptions options = {});
  /// A new workbook with these sheets (one at least); it is the active one and its first sheet is
  /// in front.
  automation::Object NewWorkbook(const std::vector<std::string>& sheets);
  /// Writes a copy in the format that the extension tells: xlsx, xlsm, xls or ods. The file appears
  /// whole or not at all.
  void SaveCopyAs(const automation::Object& workbook, const std::string& path);
  /// Closes without saving.
  void Close(const automation::Object& workbook);

  /// Says what happens when a person chooses an entry that was added to the menu of the cells;
  /// takes the place of what was said before.
  void OnMenuChoice(std::function<void(const MenuChoice&)> handler);
  /// Calls the handler, on the calling thread, for each entry that was chosen and not told yet;
  /// raises Click of its control, too. Waits for a first one at most that long. Returns how many
  /// were told.
  std::size_t TellMenuChoices(std::chrono::milliseconds wait = {});

 private:
  struct Parts;
  std::unique_ptr<Parts> parts_;
};

}  // namespace rangewerks::hosts::libreoffice
