// What the isotherm models differ in. The model of a database stands in its leading field.
#pragma once

#include <string_view>
#include <vector>

namespace edit {

struct Model {
  std::string_view name;
  std::string_view logk_caption{};  // none: that of before stays
  bool mb = false;                  // M.B. stoichiometries are in use
  // For a new species: the ID number's first number, by the first component where that is a site of its own; whether the
  // first component's number is also the second; the component numbers that are not offered, above and below these (no
  // more).
  double site = 1301;
  struct Site {
    std::string_view component;
    double number;
  };
  std::vector<Site> sites{};
  bool sites_alike = false;
  double hidden_above = 1300, hidden_below = 1300, last = 1e300;  // none hidden; no last
};

// In the order of the selector, but for the last, which is that of NICA-Donnan databases.
const std::vector<Model>& models();
// The model of this name; for any other name one without a caption and with all components.
const Model& model(std::string_view name);

}  // namespace edit
