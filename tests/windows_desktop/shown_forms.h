// Every form of the library with sample data, for what has to be done with all of them.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "forms/form.h"

namespace rangewerks::tests {

struct ShownForm {
  std::string name;
  /// A new form, loaded and filled, but not yet shown.
  std::function<std::shared_ptr<forms::Form>(forms::Toolkit& desktop)> make;
};

const std::vector<ShownForm>& ShownForms();

}  // namespace rangewerks::tests
