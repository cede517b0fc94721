// The late-bound custom DocumentProperties of a workbook, and one DocumentProperty of them.
#pragma once

#include "hosts/workbook/model_object.h"

namespace rangewerks::hosts::workbook {

class DocumentProperties final : public ModelObject<> {
 public:
  DocumentProperties(SessionPointer session, Book* book);
  const MemberTable& Members() const override;
  /// The property of that name or at that position. Raises 9 when there is none.
  Variant GetItem(const Variant& index) const;
  /// Writes the value of that property: what `properties("Name") = value` means.
  void LetItem(const Variant& index, const Variant& value) const;

 protected:
  Variant Carry(const Invocation& call) override;
  std::unique_ptr<Enumerator> Walk() override;

 private:
  DocumentPropertyPointer Find(const Variant& index) const;
  Variant GetCount() const;
  Variant Add(const std::string& name, bool linkToContent, const Variant& type,
              const Variant& value, const Variant& linkSource);
  Variant Face(const DocumentPropertyPointer& property) const;

  Book* book_;
};

class DocumentProperty final : public ModelObject<> {
 public:
  DocumentProperty(SessionPointer session, Book* book, DocumentPropertyPointer property);
  const MemberTable& Members() const override;

 protected:
  void RequireAlive() const override;

 private:
  Variant GetValue() const;
  void LetValue(const Variant& value);
  Variant GetName() const;
  Variant GetType() const;
  Variant GetLinkToContent() const;
  void Delete();

  Book* book_;
  DocumentPropertyPointer property_;
};

}  // namespace rangewerks::hosts::workbook
