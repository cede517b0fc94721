#include "hosts/libreoffice/font.h"

#include <com/sun/star/awt/FontWeight.hpp>
#include <com/sun/star/beans/XMultiPropertySet.hpp>

#include "hosts/libreoffice/cell_properties.h"
#include "hosts/libreoffice/cell_writing.h"

namespace rangewerks::hosts::libreoffice {

Variant Font::GetBold() const {
  const auto weight = CommonProperty<float>(OnSheet(), InArea(), "CharWeight");
  if (!weight) return automation::Null();
  return *weight > css::awt::FontWeight::NORMAL;
}

void Font::LetBold(bool isBold) {
  RequireWritable(OnSheet(), InArea());
  // The office has one weight for each family of scripts.
  const std::vector<OUString> names{ToUno("CharWeight"), ToUno("CharWeightAsian"),
                                    ToUno("CharWeightComplex")};
  const Any weight(isBold ? css::awt::FontWeight::BOLD : css::awt::FontWeight::NORMAL);
  As<css::beans::XMultiPropertySet>(OnSheet().Block(InArea()))
      ->setPropertyValues(ToSequence(names), ToSequence(std::vector<Any>(names.size(), weight)));
}

}  // namespace rangewerks::hosts::libreoffice
