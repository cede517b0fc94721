#include "windows/type_texts.h"

#include <array>
#include <stdexcept>

#include "automation/locale.h"
#include "com/bridge/text.h"
#include "com/bridge/values.h"
#include "windows/server_under_test.h"

namespace rangewerks::tests {
namespace {

using automation::TypeCode;
using com::Bstr;
using com::Pointer;

constexpr unsigned kMostNames = 16;
constexpr std::size_t kDispatchSlots = 7;

const char* CodeName(TypeCode code) {
  constexpr std::array kNames = {"Void",   "Variant", "Boolean", "Integer", "Long",
                                 "Double", "Date",    "String",  "Object"};
  return kNames.at(static_cast<std::size_t>(code));
}

Pointer<ITypeInfo> Referenced(ITypeInfo& owner, HREFTYPE reference) {
  Pointer<ITypeInfo> type;
  if (FAILED(owner.GetRefTypeInfo(reference, type.Receive()))) {
    throw std::runtime_error("a type refers to one that can't be found");
  }
  return type;
}

TYPEKIND KindOf(ITypeInfo& type) {
  TypeAttributes attributes(type);
  type.GetTypeAttr(attributes.Receive());
  return attributes->typekind;
}

/// The type in the words of the member tables, which count enumerations as Long and interfaces as
/// Object.
std::string TypeText(ITypeInfo& owner, const TYPEDESC& type) {
  switch (type.vt) {
    case VT_VARIANT:
      return CodeName(TypeCode::Variant);
    case VT_BOOL:
      return CodeName(TypeCode::Boolean);
    case VT_I2:
      return CodeName(TypeCode::Integer);
    case VT_I4:
      return CodeName(TypeCode::Long);
    case VT_R8:
      return CodeName(TypeCode::Double);
    case VT_DATE:
      return CodeName(TypeCode::Date);
    case VT_BSTR:
      return CodeName(TypeCode::String);
    case VT_DISPATCH:
    case VT_UNKNOWN:
      return CodeName(TypeCode::Object);
    case VT_USERDEFINED:
      if (KindOf(*Referenced(owner, type.hreftype).Get()) == TKIND_ENUM) {
        return CodeName(TypeCode::Long);
      }
      break;
    case VT_PTR:
      if (type.lptdesc->vt == VT_USERDEFINED &&
          KindOf(*Referenced(owner, type.lptdesc->hreftype).Get()) != TKIND_ENUM) {
        return CodeName(TypeCode::Object);
      }
      break;
    default:
      break;
  }
  return "type " + std::to_string(type.vt);
}

std::string DefaultText(const automation::Variant& value) {
  if (value.IsObject()) return value.AsObject() ? "an object" : "Nothing";
  if (value.IsString()) return '"' + *value.TryGet<std::string>() + '"';
  return automation::ToString(value, automation::Locale());
}

std::string ArgumentText(ITypeInfo& owner, const std::string& name, const ELEMDESC& argument) {
  const PARAMDESC& parameter = argument.paramdesc;
  const bool out = (parameter.wParamFlags & PARAMFLAG_FOUT) != 0;
  std::string text = (parameter.wParamFlags & PARAMFLAG_FIN) != 0 ? "in" : "";
  if (out) text += "out";
  // What is written to arrives by reference.
  const TYPEDESC& type = out ? *argument.tdesc.lptdesc : argument.tdesc;
  text += " " + name + " " + TypeText(owner, type);
  if ((parameter.wParamFlags & PARAMFLAG_FOPT) != 0) text += " optional";
  if ((parameter.wParamFlags & PARAMFLAG_FHASDEFAULT) != 0) {
    text += " " + DefaultText(com::FromVariant(parameter.pparamdescex->varDefaultValue));
  }
  return text;
}

std::string SlotText(ITypeInfo& owner, const FUNCDESC& function) {
  std::array<BSTR, kMostNames> names{};
  UINT count = 0;
  owner.GetNames(function.memid, names.data(), kMostNames, &count);
  std::vector<std::string> texts;
  for (UINT i = 0; i < count; ++i) {
    texts.push_back(com::FromBstr(names.at(i)));
    SysFreeString(names.at(i));
  }
  Bstr help;
  owner.GetDocumentation(function.memid, nullptr, help.Receive(), nullptr, nullptr);

  const bool writes =
      function.invkind == INVOKE_PROPERTYPUT || function.invkind == INVOKE_PROPERTYPUTREF;
  std::string kind = "call";
  if (function.invkind == INVOKE_PROPERTYGET) kind = "get";
  if (function.invkind == INVOKE_PROPERTYPUT) kind = "let";
  if (function.invkind == INVOKE_PROPERTYPUTREF) kind = "set";

  std::string arguments;
  std::string result = CodeName(TypeCode::Void);
  const auto last = static_cast<std::size_t>(function.cParams) - 1;
  for (std::size_t i = 0; i < static_cast<std::size_t>(function.cParams); ++i) {
    const ELEMDESC& argument = function.lprgelemdescParam[i];
    if ((argument.paramdesc.wParamFlags & PARAMFLAG_FRETVAL) != 0) {
      result = TypeText(owner, *argument.tdesc.lptdesc);
    } else if (writes && i == last) {
      result = TypeText(owner, argument.tdesc);
    } else {
      if (!arguments.empty()) arguments += ", ";
      arguments += ArgumentText(owner, texts.at(i + 1), argument);
    }
  }
  return std::to_string(function.oVft) + " " + kind + " " + std::to_string(function.memid) + " " +
         texts.at(0) + "(" + arguments + ") " + result + " \"" + help.Text() + "\"";
}

/// The name of a type of the library's own, with a star for each reference; empty for others.
std::string OwnTypeText(ITypeInfo& owner, const TYPEDESC& type) {
  if (type.vt == VT_PTR) {
    const std::string target = OwnTypeText(owner, *type.lptdesc);
    return target.empty() ? target : target + "*";
  }
  if (type.vt != VT_USERDEFINED) return {};
  return NameOfType(*Referenced(owner, type.hreftype).Get());
}

}  // namespace

std::string NameOfType(ITypeInfo& type) {
  Bstr name;
  type.GetDocumentation(MEMBERID_NIL, name.Receive(), nullptr, nullptr, nullptr);
  return name.Text();
}

Pointer<ITypeInfo> TypeNamed(const std::string& name) {
  const auto library = ServerTypeLibrary();
  for (UINT i = 0; i < library->GetTypeInfoCount(); ++i) {
    Pointer<ITypeInfo> type;
    library->GetTypeInfo(i, type.Receive());
    if (NameOfType(*type.Get()) == name) return type;
  }
  throw std::runtime_error("the type library lacks " + name);
}

Pointer<ITypeInfo> TableViewOf(ITypeInfo& type) {
  HREFTYPE reference = 0;
  if (FAILED(type.GetRefTypeOfImplType(static_cast<UINT>(-1), &reference))) {
    return Pointer<ITypeInfo>(&type);
  }
  return Referenced(type, reference);
}

std::vector<std::string> SlotsOf(ITypeInfo& dual) {
  const auto view = TableViewOf(dual);
  TypeAttributes attributes(*view.Get());
  view->GetTypeAttr(attributes.Receive());
  std::vector<std::string> slots;
  for (UINT i = 0; i < attributes->cFuncs; ++i) {
    FunctionDescription function(*view.Get());
    view->GetFuncDesc(i, function.Receive());
    slots.push_back(SlotText(*view.Get(), *function.operator->()));
  }
  return slots;
}

std::vector<std::string> SlotsDemandedBy(const automation::MemberTable& table) {
  std::vector<std::string> slots;
  for (const automation::MemberInfo& entry : table.Entries()) {
    std::string arguments;
    for (const automation::ArgumentInfo& argument : entry.arguments) {
      if (!arguments.empty()) arguments += ", ";
      arguments += std::string(argument.inOut ? "inout" : "in") + " " + argument.name.Name() + " " +
                   CodeName(argument.type);
      if (!argument.defaultValue) continue;
      arguments += " optional";
      // A type library has no default for a text by reference: left out, it is the empty text.
      const bool textByReference = argument.inOut && argument.type == TypeCode::String;
      const std::string text = DefaultText(*argument.defaultValue);
      if (!textByReference || text != "\"\"") arguments += " " + text;
    }
    const std::size_t offset = (kDispatchSlots + slots.size()) * sizeof(void*);
    slots.push_back(std::to_string(offset) + " " + KindName(entry.kind) + " " +
                    std::to_string(entry.id) + " " + entry.name.Name() + "(" + arguments + ") " +
                    CodeName(entry.result) + " \"" + entry.help + "\"");
  }
  return slots;
}

std::vector<std::string> OwnTypesIn(ITypeInfo& interfaceType) {
  const auto view = TableViewOf(interfaceType);
  TypeAttributes attributes(*view.Get());
  view->GetTypeAttr(attributes.Receive());
  std::vector<std::string> found;
  for (UINT i = 0; i < attributes->cFuncs; ++i) {
    FunctionDescription function(*view.Get());
    view->GetFuncDesc(i, function.Receive());
    std::array<BSTR, kMostNames> names{};
    UINT count = 0;
    view->GetNames(function->memid, names.data(), kMostNames, &count);
    for (int j = 0; j < function->cParams; ++j) {
      const ELEMDESC& argument = function->lprgelemdescParam[j];
      const std::string type = OwnTypeText(*view.Get(), argument.tdesc);
      if (type.empty()) continue;
      const bool isResult = (argument.paramdesc.wParamFlags & PARAMFLAG_FRETVAL) != 0;
      const auto place = static_cast<std::size_t>(j) + 1;
      const bool isArgument = !isResult && place < count;
      found.push_back(com::FromBstr(names[0]) +
                      (isArgument ? "(" + com::FromBstr(names.at(place)) + ")" : "") + ": " + type);
    }
    for (const BSTR name : names) SysFreeString(name);
  }
  return found;
}

}  // namespace rangewerks::tests
