// The open species database, as every operation on it has to know it.
#pragma once

#include <optional>
#include <string>
#include <utility>

#include "db/kind.h"

namespace db {

struct Database {
  std::string path{};
  // By the path that it was opened under. It stays when the content is saved under another name: the file is written as
  // what it is, whatever its name says.
  Kind kind = Kind::Complexation;
  std::string isomodel{};  // the isotherm model in force, or "NICA-Donnan"
  bool mbfields = false;   // M.B. stoichiometries are in use
  // The database could not be copied to this path: what lies there, if anything, is another one.
  bool misplaced = false;

  bool blifile() const { return kind == Kind::Blm; }
  bool cdbfile() const { return kind == Kind::Counterion; }
};

// As it is when it has just been opened.
inline Database database_at(std::string path) {
  const Kind kind = kind_of(path);
  return {.path = std::move(path), .kind = kind};
}

// Which fields stand before the first record: the isotherm model (or "NICA-Donnan"); two texts and the critical f value.
struct Leading {
  bool model = false, blm = false;
};
constexpr Leading leading_of(Kind kind) {
  return {.model = kind == Kind::Isotherm || kind == Kind::NicaDonnan, .blm = kind == Kind::Blm};
}
// As a database is loaded, shown and searched: an isotherm or NICA-Donnan database is told by its name, a BLM parameter
// database by the kind held.
inline Leading leading_by_name(const Database& open) {
  const bool model = leading_of(kind_of(open.path)).model;
  return {.model = model, .blm = !model && open.blifile()};
}

// What the user has to be told when the name of the file says another kind than it holds.
std::optional<std::string> misnamed(const Database& open);

}  // namespace db
