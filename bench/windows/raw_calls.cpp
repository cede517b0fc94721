// The posting run of posting_run.vbs in C++ with nothing between the program and the host but
// IDispatch: dispatch identifiers are remembered, conversions are the system's. Prints seconds in
// the same way.
#include <objbase.h>
#include <windows.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cwctype>
#include <initializer_list>
#include <stdexcept>
#include <string>
#include <vector>

#include "com/bridge/owners.h"

namespace {

using rangewerks::com::OwnedVariant;
using rangewerks::com::Pointer;

constexpr long kRows = 1000;
constexpr long kSlice = 100;
constexpr long kRanges = 20;
constexpr int kRounds = 3;

enum Type { kText, kNumber, kDate, kWhole, kYesNo };

void Check(HRESULT result, const wchar_t* what) {
  if (SUCCEEDED(result)) return;
  std::fprintf(stderr, "raw_calls: %ls failed: %08lx\n", what, static_cast<unsigned long>(result));
  throw std::runtime_error("a call failed");
}

/// A member of one class; its identifier is asked for once.
class Member {
 public:
  explicit Member(const wchar_t* name) : name_(name) {}

  void Call(IDispatch* target, WORD kind, std::initializer_list<VARIANT> lastFirst,
            VARIANT* result) {
    if (id_ == DISPID_UNKNOWN) {
      auto* name = const_cast<wchar_t*>(name_);
      Check(target->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &id_), name_);
    }
    DISPID newValue = DISPID_PROPERTYPUT;
    DISPPARAMS parameters{const_cast<VARIANT*>(lastFirst.begin()), nullptr,
                          static_cast<UINT>(lastFirst.size()), 0};
    if (kind == DISPATCH_PROPERTYPUT) {
      parameters.rgdispidNamedArgs = &newValue;
      parameters.cNamedArgs = 1;
    }
    Check(target->Invoke(id_, IID_NULL, LOCALE_USER_DEFAULT, kind, &parameters, result, nullptr,
                         nullptr),
          name_);
  }
  void Get(IDispatch* target, VARIANT* result, std::initializer_list<VARIANT> lastFirst = {}) {
    Call(target, DISPATCH_METHOD | DISPATCH_PROPERTYGET, lastFirst, result);
  }
  Pointer<IDispatch> Object(IDispatch* target, std::initializer_list<VARIANT> lastFirst = {}) {
    VARIANT result;
    VariantInit(&result);
    Get(target, &result, lastFirst);
    return Pointer<IDispatch>::Adopt(V_DISPATCH(&result));
  }
  void Let(IDispatch* target, const VARIANT& value) {
    Call(target, DISPATCH_PROPERTYPUT, {value}, nullptr);
  }

 private:
  const wchar_t* name_;
  DISPID id_ = DISPID_UNKNOWN;
};

VARIANT Whole(long value) {
  VARIANT result;
  V_VT(&result) = VT_I4;
  V_I4(&result) = value;
  return result;
}

VARIANT Number(double value, VARTYPE type = VT_R8) {
  VARIANT result;
  V_VT(&result) = type;
  V_R8(&result) = value;
  return result;
}

/// A variant that refers to a text.
class Text {
 public:
  explicit Text(const std::wstring& text)
      : text_(SysAllocStringLen(text.data(), static_cast<UINT>(text.size()))) {}
  Text(const Text&) = delete;
  Text& operator=(const Text&) = delete;
  ~Text() { SysFreeString(text_); }

  VARIANT Value() const {
    VARIANT result;
    V_VT(&result) = VT_BSTR;
    V_BSTR(&result) = text_;
    return result;
  }

 private:
  BSTR text_;
};

struct Members {
  Member workbooks{L"Workbooks"}, add{L"Add"}, activeSheet{L"ActiveSheet"}, sheetName{L"Name"},
      sheetCells{L"Cells"}, resize{L"Resize"}, rangeName{L"Name"}, value{L"Value"},
      parent{L"Parent"}, names{L"Names"}, refersToRange{L"RefersToRange"}, cells{L"Cells"},
      item{L"Item"}, application{L"Application"}, international{L"International"};
};

class Run {
 public:
  Run() {
    CLSID id{};
    Check(CLSIDFromProgID(L"SheetHost.Application", &id), L"SheetHost.Application");
    Check(CoCreateInstance(id, nullptr, CLSCTX_SERVER, __uuidof(IDispatch), host_.ReceiveAny()),
          L"SheetHost.Application");
    call_.add.Object(call_.workbooks.Object(host_.Get()).Get());
    sheet_ = call_.activeSheet.Object(host_.Get());
    const Text sheetName(L"Data");
    call_.sheetName.Let(sheet_.Get(), sheetName.Value());
    const Text text(L"text");
    const Text yes(L"Y");
    const std::array<VARIANT, 5> contents{text.Value(), Number(1234.56), Number(45322, VT_DATE),
                                          Whole(12), yes.Value()};
    for (long i = 0; i < kRanges; ++i) {
      const auto top = call_.sheetCells.Object(sheet_.Get(), {Whole(i + 1), Whole(1)});
      const auto area = call_.resize.Object(top.Get(), {Whole(kRows)});
      const Text name(L"Data__range_" + std::to_wstring(i));
      call_.rangeName.Let(area.Get(), name.Value());
      call_.value.Let(area.Get(), contents.at(static_cast<std::size_t>(i % 5)));
    }
  }

  double BestOf(long first) {
    double best = 0;
    for (int round = 0; round < kRounds; ++round) {
      const auto started = std::chrono::steady_clock::now();
      for (long row = first; row < first + kSlice; ++row) ReadAndWrite(row);
      const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - started;
      best = round == 0 ? seconds.count() : std::min(best, seconds.count());
    }
    return best;
  }

 private:
  void ReadAndWrite(long row) {
    for (long i = 0; i < kRanges; ++i) Read(row, i);
    for (long i = 0; i < kRanges; ++i) {
      const auto cell = call_.item.Object(AreaOf(i).Get(), {Whole(row)});
      Write(cell.Get(), i);
    }
  }

  Pointer<IDispatch> AreaOf(long i) {
    OwnedVariant name;
    call_.sheetName.Get(sheet_.Get(), &name);
    const Text full(std::wstring(V_BSTR(&name)) + L"__range_" + std::to_wstring(i));
    const auto book = call_.parent.Object(sheet_.Get());
    const auto entry = call_.names.Object(book.Get(), {full.Value()});
    return call_.refersToRange.Object(entry.Get());
  }

  void Read(long row, long i) {
    OwnedVariant content;
    const auto cell = call_.cells.Object(AreaOf(i).Get(), {Whole(1), Whole(row)});
    call_.value.Get(cell.Get(), &content);
    Check(VariantChangeType(&content, &content, VARIANT_ALPHABOOL, VT_BSTR), L"text of a cell");
    std::wstring text = V_BSTR(&content);
    text.erase(text.find_last_not_of(L' ') + 1);
    text.erase(0, text.find_first_not_of(L' '));
    Convert(text, static_cast<Type>(i % 5), values_.at(static_cast<std::size_t>(i)));
  }

  void Convert(const std::wstring& text, Type type, OwnedVariant& value) {
    VariantClear(&value);
    const Text source(text);
    VARIANT from = source.Value();
    switch (type) {
      case kNumber:
        Check(VariantChangeType(&value, &from, 0, VT_R8), L"a number");
        break;
      case kDate: {
        OwnedVariant order;
        const auto application = call_.application.Object(sheet_.Get());
        call_.international.Get(application.Get(), &order, {Whole(32)});
        Check(VariantChangeType(&value, &from, 0, VT_DATE), L"a date");
        break;
      }
      case kWhole:
        Check(VariantChangeType(&value, &from, 0, VT_I2), L"a whole number");
        break;
      case kYesNo:
        V_VT(&value) = VT_BOOL;
        V_BOOL(&value) =
            text.size() == 1 && std::towupper(text[0]) == L'Y' ? VARIANT_TRUE : VARIANT_FALSE;
        break;
      case kText:
        Check(VariantCopy(&value, &from), L"a text");
        break;
    }
  }

  void Write(IDispatch* cell, long i) {
    OwnedVariant& value = values_.at(static_cast<std::size_t>(i));
    if (i % 5 == kWhole) {
      call_.value.Let(cell, Text(L" " + std::to_wstring(V_I2(&value))).Value());
    } else if (i % 5 == kYesNo) {
      call_.value.Let(cell, Text(V_BOOL(&value) != VARIANT_FALSE ? L"Y" : L"N").Value());
    } else {
      call_.value.Let(cell, *value);
    }
  }

  Members call_;
  Pointer<IDispatch> host_;
  Pointer<IDispatch> sheet_;
  std::array<OwnedVariant, kRanges> values_;
};

}  // namespace

int main() {
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  int status = 0;
  try {
    Run run;
    double seconds = 0;
    for (long first = 1; first <= kRows; first += kSlice) seconds += run.BestOf(first);
    std::printf("raw %.3f\n", seconds);
  } catch (const std::exception&) {
    status = 1;
  }
  CoUninitialize();
  return status;
}
