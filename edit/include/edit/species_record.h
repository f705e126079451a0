// Builds the record of a species from the texts of the window.
#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "edit/display.h"

namespace edit {

// The texts of the species fields as they stand.
struct Entry {
  std::string id, name, logk, dhr, ksel, charge, nocomp;
  std::optional<std::string> lk2;  // nothing while its box is hidden
  std::array<Row, db::kShownPairs> rows;

  // The rows that belong to the species, by its number of components. Throws file::Refusal when the window has fewer.
  std::span<const Row> components() const;
};

// The component number of each row: the fixed number of a surface site, for "#9999" the number after the sign, else that of
// the component database. Nothing (an empty field) for any other name. The component database is read once, and only when a
// row holds more than a surface site. Throws file::Refusal when it cannot be read.
std::vector<std::optional<double>> numbers_of(file::System& system, const std::string& compdb, std::span<const Row> rows);

// The two to four lines of the record; `numbers` are those of its components. Texts that are no number count as 0. Throws
// file::Refusal for what no reader would read back (more components than the window has rows, a quote in the name, an ID
// number of 0) and for numbers that a file cannot hold.
std::string species_record(const Entry& entry, const db::Database& open, std::span<const std::optional<double>> numbers);

}  // namespace edit
