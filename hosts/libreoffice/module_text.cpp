#include "hosts/libreoffice/module_text.h"

namespace rangewerks::hosts::libreoffice {
namespace {

std::string HeaderFor(ModuleKind kind) {
  switch (kind) {
    case ModuleKind::Class:
      return "Rem Attribute VBA_ModuleType=VBAClassModule\nOption VBASupport 1\n"
             "Option ClassModule\n";
    case ModuleKind::Form:
      return "Rem Attribute VBA_ModuleType=VBAFormModule\nOption VBASupport 1\n";
    case ModuleKind::Document:
      return "Rem Attribute VBA_ModuleType=VBADocumentModule\nOption VBASupport 1\n";
    case ModuleKind::Standard:
      break;
  }
  return "Rem Attribute VBA_ModuleType=VBAModule\nOption VBASupport 1\n";
}

}  // namespace

std::string SourceOf(ModuleKind kind, const CodeText& code) {
  return HeaderFor(kind) + (code.CountOfLines() == 0 ? "" : code.Text() + "\n");
}

std::string_view WithoutHeader(std::string_view source) {
  for (const std::string_view line :
       {"Rem Attribute VBA_ModuleType=", "Option VBASupport 1", "Option ClassModule"}) {
    if (!source.starts_with(line)) continue;
    const std::size_t end = source.find('\n');
    source = end == std::string_view::npos ? std::string_view{} : source.substr(end + 1);
  }
  return source;
}

CodeText CodeIn(std::string_view source) {
  CodeText code;
  std::string_view text = WithoutHeader(source);
  if (text.empty()) return code;
  if (text.ends_with('\n')) text.remove_suffix(1);
  code.InsertLines(1, text);
  return code;
}

}  // namespace rangewerks::hosts::libreoffice
