// How a posted sheet is saved: a folder, a pattern for the file's name, and two switches, kept for
// each interface.
//
//   clsExcelFileSave save(system);
//   save.let_RegSection("Journals");
//   save.GetSettingsFromRegistry();
//   save.let_Identifier("JNL0042");
//   save.ExpandFileName();
//   const std::string path = save.FullPath();
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "automation/variant.h"
#include "platform/system.h"

namespace rangewerks {

class clsExcelFileSave {
 public:
  explicit clsExcelFileSave(std::shared_ptr<const platform::System> system)
      : system_(std::move(system)) {}

  /// The folder to save to.
  const std::string& get_FilePath() const { return filePath_; }
  void let_FilePath(const std::string& value) { filePath_ = value; }
  /// The pattern of the file's name. %i stands for Identifier, %d, %m and %y for two digits of
  /// today's day, month and year, %u for the account's name; small letters only. What stands behind
  /// another % is kept as it is.
  const std::string& get_Filename() const { return filename_; }
  void let_Filename(const std::string& value) { filename_ = value; }
  /// Save the file on posting.
  bool get_DoSaveFile() const { return doSaveFile_; }
  void let_DoSaveFile(bool value) { doSaveFile_ = value; }
  /// Ask before saving.
  bool get_PromptOnSave() const { return promptOnSave_; }
  void let_PromptOnSave(bool value) { promptOnSave_ = value; }
  /// The interface's section among the stored settings.
  const std::string& get_RegSection() const { return regSection_; }
  void let_RegSection(const std::string& value) { regSection_ = value; }
  /// What %i stands for; not stored.
  const std::string& get_Identifier() const { return identifier_; }
  void let_Identifier(const std::string& value) { identifier_ = value; }
  /// The file's name, after ExpandFileName; not stored.
  const std::string& get_ExpandedName() const { return expandedName_; }
  void let_ExpandedName(const std::string& value) { expandedName_ = value; }

  /// Makes ExpandedName from Filename. A code at the end of the pattern that gives the same text as
  /// all before it isn't added. Raises 5 for the pattern "%" and for one that starts with "%%".
  void ExpandFileName();
  /// FilePath and ExpandedName with one backslash between them.
  std::string FullPath() const;
  /// Loads folder, pattern and switches; "c:\", "%i", false and false where nothing is stored.
  /// Never fails.
  void GetSettingsFromRegistry();
  /// Stores folder, pattern and switches, each that can be. Never fails.
  void SaveSettingsToRegistry();
  /// Raises 0x80040000 when DoSaveFile is true and a name is missing or the folder isn't one.
  void Validate() const;
  /// Takes over all but Identifier and RegSection.
  void CopyFrom(const clsExcelFileSave& other);

 private:
  std::string BreakIdentifiers(const std::string& sPattern, const std::string& sIdentifier) const;
  std::string ConvertIdentifier(const std::string& sCode, const std::string& sIdentifier) const;
  std::string Key() const;
  automation::Variant ReadSetting(const std::string& name,
                                  const automation::Variant& whenAbsent) const;
  void WriteSetting(const std::string& name, const automation::Variant& value) const;

  std::shared_ptr<const platform::System> system_;
  std::string filePath_;
  std::string filename_;
  bool doSaveFile_ = false;
  bool promptOnSave_ = false;
  std::string regSection_;
  std::string identifier_;
  std::string expandedName_;
};

}  // namespace rangewerks
