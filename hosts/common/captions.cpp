#include "hosts/common/captions.h"

#include <algorithm>

#include "automation/text.h"

namespace rangewerks::hosts {
namespace {

std::string WithoutAccessKey(std::string_view caption) {
  std::string text(caption);
  std::erase(text, '&');
  return text;
}

}  // namespace

std::optional<std::size_t> FindCaption(std::span<const std::string> captions,
                                       std::string_view caption) {
  auto found = std::ranges::find(captions, caption);
  if (found == captions.end()) {
    const std::string plain = WithoutAccessKey(caption);
    found = std::ranges::find_if(captions, [&](const std::string& each) {
      return automation::EqualText(WithoutAccessKey(each), plain);
    });
  }
  if (found == captions.end()) return std::nullopt;
  return static_cast<std::size_t>(found - captions.begin());
}

}  // namespace rangewerks::hosts
