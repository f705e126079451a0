// The open species database, as every operation on it has to know it.
#pragma once

#include <string>
#include <string_view>

namespace db {

// The kind of a species database, told by the last characters of its path alone. Upper or lower case throughout counts;
// mixed case does not: x.Iso is a complexation database.
enum class Kind { Complexation, Counterion, Isotherm, NicaDonnan, Blm };

struct KindName {
  std::string_view name, extension, lower;
};
constexpr KindName name_of(Kind kind) {
  constexpr KindName kNames[] = {{"a complexation / sorption database", "MDB", "mdb"},
                                 {"a counterion selectivity database", "CDB", "cdb"},
                                 {"an isotherm database", "ISO", "iso"},
                                 {"a NICA-Donnan database", "NIC", "nic"},
                                 {"a BLM parameter database", "BLI", "bli"}};
  return kNames[static_cast<int>(kind)];
}

constexpr Kind kind_of(std::string_view path) {
  for (const Kind kind : {Kind::Counterion, Kind::Isotherm, Kind::NicaDonnan, Kind::Blm})
    if (path.ends_with(name_of(kind).extension) || path.ends_with(name_of(kind).lower)) return kind;
  return Kind::Complexation;
}

// The one counterion selectivity database whose K-sel values are not shown.
constexpr bool is_donnica(std::string_view path) { return path.ends_with("donnica.cdb"); }

struct Database {
  std::string path{};
  std::string compdb{};  // of the component database by which its components are named, and which is never written
  // By the path that it was opened under. It stays when the content is saved under another name: the file is written as
  // what it is, whatever its name says.
  Kind kind = Kind::Complexation;
  std::string isomodel{};   // the isotherm model in force, or "NICA-Donnan"
  std::string isoselect{};  // the model picked by the user, or taken from the file
  bool mbfields = false;    // M.B. stoichiometries are in use
  // The database could not be copied to this path: what lies there, if anything, is another one.
  bool misplaced = false;

  bool blifile() const { return kind == Kind::Blm; }
  bool cdbfile() const { return kind == Kind::Counterion; }
};

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

}  // namespace db
