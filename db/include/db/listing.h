// The list of a species database: what loading it gives, as far as the file can be read.
#pragma once

#include <string>
#include <vector>

#include "db/species_reader.h"

namespace db {

// Loading ends in silence where the file ends or cannot be read further; what was read before counts.
struct Listing {
  bool opened = false;             // the file could be opened
  bool led = false;                // and its leading fields read
  LeadingFields leading;           // those that leading_by_name() says
  std::vector<std::string> names;  // of the species, in file order, as read
};

Listing list_species(file::System& system, const Database& open);

}  // namespace db
