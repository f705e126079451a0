// What is done to the open database as a whole: species added, changed or deleted.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "db/database.h"
#include "edit/species_record.h"

namespace edit {

// What a save puts into the database.
struct Change {
  std::optional<std::string> species{};  // its name, of which every one is changed; nothing: none is
  bool adds;                             // it comes new, before the others
  Entry entry{};
  std::string critical_f{};  // the text of its box
};

// Both rewrite the database in one step, or throw file::Refusal or file::Error and leave it as it was. What they return has
// to be told of a success. The model written before the first record is the picked one with a change, else the one in force.
[[nodiscard]] std::optional<std::string> save(file::System& system, const db::Database& open, const std::string& compdb,
                                              const Change& change);
[[nodiscard]] std::optional<std::string> delete_species(file::System& system, const db::Database& open,
                                                        const std::string& compdb, std::string_view name,
                                                        std::string_view critical_f);

}  // namespace edit
