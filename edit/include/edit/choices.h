// Which components a new species of the open database may be built from.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "file/system.h"

namespace edit {

// Whether the component with this number is offered.
bool is_offered(double number, std::string_view isomodel, bool cdbfile);

struct Choices {
  std::vector<std::string> names;      // in the order of the component database, then "H2O"
  std::optional<std::string> failure;  // what kept the component database from being read
};

// Reads at most the first 500 components. A record with text in place of its number is passed over; one cut short ends
// the list. A file that cannot be read leaves "H2O" alone.
Choices component_choices(file::System& system, const std::string& compdb, std::string_view isomodel, bool cdbfile);

}  // namespace edit
