// From the texts of the window to the file: numbers, a record, and species added, changed or deleted.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "db/database.h"
#include "edit/display.h"

namespace edit {

// The value of the longest leading part of `text` that is a decimal number: sign, digits with at most one point,
// exponent. Blanks, tabs and line feeds count as not there; a text that begins with no number gives 0. " 1 2.5x" is 12.5.
// Throws file::Refusal for a number too large for a double.
double number_rule(std::string_view text);

// The same after the first comma, if any, has become a point: "1,234,5" is 1.234.
double comma_number(std::string_view text);

// The lines of the record of a species, from the texts of the window, with a row for each of its components at least. Texts
// that are no number count as 0. The number of a component is the fixed one of a surface site, for "#9999" the number after
// the sign, else that of the component database, which is read once, and only when a row holds more than a surface site; any
// other name leaves an empty field. Throws file::Refusal for what no reader would read back (more components than the window
// has rows, a quote in the name, an ID number of 0), for numbers that a file cannot hold, and when the component database
// cannot be read.
std::string species_record(file::System& system, const db::Database& open, const Entry& entry);

// Each rewrites the database in one step, or throws file::Refusal or file::Error and leaves it as it was. What it returns
// has to be told of a success. `critical_f` is the text of its box, written into a BLM database. The model written before
// the first record is the picked one with a change, else the one in force.

// The new species comes before the others.
[[nodiscard]] std::optional<std::string> add_species(file::System& system, const db::Database& open, const Entry& entry,
                                                     std::string_view critical_f);
// Puts the entry in the place of every species of this name; without a name it changes none.
[[nodiscard]] std::optional<std::string> change_species(file::System& system, const db::Database& open,
                                                        std::optional<std::string_view> name, const Entry& entry,
                                                        std::string_view critical_f);
[[nodiscard]] std::optional<std::string> delete_species(file::System& system, const db::Database& open,
                                                        std::string_view name, std::string_view critical_f);

}  // namespace edit
