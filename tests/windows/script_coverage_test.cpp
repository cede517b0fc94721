// No member of the type library goes without a call from a script: the scripts beside this file
// name the object of each class alike (`list`, `record`, …), so what they call can be read from
// their text.
#include <gmock/gmock.h>

#include <cctype>
#include <filesystem>
#include <fstream>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "com/bridge/text.h"
#include "windows/server_under_test.h"
#include "windows/type_texts.h"

namespace rangewerks::tests {
namespace {

using com::Bstr;
using com::Pointer;

/// What scripts call an object of each interface. A class that comes later gets its entry here.
const std::map<std::string, std::string> kVariables = {
    {"_clsInterfaceRangeList", "list"},    {"_clsExInputRange", "record"},
    {"_colExInputRangeList", "records"},   {"_colGroupHeadings", "headings"},
    {"_clsRangeGroupHeading", "heading"},  {"_ExcelFunctions", "functions"},
    {"_clsRangeProperties", "properties"}, {"_clsColumnStyle", "style"},
    {"_clsSaveSettings", "settings"},      {"_clsExcelVB", "editor"},
    {"_clsAddBrowse", "browse"},           {"_clsExcelBrowse", "shortcut"},
    {"_ErrorMessageBox", "box"},           {"_errL100Jrn", "marker"},
    {"_clsErrorList", "errors"},           {"_clsBrowseDate", "dates"},
    {"_clsExcelAbout", "about"},           {"_clsRangewerksVer", "version"},
    {"_ctlColourPallet", "panel"},
};

std::vector<std::string> LinesOfScripts() {
  std::vector<std::string> lines;
  for (const auto& entry : std::filesystem::directory_iterator(RANGEWERKS_SCRIPTS)) {
    if (entry.path().extension() != ".vbs") continue;
    std::ifstream file(entry.path());
    for (std::string line; std::getline(file, line);) {
      const std::size_t start = line.find_first_not_of(' ');
      if (start != std::string::npos && line[start] != '\'') lines.push_back(line.substr(start));
    }
  }
  return lines;
}

bool IsNamePart(char c) { return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_'; }

/// Whether a line reads or calls `call` as a whole word, which an assignment to it doesn't do.
bool Calls(std::string_view line, const std::string& call) {
  for (std::size_t at = line.find(call); at != std::string_view::npos;
       at = line.find(call, at + 1)) {
    const std::string_view rest = line.substr(at + call.size());
    const bool isWhole =
        (at == 0 || !IsNamePart(line[at - 1])) && (rest.empty() || !IsNamePart(rest.front()));
    const bool isAssigned = rest.starts_with(" = ") && (at == 0 || line.substr(0, at) == "Set ");
    if (isWhole && !isAssigned) return true;
  }
  return false;
}

bool IsCalled(const std::vector<std::string>& lines, const std::string& variable,
              const std::string& member, const FUNCDESC& function) {
  const std::string call = variable + "." + member;
  for (const std::string& line : lines) {
    bool found = false;
    if (function.memid == DISPID_NEWENUM) {
      found = line.starts_with("For Each ") && line.ends_with(" In " + variable);
    } else if (function.invkind == INVOKE_PROPERTYPUT) {
      found = line.starts_with(call + " = ");
    } else if (function.invkind == INVOKE_PROPERTYPUTREF) {
      found = line.starts_with("Set " + call + " = ");
    } else {
      found = Calls(line, call);
    }
    if (found) return true;
  }
  return false;
}

TEST(Scripts, CallEveryMemberOfTheTypeLibrary) {
  const std::vector<std::string> lines = LinesOfScripts();
  const auto library = ServerTypeLibrary();
  std::size_t interfaces = 0;
  for (UINT i = 0; i < library->GetTypeInfoCount(); ++i) {
    Pointer<ITypeInfo> type;
    library->GetTypeInfo(i, type.Receive());
    TypeAttributes attributes(*type.Get());
    type->GetTypeAttr(attributes.Receive());
    // The events of a source are heard by sinks in C++: the script host here has none.
    if ((attributes->wTypeFlags & TYPEFLAG_FDUAL) == 0) continue;
    ++interfaces;
    const std::string name = NameOfType(*type.Get());
    ASSERT_TRUE(kVariables.contains(name)) << "no script has an object of " << name;
    const auto table = TableViewOf(*type.Get());
    TypeAttributes slots(*table.Get());
    table->GetTypeAttr(slots.Receive());
    for (UINT slot = 0; slot < slots->cFuncs; ++slot) {
      FunctionDescription function(*table.Get());
      table->GetFuncDesc(slot, function.Receive());
      Bstr member;
      table->GetDocumentation(function->memid, member.Receive(), nullptr, nullptr, nullptr);
      EXPECT_TRUE(IsCalled(lines, kVariables.at(name), member.Text(), *function.operator->()))
          << "no script calls " << name << "." << member.Text() << ", kind " << function->invkind;
    }
  }
  EXPECT_EQ(interfaces, kVariables.size());
}

TEST(Scripts, AnAssignmentAndPartOfANameAreNoCalls) {
  EXPECT_TRUE(Calls("CheckEqual \"x\", list.Count, 0", "list.Count"));
  EXPECT_TRUE(Calls("list.ClearList", "list.ClearList"));
  EXPECT_FALSE(Calls("list.RangePrefix = \"x\"", "list.RangePrefix"));
  EXPECT_FALSE(Calls("Set list.ActSheet = sheet", "list.ActSheet"));
  EXPECT_FALSE(Calls("list.CountAll", "list.Count"));
  EXPECT_FALSE(Calls("mylist.Count", "list.Count"));
}

}  // namespace
}  // namespace rangewerks::tests
