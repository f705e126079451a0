// What is done to the open database as a whole: species added, changed or deleted.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "db/database.h"
#include "edit/species_record.h"

namespace edit {

// Each rewrites the database in one step, or throws file::Refusal or file::Error and leaves it as it was. What it returns
// has to be told of a success. `critical_f` is the text of its box, written into a BLM database. The model written before
// the first record is the picked one with a change, else the one in force.

// The new species comes before the others.
[[nodiscard]] std::optional<std::string> add_species(file::System& system, const db::Database& open,
                                                     const std::string& compdb, const Entry& entry,
                                                     std::string_view critical_f);
// Puts the entry in the place of every species of this name; without a name it changes none.
[[nodiscard]] std::optional<std::string> change_species(file::System& system, const db::Database& open,
                                                        const std::string& compdb, std::optional<std::string_view> name,
                                                        const Entry& entry, std::string_view critical_f);
[[nodiscard]] std::optional<std::string> delete_species(file::System& system, const db::Database& open,
                                                        const std::string& compdb, std::string_view name,
                                                        std::string_view critical_f);

}  // namespace edit
