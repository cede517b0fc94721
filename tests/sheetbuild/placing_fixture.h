// A range list that places ranges on a sheet of the in-memory workbook, with its events heard.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "sheetbuild/clsRangeProperties.h"
#include "support/sheet_fixture.h"

namespace rangewerks::tests {

class PlacingFixture : public SheetFixture {
 protected:
  using Record = clsInterfaceRangeList::Record;

  PlacingFixture() {
    properties->let_AddFormat(false);
    connection_ = list->Connect([this](Member event, std::span<const automation::Argument> given) {
      std::string heard = event.Name();
      for (const auto& each : given) {
        heard += " " + ToString(each.Value(), automation::Locale::Current());
      }
      events.push_back(heard);
    });
  }

  /// Declares a range that the next placing is about.
  Record Order(const std::string& name, eRangeHeadDetailInd indicator = hdiDetail,
               eRangeDataType type = rdtString, std::int16_t length = 0,
               const std::string& description = {}) {
    properties->let_RangeName(name);
    return list->Add(name, indicator, type, false, description, length);
  }
  Record Place(const std::string& address) {
    selection = Cells(address);
    return list->AddRangeToSpreadsheet(selection, properties);
  }
  Error FailureOfPlacing(const std::string& address) {
    return ErrorOf([&] { Place(address); });
  }
  /// The lines of the host calls of a placing that name one type or member, such as "Validation".
  std::vector<std::string> CallsOn(const std::string& prefix, const std::string& address) {
    std::vector<std::string> found;
    for (const std::string& line : CallsOf([&] { Place(address); })) {
      if (line.starts_with(prefix)) found.push_back(line);
    }
    return found;
  }
  Object ValidationOf(const std::string& address) const {
    return Cells(address).Get(Member("Validation")).AsObject();
  }
  std::string TextOf(const Object& object, const char* member) const {
    return ToString(object.Get(Member(member)), automation::Locale::Current());
  }
  Variant FormatOf(const std::string& address, const char* member) const {
    return Cells(address).Get(Member(member));
  }

  std::shared_ptr<clsRangeProperties> properties = std::make_shared<clsRangeProperties>(nullptr);
  excel::Range selection;
  std::vector<std::string> events;

 private:
  automation::Connection connection_;
};

}  // namespace rangewerks::tests
