#include "apps/rangewerks/fill_data.h"

#include <filesystem>

#include "apps/rangewerks/failure.h"
#include "apps/rangewerks/text_file.h"
#include "automation/text.h"

namespace rangewerks::apps {

std::vector<GivenValue> ReadFillFile(const std::string& path, const clsInterfaceRangeList& list) {
  const std::string extension = std::filesystem::path(path).extension().string();
  const bool isJson = automation::EqualText(extension, ".json");
  if (!isJson && !automation::EqualText(extension, ".csv")) {
    throw Failure(path + ": a data file is called .json or .csv by the form that it has");
  }
  const std::string text = ReadTextFile(path, "data file");
  try {
    auto values = isJson ? ParseFillJson(text, list) : ParseFillCsv(text, list);
    if (values.empty()) throw Failure("the file gives no value; there is nothing to write");
    return values;
  } catch (const Failure& failure) {
    throw Failure(path + ": " + failure.what());
  }
}

}  // namespace rangewerks::apps
