// What the window shows of one species.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "db/components.h"
#include "db/species_reader.h"

namespace edit {

// By its ID number, the meaning of a species' field 6. All bounds are strict: above the first, below the second number.
enum class IdRange { None, Lk2, Nica };
IdRange range_of(double id);

struct Row {
  std::string stoich, comp, mbstoich;
};

// Texts for the boxes; a value that the species does not show is nothing.
struct Shown {
  std::string id, name, logk, dhr, charge, nocomp;
  std::optional<std::string> ksel;
  std::optional<std::string> lk2;
  std::string lk2_caption;            // "Lk2", "m", "b" or "n" when lk2 is shown
  bool ksel_is_m_ref = false;         // K-sel is shown, as "m-ref"
  std::vector<Row> rows;              // at most db::kShownPairs
  std::optional<std::string> notice;  // what the user has to be told beside
};

// Finds the species `name` in the open database and looks its components up in `compdb`; nothing when there is none of that
// name. For an isotherm or NICA-Donnan database, told by its path, the model in its leading field becomes `open.isomodel`,
// whatever comes after. Throws file::Error when the database cannot be read to the species, or the species holds text where
// a number belongs.
std::optional<Shown> show_species(file::System& system, db::Database& open, const std::string& compdb,
                                  std::string_view name);

}  // namespace edit
