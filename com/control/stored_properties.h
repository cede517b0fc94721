// What of a control is stored with its container's document: its size and some of its properties.
// Private to this folder.
#pragma once

#include <ocidl.h>

#include <cstdint>
#include <vector>

#include "com/control/control_parts.h"

namespace rangewerks::com {

class StoredProperties {
 public:
  explicit StoredProperties(ControlParts& parts) : parts_(parts), saved_(Now()) {}

  /// Width and height in hundredths of a millimetre, then the properties in their order.
  std::vector<std::int32_t> Now() const;
  /// Takes such numbers over and shows them.
  void Assign(const std::vector<std::int32_t>& numbers);
  /// What Now tells is what the document has.
  void Saved() { saved_ = Now(); }
  bool HasChanged() const { return Now() != saved_; }
  /// The names of the numbers.
  std::vector<std::wstring> Names() const;

 private:
  ControlParts& parts_;
  std::vector<std::int32_t> saved_;
};

/// In a stream: a number for the form of what follows, then the numbers, each of four bytes.
class PersistStream final : public Face<IPersistStreamInit> {
 public:
  PersistStream(ControlParts& parts, StoredProperties& stored)
      : Face(parts.whole), parts_(parts), stored_(stored) {}

  HRESULT STDMETHODCALLTYPE GetClassID(CLSID* id) noexcept override;
  HRESULT STDMETHODCALLTYPE IsDirty() noexcept override;
  HRESULT STDMETHODCALLTYPE Load(IStream* stream) noexcept override;
  HRESULT STDMETHODCALLTYPE Save(IStream* stream, BOOL clearDirty) noexcept override;
  HRESULT STDMETHODCALLTYPE GetSizeMax(ULARGE_INTEGER* size) noexcept override;
  HRESULT STDMETHODCALLTYPE InitNew() noexcept override;

 private:
  ControlParts& parts_;
  StoredProperties& stored_;
};

/// In a bag of named values, as forms that are kept as text have it.
class PersistBag final : public Face<IPersistPropertyBag> {
 public:
  PersistBag(ControlParts& parts, StoredProperties& stored)
      : Face(parts.whole), parts_(parts), stored_(stored) {}

  HRESULT STDMETHODCALLTYPE GetClassID(CLSID* id) noexcept override;
  HRESULT STDMETHODCALLTYPE InitNew() noexcept override;
  /// What the bag lacks stays as it is.
  HRESULT STDMETHODCALLTYPE Load(IPropertyBag* bag, IErrorLog* log) noexcept override;
  HRESULT STDMETHODCALLTYPE Save(IPropertyBag* bag, BOOL clearDirty, BOOL all) noexcept override;

 private:
  ControlParts& parts_;
  StoredProperties& stored_;
};

}  // namespace rangewerks::com
