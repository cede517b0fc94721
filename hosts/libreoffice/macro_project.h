// The macro modules of a document, seen through the office's interfaces.
#pragma once

#include <com/sun/star/container/XNameContainer.hpp>
#include <com/sun/star/script/XLibraryContainer.hpp>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "hosts/libreoffice/book.h"
#include "hosts/libreoffice/module_text.h"

namespace rangewerks::hosts::libreoffice {

/// The library that the office reads from the project of an Excel file and writes to it. Until a
/// document has one, the workbook and its sheets have modules without lines all the same; the
/// library is made with the first change, and goes with the last module that is more than that.
/// Macros that the office keeps in libraries of its own are neither shown nor touched.
class MacroProject {
 public:
  explicit MacroProject(Book& book);

  std::string Name() const;
  /// Those of the workbook and of its sheets first.
  std::vector<Module> Modules() const;
  /// Without regard to case.
  std::optional<Module> Find(const std::string& name) const;

  CodeText CodeOf(const Module& module) const;
  void PutCode(const Module& module, const CodeText& code);
  /// Adds a module without lines, called "Module1" or "Class1" or the next of these that is free.
  Module Add(ModuleKind kind);
  void Remove(const Module& module);
  /// Raises 1004 for a name that no module can have or that another one has.
  void Rename(const Module& module, const std::string& name);

 private:
  using Library = Reference<css::container::XNameContainer>;

  std::vector<Module> DocumentModules() const;
  std::string CodeNameOfSheet(std::int32_t position, const std::vector<Module>& taken) const;
  ModuleKind KindOf(const OUString& name) const;
  void RequireWritable() const;
  void MakeLibrary();
  void Store(const Module& module, const CodeText& code);
  void TakeOut(const Module& module);
  bool IsOfAnySubstance() const;
  void RemoveLibraryWithoutSubstance();

  Book* book_;
  Reference<css::script::XLibraryContainer> libraries_;
  OUString libraryName_;
  Library library_;  // null while the document has none
};

}  // namespace rangewerks::hosts::libreoffice
