// What the window shows of one species.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "db/database.h"
#include "db/number.h"
#include "file/system.h"

namespace edit {

// By its ID number, the meaning of a species' field 6. All bounds are strict: above the first, below the second number.
enum class IdRange { None, Lk2, Nica };
IdRange range_of(double id);

struct Row {
  std::string stoich, comp, mbstoich;
};

// The texts of a species' boxes; K-sel and Lk2 are nothing where a species does not show them, Lk2 while its box is hidden.
struct Entry {
  std::string id, name, logk, dhr, charge, nocomp;
  std::optional<std::string> ksel, lk2;
  std::vector<Row> rows;  // at most db::kShownPairs
};

struct Shown {
  Entry boxes;
  std::string lk2_caption;            // "Lk2", "m", "b" or "n" when Lk2 is shown
  bool ksel_is_m_ref = false;         // K-sel is shown, as "m-ref"
  std::optional<std::string> notice;  // what the user has to be told beside
};

// Finds the species `name` in the open database and looks its components up; nothing when there is none of that name. For
// an isotherm or NICA-Donnan database, told by its path, the model in its leading field becomes `open.isomodel`, whatever
// comes after. Throws file::Error when the database cannot be read to the species, or the species holds text where a number
// belongs.
std::optional<Shown> show_species(file::System& system, db::Database& open, std::string_view name);

// What stands in the window for a component without a name: "#231" for its number, "#" for an empty number. A component that
// bears such a name is shown by its number too, so that a mark always means what it says.
std::string shown_name(std::string_view name, double number);
bool is_mark(std::string_view name);
inline std::optional<double> number_of_mark(std::string_view mark) { return db::parse_number(mark.substr(1)); }

}  // namespace edit
