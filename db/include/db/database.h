// The open species database, as every operation on it has to know it.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace db {

// The kind of a species database, told by the last characters of its path alone. Upper or lower case throughout counts;
// mixed case does not: x.Iso is a complexation database.
enum class Kind { Complexation, Counterion, Isotherm, NicaDonnan, Blm };

constexpr Kind kind_of(std::string_view path) {
  const auto ends = [path](std::string_view upper, std::string_view lower) {
    return path.ends_with(upper) || path.ends_with(lower);
  };
  if (ends("CDB", "cdb")) return Kind::Counterion;
  if (ends("ISO", "iso")) return Kind::Isotherm;
  if (ends("NIC", "nic")) return Kind::NicaDonnan;
  if (ends("BLI", "bli")) return Kind::Blm;
  return Kind::Complexation;
}

// The one counterion selectivity database whose K-sel values are not shown.
constexpr bool is_donnica(std::string_view path) { return path.ends_with("donnica.cdb"); }

struct KindName {
  std::string_view name, extension;
};
constexpr KindName name_of(Kind kind) {
  switch (kind) {
    case Kind::Counterion: return {"a counterion selectivity database", "CDB"};
    case Kind::Isotherm: return {"an isotherm database", "ISO"};
    case Kind::NicaDonnan: return {"a NICA-Donnan database", "NIC"};
    case Kind::Blm: return {"a BLM parameter database", "BLI"};
    default: return {"a complexation / sorption database", "MDB"};
  }
}

struct Database {
  std::string path{};
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
