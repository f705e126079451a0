// Proposes an ID number that no species of a database has.
#pragma once

#include <string>
#include <string_view>

#include "db/database.h"
#include "file/system.h"

namespace edit {

// The two numbers from which an ID number is built.
struct IdBase {
  double first = 0, second = 0;
};

// Looks up the texts of the first two component rows in the component database (the surface sites too: only a component
// that bears such a name there is found). A number whose name is not found keeps its value. Throws file::Error.
void look_up(file::System& system, const db::Database& open, const std::string& comp1, const std::string& comp2,
             IdBase& base);

// Puts the site number of an isotherm model in the first place; `first_component` is the text of the first row.
IdBase with_site(IdBase base, std::string_view isomodel, std::string_view first_component);

// first * 10000 + second * 10.
double first_candidate(const IdBase& base);

// The first number that no species of the open database has, whole numbers compared: of the first candidate and the nine
// after it; of the same with first and second exchanged; from that exchanged number + 11 upward. (That + 10 is left out.)
// The database is read once. Throws file::Error, and file::Refusal when a double cannot hold the candidates.
double free_id(file::System& system, const db::Database& open, const IdBase& base);

}  // namespace edit
