#include "com/bridge/arrays.h"

#include <array>
#include <cstring>
#include <memory>
#include <new>

#include "automation/error.h"
#include "com/bridge/failures.h"
#include "com/bridge/values.h"

namespace rangewerks::com {
namespace {

using automation::Array;
using automation::Error;
using automation::ErrorNumber;
using automation::Variant;

struct Destroyer {
  void operator()(SAFEARRAY* array) const { SafeArrayDestroy(array); }
};

/// Keeps an array's elements in place while they are looked at.
class ElementAccess {
 public:
  explicit ElementAccess(SAFEARRAY* array) : array_(array) {
    Require(SafeArrayAccessData(array_, reinterpret_cast<void**>(&data_)));
  }
  ElementAccess(const ElementAccess&) = delete;
  ElementAccess& operator=(const ElementAccess&) = delete;
  ~ElementAccess() { SafeArrayUnaccessData(array_); }

  unsigned char* At(std::size_t index) const {
    return data_ + index * SafeArrayGetElemsize(array_);
  }

 private:
  SAFEARRAY* array_;
  unsigned char* data_ = nullptr;
};

std::int32_t Extent(SAFEARRAY* array, UINT dimension) {
  LONG low = 0;
  LONG high = 0;
  Require(SafeArrayGetLBound(array, dimension, &low));
  Require(SafeArrayGetUBound(array, dimension, &high));
  return high - low + 1;
}

/// An element as a reference to it, so that nothing is copied twice.
Variant ElementAt(unsigned char* place, VARTYPE type) {
  VARIANT reference;
  VariantInit(&reference);
  V_VT(&reference) = static_cast<VARTYPE>(type | VT_BYREF);
  V_BYREF(&reference) = place;
  return FromVariant(reference);
}

}  // namespace

std::size_t SizeOfElement(VARTYPE type) {
  if ((type & VT_ARRAY) != 0) return sizeof(void*);
  switch (type) {
    case VT_I1:
    case VT_UI1:
      return 1;
    case VT_I2:
    case VT_UI2:
    case VT_BOOL:
      return 2;
    case VT_I4:
    case VT_UI4:
    case VT_INT:
    case VT_UINT:
    case VT_R4:
    case VT_ERROR:
      return 4;
    case VT_I8:
    case VT_UI8:
    case VT_R8:
    case VT_CY:
    case VT_DATE:
      return 8;
    case VT_BSTR:
    case VT_DISPATCH:
    case VT_UNKNOWN:
      return sizeof(void*);
    default:
      throw Error(ErrorNumber::TypeMismatch);
  }
}

Variant FromSafeArray(SAFEARRAY* array, VARTYPE elementType) {
  const UINT dimensions = array == nullptr ? 0 : SafeArrayGetDim(array);
  if (dimensions < 1 || dimensions > 2) throw Error(ErrorNumber::TypeMismatch);
  const std::int32_t rows = dimensions == 2 ? Extent(array, 1) : 1;
  const std::int32_t columns = Extent(array, dimensions);
  if (rows < 1 || columns < 1) throw Error(ErrorNumber::TypeMismatch);
  Array block(rows, columns);
  const ElementAccess elements(array);
  std::size_t index = 0;  // the first dimension runs fastest
  for (std::int32_t column = 1; column <= columns; ++column) {
    for (std::int32_t row = 1; row <= rows; ++row) {
      block.At(row, column) = ElementAt(elements.At(index++), elementType);
    }
  }
  return block;
}

SAFEARRAY* ToSafeArray(const Array& block) {
  std::array bounds{SAFEARRAYBOUND{static_cast<ULONG>(block.Rows()), 1},
                    SAFEARRAYBOUND{static_cast<ULONG>(block.Columns()), 1}};
  std::unique_ptr<SAFEARRAY, Destroyer> result(SafeArrayCreate(VT_VARIANT, 2, bounds.data()));
  if (!result) throw std::bad_alloc();
  const ElementAccess elements(result.get());
  std::size_t index = 0;
  for (std::int32_t column = 1; column <= block.Columns(); ++column) {
    for (std::int32_t row = 1; row <= block.Rows(); ++row) {
      ToVariant(block.At(row, column), *reinterpret_cast<VARIANT*>(elements.At(index++)));
    }
  }
  return result.release();
}

}  // namespace rangewerks::com
