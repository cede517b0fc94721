#include "com/control/stored_properties.h"

#include <ole2.h>

#include "com/bridge/text.h"
#include "com/bridge/values.h"

namespace rangewerks::com {

namespace {

constexpr std::int32_t kForm = 1;  // of what is written into a stream

void Read(IStream& stream, std::int32_t& number) {
  ULONG read = 0;
  Require(stream.Read(&number, sizeof(number), &read));
  if (read != sizeof(number)) throw FailureOf(STG_E_READFAULT);
}

void Write(IStream& stream, std::int32_t number) {
  ULONG written = 0;
  Require(stream.Write(&number, sizeof(number), &written));
  if (written != sizeof(number)) throw FailureOf(STG_E_MEDIUMFULL);
}

}  // namespace

std::vector<std::int32_t> StoredProperties::Now() const {
  std::vector<std::int32_t> numbers{parts_.extent.cx, parts_.extent.cy};
  for (const automation::Member property : parts_.description.properties) {
    const automation::Variant value = parts_.core.Get(property);
    const auto* number = value.TryGet<std::int32_t>();
    numbers.push_back(number == nullptr ? 0 : *number);
  }
  return numbers;
}

void StoredProperties::Assign(const std::vector<std::int32_t>& numbers) {
  parts_.extent = {numbers.at(0), numbers.at(1)};
  parts_.ApplyExtent();
  std::size_t at = 2;
  for (const automation::Member property : parts_.description.properties) {
    parts_.core.Let(property, numbers.at(at++));
  }
  parts_.core.Call(parts_.description.shownBy);
  Saved();
  parts_.ViewChanged();
}

std::vector<std::wstring> StoredProperties::Names() const {
  std::vector<std::wstring> names{L"_ExtentX", L"_ExtentY"};
  for (const automation::Member property : parts_.description.properties) {
    names.push_back(ToWide(property.Name()));
  }
  return names;
}

HRESULT PersistStream::GetClassID(CLSID* id) noexcept {
  if (id == nullptr) return E_POINTER;
  *id = parts_.description.classId;
  return S_OK;
}

HRESULT PersistStream::IsDirty() noexcept {
  return Guarded([&] { return stored_.HasChanged() ? S_OK : S_FALSE; });
}

HRESULT PersistStream::Load(IStream* stream) noexcept {
  if (stream == nullptr) return E_POINTER;
  return Guarded([&] {
    std::int32_t form = 0;
    Read(*stream, form);
    if (form != kForm) return STG_E_OLDDLL;  // written by a later version
    std::vector<std::int32_t> numbers(stored_.Names().size());
    for (std::int32_t& number : numbers) Read(*stream, number);
    stored_.Assign(numbers);
    return S_OK;
  });
}

HRESULT PersistStream::Save(IStream* stream, BOOL clearDirty) noexcept {
  if (stream == nullptr) return E_POINTER;
  return Guarded([&] {
    Write(*stream, kForm);
    for (const std::int32_t number : stored_.Now()) Write(*stream, number);
    if (clearDirty != FALSE) stored_.Saved();
    return S_OK;
  });
}

HRESULT PersistStream::GetSizeMax(ULARGE_INTEGER* size) noexcept {
  if (size == nullptr) return E_POINTER;
  return Guarded([&] {
    size->QuadPart = (1 + stored_.Names().size()) * sizeof(std::int32_t);
    return S_OK;
  });
}

HRESULT PersistStream::InitNew() noexcept { return S_OK; }

HRESULT PersistBag::GetClassID(CLSID* id) noexcept {
  if (id == nullptr) return E_POINTER;
  *id = parts_.description.classId;
  return S_OK;
}

HRESULT PersistBag::InitNew() noexcept { return S_OK; }

HRESULT PersistBag::Load(IPropertyBag* bag, IErrorLog* log) noexcept {
  if (bag == nullptr) return E_POINTER;
  return Guarded([&] {
    std::vector<std::int32_t> numbers = stored_.Now();
    const std::vector<std::wstring> names = stored_.Names();
    for (std::size_t i = 0; i < names.size(); ++i) {
      OwnedVariant value;
      V_VT(&*value) = VT_I4;  // the kind that is wanted
      if (FAILED(bag->Read(names[i].c_str(), &value, log))) continue;
      if (SUCCEEDED(VariantChangeType(&value, &value, 0, VT_I4))) numbers[i] = V_I4(&*value);
    }
    stored_.Assign(numbers);
    return S_OK;
  });
}

HRESULT PersistBag::Save(IPropertyBag* bag, BOOL clearDirty, BOOL /*all*/) noexcept {
  if (bag == nullptr) return E_POINTER;
  return Guarded([&] {
    const std::vector<std::int32_t> numbers = stored_.Now();
    const std::vector<std::wstring> names = stored_.Names();
    for (std::size_t i = 0; i < names.size(); ++i) {
      OwnedVariant value;
      V_VT(&*value) = VT_I4;
      V_I4(&*value) = numbers[i];
      Require(bag->Write(names[i].c_str(), &value));
    }
    if (clearDirty != FALSE) stored_.Saved();
    return S_OK;
  });
}

}  // namespace rangewerks::com
