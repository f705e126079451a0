// What the isotherm models differ in, and which components a new species may be built from.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "db/database.h"
#include "file/system.h"

namespace edit {

// The model of a database stands in its leading field.
struct Model {
  std::string_view name;
  std::string_view logk_caption{};  // none: that of before stays
  bool mb = false;                  // M.B. stoichiometries are in use
  // The first number of a new ID number: that of the first component where it is one of these sites, else `site`; and
  // whether the second number is then the first component's.
  double site = 1301;
  struct Site {
    std::string_view component;
    double number;
  };
  std::vector<Site> sites{};
  bool sites_alike = false;
  // Of the components above 1300, which are sites of models, those from the first to the last of these are offered.
  double first_offered = 1300, last_offered = 1e300;
};

// In the order of the selector, but for the last, which is that of NICA-Donnan databases.
const std::vector<Model>& models();
// The model of this name; for any other name one without a caption and with all components.
const Model& model(std::string_view name);

// Puts a model in force: the one picked by the user, if any, before that of the file, which counts as picked then.
void put_in_force(db::Database& open, const std::string& model_in_file);

// Whether the component with this number is offered.
bool is_offered(double number, std::string_view isomodel, bool cdbfile);

struct Choices {
  std::vector<std::string> names;      // in the order of the component database, then "H2O"
  std::optional<std::string> failure;  // what kept the component database from being read
};

// Reads at most the first 500 components. A record with text in place of its number is passed over; one cut short ends
// the list. A file that cannot be read leaves "H2O" alone.
Choices component_choices(file::System& system, const db::Database& open);

}  // namespace edit
