// The macro project of a workbook as typed references.
//
//   const excel::VBComponents modules = workbook.get_VBProject().get_VBComponents();
//   const excel::CodeModule code = modules.get_Item("ThisWorkbook").get_CodeModule();
//   code.InsertLines(code.get_CountOfLines() + 1, "\rSub Greet()\rEnd Sub");
#pragma once

#include <cstdint>
#include <string>

#include "platform/excel.h"

namespace rangewerks::excel {

/// The code of one module. Lines count from 1.
class CodeModule : public Object {
 public:
  using Object::Object;
  explicit CodeModule(const Object& object) : Object(object) {}

  std::int32_t get_CountOfLines() const;
  /// Some lines, with CR LF between them.
  std::string get_Lines(std::int32_t start, std::int32_t count) const;
  /// Puts a text ahead of a line; CR parts its lines.
  void InsertLines(std::int32_t line, const std::string& text) const;
  void DeleteLines(std::int32_t start, std::int32_t count) const;
  /// The first line of a procedure, and how many there are from it on, with what the host counts to
  /// it above and below. Fail, as an answer, when there is no such procedure.
  std::int32_t get_ProcStartLine(const std::string& name, ProcedureKind kind) const;
  std::int32_t get_ProcCountLines(const std::string& name, ProcedureKind kind) const;
  /// Looks for a text from `startLine` to the end of the module, also within words and whatever the
  /// case of the letters. True with the line of the first hit in `startLine`, which otherwise
  /// stays.
  bool Find(const std::string& target, std::int32_t& startLine) const;
};

/// One code module with its name.
class VBComponent : public Object {
 public:
  using Object::Object;
  explicit VBComponent(const Object& object) : Object(object) {}

  /// Fails for a name that another module has.
  void let_Name(const std::string& name) const;
  CodeModule get_CodeModule() const;
};

/// The code modules of a project.
class VBComponents : public Object {
 public:
  using Object::Object;
  explicit VBComponents(const Object& object) : Object(object) {}

  /// The module of that name. Fails, as an answer, when there is none.
  VBComponent get_Item(const std::string& name) const;
  /// A new module, under a name of the host's choice.
  VBComponent Add(ComponentType type) const;
  void Remove(const VBComponent& component) const;
};

class VBProject : public Object {
 public:
  using Object::Object;
  explicit VBProject(const Object& object) : Object(object) {}

  VBComponents get_VBComponents() const;
};

}  // namespace rangewerks::excel
