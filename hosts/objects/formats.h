// What the cells of a range look like: the late-bound Font, Interior, Borders and Border.
#pragma once

#include <optional>

#include "hosts/common/palette.h"
#include "hosts/objects/collection.h"

namespace rangewerks::hosts::objects {

class Font : public HostObject {
 public:
  const MemberTable& Members() const final;

 protected:
  virtual Variant GetBold() const = 0;
  virtual void LetBold(bool isBold) = 0;
};

/// The fill of cells, always or while a condition holds.
class Interior : public HostObject {
 public:
  const MemberTable& Members() const final;

 protected:
  /// 0xBBGGRR or kNoFill; none when the cells differ.
  virtual std::optional<std::int32_t> Fill() = 0;
  virtual void Paint(std::int32_t fill) = 0;

 private:
  Variant GetColor();
  void LetColor(std::int32_t color);
  Variant GetColorIndex();
  void LetColorIndex(std::int32_t index);
};

/// The lines around and between the cells.
class Borders : public HostObject {
 public:
  const MemberTable& Members() const final;
  /// One edge, or the lines inside in one direction. Raises 1004 for another index.
  virtual Variant GetItem(std::int32_t index) const = 0;
};

class Border : public HostObject {
 public:
  const MemberTable& Members() const final;

 protected:
  virtual Variant GetLineStyle() const = 0;
  /// Continuous, double or none. Raises 1004 for the inside of cells that have none, as the next
  /// one.
  virtual void PutLineStyle(std::int32_t style) = 0;
  virtual Variant GetWeight() const = 0;
  /// Hairline, thin, medium or thick.
  virtual void PutWeight(std::int32_t weight) = 0;

 private:
  void LetLineStyle(std::int32_t style);
  void LetWeight(std::int32_t weight);
};

}  // namespace rangewerks::hosts::objects
