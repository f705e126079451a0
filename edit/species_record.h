// Builds the record of a species from the texts of the window.
#pragma once

#include <array>
#include <string>

#include "edit/display.h"

namespace edit {

// The texts of the species fields as they stand.
struct Entry {
  std::string id, name, logk, dhr, ksel, charge, nocomp;
  std::optional<std::string> lk2;  // nothing while its box is hidden
  std::array<Row, db::kShownPairs> rows;
};

// The component numbers that a record gets for these names: the fixed number of a surface site, else that of the
// component database, else, for "#9999", the number behind the sign. Nothing (an empty field) for any other name.
// The component database is read once, and only when a name needs it. Throws file::Error.
std::vector<std::optional<double>> numgenerator3(file::System& system, const std::string& compdb,
                                                 std::span<const std::string> names);

// Appends the two to four lines of the species' record. Texts that are no number count as 0. Throws file::Refusal for
// what no reader would read back (more components than the window has rows, a quote in the name, an ID number of 0) and
// when the component database cannot be read.
void append_species(std::string& out, const Entry& entry, const Database& database, file::System& system,
                    const std::string& compdb);

}  // namespace edit
